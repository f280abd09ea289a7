// Smoothing of selected stretches: which are taken, which four points stand around them, where the curve
// goes.
#include "design4x/lissage.h"
#include "design4x/projets_essai.h"
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr float SansNettoyage = 0;

std::vector<PointSimple> Courbe(std::initializer_list<std::pair<float, float>> quatre) {
    std::vector<PointSimple> t;
    for (const auto& [x, y] : quatre) {
        PointSimple p;
        p.X = x;
        p.Y = y;
        t.push_back(p);
    }
    LissageSequence(t);
    return t;
}

// The points between `i` and the next of the old ones are those of the curve, without flags.
void ExigerCourbe(const std::vector<PointProfil>& points, std::size_t i, const std::vector<PointSimple>& t) {
    ASSERT_GT(t.size(), 4U);
    ASSERT_GE(points.size(), i + t.size() - 4);
    for (std::size_t k = 2; k + 2 < t.size(); ++k) {
        EXPECT_EQ(points[i + k - 1].X, t[k].X);
        EXPECT_EQ(points[i + k - 1].Y, t[k].Y);
        EXPECT_EQ(points[i + k - 1].Drapeaux, 0);
    }
}

} // namespace

// One side of a square: 20 chords, hence 19 new points, the tenth at 11.25 beside the middle of the side.
TEST(Lissage, UnSegmentAuMilieuDuProfil) {
    ProjetCPX projet = Projet({{0, 0, 8}, {10, 0, 1}, {10, 10, 17}, {0, 10, 4}}, {{0, 0}, {1, 1}});
    cmdLisser(projet, SansNettoyage);
    const std::vector<PointProfil>& e = projet.E.Points;
    ASSERT_EQ(e.size(), 4U + 19);
    EXPECT_FLOAT_EQ(static_cast<float>(e[11].X), 11.25F);
    EXPECT_FLOAT_EQ(static_cast<float>(e[11].Y), 5);
    EXPECT_EQ(e[1].Drapeaux, 1);
    EXPECT_EQ(e[11].Drapeaux, 0);
    EXPECT_EQ(e[11].Z, 250);
    EXPECT_EQ(e[21].Drapeaux, 17);
    EXPECT_EQ(e[21].X, 10);
    EXPECT_EQ(e[22].Drapeaux, 4);
    EXPECT_EQ(projet.S.Points.size(), 2U);
    EXPECT_FLOAT_EQ(projet.E.Extremes.Xmax, 11.25F);
}

TEST(Lissage, IlFautLesDeuxPointsDuSegment) {
    ProjetCPX projet = Projet({{0, 0, 1}, {10, 0, 2}, {10, 10, 1}, {0, 10}}, {{0, 0}, {1, 1}});
    const ProjetCPX avant = projet;
    cmdLisser(projet, SansNettoyage);
    EXPECT_EQ(projet, avant);
}

// Open profile, points 1 to 3 selected: before the first segment stands (1,2) - (11,2), literally.
TEST(Lissage, PremierSegmentDUnProfilOuvert) {
    ProjetCPX projet = Projet({{1, 2, 1}, {11, 2, 1}, {11, 12, 1}, {1, 12}}, {});
    cmdLisser(projet, SansNettoyage);
    const std::vector<PointSimple> premier = Courbe({{-10, 0}, {1, 2}, {11, 2}, {11, 12}});
    ExigerCourbe(projet.E.Points, 0, premier);
    ExigerCourbe(projet.E.Points, 1 + premier.size() - 4, Courbe({{1, 2}, {11, 2}, {11, 12}, {1, 12}}));
}

// After the last segment of an open profile stands the sum of its two points: (11,12) + (1,12).
TEST(Lissage, DernierSegmentDUnProfilOuvert) {
    ProjetCPX projet = Projet({}, {{1, 2}, {11, 2}, {11, 12, 1}, {1, 12, 1}});
    cmdLisser(projet, SansNettoyage);
    ExigerCourbe(projet.S.Points, 2, Courbe({{11, 2}, {11, 12}, {1, 12}, {12, 24}}));
}

// Closed within 0.01: the neighbours are the last but one, and the second.
TEST(Lissage, BoutsDUnProfilFerme) {
    ProjetCPX projet = Projet({{0, 0, 1}, {10, 0, 1}, {10, 10}, {0, 10, 1}, {0, 0.009, 1}}, {{0, 0}, {5, 5}});
    cmdLisser(projet, SansNettoyage);
    const std::vector<PointSimple> premier = Courbe({{0, 10}, {0, 0}, {10, 0}, {10, 10}});
    ExigerCourbe(projet.E.Points, 0, premier);
    ExigerCourbe(projet.E.Points, 3 + premier.size() - 4, Courbe({{10, 10}, {0, 10}, {0, 0.009F}, {10, 0}}));
}

TEST(Lissage, OuvertDesUnCentieme) {
    ProjetCPX projet = Projet({{0, 0, 1}, {10, 0, 1}, {10, 10}, {0, 10}, {0, 0.01}}, {});
    cmdLisser(projet, SansNettoyage);
    ExigerCourbe(projet.E.Points, 0, Courbe({{-10, 0}, {0, 0}, {10, 0}, {10, 10}}));
}

// A profile of two points has both its end rules at once.
TEST(Lissage, UnProfilDeDeuxPoints) {
    ProjetCPX projet = Projet({{1, 1, 1}, {4, 3, 1}}, {{1, 1, 1}});
    cmdLisser(projet, SansNettoyage);
    ExigerCourbe(projet.E.Points, 0, Courbe({{-3, -2}, {1, 1}, {4, 3}, {5, 4}}));
    EXPECT_EQ(projet.S.Points.size(), 1U);
}

// The curve of the square's side strays 1.25 mm: thinned with 1.3 nothing is left of it.
TEST(Lissage, LeNettoyagePeutNeRienLaisser) {
    ProjetCPX projet = Projet({{0, 0}, {10, 0, 1}, {10, 10, 1}, {0, 10}}, {});
    const ProjetCPX avant = projet;
    cmdLisser(projet, 1.3F);
    EXPECT_EQ(projet, avant);
    cmdLisser(projet, 1.2F);
    EXPECT_GT(projet.E.Points.size(), 4U);
    EXPECT_LT(projet.E.Points.size(), 12U);
}

TEST(Lissage, PointsConfondusNeDonnentRien) {
    ProjetCPX projet = Projet({{0, 0}, {5, 5, 1}, {5, 5, 1}, {9, 0}}, {});
    cmdLisser(projet, SansNettoyage);
    EXPECT_EQ(projet.E.Points.size(), 4U);
}

// Each stretch is rounded from the profile as it was, not from what was already put in.
TEST(Lissage, ToutLeProfilGardeSesPointsDansLOrdre) {
    std::mt19937 hasard(4);
    std::uniform_real_distribution<double> tirage(-100, 100);
    for (int essai = 0; essai < 50; ++essai) {
        ProjetCPX projet;
        for (int i = 0; i < 30; ++i) {
            PointProfil p;
            p.X = tirage(hasard);
            p.Y = tirage(hasard);
            p.Drapeaux = DrapeauOutil;
            projet.E.Points.push_back(p);
        }
        const std::vector<PointProfil> avant = projet.E.Points;
        cmdLisser(projet, 0.02F);
        std::size_t trouves = 0;
        for (const PointProfil& p : projet.E.Points)
            if (p.Drapeaux != 0) {
                ASSERT_EQ(p, avant[trouves]);
                ++trouves;
            }
        ASSERT_EQ(trouves, avant.size());
        ASSERT_GT(projet.E.Points.size(), 10 * avant.size());
    }
}
