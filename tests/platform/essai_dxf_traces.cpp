// DXF entities as paths: each kind against points worked out by hand.
#include "outils/dessins.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// The greatest distance between a circle and the chords of a polyline.
double EcartCercle(const std::vector<PointSimple>& p, double cx, double cy, double r) {
    double ecart = 0;
    for (std::size_t i = 0; i + 1 < p.size(); ++i) {
        const double mx = (p[i].X + p[i + 1].X) / 2.0 - cx;
        const double my = (p[i].Y + p[i + 1].Y) / 2.0 - cy;
        ecart = std::max(ecart, std::abs(std::hypot(mx, my) - r));
    }
    return ecart;
}

} // namespace

TEST(DxfTraces, LeDessinLivreAvecLeProgrammeSeLit) {
    const auto d =
        LireTexte("0\r\nSection\r\n2\r\nENTITIES\r\n0\r\nCIRCLE\r\n10\r\n0.0\r\n20\r\n0.0\r\n30\r\n0.0\r\n"
                  "40\r\n50.0\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n");
    ASSERT_EQ(d.refus, "");
    ASSERT_EQ(d.polylignes.size(), 1U);
    // A chord of angle t on the radius 50 stays 50 (1 - cos(t/2)) inside: 0.01 gives t = 0.04000 and 157.08
    // chords, made 160 so that each quarter has as many.
    EXPECT_EQ(d.polylignes[0].size(), 161U);
    EXPECT_EQ(d.polylignes[0].front().X, 50);
    EXPECT_EQ(d.polylignes[0].back().X, 50);
    EXPECT_EQ(d.polylignes[0].back().Y, 0);
    EXPECT_EQ(d.etendue.XMin, -50);
    EXPECT_EQ(d.etendue.XMax, 50);
    EXPECT_EQ(d.etendue.YMin, -50);
    EXPECT_EQ(d.etendue.YMax, 50);
    EXPECT_LE(EcartCercle(d.polylignes[0], 0, 0, 50), 0.01);
    EXPECT_EQ(d.rapport.lus.at("CIRCLE"), 1);
}

