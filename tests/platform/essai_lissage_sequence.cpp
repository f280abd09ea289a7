// The curve over the stretch between two points.
#include "platform/erreurs.h"
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;

namespace {

std::vector<PointSimple> Quatre(std::initializer_list<std::pair<double, double>> points) {
    std::vector<PointSimple> t;
    for (const auto& [x, y] : points) {
        PointSimple p;
        p.X = static_cast<float>(x);
        p.Y = static_cast<float>(y);
        t.push_back(p);
    }
    return t;
}

double Distance(const PointSimple& a, const PointSimple& b) {
    return std::hypot(static_cast<double>(a.X) - b.X, static_cast<double>(a.Y) - b.Y);
}

} // namespace

TEST(LissageSequence, RendLesQuatrePointsAutourDeLaCourbe) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    const std::vector<PointSimple> avant = t;
    LissageSequence(t);
    ASSERT_GE(t.size(), 4U);
    EXPECT_EQ(Distance(t[0], avant[0]), 0);
    EXPECT_EQ(Distance(t[1], avant[1]), 0);
    EXPECT_EQ(Distance(t[t.size() - 2], avant[2]), 0);
    EXPECT_EQ(Distance(t.back(), avant[3]), 0);
}

// Three sides of a square: knots one side apart, speeds (5,5) and (-5,5), so at the middle
// 10 + 5/8 + 5/8 beside the side. The second derivative is (-10,30) at one end, hence 20 chords.
TEST(LissageSequence, MilieuDUnCoteDeCarre) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    LissageSequence(t);
    ASSERT_EQ(t.size(), 23U);
    EXPECT_FLOAT_EQ(t[11].X, 11.25F);
    EXPECT_FLOAT_EQ(t[11].Y, 5.0F);
}

// Unequal neighbours: with lengths 4, 1 and 9 the knots are 2, 1 and 3 apart. Speeds along X:
// 4/2 - 5/3 + 1/1 = 4/3 and 1/1 - 10/4 + 9/3 = 3/2; at the middle X = 4 + 1/2 + (4/3 - 3/2)/8.
TEST(LissageSequence, NoeudsCentripetes) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {4, 0}, {5, 0}, {14, 0}});
    LissageSequence(t);
    // Second derivatives 6 - 16/3 - 3 and -6 + 8/3 + 6 along the line: sqrt(2.667/0.08) is 5.8, 6 chords.
    ASSERT_EQ(t.size(), 9U);
    EXPECT_NEAR(t[4].X, 4.5 + (4.0 / 3 - 1.5) / 8, 1e-6);
    EXPECT_EQ(t[4].Y, 0);
}

TEST(LissageSequence, PointsReguliersAlignesNeDemandentRien) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    LissageSequence(t);
    EXPECT_EQ(t.size(), 4U);
}

TEST(LissageSequence, ExtremitesConfonduesNeDonnentPasDeCourbe) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {5, 5}, {5, 5}, {9, 0}});
    LissageSequence(t);
    EXPECT_EQ(t.size(), 4U);
}

// The first neighbour coincides: its knot stands one side away, the speed there is half the side, (0,5); the
// other is (-5,5). At the middle X = 10 - (-5)/8, Y = 5 + (5 - 5)/8.
TEST(LissageSequence, VoisinConfondu) {
    std::vector<PointSimple> t = Quatre({{10, 0}, {10, 0}, {10, 10}, {0, 10}});
    LissageSequence(t);
    ASSERT_EQ(t.size() % 2, 1U) << "no middle point to compare";
    EXPECT_NEAR(t[t.size() / 2].X, 10.625, 1e-5);
    EXPECT_NEAR(t[t.size() / 2].Y, 5, 1e-5);
}

TEST(LissageSequence, QuatrePointsEtPasAutreChose) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {1, 0}, {2, 0}});
    EXPECT_THROW(LissageSequence(t), FauteInterne);
}

// Halving the step of the chords in effect: a point of the curve between two of those given lies within the
// limit of their chord. The cubic is recovered from four of its points, by Lagrange.
TEST(LissageSequence, AucuneCordeNEstAPlusDUnCentiemeDeLaCourbe) {
    std::mt19937 hasard(3);
    std::uniform_real_distribution<double> tirage(-200, 200);
    for (int essai = 0; essai < 300; ++essai) {
        std::vector<PointSimple> t = Quatre({{tirage(hasard), tirage(hasard)},
                                             {tirage(hasard), tirage(hasard)},
                                             {tirage(hasard), tirage(hasard)},
                                             {tirage(hasard), tirage(hasard)}});
        LissageSequence(t);
        const std::size_t n = t.size() - 3; // chords
        ASSERT_GE(n, 3U);
        const std::size_t noeuds[4] = {0, n / 3, 2 * n / 3, n};
        const auto courbe = [&](double k) {
            double x = 0;
            double y = 0;
            for (std::size_t a : noeuds) {
                double poids = 1;
                for (std::size_t b : noeuds)
                    if (a != b)
                        poids *=
                            (k - static_cast<double>(b)) / (static_cast<double>(a) - static_cast<double>(b));
                x += poids * t[a + 1].X;
                y += poids * t[a + 1].Y;
            }
            return std::pair{x, y};
        };
        for (std::size_t k = 0; k < n; ++k) {
            const auto [x, y] = courbe(static_cast<double>(k) + 0.5);
            const PointSimple& a = t[k + 1];
            const PointSimple& b = t[k + 2];
            const double longueur = Distance(a, b);
            const double ecart = std::fabs((x - a.X) * (static_cast<double>(b.Y) - a.Y) -
                                           (y - a.Y) * (static_cast<double>(b.X) - a.X)) /
                                 longueur;
            ASSERT_LE(ecart, 0.0101) << "drawing " << essai << ", chord " << k;
        }
    }
}

TEST(LissageSequence, CoordonneesDeFichierAbimeRestentBornees) {
    std::vector<PointSimple> t = Quatre({{0, 0}, {1e30, 0}, {0, 1e30}, {5, 5}});
    LissageSequence(t);
    EXPECT_LE(t.size(), 65536U + 3);
}
