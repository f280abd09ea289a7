// Removing, inserting, reversing, closing and renumbering points.
#include "design4x/compteurs.h"
#include "design4x/edition_points.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Points;
using essais::Projet;

namespace {

using V = std::vector<std::array<double, 3>>;

// X, Y and flags of each point.
V Etat(const ProfilCPX& profil) {
    V etat;
    for (const PointProfil& p : profil.Points) etat.push_back({p.X, p.Y, static_cast<double>(p.Drapeaux)});
    return etat;
}

} // namespace

TEST(Supprimer, OteLesSuitesChoisiesDesDeuxCotes) {
    ProjetCPX p = Projet({{0, 0}, {1, 0, 1}, {2, 0, 1}, {3, 0, 4}, {4, 0, 5}}, {{0, 0}, {1, 1}, {2, 2, 1}});
    EXPECT_TRUE(cmdSupprimer(p));
    EXPECT_EQ(Etat(p.E), (V{{0, 0, 0}, {3, 0, 4}}));
    EXPECT_EQ(Etat(p.S), (V{{0, 0, 0}, {1, 1, 0}}));
    EXPECT_EQ(p.E.Extremes.Xmax, 3);
}

TEST(Supprimer, ToutChoisiDUnCoteRienNiDUnCoteNiDeLAutre) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0, 1}, {1, 0, 1}, {2, 0, 1}}, {{0, 0}, {1, 1}, {2, 2, 1}});
    const ProjetCPX avant = p;
    EXPECT_FALSE(cmdSupprimer(p));
    EXPECT_EQ(p, avant);
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte, "Il faut conserver au moins deux points non sélectionnés de chaque côté.");
    EXPECT_EQ(b.boites[0].titre, "Erreur de sélection");
    EXPECT_EQ(b.boites[0].icone, IconeBoite::Critique);
}

TEST(Supprimer, UnSeulPointQuiResteraitEstTropPeu) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {1, 0}, {2, 0, 1}}, {{0, 0}, {1, 1, 1}});
    EXPECT_FALSE(cmdSupprimer(p));
    EXPECT_EQ(b.boites.size(), 1U);
}

TEST(Supprimer, SansSelectionRienSansBoite) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {1, 0}}, {{0, 0}, {1, 1}});
    EXPECT_FALSE(cmdSupprimer(p));
    EXPECT_TRUE(b.boites.empty());
}

TEST(Supprimer, LeCompteurResteDansLesPoints) {
    ProjetCPX p = Projet({{0, 0}, {1, 0}, {2, 0, 1}}, {{0, 0}, {1, 1}});
    p.E.PointCourant = 2;
    cmdSupprimer(p);
    EXPECT_EQ(p.E.PointCourant, 1);
}

TEST(InsererPoint, AuMilieuDeChaqueSegmentChoisiUneFois) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 4, 1}, {20, 4, 1}, {30, 0}, {40, 0, 1}}, {{0, 0}, {1, 1}});
    EXPECT_TRUE(cmdInsererPoint(p));
    EXPECT_EQ(Etat(p.E),
              (V{{0, 0, 1}, {5, 2, 1}, {10, 4, 1}, {15, 4, 1}, {20, 4, 1}, {30, 0, 0}, {40, 0, 1}}));
    EXPECT_EQ(p.E.Points[1].Z, 250);
}

TEST(InsererPoint, HeriteDe16EtDe32QuandLesDeuxVoisinsLesPortent) {
    ProjetCPX p =
        Projet({{0, 0, 1 + 16 + 4}, {2, 0, 1 + 16 + 32 + 4}, {4, 0, 1 + 32}, {6, 0, 1 + 16 + 32}}, {});
    EXPECT_TRUE(cmdInsererPoint(p));
    EXPECT_EQ(p.E.Points[1].Drapeaux, 1 + 16);
    EXPECT_EQ(p.E.Points[3].Drapeaux, 1 + 32);
    EXPECT_EQ(p.E.Points[5].Drapeaux, 1 + 32);
}

TEST(InsererPoint, DUnSeulCoteLesNombresNeSontPlusEgaux) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 4, 1}}, {{0, 0}, {1, 1}});
    EXPECT_EQ(RegleComptes(p), (EtatComptes{true, true, true}));
    EXPECT_TRUE(cmdInsererPoint(p));
    EXPECT_EQ(RegleComptes(p), (EtatComptes{false, false, false}));
}

TEST(InsererPoint, SansDeuxVoisinsChoisisRien) {
    ProjetCPX p = Projet({{0, 0, 1}, {1, 0}, {2, 0, 1}}, {{0, 0, 2}, {1, 1, 2}});
    EXPECT_FALSE(cmdInsererPoint(p));
}

TEST(InverserSelection, ChaqueSuiteALEnversLaDerniereAussi) {
    ProjetCPX p = Projet({{0, 0}, {1, 0, 1}, {2, 0, 5}, {3, 0}, {4, 0, 1}, {5, 0, 1}, {6, 0, 17}}, {{0, 0}});
    EXPECT_TRUE(cmdInverserSelection(p));
    EXPECT_EQ(Etat(p.E), (V{{0, 0, 0}, {2, 0, 5}, {1, 0, 1}, {3, 0, 0}, {6, 0, 17}, {5, 0, 1}, {4, 0, 1}}));
    EXPECT_EQ(p.E.Points.size(), 7U);
}

TEST(InverserSelection, SansSelectionTout) {
    ProjetCPX p = Projet({{0, 0, 4}, {1, 0}, {2, 0}}, {{7, 0}, {8, 0, 8}});
    EXPECT_TRUE(cmdInverserSelection(p));
    EXPECT_EQ(Etat(p.E), (V{{2, 0, 0}, {1, 0, 0}, {0, 0, 4}}));
    EXPECT_EQ(Etat(p.S), (V{{8, 0, 8}, {7, 0, 0}}));
}

