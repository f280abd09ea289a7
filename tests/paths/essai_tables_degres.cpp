// The tables of sines and cosines by whole degrees.
#include "paths/tables_degres.h"

#include <gtest/gtest.h>

using namespace tessarel;

TEST(TablesDegres, LEntreeDTientDMoins180Degres) {
    const TablesDegres& t = TablesTrigonometriques();
    EXPECT_EQ(t.sinus[180], 0);
    EXPECT_EQ(t.cosinus[180], 1);
    EXPECT_NEAR(t.sinus[270], 1, 1e-14);
    EXPECT_NEAR(t.sinus[90], -1, 1e-14);
    EXPECT_NEAR(t.sinus[210], 0.5, 1e-14);
    EXPECT_NEAR(t.cosinus[240], 0.5, 1e-14);
    EXPECT_NEAR(t.cosinus[360], -1, 1e-14);
}

// The constant stops at fifteen digits, 3.24e-15 short of pi: so much is left of the sine of a half turn.
TEST(TablesDegres, LaConstanteAQuinzeChiffres) {
    EXPECT_NEAR(TablesTrigonometriques().sinus[360], 3.24e-15, 4e-16);
    EXPECT_NEAR(TablesTrigonometriques().sinus[0], -3.24e-15, 4e-16);
}
