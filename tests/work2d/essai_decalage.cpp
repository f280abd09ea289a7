// The kerf offset: corners, ends, loops, doubles, and what must hold for any path.
#include "work2d/decalage.h"

#include "outils/boites.h"
#include "outils_decoupe.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

TEST(Decalage, ZeroRendLeCheminPointPourPoint) {
    Sequence chemin = Chemin({{0.1F, 3}, {10, 5}, {10.001, 5.001}, {7, 9}});
    const Sequence decalee = DecalerSequenceTS2D(chemin, 0, 4);
    EXPECT_EQ(Lieux(decalee), Lieux(chemin));
    for (const PointProfil& p : decalee.Points) {
        EXPECT_EQ(p.Vitesse, 4);
        EXPECT_FALSE(p.Rapide);
    }
}

TEST(Decalage, DeuxPointsDonnentLeSegmentDeplaceEntier) {
    // Travel to the right: the right side is below.
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{0, 0}, {10, 0}}), 2, 4)),
              (std::vector<Lieu>{{0, -2}, {10, -2}}));
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{0, 0}, {10, 0}}), -2, 4)),
              (std::vector<Lieu>{{0, 2}, {10, 2}}));
    // Upwards: the right side is at greater X.
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{3, 1}, {3, 9}}), 2, 4)),
              (std::vector<Lieu>{{5, 1}, {5, 9}}));
}

TEST(Decalage, TroisPointsAlignesLaissentLeMilieuSurLaLigneDeplacee) {
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{0, 0}, {4, 0}, {10, 0}}), 1, 4)),
              (std::vector<Lieu>{{0, -1}, {4, -1}, {10, -1}}));
}

TEST(Decalage, UnDemiTourSurSoiMemeDonneLeMilieuDesBouts) {
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{0, 0}, {10, 0}, {0, 0}}), 1, 4)),
              (std::vector<Lieu>{{0, -1}, {10, 0}, {0, 1}}));
}

TEST(Decalage, UnCoinSExteriorisePointuEtSInterioriseRogne) {
    const Sequence coin = Chemin({{0, 0}, {10, 0}, {0, 10}});
    const double r = std::numbers::sqrt2;
    const double c = r / 2;
    AttendreProche(DecalerSequenceTS2D(coin, 1, 4), {{0, -1}, {11 + r, -1}, {c, 10 + c}}, 1e-5);
    AttendreProche(DecalerSequenceTS2D(coin, -1, 4), {{0, 1}, {9 - r, 1}, {-c, 10 - c}}, 1e-5);
}

TEST(Decalage, UnCarreFermeGardeDeuxBoutsQuiNeSeRejoignentPas) {
    const Sequence carre = Chemin({{0, 0}, {0, 10}, {10, 10}, {10, 0}, {0, 0}});
    AttendreProche(DecalerSequenceTS2D(carre, -1, 4), {{-1, 0}, {-1, 11}, {11, 11}, {11, -1}, {0, -1}}, 1e-5);
}

TEST(Decalage, UneBoucleSerreeResteDansLeChemin) {
    // A notch 1 mm wide cannot take a wire shifted by 2: the path crosses itself, and stays so.
    const Sequence encoche = Chemin({{0, 0}, {10, 0}, {10, -5}, {11, -5}, {11, 0}, {20, 0}});
    AttendreProche(DecalerSequenceTS2D(encoche, -2, 4), {{0, 2}, {12, 2}, {12, -3}, {9, -3}, {9, 2}, {20, 2}},
                   1e-5);
}

TEST(Decalage, DeuxPointsConfondusMontrentLaBoiteEtRendentDuVide) {
    BoitesEnregistrees boites;
    const Sequence chemin = Chemin({{0, 0}, {10, 0}, {10.0099, 0.0099}, {20, 20}});
    EXPECT_TRUE(DecalerSequenceTS2D(chemin, 1, 4).Points.empty());
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, "Calcul impossible.");
    EXPECT_EQ(boites.boites[0].texte,
              "Deux points consécutifs sont confondus.\r\n"
              "Impossible de définir un décalage. Retournez dans l'onglet Conception 4 axes pour corriger.");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
}

