// The profile between root and tip.
#include "design4x/intermediaire.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

namespace {

ProjetCPX Aile() {
    return Projet({{0, 0, 4}, {100, 10, 8}}, {{20, 40, 1}, {60, 30, 2}}, 400);
}

} // namespace

TEST(Intermediaire, AuQuartDeLaDistance) {
    ProfilIntermediaire i;
    ASSERT_TRUE(CalculerProfilIntermediaire(Aile(), 100, i));
    ASSERT_EQ(i.Points.size(), 2U);
    EXPECT_EQ(i.Points[0].X, 5);
    EXPECT_EQ(i.Points[0].Y, 10);
    EXPECT_EQ(i.Points[0].Z, 100);
    EXPECT_EQ(i.Points[1].X, 90);
    EXPECT_EQ(i.Points[1].Y, 15);
    EXPECT_EQ(i.Points[1].Drapeaux, 0);
    EXPECT_EQ(i.Ecartement, 400);
    EXPECT_EQ(i.DistanceIntermediaire, 100);
}

TEST(Intermediaire, DevientLEmplantureAvecSesDrapeaux) {
    ProjetCPX p = Aile();
    ProfilIntermediaire i;
    ASSERT_TRUE(CalculerProfilIntermediaire(p, 100, i));
    EXPECT_TRUE(cmdIntermediaireToEmplanture(p, i));
    EXPECT_EQ(p.Ecartement, 300);
    EXPECT_EQ(p.E.Points[0].X, 5);
    EXPECT_EQ(p.E.Points[0].Drapeaux, 4);
    EXPECT_EQ(p.E.Points[1].Drapeaux, 8);
    EXPECT_EQ(p.E.Points[0].Z, 150);
    EXPECT_EQ(p.S.Points[0].Z, -150);
    EXPECT_EQ(p.S.Points[0].X, 20);
    EXPECT_EQ(p.E.Corde, 85);
    EXPECT_FALSE(i.Present());
}

TEST(Intermediaire, DevientLeSaumonALaDistance) {
    ProjetCPX p = Aile();
    ProfilIntermediaire i;
    ASSERT_TRUE(CalculerProfilIntermediaire(p, 100, i));
    EXPECT_TRUE(cmdIntermediaireToSaumon(p, i));
    EXPECT_EQ(p.Ecartement, 100);
    EXPECT_EQ(p.S.Points[1].X, 90);
    EXPECT_EQ(p.S.Points[0].Drapeaux, 1);
    EXPECT_EQ(p.S.Points[1].Drapeaux, 2);
    EXPECT_EQ(p.S.Points[1].Z, -50);
    EXPECT_EQ(p.E.Points[1].X, 100);
}

TEST(Intermediaire, ADistanceNulleRien) {
    ProjetCPX p = Aile();
    ProfilIntermediaire i;
    ASSERT_TRUE(CalculerProfilIntermediaire(p, 0, i));
    EXPECT_FALSE(cmdIntermediaireToEmplanture(p, i));
    EXPECT_FALSE(cmdIntermediaireToSaumon(p, i));
    EXPECT_EQ(p, Aile());
}

// Nothing is left of the wing beyond the tip, or before the root.
TEST(Intermediaire, UnEcartementQuiNeResteraitPasEstRefuse) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Aile();
    ProfilIntermediaire i;
    ASSERT_TRUE(CalculerProfilIntermediaire(p, 400, i));
    EXPECT_FALSE(cmdIntermediaireToEmplanture(p, i));
    ASSERT_TRUE(CalculerProfilIntermediaire(p, -1, i));
    EXPECT_FALSE(cmdIntermediaireToSaumon(p, i));
    EXPECT_EQ(p, Aile());
    ASSERT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(b.boites[0].texte, "Il n'est pas possible d'entrer un écartement négatif ou nul.");
}

TEST(Intermediaire, DemandeDesNombresEgaux) {
    const essais::BoitesEnregistrees b;
    ProfilIntermediaire i;
    EXPECT_FALSE(CalculerProfilIntermediaire(Projet({{0, 0}}, {{0, 0}, {1, 1}}), 10, i));
    EXPECT_FALSE(CalculerProfilIntermediaire(Projet({}, {}), 10, i));
    ASSERT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(b.boites[0].texte,
              "Le profil intermédiaire demande autant de points à l'emplanture qu'au saumon.");
}

TEST(Intermediaire, SansEcartementRefuse) {
    const essais::BoitesEnregistrees b;
    ProfilIntermediaire i;
    EXPECT_FALSE(CalculerProfilIntermediaire(Projet({{0, 0}}, {{1, 1}}, 0), 10, i));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_FALSE(i.Present());
}
