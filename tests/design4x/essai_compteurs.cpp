// Point counters and the rule for unequal counts.
#include "design4x/compteurs.h"
#include "design4x/projets_essai.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

TEST(RegleComptes, EgauxLesTroisCommandesVivent) {
    EXPECT_EQ(RegleComptes(Projet({{0, 0}, {1, 1}}, {{0, 0}, {1, 2}})), (EtatComptes{true, true, true}));
}

TEST(RegleComptes, InegauxElleSontEteintes) {
    EXPECT_EQ(RegleComptes(Projet({{0, 0}, {1, 1}}, {{0, 0}})), (EtatComptes{false, false, false}));
}

TEST(BarresPoints, JusquA1000LaFineSuffit) {
    const BarresPoints b = NouvellesBarres(1000);
    EXPECT_FALSE(b.GrossierActif());
    EXPECT_EQ(b.GrossierMax(), 0);
    EXPECT_EQ(b.FinMax(), 1000);
    EXPECT_EQ(b.Point(), 1);
}

TEST(BarresPoints, A1001LaGrossiereVaDe0A1EtMontreLePoint1001) {
    BarresPoints b = NouvellesBarres(1001);
    EXPECT_TRUE(b.GrossierActif());
    EXPECT_EQ(b.GrossierMax(), 1);
    EXPECT_EQ(b.FinMax(), 1000);
    b.grossier = 1;
    EXPECT_EQ(b.FinMax(), 1);
    EXPECT_EQ(b.Point(), 1001);
}

TEST(BarresPoints, A2500LeReste) {
    BarresPoints b = NouvellesBarres(2500);
    EXPECT_EQ(b.GrossierMax(), 2);
    b.grossier = 1;
    EXPECT_EQ(b.FinMax(), 1000);
    b.fin = 1000;
    EXPECT_EQ(b.Point(), 2000);
    b.grossier = 2;
    EXPECT_EQ(b.FinMax(), 500);
    b.fin = 500;
    EXPECT_EQ(b.Point(), 2500);
}

// A whole number of thousands leaves nothing for the last coarse position, which must not show a point that
// is not there.
TEST(BarresPoints, A2000LaDernierePositionMontreLeDernierPoint) {
    BarresPoints b = NouvellesBarres(2000);
    b.grossier = 2;
    EXPECT_EQ(b.FinMax(), 0);
    EXPECT_EQ(b.Point(), 2000);
}

TEST(BarresPoints, PlaceesSurUnPoint) {
    for (const std::int32_t nombre : {1, 999, 1000, 1001, 2000, 2500})
        for (std::int32_t point = 1; point <= nombre; ++point)
            ASSERT_EQ(BarresSurPoint(nombre, point).Point(), point) << nombre;
    EXPECT_EQ(BarresSurPoint(2500, 9999).Point(), 2500);
    EXPECT_EQ(BarresSurPoint(2500, -3).Point(), 1);
    EXPECT_EQ(BarresSurPoint(0, 1).Point(), 0);
}

TEST(Compteurs, EgauxIlsBougentEnsemble) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {1, 2}, {3, 3}});
    EXPECT_TRUE(PlacerCompteur(p, 0, 3));
    EXPECT_EQ(p.E.PointCourant, 2);
    EXPECT_EQ(p.S.PointCourant, 2);
    InitialiserScrollbarsSuivantNbPoints(p);
    EXPECT_EQ(p.E.PointCourant, 0);
    EXPECT_EQ(p.S.PointCourant, 0);
}

TEST(Compteurs, InegauxChacunPourSoi) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {1, 2}});
    EXPECT_TRUE(PlacerCompteur(p, 0, 3));
    EXPECT_EQ(p.S.PointCourant, 0);
    EXPECT_FALSE(PlacerCompteur(p, 1, 3));
    EXPECT_FALSE(PlacerCompteur(p, 1, 0));
    EXPECT_EQ(p.S.PointCourant, 0);
}

TEST(Compteurs, TextesDuPointMontre) {
    ProjetCPX p = Projet({{0, 0}, {104.25, -30.4567}}, {});
    PlacerCompteur(p, 0, 2);
    EXPECT_EQ(TextesDuCompteur(p, 0).lblNumPt, "2");
    EXPECT_EQ(TextesDuCompteur(p, 0).lblCoordPt, "104.25 : -30.457");
    EXPECT_EQ(TextesDuCompteur(p, 1).lblNumPt, "");
}
