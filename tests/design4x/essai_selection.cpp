// Selection modes, flags set and cleared, and the box of a selection.
#include "design4x/projets_essai.h"
#include "design4x/selection.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

namespace {

std::vector<int> Drapeaux(const ProfilCPX& profil) {
    std::vector<int> d;
    for (const PointProfil& p : profil.Points) d.push_back(p.Drapeaux);
    return d;
}
using V = std::vector<int>;

} // namespace

TEST(Modes, LesSixValeurs) {
    for (const int mode : {1, 2, 4, 8, 16, 32}) EXPECT_TRUE(EstModeSelection(mode)) << mode;
    for (const int mode : {0, 3, 64, 128, -1}) EXPECT_FALSE(EstModeSelection(mode)) << mode;
}

TEST(Modes, CeQuIlsAllument) {
    EXPECT_EQ(BoutonsDuMode(1), (BoutonsSelection{false, false, true}));
    EXPECT_EQ(BoutonsDuMode(2), (BoutonsSelection{true, false, true}));
    EXPECT_EQ(BoutonsDuMode(4), (BoutonsSelection{false, true, true}));
    EXPECT_EQ(BoutonsDuMode(8), (BoutonsSelection{false, false, false}));
    EXPECT_EQ(BoutonsDuMode(32), (BoutonsSelection{false, false, true}));
}

TEST(ToutSelectionner, AjouteLeDrapeauDuModeSansToucherLesAutres) {
    ProjetCPX p = Projet({{0, 0, 4}, {1, 1, 1}}, {{0, 0}});
    EXPECT_TRUE(cmdSelectAll(p, 0, 1));
    EXPECT_EQ(Drapeaux(p.E), (V{5, 1}));
    EXPECT_EQ(Drapeaux(p.S), (V{0}));
    EXPECT_TRUE(cmdSelectAll(p, 1, 16));
    EXPECT_EQ(Drapeaux(p.S), (V{16}));
}

TEST(ToutSelectionner, PasEnModeArret) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}, {0, 2}}, {{0, 0}, {1, 1}, {0, 2}});
    EXPECT_FALSE(cmdSelectAll(p, 0, 8));
    EXPECT_FALSE(cmdSelectionAuto(p, 0, 8));
    EXPECT_FALSE(cmdSelectionAngle(p, 0, 8));
    EXPECT_EQ(Drapeaux(p.E), (V{0, 0, 0}));
    EXPECT_EQ(Drapeaux(p.S), (V{0, 0, 0}));
}

TEST(ToutDeselectionner, UnCoteOuLesDeuxEnModeArret) {
    ProjetCPX p = Projet({{0, 0, 9}, {1, 1, 12}}, {{0, 0, 11}});
    EXPECT_TRUE(cmdRAZSelection(p, 0, 1));
    EXPECT_EQ(Drapeaux(p.E), (V{8, 12}));
    EXPECT_EQ(Drapeaux(p.S), (V{11}));
    EXPECT_TRUE(cmdRAZSelection(p, 1, 8));
    EXPECT_EQ(Drapeaux(p.E), (V{0, 4}));
    EXPECT_EQ(Drapeaux(p.S), (V{3}));
}

// The chord follows its marks at once.
TEST(ToutSelectionner, EnModeCordeLesMesuresSuivent) {
    ProjetCPX p = Projet({{0, 0}, {10, 1, 32}, {90, 1, 32}, {100, 0}}, {});
    EXPECT_EQ(p.E.Corde, 80);
    cmdSelectAll(p, 0, 32);
    EXPECT_EQ(p.E.Corde, 100);
    cmdRAZSelection(p, 0, 32);
    EXPECT_EQ(p.E.Corde, 100);
}

