// Chord, spacing, sweep, dihedral, alignment and exchange of the profiles.
#include "design4x/aile.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessarel;
using essais::Losanges;
using essais::Projet;

TEST(Corde, EchelleAutourDeLOrigineDesCoordonnees) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtCorde(p, 1, 100));
    EXPECT_EQ(p.S.Points[0].X, 40);
    EXPECT_EQ(p.S.Points[0].Y, 11);
    EXPECT_EQ(p.S.Corde, 100);
    EXPECT_TRUE(txtCorde(p, 0, 50));
    EXPECT_EQ(p.E.Points[2].X, 50);
    EXPECT_EQ(p.E.Points[2].Y, 2);
    EXPECT_EQ(p.E.Hauteur, 6);
}

TEST(Corde, UneCordeNulleNeSAgranditPas) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{5, 0}, {5, 9}}, {});
    EXPECT_FALSE(txtCorde(p, 0, 100));
    EXPECT_FALSE(txtCorde(p, 1, 100));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte, "L'opération demandée est impossible, une dimension est égale à zéro.");
    EXPECT_EQ(p.E.Points[1].Y, 9);
}

TEST(EcartementZ, EcritLesDeuxPlans) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtEcartementZ(p, 300));
    EXPECT_EQ(p.Ecartement, 300);
    EXPECT_EQ(p.E.Points[3].Z, 150);
    EXPECT_EQ(p.S.Points[3].Z, -150);
    EXPECT_EQ(p.E.Bloc[0].Z, 150);
}

TEST(EcartementZ, ZeroOuNegatifLAncienReste) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Losanges();
    EXPECT_FALSE(txtEcartementZ(p, 0));
    EXPECT_FALSE(txtEcartementZ(p, -3));
    EXPECT_FALSE(txtEcartementZ(p, 1e-60));
    EXPECT_EQ(p, Losanges());
    ASSERT_EQ(b.boites.size(), 3U);
    EXPECT_EQ(b.boites[0].texte, "Il n'est pas possible d'entrer un écartement négatif ou nul.");
    EXPECT_EQ(b.boites[0].titre, "Erreur de saisie");
    EXPECT_EQ(b.boites[0].icone, IconeBoite::Critique);
}

TEST(Fleche, DeplaceLeSaumonEtSeRetrouve) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtFleche(p, 12.5));
    EXPECT_EQ(p.S.Points[2].X, 87.5);
    EXPECT_EQ(p.S.Points[0].X, 37.5);
    EXPECT_EQ(p.Fleche, 12.5F);
    EXPECT_TRUE(txtFleche(p, 0));
    EXPECT_EQ(p.S.Points[2].X, 100);
}

TEST(Fleche, LesTroisBoutons) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(cmdFleche(p, 0));
    EXPECT_EQ(p.Fleche, 50);
    EXPECT_EQ(p.FlecheBF, 0);
    EXPECT_TRUE(cmdFleche(p, 1));
    EXPECT_EQ(p.Fleche, 25);
    EXPECT_EQ(p.FlecheBF, 25);
    EXPECT_TRUE(cmdFleche(p, 2));
    EXPECT_EQ(p.Fleche, 0);
}

TEST(Fleche, CordesEgalesFlecheZero) {
    ProjetCPX p = Projet({{0, 0}, {100, 5}}, {{30, 0}, {130, 5}});
    EXPECT_TRUE(cmdFleche(p, 0));
    EXPECT_EQ(p.Fleche, 0);
    EXPECT_EQ(p.S.Points[0].X, 0);
}

TEST(Diedre, DeplaceLeSaumonSonPiedALaValeur) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtDiedreMm(p, 20));
    EXPECT_EQ(p.DiedreMm, 20);
    EXPECT_EQ(p.S.Points[3].Y, 17); // -3 + 20
    EXPECT_EQ(p.DistProfilDessousE, 10);
}

// The foot of the block stays under the lower of the two: what the tip goes down the root stands higher.
TEST(Diedre, NegatifRemonteLEmplantureDansLeBloc) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtDiedreMm(p, -8));
    EXPECT_EQ(p.DistProfilDessousE, 18);
    EXPECT_TRUE(txtDiedreMm(p, -3));
    EXPECT_EQ(p.DistProfilDessousE, 13);
    EXPECT_TRUE(txtDiedreMm(p, 4));
    EXPECT_EQ(p.DistProfilDessousE, 10);
}

TEST(Diedre, LesCinqBoutons) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(cmdDiedre(p, 0));
    EXPECT_EQ(p.DiedreMm, 6); // 12 - 6
    EXPECT_EQ(p.S.Extremes.Ymax, 9);
    EXPECT_TRUE(cmdDiedre(p, 1));
    EXPECT_EQ(p.DiedreMm, 3.5F); // (4 + 3) - (7 - 3.5)
    EXPECT_EQ(p.S.YauBA, 4);
    EXPECT_TRUE(cmdDiedre(p, 2));
    EXPECT_EQ(p.DiedreMm, 3);
    EXPECT_TRUE(cmdDiedre(p, 3));
    EXPECT_EQ(p.DiedreMm, 2); // (1 + 3) - (5.5 - 3.5)
    EXPECT_EQ(p.S.YauBF, 1);
    EXPECT_TRUE(cmdDiedre(p, 4));
    EXPECT_EQ(p.DiedreMm, 0);
    EXPECT_EQ(p.S.Extremes.Ymin, -3);
}

