// Synchronisation of drawn and of real profiles: nothing is lost, and both sides keep step.
#include "design4x/controle_synchro.h"
#include "design4x/synchronisation.h"
#include "outils/dossiers.h"
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A wandering outline of `nombre` points with segments of 0.05 mm to `pas`; each vertex is selected, and
// `marques` of the inner ones, at about even distances, end a section.
ProfilEssai ProfilAuHasard(std::mt19937& hasard, std::size_t nombre, double pas, std::size_t marques) {
    const auto reel = [&](double a, double b) {
        return std::uniform_real_distribution<double>(a, b)(hasard);
    };
    ProfilEssai points(nombre);
    double cap = 0;
    for (std::size_t i = 1; i < nombre; ++i) {
        cap += reel(-0.5, 0.5);
        const double longueur = reel(0.05, pas);
        points[i].X = points[i - 1].X + longueur * std::cos(cap);
        points[i].Y = points[i - 1].Y + longueur * std::sin(cap);
    }
    for (PointProfil& p : points) p.Drapeaux = DrapeauOutil;
    for (std::size_t k = 0; k < marques; ++k) {
        const double rang = (static_cast<double>(k) + reel(0.7, 1.3)) / static_cast<double>(marques + 1);
        points[static_cast<std::size_t>(rang * static_cast<double>(nombre - 2))].Drapeaux |= DrapeauSynchro;
    }
    points.front().Drapeaux |= DrapeauSynchro;
    points.back().Drapeaux |= DrapeauSynchro;
    return points;
}

void ControlerSynchronisation(const ProfilEssai& e, const ProfilEssai& s) {
    ProjetCPX projet;
    projet.E.Points = e;
    projet.S.Points = s;
    ASSERT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
    ASSERT_LE(projet.E.Points.size(), e.size() + s.size() - 2);
    ControlerSommetsGardes(e, projet.E.Points, 1e-3);
    ControlerSommetsGardes(s, projet.S.Points, 1e-3);
    // Each pair met together may be a thousandth apart.
    const std::size_t ensemble = e.size() + s.size() - 1 - projet.E.Points.size();
    ControlerCorrespondance(projet, 0.002 + 0.001 * static_cast<double>(ensemble));
}

std::vector<ProfilEssai> ProfilsDuCorpus() {
    std::vector<ProfilEssai> profils;
    const std::string corpus = DossierCorpus(TESSAREL_RACINE);
    if (corpus.empty() || !std::filesystem::is_directory(corpus + "/dat")) return profils;
    std::vector<std::string> chemins;
    for (const auto& entree : std::filesystem::directory_iterator(corpus + "/dat"))
        if (entree.path().extension() == ".dat") chemins.push_back(entree.path().string());
    std::sort(chemins.begin(), chemins.end());
    for (const std::string& chemin : chemins) {
        std::vector<PointSimple> points;
        Etendue etendue;
        try {
            LireFichier(points, chemin, etendue, "dat");
        } catch (const std::exception&) {
            continue; // a table that is refused is no profile
        }
        ProfilEssai profil(points.size());
        for (std::size_t i = 0; i < points.size(); ++i) {
            profil[i].X = points[i].X;
            profil[i].Y = points[i].Y;
            profil[i].Drapeaux = DrapeauOutil;
        }
        profil.front().Drapeaux |= DrapeauSynchro;
        profil.back().Drapeaux |= DrapeauSynchro;
        profils.push_back(profil);
    }
    return profils;
}

} // namespace

TEST(SynchroProprietes, ProfilsAuHasard) {
    std::mt19937 hasard(6);
    for (int essai = 0; essai < 400; ++essai) {
        SCOPED_TRACE(essai);
        const std::size_t ne = 30 + hasard() % 300;
        const std::size_t ns = 30 + hasard() % 300;
        const std::size_t marques = hasard() % 6;
        const double pas = 0.2 * static_cast<double>(1 + hasard() % 20);
        const ProfilEssai e = ProfilAuHasard(hasard, ne, pas, marques);
        ControlerSynchronisation(e, ProfilAuHasard(hasard, ns, pas, marques));
        if (HasFatalFailure()) return;
    }
}

TEST(SynchroProprietes, CentMillePointsContreSoixanteDixMille) {
    std::mt19937 hasard(8);
    const ProfilEssai e = ProfilAuHasard(hasard, 100'000, 0.1, 0);
    ControlerSynchronisation(e, ProfilAuHasard(hasard, 70'000, 0.1, 0));
}

// Equal segments, so many that their sum in 32 bits is off by hundreds of them: the same way in each
// addition.
TEST(SynchroProprietes, SommesEn32BitsDeNombreuxSegmentsEgaux) {
    ProfilEssai e(100'001);
    ProfilEssai s(70'002);
    for (std::size_t i = 0; i < e.size(); ++i) e[i].X = 0.0123 * static_cast<double>(i);
    for (std::size_t i = 0; i < s.size(); ++i) s[i].Y = 0.0171 * static_cast<double>(i);
    for (ProfilEssai* p : {&e, &s}) p->front().Drapeaux = p->back().Drapeaux = DrapeauSynchro;
    ControlerSynchronisation(e, s);
}

TEST(SynchroProprietes, UneSecondeFoisNeChangeRien) {
    std::mt19937 hasard(9);
    for (int essai = 0; essai < 50; ++essai) {
        ProjetCPX projet;
        projet.E.Points = ProfilAuHasard(hasard, 40, 3, 2);
        projet.S.Points = ProfilAuHasard(hasard, 25, 3, 2);
        ASSERT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
        const ProjetCPX fait = projet;
        ASSERT_EQ(SynchroniserProfils(projet), EtatSynchro::Faite);
        ASSERT_EQ(projet, fait) << essai;
    }
}

TEST(SynchroProprietes, ProfilsReels) {
    const std::vector<ProfilEssai> profils = ProfilsDuCorpus();
    if (profils.empty()) GTEST_SKIP() << "no corpus here";
    int paires = 0;
    for (std::size_t i = 0; i < profils.size(); ++i) {
        const std::size_t j = (i * 7 + 3) % profils.size();
        if (profils[i].size() == profils[j].size()) continue;
        SCOPED_TRACE(std::to_string(i) + " and " + std::to_string(j));
        ControlerSynchronisation(profils[i], profils[j]);
        if (HasFatalFailure()) return;
        ++paires;
    }
    EXPECT_GE(paires, 10);
}
