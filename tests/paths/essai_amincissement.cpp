// Thinning of nearly aligned points.
#include "paths/geometrie.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;

namespace {

using Liste = std::vector<std::pair<double, double>>;

std::vector<PointSimple> Simples(const Liste& liste) {
    std::vector<PointSimple> points;
    for (const auto& [x, y] : liste) {
        PointSimple p;
        p.X = static_cast<float>(x);
        p.Y = static_cast<float>(y);
        points.push_back(p);
    }
    return points;
}

std::vector<PointProfil> Profils(const Liste& liste) {
    std::vector<PointProfil> points;
    for (const auto& [x, y] : liste) {
        PointProfil p;
        p.X = x;
        p.Y = y;
        points.push_back(p);
    }
    return points;
}

Liste Reduits(const Liste& liste, float tolerance) {
    std::vector<PointSimple> points = Simples(liste);
    const std::int32_t n = ReductionPointsAlignes(points, tolerance);
    EXPECT_EQ(static_cast<std::size_t>(n), points.size());
    Liste resultat;
    for (const PointSimple& p : points) resultat.emplace_back(p.X, p.Y);
    return resultat;
}

std::vector<std::size_t> Marques(const Liste& liste, float tolerance) {
    std::vector<PointProfil> points = Profils(liste);
    MarquerPointsConserves(points, tolerance);
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < points.size(); ++i)
        if ((points[i].Drapeaux & DrapeauConserve) != 0) indices.push_back(i);
    return indices;
}

// The walk word for word, every window tested from its first point on: slow, and what the fast one must
// equal.
template <typename Reel>
std::vector<std::size_t> MarcheLitterale(const std::vector<Reel>& X, const std::vector<Reel>& Y,
                                         float tolerance) {
    const long dernier = static_cast<long>(X.size()) - 1;
    const float T = tolerance * tolerance;
    std::vector<std::size_t> gardes = {0};
    const auto x = [&](long i) { return static_cast<double>(X[static_cast<std::size_t>(i)]); };
    const auto y = [&](long i) { return static_cast<double>(Y[static_cast<std::size_t>(i)]); };
    long a = 0;
    while (a <= dernier - 2) {
        long k = 2;
        bool echec = false;
        for (;;) {
            const Reel dx = static_cast<Reel>(x(a + k) - x(a));
            const Reel dy = static_cast<Reel>(y(a + k) - y(a));
            const Reel L2 = static_cast<Reel>(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy);
            for (long m = 1; m <= k - 1 && !echec; ++m) {
                float d2 = 0;
                if (L2 <= T) {
                    d2 = static_cast<float>((x(a + m) - x(a)) * (x(a + m) - x(a)) +
                                            (y(a + m) - y(a)) * (y(a + m) - y(a)));
                } else {
                    float t = static_cast<float>(((x(a + m) - x(a)) * dx + (y(a + m) - y(a)) * dy) / L2);
                    if (t < 0) t = 0;
                    if (t > 1) t = 1;
                    const Reel px = static_cast<Reel>(x(a) + static_cast<double>(t) * dx);
                    const Reel py = static_cast<Reel>(y(a) + static_cast<double>(t) * dy);
                    d2 = static_cast<float>((px - x(a + m)) * (px - x(a + m)) +
                                            (py - y(a + m)) * (py - y(a + m)));
                }
                if (!(d2 <= T)) echec = true;
            }
            if (echec || a + k + 1 > dernier) break;
            ++k;
        }
        a = a + k - 1;
        if (echec) gardes.push_back(static_cast<std::size_t>(a));
    }
    gardes.push_back(static_cast<std::size_t>(dernier));
    return gardes;
}

