// Undo and redo, 40 deep.
#include "design4x/historique.h"
#include "design4x/projets_essai.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using essais::Projet;

namespace {

// A project that its number tells from others.
ProjetCPX Numero(int n) {
    return Projet({{0, 0}, {static_cast<double>(n), 1}}, {{0, 0}, {5, 5}});
}

} // namespace

TEST(Historique, UnSeulEtatRienAAnnuler) {
    HistoriqueCPX h;
    ProjetCPX p = Numero(1);
    MemoPourUndo(h, p);
    EXPECT_EQ(p, Numero(1));
    EXPECT_EQ(h.PositionUndo, 1);
    EXPECT_FALSE(h.cmdUndoCPX0);
    EXPECT_FALSE(h.cmdUndoCPX1);
    EXPECT_FALSE(cmdUndoCPX(h, p, 0));
    EXPECT_FALSE(cmdUndoCPX(h, p, 1));
    EXPECT_EQ(p, Numero(1));
}

TEST(Historique, VideRienNeSePasse) {
    HistoriqueCPX h;
    ProjetCPX p = Numero(1);
    EXPECT_FALSE(cmdUndoCPX(h, p, 0));
    EXPECT_FALSE(cmdUndoCPX(h, p, 1));
}

TEST(Historique, AnnulerPuisRefaireRendChaqueEtat) {
    HistoriqueCPX h;
    for (int n = 1; n <= 3; ++n) {
        ProjetCPX p = Numero(n);
        MemoPourUndo(h, p);
    }
    ProjetCPX p;
    EXPECT_TRUE(cmdUndoCPX(h, p, 0));
    EXPECT_EQ(p, Numero(2));
    EXPECT_TRUE(h.cmdUndoCPX0);
    EXPECT_TRUE(h.cmdUndoCPX1);
    EXPECT_TRUE(cmdUndoCPX(h, p, 0));
    EXPECT_EQ(p, Numero(1));
    EXPECT_FALSE(h.cmdUndoCPX0);
    EXPECT_TRUE(cmdUndoCPX(h, p, 1));
    EXPECT_TRUE(cmdUndoCPX(h, p, 1));
    EXPECT_EQ(p, Numero(3));
    EXPECT_TRUE(h.cmdUndoCPX0);
    EXPECT_FALSE(h.cmdUndoCPX1);
}

TEST(Historique, Apres41EtatsLePlusAncienEstPerdu) {
    HistoriqueCPX h;
    for (int n = 1; n <= 41; ++n) {
        ProjetCPX p = Numero(n);
        MemoPourUndo(h, p);
    }
    EXPECT_EQ(h.PositionUndo, 40);
    EXPECT_EQ(h.entrees.size(), 40U);
    ProjetCPX p;
    while (cmdUndoCPX(h, p, 0)) {
    }
    EXPECT_EQ(p, Numero(2));
}

TEST(Historique, UnNouvelEtatApresDeuxAnnulationsOteLesDeuxARefaire) {
    HistoriqueCPX h;
    for (int n = 1; n <= 4; ++n) {
        ProjetCPX p = Numero(n);
        MemoPourUndo(h, p);
    }
    ProjetCPX p;
    cmdUndoCPX(h, p, 0);
    cmdUndoCPX(h, p, 0);
    ProjetCPX neuf = Numero(9);
    MemoPourUndo(h, neuf);
    EXPECT_EQ(h.entrees.size(), 3U);
    EXPECT_EQ(h.PositionUndo, 3);
    EXPECT_FALSE(h.cmdUndoCPX1);
    EXPECT_FALSE(cmdUndoCPX(h, p, 1));
    cmdUndoCPX(h, p, 0);
    EXPECT_EQ(p, Numero(2));
}

// With the store full, what could be redone goes first: nothing old is lost for it.
TEST(Historique, PleinLesEtatsARefairePartentAvantLePlusAncien) {
    HistoriqueCPX h;
    for (int n = 1; n <= 40; ++n) {
        ProjetCPX p = Numero(n);
        MemoPourUndo(h, p);
    }
    ProjetCPX p;
    cmdUndoCPX(h, p, 0);
    ProjetCPX neuf = Numero(99);
    MemoPourUndo(h, neuf);
    EXPECT_EQ(h.PositionUndo, 40);
    while (cmdUndoCPX(h, p, 0)) {
    }
    EXPECT_EQ(p, Numero(1));
    while (cmdUndoCPX(h, p, 1)) {
    }
    EXPECT_EQ(p, Numero(99));
}

TEST(Historique, LesPointsInchangesSontTenusUneFois) {
    HistoriqueCPX h;
    ProjetCPX p = Numero(1);
    MemoPourUndo(h, p);
    p.E.Points[1].Drapeaux = DrapeauOutil;
    MemoPourUndo(h, p);
    EXPECT_NE(h.entrees[0].PointsE, h.entrees[1].PointsE);
    EXPECT_EQ(h.entrees[0].PointsS, h.entrees[1].PointsS);
    EXPECT_TRUE(h.entrees[0].reste.E.Points.empty());
}

TEST(Historique, RendAussiCompteursEtOptions) {
    HistoriqueCPX h;
    ProjetCPX p = Numero(1);
    p.S.PointCourant = 1;
    p.Options.optSelection = {false, true, false};
    p.Options.chkAfficherPoints = {false, true};
    MemoPourUndo(h, p);
    ProjetCPX suivant = Numero(2);
    MemoPourUndo(h, suivant);
    ProjetCPX rendu;
    cmdUndoCPX(h, rendu, 0);
    EXPECT_EQ(rendu, p);
}

// Against a plain list of copies, over a random walk.
TEST(Historique, CommeUneListeDeCopies) {
    std::mt19937 hasard(20240611);
    HistoriqueCPX h;
    std::vector<ProjetCPX> liste;
    std::size_t position = 0;
    ProjetCPX p;
    for (int n = 1; n <= 3000; ++n) {
        const unsigned geste = hasard() % 5;
        if (geste < 2) {
            ProjetCPX neuf = Numero(n);
            MemoPourUndo(h, neuf);
            liste.resize(position);
            liste.push_back(neuf);
            if (liste.size() > 40) liste.erase(liste.begin());
            position = liste.size();
        } else if (geste < 4) {
            const bool possible = position >= 2;
            ASSERT_EQ(cmdUndoCPX(h, p, 0), possible);
            if (possible) {
                ASSERT_EQ(p, liste[--position - 1]);
            }
        } else {
            const bool possible = position < liste.size();
            ASSERT_EQ(cmdUndoCPX(h, p, 1), possible);
            if (possible) {
                ASSERT_EQ(p, liste[++position - 1]);
            }
        }
        ASSERT_EQ(h.PositionUndo, static_cast<float>(position));
        ASSERT_EQ(h.cmdUndoCPX0, position > 1);
        ASSERT_EQ(h.cmdUndoCPX1, position < liste.size());
    }
}
