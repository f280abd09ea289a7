// Masks, roundings and the number parser.
#include "platform/nombres.h"

#include "platform/erreurs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;

TEST(Masques, ChiffresObligatoiresEtPermis) {
    EXPECT_EQ(FormaterNombre(0.0, "#####0.0#"), "0.0");
    EXPECT_EQ(FormaterNombre(1.5, "#####0.0#"), "1.5");
    EXPECT_EQ(FormaterNombre(1.25, "#####0.0#"), "1.25");
    EXPECT_EQ(FormaterNombre(104.25, "#####0.000000"), "104.250000");
    EXPECT_EQ(FormaterNombre(12.0, "###0.0000"), "12.0000");
    EXPECT_EQ(FormaterNombre(255.0, "##0"), "255");
    EXPECT_EQ(FormaterNombre(1234567.0, "##0"), "1234567");
    EXPECT_EQ(FormaterNombre(0.5, "#.#"), ".5");
}

TEST(Masques, DemisLoinDeZeroSurLaValeurDecimale) {
    EXPECT_EQ(FormaterNombre(0.5, "##0"), "1");
    EXPECT_EQ(FormaterNombre(1.5, "##0"), "2");
    EXPECT_EQ(FormaterNombre(2.5, "##0"), "3");
    EXPECT_EQ(FormaterNombre(-2.5, "##0"), "-3");
    // 1.005 is stored a little below; its 15 digits are 1.00500000000000, a half.
    EXPECT_EQ(FormaterNombre(1.005, "0.00"), "1.01");
    EXPECT_EQ(FormaterNombre(0.35, "##0.0"), "0.4");
    EXPECT_EQ(FormaterNombre(9.9999999, "##0.00"), "10.00");
    EXPECT_EQ(FormaterNombre(25.55F, "##0.0"), "25.6");
}

TEST(Masques, ZeroSansSigneEtValeursExtremes) {
    EXPECT_EQ(FormaterNombre(-0.0, "0.00"), "0.00");
    EXPECT_EQ(FormaterNombre(-0.001, "0.00"), "0.00");
    EXPECT_EQ(FormaterNombre(1e20, "##0.0"), "100000000000000000000.0");
    EXPECT_EQ(FormaterNombre(std::nan(""), "##0.0"), "0.0");
}

// The fast road and the digit road must agree wherever both can be taken.
TEST(Masques, CheminRapideCommeCheminExact) {
    std::mt19937_64 hasard(20);
    std::uniform_real_distribution<double> tirage(-5000, 5000);
    for (int i = 0; i < 20000; ++i) {
        const double v = tirage(hasard);
        char attendu[64];
        std::snprintf(attendu, sizeof attendu, "%.4f", v);
        if (std::string(attendu) == "-0.0000") continue;
        EXPECT_EQ(FormaterNombre(v, "###0.0000"), attendu) << v;
    }
}

TEST(NombreDepuisTexte, CaracteresGardesEtFin) {
    EXPECT_EQ(NombreDepuisTexte(""), 0);
    EXPECT_EQ(NombreDepuisTexte("1,5"), 1.5);
    EXPECT_EQ(NombreDepuisTexte("1.5"), 1.5);
    EXPECT_EQ(NombreDepuisTexte("12 mm"), 12);
    EXPECT_EQ(NombreDepuisTexte("1 250,5"), 1250.5);
    EXPECT_EQ(NombreDepuisTexte("1\xC2\xA0"
                                "250"),
              1250);
    EXPECT_EQ(NombreDepuisTexte("1\xA0"
                                "250"),
              1250);
    EXPECT_EQ(NombreDepuisTexte("-3.25"), -3.25);
    EXPECT_EQ(NombreDepuisTexte("+4"), 4);
    EXPECT_EQ(NombreDepuisTexte("abc"), 0);
    EXPECT_EQ(NombreDepuisTexte("-"), 0);
    EXPECT_EQ(NombreDepuisTexte("1e5"), 1);
}

TEST(LireDecimal, RefuseCeQuiNEstPasUnNombre) {
    EXPECT_EQ(LireDecimal(" 12,5 "), 12.5);
    EXPECT_EQ(LireDecimal("-.5"), -0.5);
    EXPECT_FALSE(LireDecimal(""));
    EXPECT_FALSE(LireDecimal("12a"));
    EXPECT_FALSE(LireDecimal("nan"));
    EXPECT_FALSE(LireDecimal("inf"));
    EXPECT_FALSE(LireDecimal("1e999"));
    EXPECT_FALSE(LireDecimal("1.2.3"));
}

TEST(Arrondis, DemisVersLePair) {
    EXPECT_EQ(Arrondi(0.5), 0);
    EXPECT_EQ(Arrondi(1.5), 2);
    EXPECT_EQ(Arrondi(2.5), 2);
    EXPECT_EQ(Arrondi(-0.5), 0);
    EXPECT_EQ(Arrondi(-1.5), -2);
    EXPECT_EQ(Arrondi(2.4999), 2);
    EXPECT_EQ(ArrondiInteger(32767.4), 32767);
    EXPECT_THROW(ArrondiInteger(32767.6), FauteDepassement);
    EXPECT_THROW(ArrondiLong(3e9), FauteDepassement);
    EXPECT_THROW(CompteurInteger(32768, "trop"), FauteDepassement);
    EXPECT_EQ(CompteurInteger(32767, "trop"), 32767);
}