TEST(DxfTraces, UnQuartDArcDeRayon50AQuaranteCordes) {
    const auto d = LireTexte(DxfAvecEntites("0 ARC|8 0|10 10|20 20|40 50|50 0|51 90"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(d.polylignes[0].size(), 41U); // 1.5708 / 0.04000 = 39.27
    EXPECT_FLOAT_EQ(d.polylignes[0].front().X, 60);
    EXPECT_FLOAT_EQ(d.polylignes[0].front().Y, 20);
    EXPECT_FLOAT_EQ(d.polylignes[0].back().X, 10);
    EXPECT_FLOAT_EQ(d.polylignes[0].back().Y, 70);
    EXPECT_LE(EcartCercle(d.polylignes[0], 10, 20, 50), 0.01);
}

TEST(DxfTraces, UnArcQuiPasseParZeroTourneDansLeBonSens) {
    // From 315 to 45 degrees: a quarter on the right, not three quarters on the left.
    const auto d = LireTexte(DxfAvecEntites("0 ARC|8 0|10 0|20 0|40 10|50 315|51 45"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_NEAR(d.etendue.XMin, 7.0711, 1e-3);
    EXPECT_NEAR(d.etendue.XMax, 10, 0.01);
    EXPECT_NEAR(d.etendue.YMin, -7.0711, 1e-3);
    EXPECT_NEAR(d.etendue.YMax, 7.0711, 1e-3);
}

TEST(DxfTraces, UneLigneDonneSesDeuxPoints) {
    const auto d = LireTexte(DxfAvecEntites("0 LINE|8 A|10 1.5|20 -2|30 7|11 3|21 4|31 9"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "1.5,-2 3,4");
    EXPECT_EQ(d.rapport.couches.at("A"), 1);
}

TEST(DxfTraces, UnePolyligneLegereFermeeRepeteSonPremierSommet) {
    const auto d = LireTexte(DxfAvecEntites("0 LWPOLYLINE|90 3|70 1|10 0|20 0|10 4|20 0|10 4|20 3"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 4,0 4,3 0,0");
}

TEST(DxfTraces, UnRenflementDe1EstUnDemiCercleAGauche) {
    // Bulge 1 from (0,0) to (10,0): half a circle around (5,0), counter-clockwise, so below the segment.
    const auto d = LireTexte(DxfAvecEntites("0 LWPOLYLINE|70 0|10 0|20 0|42 1|10 10|20 0"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_NEAR(d.etendue.YMin, -5, 0.01);
    EXPECT_EQ(d.etendue.YMax, 0);
    EXPECT_LE(EcartCercle(d.polylignes[0], 5, 0, 5), 0.01);
    const auto inverse = LireTexte(DxfAvecEntites("0 LWPOLYLINE|70 0|10 0|20 0|42 -1|10 10|20 0"));
    EXPECT_NEAR(inverse.etendue.YMax, 5, 0.01);
}

TEST(DxfTraces, LeRenflementDuDernierSommetFermeLaPolyligne) {
    // Two half circles: a whole one of radius 5.
    const auto d = LireTexte(DxfAvecEntites("0 LWPOLYLINE|70 1|10 0|20 0|42 1|10 10|20 0|42 1"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_NEAR(d.etendue.YMin, -5, 0.01);
    EXPECT_NEAR(d.etendue.YMax, 5, 0.01);
    EXPECT_EQ(d.polylignes[0].front().X, d.polylignes[0].back().X);
    EXPECT_EQ(d.polylignes[0].front().Y, d.polylignes[0].back().Y);
}

TEST(DxfTraces, UnRenflementInfimeResteUnSegment) {
    const auto d = LireTexte(DxfAvecEntites("0 LWPOLYLINE|70 0|10 0|20 0|42 1e-12|10 10|20 0"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 10,0");
}

TEST(DxfTraces, UnePolyligneAncienneSuitSesSommets) {
    const auto d = LireTexte(DxfAvecEntites(
        "0 POLYLINE|8 0|66 1|70 1|0 VERTEX|10 0|20 0|0 VERTEX|10 2|20 0|0 VERTEX|10 2|20 2|0 SEQEND|8 0"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 2,0 2,2 0,0");
    EXPECT_TRUE(d.rapport.ignores.empty());
}

TEST(DxfTraces, LesPointsDeControleDUnePolyligneLisseeNeSontPasDuTrace) {
    const auto d =
        LireTexte(DxfAvecEntites("0 POLYLINE|8 0|66 1|70 4|0 VERTEX|10 0|20 9|70 16|0 VERTEX|10 0|20 0|70 8|"
                                 "0 VERTEX|10 2|20 1|70 8|0 SEQEND"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 2,1");
}

TEST(DxfTraces, UnePolyligneDansLEspaceEstVueDeDessus) {
    const auto d = LireTexte(DxfAvecEntites(
        "0 POLYLINE|8 0|66 1|70 8|0 VERTEX|10 0|20 0|30 5|70 32|0 VERTEX|10 3|20 4|30 -5|70 32|0 SEQEND"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 3,4");
}

TEST(DxfTraces, UneMailleNEstPasUnTrace) {
    const auto d = LireTexte(DxfAvecEntites(
        "0 LINE|10 0|20 0|11 1|21 1|0 POLYLINE|66 1|70 16|71 2|72 2|0 VERTEX|10 0|20 0|0 VERTEX|10 2|20 "
        "1|0 VERTEX|10 0|20 0|0 VERTEX|10 2|20 1|0 SEQEND"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(d.rapport.ignores.at("POLYLINE"), 1);
}

TEST(DxfTraces, UneEllipseEntierePasseParSesSommets) {
    const auto d =
        LireTexte(DxfAvecEntites("0 ELLIPSE|10 1|20 2|11 10|21 0|40 0.5|41 0|42 6.283185307179586"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_FLOAT_EQ(d.etendue.XMin, -9);
    EXPECT_FLOAT_EQ(d.etendue.XMax, 11);
    EXPECT_FLOAT_EQ(d.etendue.YMin, -3);
    EXPECT_FLOAT_EQ(d.etendue.YMax, 7);
    EXPECT_EQ(d.polylignes[0].front().X, d.polylignes[0].back().X);
}

TEST(DxfTraces, UneEllipseDExtrusionInverseTourneALEnvers) {
    // A quarter from (10,0) with the minor axis turned down by the extrusion: it ends at (0,-5).
    const auto d =
        LireTexte(DxfAvecEntites("0 ELLIPSE|10 0|20 0|11 10|21 0|40 0.5|41 0|42 1.5707963267948966|230 -1"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_NEAR(d.polylignes[0].back().X, 0, 1e-5);
    EXPECT_NEAR(d.polylignes[0].back().Y, -5, 1e-5);
}

TEST(DxfTraces, UneExtrusionInverseMireLeCercleEtPasLaLigne) {
    const auto d = LireTexte(
        DxfAvecEntites("0 CIRCLE|10 20|20 5|40 1|210 0|220 0|230 -1|0 LINE|10 20|20 5|11 30|21 5|230 -1"));
    ASSERT_EQ(d.polylignes.size(), 2U);
    EXPECT_FLOAT_EQ(d.polylignes[0].front().X, -21);
    EXPECT_FLOAT_EQ(d.polylignes[1].front().X, 20);
}

TEST(DxfTraces, LAxeXDUneExtrusionChangeA1Soixantequatrieme) {
    // At 1/32 from the vertical the X axis comes from the world's Z: it is (0,1,0), and Y leans over -X.
    const auto loin = LireTexte(DxfAvecEntites("0 CIRCLE|10 20|20 5|40 1|210 0.03125|220 0|230 1"));
    EXPECT_NEAR(loin.polylignes.at(0).front().X, -5, 0.01);
    EXPECT_NEAR(loin.polylignes.at(0).front().Y, 21, 0.01);
    // At 1/128 it comes from the world's Y, and hardly differs from the world's X.
    const auto pres = LireTexte(DxfAvecEntites("0 CIRCLE|10 20|20 5|40 1|210 0.0078125|220 0|230 1"));
    EXPECT_NEAR(pres.polylignes.at(0).front().X, 21, 0.01);
    EXPECT_NEAR(pres.polylignes.at(0).front().Y, 5, 0.01);
}

TEST(DxfTraces, LesNoeudsDUneSplineDeDegre2DonnentUneParabole) {
    // Control points (0,0) (1,2) (2,0), clamped: the parabola y = 2 x - x^2, highest at (1,1).
    const auto d = LireTexte(
        DxfAvecEntites("0 SPLINE|70 8|71 2|40 0|40 0|40 0|40 1|40 1|40 1|10 0|20 0|10 1|20 2|10 2|20 0"));
    ASSERT_EQ(d.refus, "");
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_NEAR(d.etendue.YMax, 1, 0.01);
    for (const PointSimple& p : d.polylignes[0]) EXPECT_NEAR(p.Y, p.X * (2 - p.X), 1e-5);
    EXPECT_GT(d.polylignes[0].size(), 5U);
}

TEST(DxfTraces, LesPoidsFontUnQuartDeCercle) {
    const auto d = LireTexte(DxfAvecEntites("0 SPLINE|70 12|71 2|40 0|40 0|40 0|40 1|40 1|40 1|41 1|41 "
                                            "0.7071067811865476|41 1|10 50|20 0|10 50|20 50|10 0|20 50"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    for (const PointSimple& p : d.polylignes[0]) EXPECT_NEAR(std::hypot(p.X, p.Y), 50, 1e-4);
    EXPECT_LE(EcartCercle(d.polylignes[0], 0, 0, 50), 0.01);
}

TEST(DxfTraces, UneSplineDeDegre5Passe) {
    // A Bézier curve of degree 5 with its control points on a line runs along that line.
    const auto d =
        LireTexte(DxfAvecEntites("0 SPLINE|70 8|71 5|40 0|40 0|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|40 "
                                 "1|40 1|10 0|20 0|10 1|20 1|10 2|20 2|10 3|20 3|10 4|20 4|10 5|20 5"));
    ASSERT_EQ(d.refus, "");
    EXPECT_EQ(EnTexte({d.polylignes[0].front(), d.polylignes[0].back()}), "0,0 5,5");
}

TEST(DxfTraces, DesPointsDePassageSontTraverses) {
    const auto d =
        LireTexte(DxfAvecEntites("0 SPLINE|70 0|71 3|74 4|11 0|21 0|11 10|21 10|11 20|21 0|11 30|21 10"));
    ASSERT_EQ(d.refus, "");
    ASSERT_EQ(d.polylignes.size(), 1U);
    int traverses = 0;
    for (const PointSimple& p : d.polylignes[0])
        if ((p.X == 0 && p.Y == 0) || (p.X == 10 && p.Y == 10) || (p.X == 20 && p.Y == 0) ||
            (p.X == 30 && p.Y == 10))
            ++traverses;
    EXPECT_EQ(traverses, 4);
}

TEST(DxfTraces, EntreLesPointsDePassageLaCourbureEstContinue) {
    // Three points at equal distances, ends free: the middle tangent is the mean of the slopes halved, the
    // first is (1, 1.5) / sqrt 2, and half way to the middle point stands (20, 20 + 7.5).
    const auto d = LireTexte(DxfAvecEntites("0 SPLINE|70 0|71 3|11 0|21 0|11 40|21 40|11 80|21 0"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    double ecart = 1e9;
    for (const PointSimple& p : d.polylignes[0]) ecart = std::min(ecart, std::hypot(p.X - 20.0, p.Y - 27.5));
    EXPECT_LT(ecart, 1e-4);
}

TEST(DxfTraces, DesPointsDePassageAlignesRestentAlignes) {
    const auto d = LireTexte(DxfAvecEntites("0 SPLINE|70 0|71 3|11 0|21 0|11 5|21 5|11 20|21 20"));
    ASSERT_EQ(d.polylignes.size(), 1U);
    for (const PointSimple& p : d.polylignes[0]) EXPECT_NEAR(p.X, p.Y, 1e-4);
}
