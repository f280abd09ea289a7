// Crossing of two segments: each told case, and the edges between them.
#include "paths/geometrie.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;

namespace {

struct Resultat {
    Croisement code;
    float x;
    float y;
};

// Outputs start at a value no crossing here gives, so that an untouched output shows.
Resultat Croiser(float x0, float y0, float x1, float y1, float x2, float y2, float x3, float y3) {
    Resultat r{Croisement::Parallele, -99, -99};
    r.code = IntersectionSegments(x0, y0, x1, y1, x2, y2, x3, y3, r.x, r.y);
    return r;
}

#define ATTENDRE(r, c, px, py)                                                                               \
    do {                                                                                                     \
        const Resultat obtenu = (r);                                                                         \
        EXPECT_EQ(obtenu.code, (c));                                                                         \
        EXPECT_EQ(obtenu.x, static_cast<float>(px));                                                         \
        EXPECT_EQ(obtenu.y, static_cast<float>(py));                                                         \
    } while (false)

} // namespace

TEST(Croisement, DedansLesDeux) {
    ATTENDRE(Croiser(0, 0, 4, 4, 0, 4, 4, 0), Croisement::Propre, 2, 2);
    ATTENDRE(Croiser(0, 0, 8, 0, 2, -1, 2, 3), Croisement::Propre, 2, 0);
}

TEST(Croisement, ParallelesLaissentLesSorties) {
    ATTENDRE(Croiser(0, 0, 4, 0, 0, 1, 4, 1), Croisement::Parallele, -99, -99);
    ATTENDRE(Croiser(0, 0, 4, 0, 1, 0, 3, 0), Croisement::Parallele, -99, -99); // on one line
    ATTENDRE(Croiser(1, 1, 1, 1, 0, 0, 4, 1), Croisement::Parallele, -99, -99); // no length
}

TEST(Croisement, HorsDesSegmentsDonneLePointDesDroites) {
    ATTENDRE(Croiser(0, 0, 1, 0, 4, 1, 4, 2), Croisement::HorsSegments, 4, 0);
    ATTENDRE(Croiser(0, 0, 8, 0, 4, 1, 4, 2), Croisement::HorsSegments, 4, 0);  // beyond B only
    ATTENDRE(Croiser(0, 0, 1, 0, 4, -1, 4, 2), Croisement::HorsSegments, 4, 0); // beyond A only
    ATTENDRE(Croiser(0, 0, 4, 0, -2, -1, -2, 1), Croisement::HorsSegments, -2, 0);
}

TEST(Croisement, BoutsNommes) {
    ATTENDRE(Croiser(2, 0, 4, 0, 2, -1, 2, 1), Croisement::DebutA, 2, 0);
    ATTENDRE(Croiser(0, 0, 2, 0, 2, -1, 2, 1), Croisement::FinA, 2, 0);
    ATTENDRE(Croiser(0, 0, 4, 0, 1, 0, 1, 5), Croisement::DebutB, 1, 0);
    ATTENDRE(Croiser(0, 0, 4, 0, 1, 5, 1, 0), Croisement::FinB, 1, 0);
}

// Two ends that meet carry two names; the first in the order of the tests holds.
TEST(Croisement, OrdreDesEpreuves) {
    ATTENDRE(Croiser(1, 1, 3, 1, 1, 1, 1, 4), Croisement::DebutA, 1, 1);
    ATTENDRE(Croiser(1, 1, 3, 1, 3, 4, 3, 1), Croisement::FinA, 3, 1);
    // At the start of A, but beyond B: outside comes first.
    ATTENDRE(Croiser(1, 1, 3, 1, 1, 2, 1, 4), Croisement::HorsSegments, 1, 1);
}

// An end keeps its own coordinates, which x0 + a * t may miss by a unit.
TEST(Croisement, UnBoutGardeSesCoordonnees) {
    const float x1 = 0.3F;
    const float y1 = 0.7F;
    const Resultat r = Croiser(0.1F, 0.2F, x1, y1, x1 - 1, y1, x1 + 1, y1);
    EXPECT_EQ(r.code, Croisement::FinA);
    EXPECT_EQ(r.x, x1);
    EXPECT_EQ(r.y, y1);
}

// The determinant is held in 32 bits: one too small for them counts as parallel.
TEST(Croisement, DeterminantSousLes32Bits) {
    const float petit = 1e-23F;
    ATTENDRE(Croiser(0, 0, petit, 0, 0, -petit, 0, petit), Croisement::Parallele, -99, -99);
}

TEST(Croisement, EchangerLesSegmentsDonneLeMemePoint) {
    std::mt19937 hasard(3);
    std::uniform_real_distribution<float> tirage(-100, 100);
    int propres = 0;
    for (int i = 0; i < 5000; ++i) {
        float v[8];
        for (float& c : v) c = tirage(hasard);
        const Resultat ab = Croiser(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]);
        const Resultat ba = Croiser(v[4], v[5], v[6], v[7], v[0], v[1], v[2], v[3]);
        EXPECT_EQ(ab.code, ba.code);
        if (ab.code != Croisement::Propre) continue;
        ++propres;
        EXPECT_NEAR(ab.x, ba.x, 1e-4);
        EXPECT_NEAR(ab.y, ba.y, 1e-4);
    }
    EXPECT_GT(propres, 500);
}
