// A cut on the virtual machine from the 2D window: a drawing in its block, the cut page open, the machine in
// a memory of the box; gestures at a moment of the run, and what must hold at its end.
#pragma once

#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_2d.h"
#include "work2d/ui/trace_course.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace tessarel::essais {

// A triangle of a few millimetres: a cut of it lasts a few seconds of the machine.
inline constexpr const char* TriangleTexte = "Triangle\r\n0.0:0.0\r\n4.0:0.0\r\n2.0:3.0\r\n0.0:0.0\r\n";

struct ReglagesCoupe {
    Langue langue = Langue::Francais;
    // A built-in machine; or a name of at most 8 letters for one like "(Defaut)", which `regler` changes.
    std::string machine = "(Defaut)";
    std::function<void(TableMachine&)> regler;
    const char* dessin = RectangleTexte;
    Instant parEchange = std::chrono::milliseconds(200);
    std::size_t capaciteFile = simulateur::CapaciteFileUsuelle;
};

struct Coupe {
    explicit Coupe(Langue langue = Langue::Francais) : Coupe(ReglagesCoupe{langue, "(Defaut)", {}}) {}
    explicit Coupe(const ReglagesCoupe& reglages)
        : poste(reglages.langue), virtuelle(reglages.parEchange, reglages.capaciteFile) {
        if (!EstMachineIntegree(reglages.machine)) {
            TableMachine table = TableINI;
            table.Nom = reglages.machine;
            if (reglages.regler) reglages.regler(table);
            CalculerChampsDerives(table);
            EcrireMachine(table);
        }
        ChargerMachine(reglages.machine);
        ChargerBaseMatieres();
        ChoisirMatiere(MatieresMachine.front());
        virtuelle.Memoriser(TableINI);
        poste.OuvrirFenetre();
        poste.Deposer({poste.Fichier("dessin.txt", reglages.dessin)});
        for (const char* regle : {"chkCentrer_1", "chkCentrer_2"}) poste.Cliquer<QCheckBox>(regle);
        poste.Cliquer<QPushButton>("cmdDecouper");
        if (TableINI.OrigineEnHaut) virtuelle.boite->PoserChariots(virtuelle.boite->PositionOrigine());
    }
    void Lancer() { poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D"); }
    [[nodiscard]] QString Avertissement() const {
        return poste.Trouver<QLabel>("lblAvertissementDecoupe").text();
    }
    // Runs `geste` once, when the words of the run first begin so.
    void Quand(const QString& debut, std::function<void()> geste) {
        fait = false;
        virtuelle.SurPompe = [this, debut, geste = std::move(geste)] {
            if (fait || !Avertissement().startsWith(debut)) return;
            fait = true;
            geste();
        };
    }
    void StopQuand(const QString& debut) {
        Quand(debut, [this] { poste.Cliquer<QPushButton>("cmdSTOP"); });
    }
    void Arreter() {
        StopQuand(QStringLiteral("Découpe segment n°4/"));
        Lancer();
        virtuelle.SurPompe = {};
    }
    [[nodiscard]] bool FilFroid() const {
        const auto etat = virtuelle.boite->Etat();
        return etat.pwmCommande == 0 && etat.file == simulateur::EtatFile::Repos;
    }
    [[nodiscard]] bool Dit(IconeBoite icone) const {
        return std::ranges::any_of(poste.boites.boites, [icone](const Boite& b) { return b.icone == icone; });
    }
    // Idle: the launch button is there, Stop is not.
    [[nodiscard]] bool AuRepos() const {
        return poste.Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").isVisible() &&
               poste.Trouver<QPushButton>("cmdAnnulerDecoupe").isEnabled() &&
               !poste.Trouver<QPushButton>("cmdSTOP").isEnabled() &&
               !poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible() &&
               poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled() &&
               !poste.fenetre->Course().enCours && !poste.fenetre->Course().arretee;
    }
    // Stopped: the operator may go on, go back or give up, and do nothing else with the machine.
    [[nodiscard]] bool Arretee() const {
        bool offerts = true;
        for (const char* nom : {"cmdRepriseDecoupe", "cmdLancerRetourApresStop", "cmdAnnulerReprise"}) {
            const auto& bouton = poste.Trouver<QPushButton>(nom);
            offerts = offerts && bouton.isVisible() && bouton.isEnabled();
        }
        return offerts && !poste.Trouver<QPushButton>("cmdSTOP").isEnabled() &&
               !poste.Trouver<QPushButton>("cmdStopRetourApresReprise").isEnabled() &&
               !poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled() &&
               !poste.fenetre->Course().enCours && poste.fenetre->Course().arretee;
    }
    // Steps that the cut shown asks of each axis, both ways together, as the box counts them.
    [[nodiscard]] std::array<std::uint64_t, 4> PasVoulus() const {
        const TrajetPas trajet =
            CalculerTrajetPas(poste.fenetre->DecoupeMontree().SequenceDecoupe.Points, TableINI);
        std::array<std::uint64_t, 4> pas = {};
        const auto ecart = [](std::int32_t a, std::int32_t b) {
            return static_cast<std::uint64_t>(std::abs(std::int64_t{a} - b));
        };
        for (std::size_t i = 2; i < trajet.bout1.size(); ++i) {
            pas[AxeX1] += ecart(trajet.bout1[i].X, trajet.bout1[i - 1].X);
            pas[AxeY1] += ecart(trajet.bout1[i].Y, trajet.bout1[i - 1].Y);
            pas[AxeX2] += ecart(trajet.bout2[i].X, trajet.bout2[i - 1].X);
            pas[AxeY2] += ecart(trajet.bout2[i].Y, trajet.bout2[i - 1].Y);
        }
        return pas;
    }
    // The alert over a box that does not answer, while it is shown.
    [[nodiscard]] QMessageBox* Alerte() const {
        // One that was answered stays there, hidden, until the loop of the run is over.
        for (auto* alerte : poste.fenetre->findChildren<QMessageBox*>(QStringLiteral("alerteInterface")))
            if (alerte->isVisible()) return alerte;
        return nullptr;
    }
    // The user gives up at each alert.
    void RenoncerSiMuet() const {
        if (QMessageBox* alerte = Alerte())
            QTest::mouseClick(alerte->button(QMessageBox::Ok), Qt::LeftButton);
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
    bool fait = false;
};

} // namespace tessarel::essais