TEST(FermerProfil, CopieEntiereDuPremierPoint) {
    ProjetCPX p = Projet({{0, 0, 5}, {1, 0}, {2, 3}}, {{0, 0}});
    EXPECT_TRUE(cmdFermerProfil(p, 0));
    ASSERT_EQ(p.E.Points.size(), 4U);
    EXPECT_EQ(p.E.Points[3], p.E.Points[0]);
}

TEST(FermerProfil, DejaFermeLaBoiteDuCote) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {1, 0}, {0, 0}}, {{4, 4}, {5, 4}, {4, 4}});
    EXPECT_FALSE(cmdFermerProfil(p, 0));
    EXPECT_FALSE(cmdFermerProfil(p, 1));
    ASSERT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(b.boites[0].texte, "Le profil d'emplanture est déjà fermé");
    EXPECT_EQ(b.boites[0].titre, "Opération impossible");
    EXPECT_EQ(b.boites[1].texte, "Le profil de saumon est déjà fermé");
    EXPECT_EQ(p.E.Points.size(), 3U);
}

// Nearly closed is not closed: the ends must be the same exactly.
TEST(FermerProfil, AUnMilliemePresOnFerme) {
    ProjetCPX p = Projet({{0, 0}, {1, 0}, {0.001, 0}}, {});
    EXPECT_TRUE(cmdFermerProfil(p, 0));
    EXPECT_FALSE(cmdFermerProfil(p, 1));
}

// Square (0,0) (10,0) (10,10) (0,10) (0,0); counter on (10,10). Opened, turned, closed; flags stay in place.
TEST(Renumeroter, UnProfilFermeSOuvreTourneEtSeReferme) {
    ProjetCPX p = Projet({{0, 0, 4}, {10, 0}, {10, 10, 8}, {0, 10}, {0, 0, 16}}, {});
    p.E.PointCourant = 2;
    EXPECT_TRUE(cmdRenumeroter(p));
    EXPECT_EQ(Etat(p.E), (V{{10, 10, 0}, {0, 10, 8}, {0, 0, 0}, {10, 0, 16}, {10, 10, 0}}));
    EXPECT_EQ(p.E.PointCourant, 0);
}

TEST(Renumeroter, FermeAMoinsDe25Microns) {
    ProjetCPX p = Projet({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0.0249}}, {});
    p.E.PointCourant = 1;
    EXPECT_TRUE(cmdRenumeroter(p));
    EXPECT_EQ(Etat(p.E), (V{{10, 0, 0}, {10, 10, 0}, {0, 10, 0}, {0, 0.0249, 0}, {10, 0, 0}}));
}

TEST(Renumeroter, OuvertTourneSansSeFermer) {
    ProjetCPX p = Projet({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0.026}}, {});
    p.E.PointCourant = 1;
    EXPECT_TRUE(cmdRenumeroter(p));
    EXPECT_EQ(Etat(p.E), (V{{10, 0, 0}, {10, 10, 0}, {0, 10, 0}, {0, 0.026, 0}, {0, 0, 0}}));
}

TEST(Renumeroter, LaSelectionSeuleTourne) {
    ProjetCPX p = Projet({{0, 0}, {1, 0, 1}, {2, 0, 3}, {3, 0, 1}, {4, 0, 1}, {5, 0}}, {{0, 0}});
    p.E.PointCourant = 3;
    EXPECT_TRUE(cmdRenumeroter(p));
    EXPECT_EQ(Etat(p.E), (V{{0, 0, 0}, {3, 0, 1}, {4, 0, 3}, {1, 0, 1}, {2, 0, 1}, {5, 0, 0}}));
    EXPECT_EQ(p.E.PointCourant, 1);
}

TEST(Renumeroter, CompteurAuPremierPointMoinsDeQuatreOuHorsSelectionLeProfilReste) {
    ProjetCPX p = Projet({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, {{0, 0}, {10, 0}, {10, 10}});
    p.S.PointCourant = 1;
    EXPECT_FALSE(cmdRenumeroter(p));
    p.E.Points = Points({{0, 0}, {1, 0, 1}, {2, 0, 1}, {3, 0, 1}, {4, 0, 1}});
    p.E.PointCourant = 0;
    EXPECT_FALSE(cmdRenumeroter(p));
    p.E.Points.push_back(p.E.Points[0]);
    p.E.PointCourant = 5;
    EXPECT_FALSE(cmdRenumeroter(p));
    EXPECT_EQ(Etat(p.E), (V{{0, 0, 0}, {1, 0, 1}, {2, 0, 1}, {3, 0, 1}, {4, 0, 1}, {0, 0, 0}}));
}

// A closed profile renumbered from every point keeps its shape and its number of points.
TEST(Renumeroter, DepuisChaquePointLaMemeFigure) {
    for (std::int32_t depart = 1; depart < 7; ++depart) {
        ProjetCPX p = Projet({{0, 0}, {5, -2}, {9, 0}, {10, 5}, {5, 8}, {1, 5}, {0, 0}}, {});
        const std::vector<PointProfil> avant = p.E.Points;
        p.E.PointCourant = depart;
        ASSERT_TRUE(cmdRenumeroter(p));
        ASSERT_EQ(p.E.Points.size(), 7U);
        for (std::size_t k = 0; k < 7; ++k) {
            const PointProfil& source = avant[(static_cast<std::size_t>(depart) + k) % 6];
            EXPECT_EQ(p.E.Points[k].X, source.X) << depart;
            EXPECT_EQ(p.E.Points[k].Y, source.Y) << depart;
        }
    }
}
