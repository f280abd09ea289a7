// Runs of selected points shifted sideways.
#include "design4x/decaler.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

void Attendre(const ProfilCPX& profil, const Coordonnees& points) {
    AttendrePoints(profil, points, 1e-6);
}

} // namespace

// Walked to the right, then down: the right-hand side is below, then to the left.
TEST(Decaler, ADroiteDeLaMarcheJointAuCroisement) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 0, 1}, {10, -10, 1}, {50, 50}}, {});
    EXPECT_TRUE(txtDecaler(p, 1));
    Attendre(p.E, {{0, -1}, {9, -1}, {9, -10}, {50, 50}});
    EXPECT_EQ(p.E.Extremes.Xmax, 50);
}

// The other way the lines cross beyond the segments: their crossing all the same.
TEST(Decaler, NegatifAGaucheLeCroisementHorsDesSegments) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 0, 1}, {10, -10, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, -1));
    Attendre(p.E, {{0, 1}, {11, 1}, {11, -10}});
}

TEST(Decaler, AlignesLeBoutDecaleReste) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 0, 1}, {25, 0, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, 2));
    Attendre(p.E, {{0, -2}, {10, -2}, {25, -2}});
}

TEST(Decaler, UneSuiteFermeeJointSesBouts) {
    ProjetCPX p = Projet({}, {{0, 0, 1}, {10, 0, 1}, {10, 10, 1}, {0, 10, 1}, {0, 0, 1}});
    EXPECT_TRUE(txtDecaler(p, 1));
    Attendre(p.S, {{-1, -1}, {11, -1}, {11, 11}, {-1, 11}, {-1, -1}});
}

TEST(Decaler, UneSuiteOuverteGardeSesBoutsDecales) {
    ProjetCPX p = Projet({}, {{0, 0, 1}, {10, 0, 1}, {10, 10, 1}, {0, 10, 1}, {0, 0.5, 1}});
    EXPECT_TRUE(txtDecaler(p, 1));
    Attendre(p.S, {{0, -1}, {11, -1}, {11, 11}, {-1, 11}, {-1, 0.5}});
}

// Joints pass through 32 bits; the ends of the run do not.
TEST(Decaler, LesJointsPassentPar32Bits) {
    ProjetCPX p = Projet({{0.1, 0.7, 1}, {10.3, 0.7, 1}, {10.3, -10.1, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, 0));
    EXPECT_EQ(p.E.Points[0].X, 0.1);
    EXPECT_EQ(p.E.Points[1].X, static_cast<double>(10.3F));
    EXPECT_EQ(p.E.Points[1].Y, static_cast<double>(0.7F));
    EXPECT_EQ(p.E.Points[2].Y, -10.1);
}

TEST(Decaler, ChaqueSuitePourSoiUnPointSeulReste) {
    ProjetCPX p = Projet({{0, 0, 1}, {10, 0, 1}, {20, 5}, {30, 0, 1}, {40, 3}, {50, 0, 1}, {60, 0, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, 1));
    Attendre(p.E, {{0, -1}, {10, -1}, {20, 5}, {30, 0}, {40, 3}, {50, -1}, {60, -1}});
}

// Within 0.01 on both axes, though 0.0127 apart.
TEST(Decaler, ConfondusSurLesDeuxAxesRefuse) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0, 1}, {10, 0, 1}, {10.009, 0.009, 1}}, {});
    EXPECT_FALSE(txtDecaler(p, 1));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte,
              "Deux points consécutifs sont confondus, impossible de définir un des segments.");
    EXPECT_EQ(b.boites[0].titre, "Erreur de sélection à l'emplanture");
    EXPECT_EQ(b.boites[0].icone, IconeBoite::Critique);
    Attendre(p.E, {{0, 0}, {10, 0}, {10.009, 0.009}});
}

TEST(Decaler, AUnCentiemeSurUnAxeAccepte) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0, 1}, {0, 0.01, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, 1));
    EXPECT_TRUE(b.boites.empty());
    Attendre(p.E, {{1, 0}, {1, 0.01}});
}

TEST(Decaler, LesDoublesExactsSontPassesEtSuivent) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0, 1}, {0, 0, 1}, {10, 0, 1}, {10, 0, 1}, {10, -10, 1}}, {});
    EXPECT_TRUE(txtDecaler(p, 1));
    EXPECT_TRUE(b.boites.empty());
    Attendre(p.E, {{0, -1}, {0, -1}, {9, -1}, {9, -1}, {9, -10}});
}

// Deliberate: a run is checked when its turn comes, so one before it is already shifted.
TEST(Decaler, UneSuiteAvantLeRefusEstEcrite) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p =
        Projet({{0, 0, 1}, {10, 0, 1}}, {{0, 0, 1}, {10, 0, 1}, {20, 0}, {30, 0, 1}, {30.001, 0, 1}});
    EXPECT_FALSE(txtDecaler(p, 1));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].titre, "Erreur de sélection au saumon");
    Attendre(p.E, {{0, -1}, {10, -1}});
    Attendre(p.S, {{0, -1}, {10, -1}, {20, 0}, {30, 0}, {30.001, 0}});
}

TEST(Decaler, SansSelectionRien) {
    ProjetCPX p = Projet({{0, 0}, {10, 0, 4}}, {});
    EXPECT_FALSE(txtDecaler(p, 1));
}
