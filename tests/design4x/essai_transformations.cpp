// Moving, stretching, turning and mirroring selected points.
#include "design4x/projets_essai.h"
#include "design4x/transformations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

void Attendre(const ProfilCPX& profil, const Coordonnees& points) {
    AttendrePoints(profil, points, 1e-9);
}

// Root: selection box 0..10 by 0..4, centre (5, 2). Tip: 20..24 by 10..20, centre (22, 15).
ProjetCPX Deux() {
    return Projet({{0, 0, 1}, {10, 4, 1}, {3, 3}, {5, 1, 1}}, {{20, 10, 5}, {24, 20, 1}, {0, 0}});
}

ProjetCPX AuHasard(unsigned graine) {
    std::mt19937 hasard(graine);
    std::uniform_real_distribution<double> place(-200, 200);
    ProjetCPX p;
    for (ProfilCPX* profil : {&p.E, &p.S})
        for (int k = 0; k < 50; ++k) {
            PointProfil point;
            point.X = place(hasard);
            point.Y = place(hasard);
            point.Drapeaux = static_cast<std::uint16_t>(hasard() % 64);
            profil->Points.push_back(point);
        }
    CalculerExtremesCPX(p);
    return p;
}

void MemesPoints(const ProjetCPX& a, const ProjetCPX& b) {
    for (std::size_t k = 0; k < a.E.Points.size(); ++k) {
        ASSERT_NEAR(a.E.Points[k].X, b.E.Points[k].X, 1e-9);
        ASSERT_NEAR(a.E.Points[k].Y, b.E.Points[k].Y, 1e-9);
        ASSERT_NEAR(a.S.Points[k].X, b.S.Points[k].X, 1e-9);
        ASSERT_NEAR(a.S.Points[k].Y, b.S.Points[k].Y, 1e-9);
    }
}

} // namespace

TEST(Deplacer, LesPointsChoisisDesDeuxProfils) {
    ProjetCPX p = Deux();
    EXPECT_TRUE(txtDeplacer(p, 0, 2.5));
    Attendre(p.E, {{2.5, 0}, {12.5, 4}, {3, 3}, {7.5, 1}});
    Attendre(p.S, {{22.5, 10}, {26.5, 20}, {0, 0}});
    EXPECT_EQ(p.E.Extremes.Xmax, 12.5F);
    EXPECT_TRUE(txtDeplacer(p, 1, -1));
    Attendre(p.E, {{2.5, -1}, {12.5, 3}, {3, 3}, {7.5, 0}});
}

TEST(Etirer, AutourDuCentreDeChaqueSelection) {
    ProjetCPX p = Deux();
    EXPECT_TRUE(txtEtirer(p, 0, 200));
    Attendre(p.E, {{-5, 0}, {15, 4}, {3, 3}, {5, 1}});
    Attendre(p.S, {{18, 10}, {26, 20}, {0, 0}});
    EXPECT_TRUE(txtEtirer(p, 1, 50));
    Attendre(p.E, {{-5, 1}, {15, 3}, {3, 3}, {5, 1.5}});
    Attendre(p.S, {{18, 12.5}, {26, 17.5}, {0, 0}});
}

TEST(Etirer, CentPourCentNeChangeRienZeroReunitAuCentre) {
    ProjetCPX p = Deux();
    const ProjetCPX avant = p;
    EXPECT_TRUE(txtEtirer(p, 0, 100));
    EXPECT_TRUE(txtEtirer(p, 1, 100));
    EXPECT_EQ(p, avant);
    EXPECT_TRUE(txtEtirer(p, 0, 0));
    Attendre(p.E, {{5, 0}, {5, 4}, {3, 3}, {5, 1}});
    Attendre(p.S, {{22, 10}, {22, 20}, {0, 0}});
}