// Drawings of many tempers: curves with noise, straight runs, doubles, backward steps, far from the origin.
Liste DessinAleatoire(std::mt19937& hasard, int nombre) {
    const auto reel = [&](double a, double b) {
        return std::uniform_real_distribution<double>(a, b)(hasard);
    };
    Liste liste;
    const double loin = std::pow(10.0, reel(-1, 5));
    double x = reel(-loin, loin);
    double y = reel(-loin, loin);
    double angle = reel(0, 6.3);
    const double bruit = std::pow(10.0, reel(-7, -1));
    const double pas = std::pow(10.0, reel(-4, 1));
    double courbure = 0;
    int genre = 0;
    while (static_cast<int>(liste.size()) < nombre) {
        if (hasard() % 40 == 0) {
            genre = static_cast<int>(hasard() % 5);
            courbure = reel(-0.2, 0.2) * pas;
            if (hasard() % 2 == 0) angle += reel(-3, 3);
        }
        if (genre == 1) courbure = 0;
        const double avance = genre == 2 ? -0.3 * pas : pas;
        if (genre != 3) {
            angle += courbure;
            x += avance * std::cos(angle);
            y += avance * std::sin(angle);
        }
        const double b = genre == 4 ? 0 : bruit;
        liste.emplace_back(x + reel(-b, b), y + reel(-b, b));
    }
    return liste;
}

} // namespace

TEST(Reduction, TroisPointsAuPlusRestentTelsQuels) {
    const Liste alignes = {{0, 0}, {1, 0}, {2, 0}};
    EXPECT_EQ(Reduits(alignes, 0.02F), alignes);
    EXPECT_EQ(Reduits({{0, 0}, {0, 0}}, 0.02F), (Liste{{0, 0}, {0, 0}}));
    EXPECT_EQ(Reduits({{4, 5}}, 0.02F), (Liste{{4, 5}}));
    EXPECT_EQ(Reduits({}, 0.02F), Liste{});
}

// Window to (2,0) passes at 0.01 mm; to (3,1) it fails, so the point kept is the last end that passed.
TEST(Reduction, GardeLaDerniereFinQuiPassait) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0.01}, {2, 0}, {3, 1}}, 0.02F), (Liste{{0, 0}, {2, 0}, {3, 1}}));
}

TEST(Reduction, FenetreJusquAuBoutNeGardeQueLesExtremites) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0.01}, {2, -0.01}, {3, 0}}, 0.02F), (Liste{{0, 0}, {3, 0}}));
}

// The window fails on the very last point: the one before it is kept, then the last.
TEST(Reduction, EchecSurLeDernierPoint) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 1}}, 0.02F), (Liste{{0, 0}, {3, 0}, {4, 1}}));
}

// The new anchor stands two before the last: one more window is tried, and its middle point goes.
TEST(Reduction, UneFenetreEncoreADeuxPointsDeLaFin) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0}, {2, 0}, {3, 1}, {4, 2}}, 0.02F), (Liste{{0, 0}, {2, 0}, {4, 2}}));
}

TEST(Reduction, UneDentDeScieResteEntiere) {
    const Liste scie = {{0, 0}, {1, 1}, {2, 0}, {3, 1}, {4, 0}};
    EXPECT_EQ(Reduits(scie, 0.02F), scie);
}

TEST(Reduction, LesDoublesDisparaissent) {
    EXPECT_EQ(Reduits({{0, 0}, {0, 0}, {0.01, 0}, {5, 0}, {5, 0}}, 0.02F), (Liste{{0, 0}, {5, 0}}));
    EXPECT_EQ(Reduits({{7, 7}, {7, 7}, {7, 7}, {7, 7}}, 0.02F), (Liste{{7, 7}, {7, 7}}));
}

// On a chord of 0.01 mm points are measured from the anchor: an excursion of 1 mm stays.
TEST(Reduction, CordeCourteMesureDepuisLAncre) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0}, {0.01, 0}, {0, 1}}, 0.02F).size(), 4U);
}

// A point beyond the end of the chord is measured from that end, one behind the anchor from the anchor.
TEST(Reduction, PlaceSurLaCordeBornee) {
    const Liste retour = {{0, 0}, {5, 0}, {4, 0}, {4, 3}};
    EXPECT_EQ(Reduits(retour, 0.02F), retour);
    const Liste recul = {{0, 0}, {-1, 0}, {3, 0}, {3, 3}};
    EXPECT_EQ(Reduits(recul, 0.02F), recul);
}