TEST(Decalage, UnEcartDUnCentiemeSurUnSeulAxeSuffit) {
    BoitesEnregistrees boites;
    EXPECT_EQ(DecalerSequenceTS2D(Chemin({{0, 0}, {0.01F, 0}}), 1, 4).Points.size(), 2U);
    EXPECT_EQ(DecalerSequenceTS2D(Chemin({{0, 0}, {0, 0.01}}), 1, 4).Points.size(), 2U);
    EXPECT_TRUE(boites.boites.empty());
    EXPECT_TRUE(DecalerSequenceTS2D(Chemin({{0, 0}, {0, 0.009999}}), 1, 4).Points.empty());
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(Decalage, LaNormaleEstTenueEn32Bits) {
    // dy/L = 1/sqrt(10), dx/L = 3/sqrt(10), each through a single before it is multiplied.
    const Sequence decalee = DecalerSequenceTS2D(Chemin({{0, 0}, {3, 1}}), 1, 4);
    EXPECT_EQ(decalee.Points[0].X, static_cast<double>(static_cast<float>(1 / std::sqrt(10.0))));
    EXPECT_EQ(decalee.Points[0].Y, static_cast<double>(static_cast<float>(-3 / std::sqrt(10.0))));
}

TEST(Decalage, UnSeulPointNAPasDeDirectionEtReste) {
    EXPECT_EQ(Lieux(DecalerSequenceTS2D(Chemin({{4, 5}}), 1, 4)), (std::vector<Lieu>{{4, 5}}));
    EXPECT_TRUE(DecalerSequenceTS2D(Sequence(), 1, 4).Points.empty());
}

// A random walk whose turns stay below 2 radians, so that no tip runs away.
static Sequence Promenade(std::mt19937_64& hasard, int points) {
    std::uniform_real_distribution<double> tour(-2, 2);
    std::uniform_real_distribution<double> pas(1, 20);
    Sequence chemin;
    double cap = 0;
    PointProfil p;
    for (int i = 0; i < points; ++i) {
        chemin.Points.push_back(p);
        cap += tour(hasard);
        const double longueur = pas(hasard);
        p.X = static_cast<float>(p.X + longueur * std::cos(cap));
        p.Y = static_cast<float>(p.Y + longueur * std::sin(cap));
    }
    return chemin;
}

TEST(Decalage, LeCheminInverseDeLAutreCoteDonneLaMemeForme) {
    std::mt19937_64 hasard(5);
    for (int essai = 0; essai < 200; ++essai) {
        const Sequence chemin = Promenade(hasard, 30);
        Sequence inverse = chemin;
        InverserSequence(inverse);
        const Sequence droite = DecalerSequenceTS2D(chemin, 0.7F, 4);
        Sequence gauche = DecalerSequenceTS2D(inverse, -0.7F, 4);
        InverserSequence(gauche);
        AttendreProche(gauche, Lieux(droite), 2e-3);
    }
}

TEST(Decalage, ChaqueSommetEstALaDistanceDemandeeDesDroitesDeSesSegments) {
    std::mt19937_64 hasard(6);
    const double d = 0.7F;
    for (int essai = 0; essai < 200; ++essai) {
        const Sequence chemin = Promenade(hasard, 30);
        const Sequence decalee = DecalerSequenceTS2D(chemin, 0.7F, 4);
        ASSERT_EQ(decalee.Points.size(), chemin.Points.size());
        for (std::size_t i = 0; i + 1 < chemin.Points.size(); ++i) {
            const PointProfil& p = chemin.Points[i];
            const PointProfil& q = chemin.Points[i + 1];
            const double dx = q.X - p.X;
            const double dy = q.Y - p.Y;
            for (const std::size_t j : {i, i + 1}) {
                const PointProfil& s = decalee.Points[j];
                const double cote = ((s.X - p.X) * dy - (s.Y - p.Y) * dx) / std::hypot(dx, dy);
                EXPECT_NEAR(cote, d, 2e-3) << "essai " << essai << " point " << j;
            }
        }
    }
}