// Middles: root 3, tip 6.5. At 45 degrees over 500 mm the tip's middle goes to 503, up by 496.5.
TEST(DiedreDeg, LesMilieuxALAngle) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtDiedreDeg(p, 45));
    EXPECT_NEAR(p.S.Points[0].Y, 502, 1e-9);
    EXPECT_FLOAT_EQ(p.DiedreDeg, 45);
    EXPECT_EQ(p.DistProfilDessousE, 10);
}

TEST(DiedreDeg, ZeroNeDeplaceRien) {
    ProjetCPX p = Losanges();
    EXPECT_FALSE(txtDiedreDeg(p, 0));
    EXPECT_EQ(p, Losanges());
}

// Down by 45 degrees: the middle goes to -497, by -503.5; the first point from 5.5 to -498. The old dihedral
// is above 0, so the reference is 10, and the new distance -3 + 498 + 10.
TEST(DiedreDeg, SousZeroLePremierPointDonneLePied) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(txtDiedreDeg(p, -45));
    EXPECT_NEAR(p.S.Points[0].Y, -498, 1e-9);
    EXPECT_FLOAT_EQ(p.DistProfilDessousE, 505);
}

// The same with chord marks: the first of them, (40, 9.5), goes to -494.
TEST(DiedreDeg, LePremierPointDeCordeDonneLePied) {
    ProjetCPX p = Losanges();
    p.S.Points[1].Drapeaux = DrapeauCorde;
    CalculerExtremesCPX(p);
    EXPECT_TRUE(txtDiedreDeg(p, -45));
    EXPECT_FLOAT_EQ(p.DistProfilDessousE, 501);
}

TEST(Aligner, LaMoyenneDuSaumonSurCelleDeLEmplanture) {
    ProjetCPX p = Losanges();
    p.E.Points[0].Drapeaux = p.E.Points[2].Drapeaux = DrapeauAlignement; // mean (50, 2.5)
    p.S.Points[2].Drapeaux = DrapeauAlignement;                          // (70, 7)
    EXPECT_TRUE(cmdAligner(p));
    EXPECT_EQ(p.S.Points[2].X, 50);
    EXPECT_EQ(p.S.Points[2].Y, 2.5);
    EXPECT_EQ(p.S.Points[0].X, 0);
    EXPECT_EQ(p.S.Points[0].Y, 1);
    EXPECT_EQ(p.E.Points[2].X, 100);
}

TEST(Aligner, SansPointVioletDUnCoteRefuse) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Losanges();
    p.E.Points[0].Drapeaux = DrapeauAlignement;
    EXPECT_FALSE(cmdAligner(p));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].texte,
              "Pas de point de référence défini à l'emplanture ou au saumon, alignement impossible");
    EXPECT_EQ(b.boites[0].titre, "Pas de sélection violette");
}

TEST(InverserProfils, ToutChangeDeCoteLeBlocReste) {
    ProjetCPX p = Losanges();
    p.E.NomFichier = "e.dat";
    p.S.NomFichier = "s.dat";
    p.E.MargeBa = 1;
    p.S.MargeBf = 7;
    p.E.PointCourant = 3;
    CalculerExtremesCPX(p);
    const double pied = p.E.Bloc[0].Y;
    EXPECT_TRUE(cmdInverserProfilsES(p));
    EXPECT_EQ(p.E.NomFichier, "s.dat");
    EXPECT_EQ(p.S.NomFichier, "e.dat");
    EXPECT_EQ(p.E.Corde, 50);
    EXPECT_EQ(p.S.MargeBa, 1);
    EXPECT_EQ(p.E.MargeBf, 7);
    EXPECT_EQ(p.E.Points[0].Z, 250);
    EXPECT_EQ(p.S.Points[0].Z, -250);
    EXPECT_EQ(p.DiedreMm, -6.5F);
    EXPECT_EQ(p.DistProfilDessousE, 16.5F);
    EXPECT_EQ(p.E.Bloc[0].Y, pied);
    EXPECT_EQ(p.S.PointCourant, 0);
}

TEST(InverserProfils, DeuxFoisRedonneLeProjet) {
    ProjetCPX p = Losanges();
    cmdInverserProfilsES(p);
    cmdInverserProfilsES(p);
    EXPECT_EQ(p, Losanges());
}

TEST(Aile, SansSaumonRienNeBouge) {
    ProjetCPX p = Projet({{0, 0}, {10, 5}}, {});
    const ProjetCPX avant = p;
    EXPECT_FALSE(txtFleche(p, 10));
    EXPECT_FALSE(cmdDiedre(p, 0));
    EXPECT_FALSE(txtDiedreDeg(p, 10));
    EXPECT_EQ(p, avant);
}

// What is entered is what is measured, to 32 bits of the coordinates.
TEST(Aile, LaMesureRedonneLaValeurEntree) {
    std::mt19937 hasard(7);
    std::uniform_real_distribution<double> valeur(-100, 100);
    for (int n = 0; n < 200; ++n) {
        ProjetCPX p = Losanges();
        const double fleche = valeur(hasard);
        const double diedre = valeur(hasard);
        txtFleche(p, fleche);
        EXPECT_NEAR(p.Fleche, fleche, 2e-5);
        txtDiedreMm(p, diedre);
        EXPECT_NEAR(p.DiedreMm, diedre, 2e-5);
        txtDiedreDeg(p, diedre / 2);
        EXPECT_NEAR(p.DiedreDeg, diedre / 2, 2e-5);
    }
}