TEST(SelectionAuto, LesQuatreIndices) {
    ProjetCPX p = Projet({{0, 1}, {40, 9}, {100, 4}, {40, -3}}, {{20, 5}, {40, 9}, {70, 7}, {40, 3}});
    cmdSelectionAuto(p, 0, 1);
    EXPECT_EQ(Drapeaux(p.S), (V{1, 0, 1, 0}));
    EXPECT_EQ(Drapeaux(p.E), (V{0, 0, 0, 0}));
    cmdSelectionAuto(p, 1, 4);
    EXPECT_EQ(Drapeaux(p.E), (V{4, 0, 4, 0}));
    cmdSelectionAuto(p, 2, 4);
    EXPECT_EQ(Drapeaux(p.S), (V{1, 4, 1, 4}));
    cmdSelectionAuto(p, 3, 2);
    EXPECT_EQ(Drapeaux(p.E), (V{4, 2, 4, 2}));
}

TEST(SelectionAuto, SansPointsRien) {
    ProjetCPX p = Projet({{0, 0}}, {});
    EXPECT_FALSE(cmdSelectionAuto(p, 0, 1));
}

TEST(SelectionAngle, AngleDroitOui) {
    ProjetCPX p = Projet({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}}, {});
    EXPECT_TRUE(cmdSelectionAngle(p, 1, 1));
    EXPECT_EQ(Drapeaux(p.E), (V{0, 1, 1, 1, 0}));
}

// From 0 to 30, and from 0 to 330 degrees: on the limits.
TEST(SelectionAngle, TrenteEtTroisCentTrenteExactementNon) {
    ProjetCPX p = Projet({{0, 0}, {1, 0}, {1 + 0.8660254037844386, 0.5}}, {});
    cmdSelectionAngle(p, 1, 1);
    EXPECT_EQ(Drapeaux(p.E), (V{0, 0, 0}));
    p = Projet({{0, 0}, {1, 0}, {1 + 0.8660254037844386, -0.5}}, {});
    cmdSelectionAngle(p, 1, 1);
    EXPECT_EQ(Drapeaux(p.E), (V{0, 0, 0}));
}

TEST(SelectionAngle, JusteAuDelaOui) {
    ProjetCPX p = Projet({}, {{0, 0}, {1, 0}, {1 + 0.866, 0.5001}, {2.7, 0.9}});
    cmdSelectionAngle(p, 0, 16);
    EXPECT_EQ(Drapeaux(p.S), (V{0, 16, 0, 0}));
    p = Projet({}, {{0, 0}, {1, 0}, {1 + 0.866, -0.5001}});
    cmdSelectionAngle(p, 0, 1);
    EXPECT_EQ(Drapeaux(p.S), (V{0, 1, 0}));
}

// Straight up, straight down, leftwards: 90, 270 and 180 degrees.
TEST(SelectionAngle, LesQuatreDirections) {
    ProjetCPX p = Projet({{0, 0}, {0, 5}, {0, 9}, {-5, 9}, {-9, 9}, {-9, 5}, {-9, 0}, {-9.5, -8}}, {});
    cmdSelectionAngle(p, 1, 1);
    EXPECT_EQ(Drapeaux(p.E), (V{0, 0, 1, 0, 1, 0, 0, 0}));
}

TEST(SelectionAngle, MoinsDeTroisPointsRien) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}}, {});
    EXPECT_FALSE(cmdSelectionAngle(p, 1, 1));
}

TEST(BoiteSelection, ParProfilEtParDrapeau) {
    const ProjetCPX p = Projet({{0, 5, 1}, {9, 9}, {3, -2, 3}, {1, 1, 2}}, {{7, 7, 2}});
    const BoiteSelectionCPX outil = BoiteSelection(p, 1);
    EXPECT_EQ(outil.E, (BoiteProfil{0, 3, -2, 5, 2}));
    EXPECT_FALSE(outil.S.Presente());
    EXPECT_EQ(outil.S, BoiteProfil());
    EXPECT_EQ(BoiteSelection(p, 2).S, (BoiteProfil{7, 7, 7, 7, 1}));
}
