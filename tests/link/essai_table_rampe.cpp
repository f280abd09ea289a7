// The table of ramp periods, cell by cell where it can be worked out by hand, and the search in it held
// against the plain scan.
#include "link/table_rampe.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using namespace tessarel;

namespace {

// The rule itself: from level 0 up, a level is taken only when strictly nearer.
int NiveauParParcours(int f, double periode) {
    int meilleur = 0;
    double plusCourt = std::abs(TableRampe(0, f) - periode);
    for (int k = 1; k < NiveauxRampe; ++k) {
        const double ecart = std::abs(TableRampe(k, f) - periode);
        if (ecart < plusCourt) {
            plusCourt = ecart;
            meilleur = k;
        }
    }
    return meilleur;
}

void VerifierAutour(int f, double periode) {
    const double infini = std::numeric_limits<double>::infinity();
    for (const double p : {periode, std::nextafter(periode, -infini), std::nextafter(periode, infini),
                           periode - 0.25, periode + 0.25}) {
        ASSERT_EQ(NiveauLePlusProche(RampeDeFrequence(f), p), NiveauParParcours(f, p))
            << "f " << f << ", periode " << p;
    }
}

} // namespace

TEST(TableRampe, LesExtremesSontCeuxDuBoitier) {
    // Row 255 is 600 / f, row 0 the longest period of 16 bits.
    const float dernieres[] = {600, 300, 200, 150, 120};
    for (int f = 1; f <= FrequencesRampe; ++f) {
        EXPECT_EQ(TableRampe(0, f), 65535) << f;
        EXPECT_EQ(TableRampe(255, f), dernieres[f - 1]) << f;
    }
}

TEST(TableRampe, QuelquesRangeesCalculeesALaMain) {
    // k = 1, f = 5: 50000/255 = 196.0784; 254 x 6000000/16711425 = 91.1949; 6000000 / 287.2733 = 20886.0
    EXPECT_EQ(TableRampe(1, 5), 20886);
    // k = 1, f = 1: 39.2157 + 91.1949 = 130.4106; 46008.5 before rounding: 46008.48
    EXPECT_EQ(TableRampe(1, 1), 46008);
    // k = 191, f = 5: 37450.98 + 22.98 = 37473.96; 160.11
    EXPECT_EQ(TableRampe(191, 5), 160);
    // k = 254, f = 5: 49803.92 + 0.36 = 49804.28; 120.47: the two highest levels share a period.
    EXPECT_EQ(TableRampe(254, 5), 120);
}

TEST(TableRampe, LesPeriodesNeMontentJamaisAvecLeNiveau) {
    for (int f = 1; f <= FrequencesRampe; ++f)
        for (int k = 1; k < NiveauxRampe; ++k) EXPECT_LE(TableRampe(k, f), TableRampe(k - 1, f)) << k;
}

TEST(TableRampe, LaRechercheDonneLeParcoursSurToutesLesRangeesEtTousLesMilieux) {
    for (int f = 1; f <= FrequencesRampe; ++f) {
        for (int k = 0; k < NiveauxRampe; ++k) {
            VerifierAutour(f, TableRampe(k, f));
            // Midpoints with every level near enough to tie through runs of equal periods.
            for (int autre = k + 1; autre < std::min(k + 6, NiveauxRampe); ++autre)
                VerifierAutour(f, (static_cast<double>(TableRampe(k, f)) + TableRampe(autre, f)) / 2);
        }
    }
}

TEST(TableRampe, LaRechercheDonneLeParcoursLoinDeLaTable) {
    const double infini = std::numeric_limits<double>::infinity();
    for (int f = 1; f <= FrequencesRampe; ++f) {
        for (const double p : {0.0, -1.0, 1e-300, 65536.0, 1e9, 1e17, 1e300, -1e17, -1e300, infini, -infini,
                               std::numeric_limits<double>::quiet_NaN()}) {
            EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(f), p), NiveauParParcours(f, p)) << p;
        }
    }
}

TEST(TableRampe, LaRechercheDonneLeParcoursAuHasard) {
    std::mt19937 hasard(20260);
    std::uniform_real_distribution<double> exposant(1, 17);
    for (int i = 0; i < 20000; ++i) {
        const int f = 1 + i % FrequencesRampe;
        const double p = std::exp2(exposant(hasard));
        ASSERT_EQ(NiveauLePlusProche(RampeDeFrequence(f), p), NiveauParParcours(f, p)) << p;
        const double demi = std::floor(2 * p) / 2;
        ASSERT_EQ(NiveauLePlusProche(RampeDeFrequence(f), demi), NiveauParParcours(f, demi)) << demi;
    }
}

TEST(TableRampe, UneEgaliteGardeLeNiveauLePlusBas) {
    // 50 kHz: levels 191 and 192 have 160 and 159; 159.5 is as near to both.
    EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(5), 159.5), 191);
    // Levels 254 and 255 both have 120.
    EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(5), 120), 254);
    EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(5), 60), 254);
    // 10 kHz: level 254 has 6000000 / (9960.78 + 0.36) = 602.3, apart from 600.
    EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(1), 600), 255);
    EXPECT_EQ(NiveauLePlusProche(RampeDeFrequence(1), 601.5), 254);
}
