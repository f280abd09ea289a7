// Cleaning of the profiles, total and synchronous.
#include "design4x/nettoyage.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::vector<int> Marques(const std::vector<PointProfil>& points) {
    std::vector<int> marques;
    for (const PointProfil& p : points) marques.push_back(p.Drapeaux);
    return marques;
}

} // namespace

// (1,0) and (2,0) lie on the way to (3,0); what was the fourth point takes the second slot's flags.
TEST(NettoyageTotal, LesDrapeauxRestentDansLeurCase) {
    ProjetCPX projet =
        Projet({{0, 0, 1}, {1, 0, 2}, {2, 0, 4}, {3, 0, 8}, {3, 5, 16}}, {{0, 0}, {1, 0}, {2, 0}});
    NettoyageTotal(projet, 0.02F);
    EXPECT_EQ(Places(projet.E.Points), (Coordonnees{{0, 0}, {3, 0}, {3, 5}}));
    EXPECT_EQ(Marques(projet.E.Points), (std::vector<int>{1, 2, 4}));
}

TEST(NettoyageTotal, TroisPointsAuPlusRestentMaisPassentEn32Bits) {
    ProjetCPX projet = Projet({{0, 0}, {0.1, 0}, {2, 0}}, {{0.1, 0.2}});
    NettoyageTotal(projet, 0.02F);
    EXPECT_EQ(projet.E.Points.size(), 3U);
    EXPECT_EQ(projet.E.Points[1].X, static_cast<double>(0.1F));
    EXPECT_EQ(projet.S.Points[0].Y, static_cast<double>(0.2F));
}

TEST(NettoyageTotal, DesNombresEgauxPeuventDevenirInegaux) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, {{0, 0}, {1, 1}, {2, 0}, {3, 1}});
    NettoyageTotal(projet, 0.02F);
    EXPECT_EQ(projet.E.Points.size(), 2U);
    EXPECT_EQ(projet.S.Points.size(), 4U);
}

TEST(NettoyageTotal, SansPointRienNeSePasse) {
    ProjetCPX projet;
    NettoyageTotal(projet, 0.02F);
    EXPECT_TRUE(projet.E.Points.empty());
}

// The root is straight; the tip needs its second point only: the third goes on both sides.
TEST(NettoyageSynchrone, UnePaireResteDesQuUnCoteEnABesoin) {
    ProjetCPX projet =
        Projet({{0, 0, 1}, {1, 0, 2}, {2, 0, 4}, {3, 0, 8}}, {{0, 0}, {1, 1}, {2, 0.5}, {3, 0}});
    EXPECT_TRUE(NettoyageSynchrone(projet));
    EXPECT_EQ(Places(projet.E.Points), (Coordonnees{{0, 0}, {1, 0}, {3, 0}}));
    EXPECT_EQ(Places(projet.S.Points), (Coordonnees{{0, 0}, {1, 1}, {3, 0}}));
    EXPECT_EQ(Marques(projet.E.Points), (std::vector<int>{1, 2, 8}));
    EXPECT_EQ(Marques(projet.S.Points), (std::vector<int>{0, 0, 0}));
}

// 0.02 mm off the line: within the fixed tolerance of 0.025; 0.03 is not.
TEST(NettoyageSynchrone, ToleranceFixe) {
    ProjetCPX projet = Projet({{0, 0}, {5, 0.02}, {10, 0}}, {{0, 0}, {5, 0}, {10, 0}});
    EXPECT_TRUE(NettoyageSynchrone(projet));
    EXPECT_EQ(projet.E.Points.size(), 2U);
    projet = Projet({{0, 0}, {5, 0.03}, {10, 0}}, {{0, 0}, {5, 0}, {10, 0}});
    EXPECT_TRUE(NettoyageSynchrone(projet));
    EXPECT_EQ(projet.E.Points.size(), 3U);
}

TEST(NettoyageSynchrone, RefuseDesNombresDifferents) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}}, {{0, 0}, {2, 0}});
    const ProjetCPX avant = projet;
    BoitesEnregistrees boites;
    EXPECT_FALSE(NettoyageSynchrone(projet));
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte,
              "Les profils n'ont pas le même nombre de points, le nettoyage synchrone est impossible.");
    EXPECT_EQ(boites.boites[0].titre, "Choix impossible");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Critique);
    EXPECT_EQ(projet, avant);
}

TEST(CmdNettoyage, NombresEgauxDemandeEtOuiGardeLesPaires) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, {{0, 0}, {1, 1}, {2, 0}, {3, 1}});
    BoitesEnregistrees boites;
    boites.reponses = {ReponseBoite::Oui};
    cmdNettoyage(projet, 0.02F);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].titre, "Nettoyage");
    EXPECT_EQ(boites.boites[0].icone, IconeBoite::Question);
    EXPECT_EQ(boites.boites[0].boutons, BoutonsBoite::OuiNon);
    EXPECT_NE(boites.boites[0].texte.find("Voulez-vous conserver les points synchrones?"), std::string::npos);
    EXPECT_NE(boites.boites[0].texte.find("Le nettoyage peut être total ou conserver les points synchrones "
                                          "si les profils ont le même nombre de points."),
              std::string::npos);
    EXPECT_EQ(projet.E.Points.size(), 4U);
}

TEST(CmdNettoyage, NombresEgauxEtNonNettoieTout) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, {{0, 0}, {1, 1}, {2, 0}, {3, 1}});
    BoitesEnregistrees boites;
    boites.reponses = {ReponseBoite::Non};
    cmdNettoyage(projet, 0.02F);
    EXPECT_EQ(projet.E.Points.size(), 2U);
    EXPECT_EQ(projet.E.Corde, 3);
}

TEST(CmdNettoyage, NombresDifferentsNettoieToutSansDemander) {
    ProjetCPX projet = Projet({{0, 0}, {1, 0}, {2, 0}, {3, 0}}, {{0, 0}, {1, 1}, {2, 0}});
    BoitesEnregistrees boites;
    cmdNettoyage(projet, 0.02F);
    EXPECT_TRUE(boites.boites.empty());
    EXPECT_EQ(projet.E.Points.size(), 2U);
}

TEST(NettoyageSynchrone, ToutePaireVientDesProfilsDeDepart) {
    std::mt19937 hasard(5);
    std::uniform_real_distribution<double> bruit(-0.05, 0.05);
    for (int essai = 0; essai < 100; ++essai) {
        ProjetCPX projet;
        for (int i = 0; i < 200; ++i) {
            PointProfil p;
            p.X = i;
            p.Y = bruit(hasard);
            p.Vitesse = static_cast<float>(i); // tells where a record came from
            projet.E.Points.push_back(p);
            p.Y = bruit(hasard);
            projet.S.Points.push_back(p);
        }
        const ProjetCPX avant = projet;
        ASSERT_TRUE(NettoyageSynchrone(projet));
        ASSERT_EQ(projet.E.Points.size(), projet.S.Points.size());
        ASSERT_LT(projet.E.Points.size(), 200U);
        for (std::size_t k = 0; k < projet.E.Points.size(); ++k) {
            const auto i = static_cast<std::size_t>(projet.E.Points[k].Vitesse);
            ASSERT_EQ(projet.E.Points[k], avant.E.Points[i]);
            ASSERT_EQ(projet.S.Points[k], avant.S.Points[i]);
        }
    }
}