TEST(Tourner, UnQuartDeTourAutourDeChaqueCentre) {
    ProjetCPX p = Deux();
    EXPECT_TRUE(txtTourner(p, 90));
    // (0, 0) stands at (-5, -2) from its centre: (2, -5) after the turn.
    Attendre(p.E, {{7, -3}, {3, 7}, {3, 3}, {6, 2}});
    Attendre(p.S, {{27, 13}, {17, 17}, {0, 0}});
}

TEST(Symetrie, VerticaleEtHorizontaleDansLaBoite) {
    ProjetCPX p = Deux();
    EXPECT_TRUE(cmdSymetrie(p, 0));
    Attendre(p.E, {{0, 4}, {10, 0}, {3, 3}, {5, 3}});
    Attendre(p.S, {{20, 20}, {24, 10}, {0, 0}});
    EXPECT_TRUE(cmdSymetrie(p, 1));
    Attendre(p.E, {{10, 4}, {0, 0}, {3, 3}, {5, 3}});
    Attendre(p.S, {{24, 20}, {20, 10}, {0, 0}});
}

// With a selection on one side only, the other side stays.
TEST(Symetrie, UneSelectionDUnCoteLaisseLAutre) {
    ProjetCPX p = Projet({{0, 0, 1}, {0, 4, 1}}, {{0, 0}, {0, 4}});
    EXPECT_TRUE(cmdSymetrie(p, 0));
    Attendre(p.E, {{0, 4}, {0, 0}});
    Attendre(p.S, {{0, 0}, {0, 4}});
}

TEST(Symetrie, SansSelectionToutPuisRienNEstChoisi) {
    ProjetCPX p = Projet({{0, 0, 4}, {2, 4}}, {{0, 0}, {10, 6, 32}});
    EXPECT_TRUE(cmdSymetrie(p, 0));
    Attendre(p.E, {{0, 4}, {2, 0}});
    Attendre(p.S, {{0, 6}, {10, 0}});
    EXPECT_EQ(p.E.Points[0].Drapeaux, 4);
    EXPECT_EQ(p.E.Points[1].Drapeaux, 0);
    EXPECT_EQ(p.S.Points[1].Drapeaux, 32);
}

TEST(Transformations, SansSelectionRien) {
    ProjetCPX p = Projet({{0, 0, 2}, {1, 1}}, {{0, 0}});
    const ProjetCPX avant = p;
    EXPECT_FALSE(txtDeplacer(p, 0, 5));
    EXPECT_FALSE(txtEtirer(p, 0, 50));
    EXPECT_FALSE(txtTourner(p, 45));
    EXPECT_EQ(p, avant);
}

TEST(Transformations, AllerEtRetourRedonneLesPoints) {
    for (unsigned graine = 1; graine <= 20; ++graine) {
        const ProjetCPX avant = AuHasard(graine);
        ProjetCPX p = avant;
        cmdSymetrie(p, 0);
        cmdSymetrie(p, 0);
        cmdSymetrie(p, 1);
        cmdSymetrie(p, 1);
        txtDeplacer(p, 1, 13.7);
        txtDeplacer(p, 1, -13.7);
        txtEtirer(p, 0, 160);
        txtEtirer(p, 0, 62.5);
        MemesPoints(p, avant);
    }
}

// A turn keeps all distances within the selection.
TEST(Tourner, GardeLesDistances) {
    for (unsigned graine = 1; graine <= 20; ++graine) {
        const ProjetCPX avant = AuHasard(graine);
        ProjetCPX p = avant;
        txtTourner(p, 17.0 * graine);
        for (std::size_t k = 1; k < p.E.Points.size(); ++k) {
            if ((p.E.Points[k].Drapeaux & p.E.Points[k - 1].Drapeaux & 1) == 0) continue;
            const auto distance = [&](const ProjetCPX& q) {
                return std::hypot(q.E.Points[k].X - q.E.Points[k - 1].X,
                                  q.E.Points[k].Y - q.E.Points[k - 1].Y);
            };
            ASSERT_NEAR(distance(p), distance(avant), 1e-9);
        }
    }
}
