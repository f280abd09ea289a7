// A 4-axis project between its file and the record of the design.
#include "design4x/conversion_projet.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "paths/fichier_projet.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

Projet4axes Stocke() {
    Projet4axes p;
    p.Emplanture.NomFichier = "racine.dat";
    p.Emplanture.sequence.Points = essais::Points({{0, 1}, {40, 9, 32}, {100, 4, 21}});
    p.Saumon.NomFichier = "bout.dat";
    p.Saumon.sequence.Points = essais::Points({{20, 5.5}, {70, 7, 8}});
    p.Ecartement = 480.1;
    p.Epaisseur = 40.1;
    p.MargeBaE = 1.1;
    p.MargeBaS = 2.2;
    p.MargeBfE = 3.3;
    p.MargeBfS = 4.4;
    p.DistProfilDessousE = 7.7;
    p.Omega = 90;
    p.Alpha = 180;
    p.Commentaire = "ab\r\ncd";
    p.TypeEntree = 2;
    p.OffsetBlocZ = 12.5;
    return p;
}

} // namespace

TEST(ConversionProjet, LesLongueursPassentPar32Bits) {
    const ProjetCPX c = ProjetCPXDepuis(Stocke(), "aile.tsr");
    EXPECT_EQ(c.NomProjet, "aile.tsr");
    EXPECT_EQ(c.E.NomFichier, "racine.dat");
    EXPECT_EQ(c.S.NomFichier, "bout.dat");
    EXPECT_EQ(c.Ecartement, 480.1F);
    EXPECT_EQ(c.Epaisseur, 40.1F);
    EXPECT_EQ(c.E.MargeBa, 1.1F);
    EXPECT_EQ(c.S.MargeBa, 2.2F);
    EXPECT_EQ(c.E.MargeBf, 3.3F);
    EXPECT_EQ(c.S.MargeBf, 4.4F);
    EXPECT_EQ(c.DistProfilDessousE, 7.7F);
}

TEST(ConversionProjet, ChargeZEcritEtToutMesure) {
    const ProjetCPX c = ProjetCPXDepuis(Stocke(), "");
    ASSERT_EQ(c.E.Points.size(), 3U);
    EXPECT_EQ(c.E.Points[1].Drapeaux, 32);
    EXPECT_EQ(c.E.Points[2].Drapeaux, 21);
    EXPECT_EQ(c.E.Points[0].Z, static_cast<double>(480.1F) / 2);
    EXPECT_EQ(c.S.Points[1].Z, -static_cast<double>(480.1F) / 2);
    EXPECT_EQ(c.E.Corde, 100);
    EXPECT_EQ(c.Fleche, 30);
    EXPECT_EQ(c.E.Bloc[0].X, -static_cast<double>(3.3F));
}

// A value of 32 bits is written as the seven digits that the user sees, not as the digits of its binary form.
TEST(ConversionProjet, AllerEtRetourGardeLesSeptChiffres) {
    const Projet4axes depart = Stocke();
    Projet4axes retour;
    retour.Omega = 12;
    retour.TypeEntree = 1;
    PorterDansProjet4axes(ProjetCPXDepuis(depart, ""), retour);
    EXPECT_EQ(retour.Ecartement, 480.1);
    EXPECT_EQ(retour.Epaisseur, 40.1);
    EXPECT_EQ(retour.MargeBaE, 1.1);
    EXPECT_EQ(retour.MargeBaS, 2.2);
    EXPECT_EQ(retour.MargeBfE, 3.3);
    EXPECT_EQ(retour.MargeBfS, 4.4);
    EXPECT_EQ(retour.DistProfilDessousE, 7.7);
    EXPECT_EQ(retour.Emplanture.NomFichier, "racine.dat");
    EXPECT_EQ(retour.Emplanture.sequence.Points[2].X, 100);
    EXPECT_EQ(retour.Emplanture.sequence.XMax, 100);
    EXPECT_EQ(retour.Saumon.sequence.Hauteur, 1.5F);
    // What is no part of the design stays.
    EXPECT_EQ(retour.Omega, 12);
    EXPECT_EQ(retour.TypeEntree, 1);
}

TEST(ConversionProjet, ProjetEcritPuisReluEstLeMeme) {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("aile.tsr");
    Projet4axes projet = Stocke();
    ProjetCPX c = ProjetCPXDepuis(projet, "aile.tsr");
    c.Epaisseur = 55.3F;
    CalculerExtremesCPX(c);
    PorterDansProjet4axes(c, projet);
    EcrireProjet4axes(chemin, projet);
    EXPECT_EQ(ProjetCPXDepuis(LireProjet4axes(chemin), "aile.tsr"), c);
}
