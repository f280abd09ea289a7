// Copy, cut, paste, and two wings from one.
#include "design4x/copie.h"
#include "design4x/dupliquer.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

namespace {

using V = std::vector<std::array<double, 3>>;

V Etat(const std::vector<PointProfil>& points) {
    V etat;
    for (const PointProfil& p : points) etat.push_back({p.X, p.Y, static_cast<double>(p.Drapeaux)});
    return etat;
}

} // namespace

TEST(Copier, PrendLesPointsEtOteLaSelection) {
    ProjetCPX p = Projet({{0, 0, 5}, {1, 0}, {2, 0, 1}}, {{7, 7, 4}});
    PressePapiersCPX c;
    EXPECT_TRUE(cmdCopier(p, c));
    EXPECT_EQ(Etat(c.CopieE), (V{{0, 0, 5}, {2, 0, 1}}));
    EXPECT_TRUE(c.CopieS.empty());
    EXPECT_EQ(Etat(p.E.Points), (V{{0, 0, 4}, {1, 0, 0}, {2, 0, 0}}));
}

TEST(Couper, PrendEtSupprime) {
    ProjetCPX p = Projet({{0, 0, 1}, {1, 0}, {2, 0}}, {{7, 7}, {8, 8}});
    PressePapiersCPX c;
    EXPECT_TRUE(cmdCouper(p, c));
    EXPECT_EQ(Etat(c.CopieE), (V{{0, 0, 1}}));
    EXPECT_EQ(Etat(p.E.Points), (V{{1, 0, 0}, {2, 0, 0}}));
    EXPECT_FALSE(c.CouperEnCours);
}

TEST(Couper, AvecLesLimitesDeLaSuppression) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0, 1}, {1, 0}}, {{7, 7}, {8, 8}});
    PressePapiersCPX c;
    EXPECT_FALSE(cmdCouper(p, c));
    EXPECT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(Etat(p.E.Points), (V{{0, 0, 1}, {1, 0, 0}}));
    EXPECT_FALSE(c.CouperEnCours);
    EXPECT_EQ(c.CopieE.size(), 1U);
}

TEST(Coller, ApresChaquePointChoisiDecaleSurLui) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 5}, {20, 0, 17}}, {{7, 7}});
    PressePapiersCPX c;
    c.CopieE = essais::Points({{100, 100, 4}, {103, 101, 1}});
    EXPECT_TRUE(cmdColler(p, c));
    EXPECT_EQ(Etat(p.E.Points),
              (V{{0, 0, 1}, {0, 0, 1}, {3, 1, 1}, {10, 5, 0}, {20, 0, 17}, {20, 0, 1}, {23, 1, 1}}));
    EXPECT_EQ(Etat(p.S.Points), (V{{7, 7, 0}}));
    EXPECT_EQ(p.E.Points[2].Z, 250);
}

TEST(Coller, SansPointChoisiLaBoitePuisLeDernierPoint) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {10, 5}}, {{7, 7}, {9, 9}});
    PressePapiersCPX c;
    c.CopieE = essais::Points({{1, 1}, {2, 1}});
    c.CopieS = essais::Points({{0, 0}, {0, 3}});
    EXPECT_TRUE(cmdColler(p, c));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte,
              "Si vous ne sélectionnez pas de point d'insertion sur un profil, l'insertion "
              "se fera sur le dernier point.");
    EXPECT_EQ(b.boites[0].titre, "Pas de sélection sur un profil");
    EXPECT_EQ(Etat(p.E.Points), (V{{0, 0, 0}, {10, 5, 0}, {10, 5, 1}, {11, 5, 1}}));
    EXPECT_EQ(Etat(p.S.Points), (V{{7, 7, 0}, {9, 9, 0}, {9, 9, 1}, {9, 12, 1}}));
}

TEST(Coller, SansRienDeCopieRien) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}}, {{7, 7}});
    EXPECT_FALSE(cmdColler(p, {}));
    EXPECT_TRUE(b.boites.empty());
}

TEST(Dupliquer, SurPlaceLaCopieSansSelection) {
    ProjetCPX p = Projet({{0, 0, 5}, {10, 5, 16}}, {{7, 7, 1}});
    EXPECT_TRUE(cmdDupliquer(p, 0, 0));
    EXPECT_EQ(Etat(p.E.Points), (V{{0, 0, 5}, {10, 5, 16}, {0, 0, 4}, {10, 5, 16}}));
    EXPECT_EQ(Etat(p.S.Points), (V{{7, 7, 1}, {7, 7, 0}}));
}

// Extents -2 to 10, so 12 and 8 of foam: the copies 20 lower. Links 4 mm before the first points.
TEST(Dupliquer, EmpileDansUnBloc) {
    ProjetCPX p = Projet({{0, 0, 1}, {50, -2, 16}, {0, 0}}, {{5, 4}, {40, 10, 4}});
    EXPECT_TRUE(cmdDupliquer(p, 1, 8));
    EXPECT_EQ(Etat(p.E.Points), (V{{-4, 0, 0},
                                   {0, 0, 1},
                                   {50, -2, 16},
                                   {0, 0, 0},
                                   {-4, 0, 1},
                                   {-4, -20, 1},
                                   {0, -20, 0},
                                   {50, -22, 16},
                                   {0, -20, 0},
                                   {-4, -20, 0}}));
    EXPECT_EQ(Etat(p.S.Points), (V{{1, 4, 0},
                                   {5, 4, 0},
                                   {40, 10, 4},
                                   {1, 4, 1},
                                   {1, -16, 1},
                                   {5, -16, 0},
                                   {40, -10, 4},
                                   {1, -16, 0}}));
    EXPECT_EQ(p.DiedreMm, 6);
}

TEST(Dupliquer, UnEcartementDeZeroEstRemplacePar1) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {50, 10}}, {{0, 0}, {50, 10}});
    EXPECT_TRUE(cmdDupliquer(p, 1, 0));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte, "Les valeurs égales à 0 seront remplacée par 1.");
    EXPECT_EQ(b.boites[0].titre, "Valeur nulle impossible.");
    EXPECT_EQ(p.E.Points[4].Y, -11);
}

TEST(Dupliquer, UnProjetVideRien) {
    ProjetCPX p;
    EXPECT_FALSE(cmdDupliquer(p, 0, 1));
    EXPECT_FALSE(cmdDupliquer(p, 1, 1));
}