// The distance may equal the tolerance: 0.5 squared is exact.
TEST(Reduction, EgaliteAvecLaTolerancePasse) {
    EXPECT_EQ(Reduits({{0, 0}, {2, 0.5}, {4, 0}, {4, 9}}, 0.5F), (Liste{{0, 0}, {4, 0}, {4, 9}}));
    const Liste auDela = {{0, 0}, {2, 0.5000001}, {4, 0}, {4, 9}};
    EXPECT_EQ(Reduits(auDela, 0.5F).size(), 4U);
}

TEST(Reduction, ToleranceNulleEnleveLesPointsAlignes) {
    EXPECT_EQ(Reduits({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, 0), (Liste{{0, 0}, {3, 0}}));
    EXPECT_EQ(Reduits({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}}, 0), (Liste{{0, 0}, {4, 4}}));
    EXPECT_EQ(Reduits({{1, 2}, {1, 2}, {1, 2}, {1, 5}, {1, 6}}, 0), (Liste{{1, 2}, {1, 6}}));
}

TEST(Reduction, SeulesLesCoordonneesBougent) {
    std::vector<PointSimple> points = Simples({{0, 0}, {1, 0}, {2, 0}, {2, 1}});
    for (std::size_t i = 0; i < points.size(); ++i) points[i].Z = static_cast<float>(i);
    EXPECT_EQ(ReductionPointsAlignes(points, 0.02F), 3);
    EXPECT_EQ(points[1].X, 2.0F);
    EXPECT_EQ(points[1].Z, 1.0F);
    EXPECT_EQ(points[2].Y, 1.0F);
    EXPECT_EQ(points[2].Z, 2.0F);
}

