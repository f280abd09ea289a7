// Finding segments, vertices and paths under a place, checked against looking at every one.
#include "work2d/index_points.h"

#include "outils_decoupe.h"
#include "work2d/selection.h"

#include <algorithm>
#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

double Distance2(const PointProfil& a, const PointProfil& b, double x, double y) {
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    const double l2 = dx * dx + dy * dy;
    const double t = l2 > 0 ? std::clamp(((x - a.X) * dx + (y - a.Y) * dy) / l2, 0.0, 1.0) : 0;
    return std::pow(a.X + t * dx - x, 2) + std::pow(a.Y + t * dy - y, 2);
}

std::vector<Sequence> Hasard(std::mt19937& hasard, int chemins, int points) {
    std::uniform_real_distribution<double> lieu(0, 500);
    std::normal_distribution<double> pas(0, 6);
    std::vector<Sequence> sequences(static_cast<std::size_t>(chemins));
    for (Sequence& s : sequences) {
        PointProfil p;
        p.X = lieu(hasard);
        p.Y = lieu(hasard);
        for (int i = 0; i < points; ++i) {
            s.Points.push_back(p);
            p.X += pas(hasard);
            p.Y += pas(hasard);
        }
        CalculerBornesSequence(s);
    }
    return sequences;
}

} // namespace

TEST(IndexPoints, TrouveLeSegmentEtSonPied) {
    const std::vector<Sequence> s = {CarreDe20(), Chemin({{0, 0}, {10, 0}})};
    const IndexPoints index = IndexerPoints(s);
    const auto touche = ChercherSegment(index, s, 25, 41, 2);
    ASSERT_TRUE(touche.has_value());
    EXPECT_EQ(touche->sequence, 0U);
    EXPECT_EQ(touche->segment, 1U);
    EXPECT_EQ(touche->pied.X, 25);
    EXPECT_EQ(touche->pied.Y, 40);
    EXPECT_EQ(touche->distance2, 1);
    EXPECT_EQ(ChercherSegment(index, s, 4, -1, 2)->sequence, 1U);
    EXPECT_FALSE(ChercherSegment(index, s, 30, 30, 9.9).has_value());
    EXPECT_FALSE(ChercherSegment(index, s, 30, 30, 10).has_value()) << "nearer than the reach, not as near";
    EXPECT_TRUE(ChercherSegment(index, s, 30, 30, 10.001).has_value());
    EXPECT_FALSE(ChercherSommet(index, s, 20, 15, 5).has_value());
    EXPECT_EQ(ChercherSommet(index, s, 20, 15, 5.001)->sequence, 0U);
}

TEST(IndexPoints, DeDeuxTracesSuperposesLeDernierEstPris) {
    std::vector<Sequence> s = {CarreDe20(), CarreDe20()};
    const IndexPoints index = IndexerPoints(s);
    EXPECT_EQ(ChercherSegment(index, s, 20, 30, 1)->sequence, 1U);
    s[0].Selection = SelectionSequence;
    EXPECT_EQ(ChercherSegment(index, s, 20, 30, 1, true)->sequence, 0U);
}

TEST(IndexPoints, UnPointSeulEtUnTraceVideSontPermis) {
    const std::vector<Sequence> s = {Sequence(), Chemin({{7, 7}})};
    const IndexPoints index = IndexerPoints(s);
    EXPECT_EQ(ChercherSegment(index, s, 7, 8, 2)->sequence, 1U);
    EXPECT_EQ(ChercherSommet(index, s, 7, 8, 2)->sommet, 0U);
    EXPECT_FALSE(ChercherSegment(index, s, 0, 0, 2));
    EXPECT_EQ(SequencesDansCadre(index, s, {0, 10, 0, 10}, true), std::vector<std::size_t>{1});
    EXPECT_FALSE(ChercherSegment(IndexPoints(), s, 7, 8, 2)) << "an index of nothing finds nothing";
}

TEST(IndexPoints, LeCadrePrendEntiersOuTouches) {
    const std::vector<Sequence> s = {CarreDe20(), Chemin({{0, 0}, {100, 100}})};
    const IndexPoints index = IndexerPoints(s);
    EXPECT_EQ(SequencesDansCadre(index, s, {19, 41, 19, 41}, true), std::vector<std::size_t>{0});
    EXPECT_EQ(SequencesDansCadre(index, s, {19, 41, 19, 41}, false), (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(SequencesDansCadre(index, s, {25, 35, 26, 34}, false), std::vector<std::size_t>{1})
        << "inside the square, touching nothing of it";
    EXPECT_TRUE(SequencesDansCadre(index, s, {60, 70, 0, 10}, false).empty());
}

TEST(IndexPoints, DitCommeUneRechercheComplete) {
    std::mt19937 hasard(5);
    std::uniform_real_distribution<double> lieu(-20, 520);
    const std::vector<Sequence> s = Hasard(hasard, 12, 700);
    const IndexPoints index = IndexerPoints(s);
    int trouves = 0;
    for (int k = 0; k < 500; ++k) {
        const double x = lieu(hasard);
        const double y = lieu(hasard);
        double segment = 25;
        double sommet = 25;
        for (const Sequence& chemin : s) {
            for (std::size_t i = 0; i < chemin.Points.size(); ++i) {
                sommet = std::min(sommet, Distance2(chemin.Points[i], chemin.Points[i], x, y));
                if (i > 0)
                    segment = std::min(segment, Distance2(chemin.Points[i - 1], chemin.Points[i], x, y));
            }
        }
        const auto a = ChercherSegment(index, s, x, y, 5);
        ASSERT_EQ(a.has_value(), segment < 25) << k;
        ASSERT_NEAR(a ? a->distance2 : 25, segment, 1e-9);
        const auto b = ChercherSommet(index, s, x, y, 5);
        ASSERT_EQ(b.has_value(), sommet < 25) << k;
        ASSERT_EQ(b ? b->distance2 : 25, sommet);
        trouves += a.has_value() ? 1 : 0;
    }
    EXPECT_GT(trouves, 50);
}

TEST(IndexPoints, LaPorteeEstUnCentiemeDuCoteDeLaVue) {
    EXPECT_DOUBLE_EQ(RayonSurvol(500), 5);
}
