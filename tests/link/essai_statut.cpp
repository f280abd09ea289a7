// The status block, bit by bit.
#include "link/statut.h"

#include <gtest/gtest.h>

using namespace tessarel;

TEST(Statut, ToutAZeroNeDitRien) {
    const StatutZelko s = LireStatut(Tampon{});
    EXPECT_TRUE(s.Recu);
    EXPECT_FALSE(s.SalveAcceptee || s.ChauffeActive || s.OrigineOuverte || s.FinCourseOuverte ||
                 s.ChauffeSurOff || s.ChauffeSurManu || s.Fini || s.FinDeListe || s.ArretDemande ||
                 s.ArretBoutonStop || s.OrigineOuverteEnMouvement || s.FinCourseOuverteEnMouvement);
    EXPECT_EQ(s.NumeroSalve, 0);
    EXPECT_EQ(s.TicksRestants, 0U);
}

TEST(Statut, SeulUnVautAcceptee) {
    for (int valeur = 0; valeur <= 255; ++valeur) {
        Tampon t{};
        t[2] = static_cast<std::uint8_t>(valeur);
        EXPECT_EQ(LireStatut(t).SalveAcceptee, valeur == 1) << valeur;
    }
}

TEST(Statut, LeNumeroATroisOctetsEtLesTicksQuatre) {
    Tampon t{};
    t[4] = 0x01;
    t[5] = 0x02;
    t[6] = 0x03;
    t[7] = 0xFF; // no part of the number
    t[13] = 0x04;
    t[14] = 0x03;
    t[15] = 0x02;
    t[16] = 0xF1;
    t[17] = 0xFF;
    const StatutZelko s = LireStatut(t);
    EXPECT_EQ(s.NumeroSalve, 0x030201);
    EXPECT_EQ(s.TicksRestants, 0xF1020304U);
    t[4] = t[5] = t[6] = 0xFF;
    EXPECT_EQ(LireStatut(t).NumeroSalve, 16777215);
}

TEST(Statut, ChaqueBitASonSens) {
    for (unsigned bits = 0; bits <= 255; ++bits) {
        Tampon t{};
        t[7] = t[8] = t[12] = static_cast<std::uint8_t>(bits);
        const StatutZelko s = LireStatut(t);
        EXPECT_EQ(s.ChauffeActive, bits / 16 % 2 == 1);
        EXPECT_EQ(s.OrigineOuverte, bits / 2 % 2 == 1);
        EXPECT_EQ(s.FinCourseOuverte, bits / 4 % 2 == 1);
        EXPECT_EQ(s.ChauffeSurOff, bits / 8 % 2 == 1);
        EXPECT_EQ(s.ChauffeSurManu, bits / 8 % 2 == 0 && bits % 2 == 1);
        EXPECT_EQ(s.Fini, bits / 2 % 2 == 1);
        EXPECT_EQ(s.ArretDemande, bits / 4 % 2 == 1);
        EXPECT_EQ(s.OrigineOuverteEnMouvement, bits / 16 % 2 == 1);
        EXPECT_EQ(s.FinCourseOuverteEnMouvement, bits / 32 % 2 == 1);
        EXPECT_EQ(s.ArretBoutonStop, bits / 64 % 2 == 1);
        EXPECT_EQ(s.FinDeListe, bits / 128 == 1);
    }
}
