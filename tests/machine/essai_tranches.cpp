// The slice test: its six moves, what is refused, the steps, and the picture of what was cut.
#include "machine/tranches.h"

#include "app/texts/textes.h"
#include "machine/dessin_tranches.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using namespace tessarel;

namespace {

constexpr DimensionsTranches Dimensions = {300, 20, 60};

TableMachine Machine() {
    TableMachine table;
    LireMachine("(Defaut)", table); // 980 x 510 mm, 6 mm/s without ramp, 320 steps/mm
    return table;
}

} // namespace

TEST(Tranches, LesSixMouvements) {
    const double attendus[6][2] = {{0, 60}, {0, -60}, {300, 0}, {0, -20}, {0, 20}, {-300, 0}};
    for (std::size_t i = 0; i < 6; ++i) {
        const DeplacementFil d = DeplacementTranche(i, Dimensions);
        EXPECT_EQ(d.X, attendus[i][0]) << i;
        EXPECT_EQ(d.Y, attendus[i][1]) << i;
    }
    EXPECT_EQ(DeplacementTranche(6, Dimensions).X, 0);
}

TEST(Tranches, LOrdreCoupeDeuxTranchesEtRamenesLeFil) {
    double x = 0;
    double y = 0;
    std::vector<double> passes;
    for (const std::size_t m : OrdreDesTranches()) {
        const DeplacementFil d = DeplacementTranche(m, Dimensions);
        if (d.X != 0) passes.push_back(y);
        x += d.X;
        y += d.Y;
    }
    EXPECT_EQ(x, 0);
    EXPECT_EQ(passes, (std::vector<double>{60, 40, 20, 20}));
}

TEST(Tranches, VitessesDesTroisChoix) {
    TableMachine table = Machine();
    table.VitesseRapide = 8;
    EXPECT_EQ(VitesseDuMouvement(VitesseTranche::V, 3, table), 3);
    EXPECT_EQ(VitesseDuMouvement(VitesseTranche::VSur2, 3, table), 1.5F);
    EXPECT_EQ(VitesseDuMouvement(VitesseTranche::Rapide, 3, table), 8);
}

TEST(Tranches, LesLimitesDeVitesse) {
    const TableMachine table = Machine();
    EXPECT_EQ(ExaminerTranche(0, Dimensions, 6, table), RefusTranche::Aucun);
    EXPECT_EQ(ExaminerTranche(0, Dimensions, 0, table), RefusTranche::Vitesse);
    EXPECT_EQ(ExaminerTranche(0, Dimensions, -1, table), RefusTranche::Vitesse);
    EXPECT_EQ(ExaminerTranche(0, Dimensions, 6.01F, table), RefusTranche::Vitesse);
    EXPECT_EQ(ExaminerTranche(0, Dimensions, std::numeric_limits<float>::quiet_NaN(), table),
              RefusTranche::Vitesse);
}

TEST(Tranches, LesLimitesDeDistance) {
    const TableMachine table = Machine();
    for (const std::size_t x : {2U, 5U}) {
        EXPECT_EQ(ExaminerTranche(x, {980, 20, 60}, 4, table), RefusTranche::Aucun);
        EXPECT_EQ(ExaminerTranche(x, {980.5, 20, 60}, 4, table), RefusTranche::Distance);
    }
    for (const std::size_t y : {0U, 1U}) {
        EXPECT_EQ(ExaminerTranche(y, {300, 20, 510}, 4, table), RefusTranche::Aucun);
        EXPECT_EQ(ExaminerTranche(y, {300, 20, 511}, 4, table), RefusTranche::Distance);
    }
    for (const std::size_t y : {3U, 4U}) {
        EXPECT_EQ(ExaminerTranche(y, {300, 511, 60}, 4, table), RefusTranche::Distance);
        EXPECT_EQ(ExaminerTranche(y, {300, -20, 60}, 4, table), RefusTranche::Distance)
            << "a negative dimension would turn the move round";
    }
}

TEST(Tranches, LesBoitesDesRefus) {
    ChargerMessages(Langue::Francais);
    const essais::BoitesEnregistrees boites;
    const TableMachine table = Machine();
    EXPECT_FALSE(AccepterTranche(2, Dimensions, 7, table));
    EXPECT_FALSE(AccepterTranche(2, {981, 20, 60}, 4, table));
    EXPECT_TRUE(AccepterTranche(2, Dimensions, 4, table));
    ASSERT_EQ(boites.boites.size(), 2U);
    EXPECT_EQ(boites.boites[0].texte,
              "Valeur de vitesse V incorrecte, veuillez la modifier. Elle doit être supérieure à zéro et "
              "inférieure ou égale à la vitesse maxi sans accélération");
    EXPECT_EQ(boites.boites[1].texte, "La distance du mouvement demandé est incorrecte, veuillez corriger");
    EXPECT_EQ(boites.boites[0].titre, "Opération impossible");
    EXPECT_EQ(boites.boites[1].titre, "Opération impossible");
}

TEST(Tranches, LesPasDeChaqueAxeSuiventSonRapport) {
    TableMachine table = Machine(); // 12800 steps per turn, 40 mm
    table.MmParTour[AxeY2] = 30;
    table.MmParTour[AxeX2] = 0;
    const std::array<std::int32_t, 4> pas = PasDuDeplacement({1, -2}, {1, -2}, table);
    EXPECT_EQ(pas, (std::array<std::int32_t, 4>{320, -640, 0, -853})); // 12800 x 2 / 30 = 853.3
}

TEST(Tranches, LeTexteDeLaSaignee) {
    ChargerMessages(Langue::Francais);
    EXPECT_EQ(TexteSaignee(SaigneeMesuree(20, 18.75)), " Saignée = Y - E = 1.25 mm");
    EXPECT_EQ(TexteSaignee(2), " Saignée = Y - E = 2.0 mm");
}

TEST(Tranches, LImageMontreLesTranchesUneFoisCoupees) {
    const auto tranches = [](std::vector<std::size_t> mouvements, double fraction) {
        const Dessin dessin = DessinerTranches({Dimensions, std::move(mouvements), fraction, false});
        return std::ranges::count_if(dessin.textes, [](const TexteDessin& t) { return t.texte == "E"; });
    };
    EXPECT_EQ(tranches({}, 1), 0);
    EXPECT_EQ(tranches({0, 2, 3}, 1), 0);
    EXPECT_EQ(tranches({0, 2, 3, 5}, 0.5), 0) << "the second pass is half way";
    EXPECT_EQ(tranches({0, 2, 3, 5}, 1), 1);
    EXPECT_EQ(tranches({0, 2, 3, 5, 3, 2}, 1), 2);
    EXPECT_EQ(tranches({0, 2, 3, 5, 3, 2, 5}, 1), 2) << "back through the open kerf";
}

TEST(Tranches, LImageDitLesDimensions) {
    const Dessin dessin = DessinerTranches({{300, 20, 60.5}, {}, 1, true});
    const auto dit = [&dessin](const char* texte) {
        return std::ranges::any_of(dessin.textes, [&](const TexteDessin& t) { return t.texte == texte; });
    };
    EXPECT_TRUE(dit("X = 300 mm"));
    EXPECT_TRUE(dit("Y = 20 mm"));
    EXPECT_TRUE(dit("H = 60.5 mm"));
}