TEST(Marquage, PremierEtDernierToujoursEtTroisPointsAmincis) {
    EXPECT_EQ(Marques({{0, 0}, {1, 0}, {2, 0}}, 0.025F), (std::vector<std::size_t>{0, 2}));
    EXPECT_EQ(Marques({{0, 0}, {1, 1}, {2, 0}}, 0.025F), (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(Marques({{0, 0}, {0, 0}}, 0.025F), (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(Marques({{0, 0}}, 0.025F), (std::vector<std::size_t>{0}));
    EXPECT_TRUE(Marques({}, 0.025F).empty());
}

TEST(Marquage, LesAutresDrapeauxRestent) {
    std::vector<PointProfil> points = Profils({{0, 0}, {1, 0}, {2, 0}});
    for (PointProfil& p : points) p.Drapeaux = 5;
    MarquerPointsConserves(points, 0.025F);
    EXPECT_EQ(points[0].Drapeaux, 133);
    EXPECT_EQ(points[1].Drapeaux, 5);
    EXPECT_EQ(points[2].Drapeaux, 133);
}

// Half a millimetre at a hundred kilometres: 64 bits see it, 32 bits do not.
TEST(Marquage, CoordonneesSur64Bits) {
    const Liste loin = {{0, 1e8}, {1000, 1e8 + 0.5}, {2000, 1e8}, {3000, 1e8}};
    EXPECT_EQ(Marques(loin, 0.025F), (std::vector<std::size_t>{0, 1, 2, 3}));
    EXPECT_EQ(Reduits(loin, 0.025F).size(), 2U);
}

TEST(Amincissement, CommeLaMarcheMotAMot) {
    std::mt19937 hasard(7);
    const std::vector<float> tolerances = {0, 1e-20F, 1e-6F, 0.001F, 0.02F, 0.025F, 0.3F, 5.0F};
    for (int essai = 0; essai < 1200; ++essai) {
        const Liste liste = DessinAleatoire(hasard, 4 + static_cast<int>(hasard() % 300));
        const float tolerance = tolerances[hasard() % tolerances.size()];
        const std::vector<PointSimple> simples = Simples(liste);
        std::vector<float> fx, fy;
        for (const PointSimple& p : simples) {
            fx.push_back(p.X);
            fy.push_back(p.Y);
        }
        const Liste reduits = Reduits(liste, tolerance);
        Liste attendus;
        for (const std::size_t i : MarcheLitterale(fx, fy, tolerance)) attendus.emplace_back(fx[i], fy[i]);
        ASSERT_EQ(reduits, attendus) << "drawing " << essai << " tolerance " << tolerance;

        std::vector<double> dx, dy;
        for (const auto& [x, y] : liste) {
            dx.push_back(x);
            dy.push_back(y);
        }
        ASSERT_EQ(Marques(liste, tolerance), MarcheLitterale(dx, dy, tolerance))
            << "drawing " << essai << " tolerance " << tolerance;
    }
}

// Points that lie just within or just beyond the tolerance of a long chord: where a shortcut would err first.
TEST(Amincissement, CommeLaMarcheMotAMotAuBordDeLaTolerance) {
    std::mt19937 hasard(11);
    const auto reel = [&](double a, double b) {
        return std::uniform_real_distribution<double>(a, b)(hasard);
    };
    for (int essai = 0; essai < 1500; ++essai) {
        const float tolerance = 0.02F;
        const double angle = reel(0, 6.3);
        const double loin = std::pow(10.0, reel(0, 4));
        const double ox = reel(-loin, loin);
        const double oy = reel(-loin, loin);
        Liste liste;
        double s = 0;
        for (int i = 0; i < 200; ++i) {
            const double bord =
                static_cast<double>(tolerance) * (1 + reel(-1, 1) * std::pow(10.0, reel(-7, -3)));
            const double ecart = hasard() % 3 == 0 ? (hasard() % 2 == 0 ? bord : -bord) * (i > 0 ? 1 : 0) : 0;
            liste.emplace_back(ox + s * std::cos(angle) - ecart * std::sin(angle),
                               oy + s * std::sin(angle) + ecart * std::cos(angle));
            s += reel(0, 2);
        }
        std::vector<float> fx, fy;
        std::vector<double> dx, dy;
        for (const auto& [x, y] : liste) {
            dx.push_back(x);
            dy.push_back(y);
            fx.push_back(static_cast<float>(x));
            fy.push_back(static_cast<float>(y));
        }
        Liste attendus;
        for (const std::size_t i : MarcheLitterale(fx, fy, tolerance)) attendus.emplace_back(fx[i], fy[i]);
        ASSERT_EQ(Reduits(liste, tolerance), attendus) << essai;
        ASSERT_EQ(Marques(liste, tolerance), MarcheLitterale(dx, dy, tolerance)) << essai;
    }
}

// A straight run of half a million points: beyond reach if each window tested each of its points.
TEST(Amincissement, LongueLigneDroite) {
    Liste liste;
    for (int i = 0; i < 500000; ++i) liste.emplace_back(0.002 * i, 0.001 * i);
    const Liste reduits = Reduits(liste, 0.02F);
    EXPECT_EQ(reduits.size(), 2U);
    EXPECT_EQ(Marques(liste, 0.02F), (std::vector<std::size_t>{0, liste.size() - 1}));
}

TEST(Amincissement, ValeursSansMesureNeBloquentPas) {
    const double infini = std::numeric_limits<double>::infinity();
    const double rien = std::numeric_limits<double>::quiet_NaN();
    for (const double v : {infini, -infini, rien, 1e38, 1e300}) {
        const Liste liste = {{0, 0}, {1, v}, {v, 2}, {3, 0}, {v, v}, {5, 0}};
        EXPECT_GE(Reduits(liste, 0.02F).size(), 2U);
        EXPECT_EQ(Marques(liste, 0.02F).front(), 0U);
        EXPECT_EQ(Marques(liste, 0.02F).back(), 5U);
    }
}
