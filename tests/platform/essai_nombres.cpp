// Masks, roundings and the number parser.
#include "platform/nombres.h"

#include "platform/erreurs.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string_view>

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

TEST(Masques, ToutesLesFormesCommeLeSysteme) {
    std::mt19937_64 hasard(21);
    static constexpr std::array<const char*, 6> masques = {"##0",    "0.0",        "#####0.000000",
                                                           "000.00", "0.00000000", "00000000.0"};
    const std::array<int, 6> decimales = {0, 1, 6, 2, 8, 1};
    const std::array<int, 6> largeurs = {1, 3, 8, 6, 10, 10};
    for (int i = 0; i < 100000; ++i) {
        const std::size_t m = hasard() % masques.size();
        const double v = std::ldexp(static_cast<double>(static_cast<std::int64_t>(hasard())),
                                    -60 + static_cast<int>(hasard() % 24));
        // Near a half the fifteen digits decide, and the system's own conversion does not look at them.
        const double echelle = std::abs(v) * std::pow(10, decimales[m]);
        if (std::abs(echelle - std::floor(echelle) - 0.5) < 0.01 || echelle > 1e12) continue;
        std::array<char, 64> attendu;
        std::snprintf(attendu.data(), attendu.size(), "%0*.*f", largeurs[m] + (v < 0 ? 1 : 0), decimales[m],
                      v);
        if (attendu[0] == '-' &&
            std::string_view(attendu.data()).find_first_of("123456789") == std::string_view::npos)
            continue;
        ASSERT_EQ(FormaterNombre(v, masques[m]), attendu.data()) << v << " " << masques[m];
    }
}

TEST(Masques, DecimalesPermisesSansZerosInutiles) {
    EXPECT_EQ(FormaterNombre(0.1, "##0.0##"), "0.1");
    EXPECT_EQ(FormaterNombre(12.340, "##0.0##"), "12.34");
    EXPECT_EQ(FormaterNombre(100.0, "##0.##"), "100");
    EXPECT_EQ(FormaterNombre(1000.05, "##0.0##"), "1000.05");
    EXPECT_EQ(FormaterNombre(-7.0, "000.0#"), "-007.0");
    EXPECT_EQ(FormaterNombre(0.0, "#.##"), "");
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

TEST(LireTeteNumerique, CommeLaConversionDuSysteme) {
    std::mt19937_64 hasard(31);
    const auto chiffres = [&](std::size_t n) {
        std::string texte;
        while (n-- > 0) texte += static_cast<char>('0' + hasard() % 10);
        return texte;
    };
    for (int i = 0; i < 200000; ++i) {
        std::string texte = hasard() % 3 == 0 ? "-" : "";
        texte += chiffres(1 + hasard() % 12);
        if (hasard() % 4 != 0) texte += "." + chiffres(hasard() % 12);
        if (hasard() % 8 == 0) texte += "e" + std::to_string(static_cast<int>(hasard() % 40) - 20);
        double valeur = -1;
        ASSERT_EQ(LireTeteNumerique(texte + ":x", valeur), texte.size()) << texte;
        const double attendue = std::strtod(texte.c_str(), nullptr);
        ASSERT_EQ(valeur, attendue) << texte;
        ASSERT_EQ(std::signbit(valeur), std::signbit(attendue)) << texte;
    }
}

TEST(LireTeteNumerique, CaracteresPris) {
    const auto prend = [](std::string_view texte) {
        double valeur = 0;
        return LireTeteNumerique(texte, valeur);
    };
    EXPECT_EQ(prend("12.5mm"), 4U);
    EXPECT_EQ(prend("  .5"), 4U);
    EXPECT_EQ(prend("5."), 2U);
    EXPECT_EQ(prend("+5"), 2U);
    EXPECT_EQ(prend("5e"), 1U);
    EXPECT_EQ(prend("5e3,"), 3U);
    EXPECT_EQ(prend("1.2.3"), 3U);
    EXPECT_EQ(prend("123456789012345678901234"), 24U);
    for (const char* rien : {"", ".", "-", "-.", "+-1", "--1", "e5", "nan", "inf", "abc", ":"})
        EXPECT_EQ(prend(rien), 0U) << rien;
}

TEST(DecimalSimple, LesSeptChiffresQueLaValeurMontre) {
    EXPECT_EQ(DecimalSimple(40.1F), 40.1);
    EXPECT_EQ(DecimalSimple(-0.05F), -0.05);
    EXPECT_EQ(DecimalSimple(123456.789F), 123456.8);
    EXPECT_EQ(DecimalSimple(16777216.0F), 16777220.0);
    EXPECT_EQ(DecimalSimple(0.0F), 0.0);
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
