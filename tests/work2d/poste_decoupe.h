// One short 2D cut on the virtual machine, under the test's clock, with a user who may press Stop.
#pragma once

#include "work2d/assemblage.h"
#include "work2d/decoupe_interface.h"

#include "link/echange.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"
#include "outils_boite/fil_froid.h"
#include "outils_boite/sommets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessarel::essais {

// A small cut with a rapid way in and out, all in a few seconds of the machine.
inline Decoupe2D PetiteDecoupe() {
    Decoupe2D decoupe;
    decoupe.SequenceDecoupe.Points = {Sommet(0, 0, 4, true), Sommet(0, 3, 8),    Sommet(2, 3, 4),
                                      Sommet(2.5, 1.5, 4),   Sommet(1, 1.25, 4), Sommet(0.5, 2.125, 4),
                                      Sommet(0, 2, 4, true), Sommet(0, 0, 8)};
    CalculerBornesSequence(decoupe.SequenceDecoupe);
    return decoupe;
}

inline OptionsDecoupe2D Options() {
    OptionsDecoupe2D options;
    options.chauffe = 50;
    return options;
}

// One cut under the test's clock, with a user who may press Stop after a given exchange and who presses it
// again and again while the box is gone.
struct Poste {
    explicit Poste(Instant pas = std::chrono::milliseconds(10), std::size_t capacite = 4,
                   const std::string& machine = "(Defaut)")
        : boite(machine, capacite), anciennePompe(InstallerPompe([this] { Pomper(); })) {
        TableMachine table = TableINI;
        table.TempoChauffe = 1;
        boite.PreparerMachine(table);
        boite.PasParEchange = pas;
        boite.AvantEchange = [this](const Tampon& t) {
            ++echanges;
            if (!MouvementsActifs && EstCommandeDeMouvement(t)) ++interdites;
        };
        suivi.demandes = &demandes;
        suivi.ChangerPhase = [this](PhaseDecoupe phase) { phases.push_back(phase); };
        suivi.Avancer = [this](const AvanceeDecoupe& a) { avancees.push_back(a); };
        decoupe = PetiteDecoupe();
    }
    ~Poste() { InstallerPompe(anciennePompe); }
    Poste(const Poste&) = delete;
    Poste& operator=(const Poste&) = delete;

    void Pomper() {
        if (stopA != 0 && echanges >= stopA) {
            demandes.StopDemande = true;
            stopA = 0;
        }
        if (!boite.boite.Branchee() && ++toursSansBoite % 25 == 0) demandes.StopDemande = true;
        if (SurPompe) SurPompe();
    }
    DecoupePreparee Preparer(const std::optional<PasAxes>& depart = {}) {
        return PreparerDecoupeTS2D(decoupe, Options(), TableINI, "Mousse", depart);
    }
    ResultatDecoupe Lancer(bool origine = false, GenreDecoupe genre = GenreDecoupe::Decoupe) {
        preparee = Preparer();
        return LancerDecoupeTS2D(preparee, TableINI, origine, suivi, genre);
    }
    // The rest of the path after a stop.
    ResultatDecoupe Reprendre(const ResultatDecoupe& arret) {
        decoupe.SequenceDecoupe =
            SequenceDeReprise(decoupe.SequenceDecoupe, arret.NumSalveCourante, arret.PositionStop.pas,
                              TableINI.VitesseDecoupeParDefaut, TableINI);
        preparee = Preparer(arret.PositionStop.pas);
        return LancerDecoupeTS2D(preparee, TableINI, false, suivi);
    }
    [[nodiscard]] PasAxes Position() const {
        PasAxes pas = {};
        for (std::size_t axe = 0; axe < pas.size(); ++axe)
            pas[axe] = static_cast<std::int32_t>(boite.boite.Position()[axe]);
        return pas;
    }
    [[nodiscard]] std::string DernierTitre() const {
        return boites.boites.empty() ? "" : boites.boites.back().titre;
    }
    void FilFroidOuDit() const {
        EXPECT_TRUE(essais::FilFroidOuDit(boite.boite, boites.boites));
        EXPECT_EQ(interdites, 0);
    }

    BoitesEnregistrees boites;
    BoiteVirtuelle boite;
    DemandesMarche demandes;
    SuiviDecoupe suivi;
    Decoupe2D decoupe;
    DecoupePreparee preparee;
    std::vector<PhaseDecoupe> phases;
    std::vector<AvanceeDecoupe> avancees;
    Pompe anciennePompe;
    std::function<void()> SurPompe;
    std::uint64_t echanges = 0;
    std::uint64_t stopA = 0;
    int toursSansBoite = 0;
    int interdites = 0;
};

} // namespace tessarel::essais
