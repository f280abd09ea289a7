// Opening files into the 2D workspace and saving it: what is replaced, what is added, what stays.
#include "work2d/espace2d.h"

#include "app/texts/textes.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>
#include <string>

namespace tessarel {
namespace {

// 1000 x 400 mm, block from 30 mm on, 10 mm kept from the block.
TableMachine Machine() {
    TableMachine table;
    table.CourseX = 1000;
    table.CourseY = 400;
    table.MargeFilBloc = 10;
    table.MargeOrigineBloc = 30;
    return table;
}

std::string Projet(const std::string& blocX, const std::string& prefixe, const std::string& tete) {
    return tete + "[" + prefixe + "Bloc]\r\nBlocX=" + blocX + "\r\nBlocY=500\r\n[" + prefixe +
           "ParametresSequences]\r\nNombreSequences=1\r\n[" + prefixe +
           "Sequence1]\r\nNombrePoints=2\r\n1=1:2:0\r\n2=3:4:0\r\n[" + prefixe +
           "Decoupe]\r\nTypeEntree=2\r\nTypeSortie=1\r\nVitesseApproche=1\r\nVitesseRetour=1\r\n";
}

class EspaceOuvert : public testing::Test {
protected:
    std::string Ecrire(const std::string& nom, const std::string& contenu) {
        EcrireFichierAtomique(dossier.Fichier(nom), contenu);
        return dossier.Fichier(nom);
    }
    bool Ouvrir(const std::string& chemin, OuvertureFichier* ouverture = nullptr) {
        return OuvrirFichier2D(espace, chemin, table, 0.02F, ouverture);
    }
    std::string Texte() { return Ecrire("trait.txt", "A\r\n0:0\r\n10:5\r\nB\r\n1:1\r\n2:2.5\r\n3:1\r\n"); }

    essais::DossierProvisoire dossier;
    essais::BoitesEnregistrees boites;
    TableMachine table = Machine();
    Espace2D espace = NouvelEspace2D(table);
};

TEST_F(EspaceOuvert, UnNouvelEspaceALeBlocParDefaut) {
    // Int(990 x 0.8 / 10) x 10 and Int(390 x 0.8 / 10) x 10.
    EXPECT_FLOAT_EQ(espace.bloc.BlocX, 790);
    EXPECT_FLOAT_EQ(espace.bloc.BlocY, 310);
    EXPECT_TRUE(espace.cheminProjet.empty());
}

TEST_F(EspaceOuvert, LesDessinsSAjoutentEtGardentLeBloc) {
    espace.bloc = {123, 45};
    OuvertureFichier ouverture;
    ASSERT_TRUE(Ouvrir(Texte(), &ouverture));
    ASSERT_TRUE(Ouvrir(Texte()));
    EXPECT_EQ(espace.TableauSequences.size(), 4U);
    EXPECT_EQ(ouverture.sequences, 2U);
    EXPECT_EQ(ouverture.points, 5U);
    EXPECT_EQ(ouverture.typeFichier, "txt");
    EXPECT_FLOAT_EQ(espace.bloc.BlocX, 123);
    EXPECT_TRUE(espace.cheminProjet.empty());
    EXPECT_TRUE(espace.modifie);
}

TEST_F(EspaceOuvert, UnProjetRemplaceToutSaufLesVitesses) {
    ASSERT_TRUE(Ouvrir(Texte()));
    espace.coeffTransf = 2;
    // 1000 - 10 - 30 = 960 is below 970: cut down to 1000 - 10; the height to 400 - 10.
    const std::string chemin =
        Ecrire("p.tsr", Projet("970", "Decoupe2D_", "[TypeProjet]\r\nOnglet=TS2D\r\n"));
    OuvertureFichier ouverture;
    ASSERT_TRUE(Ouvrir(chemin, &ouverture));
    EXPECT_EQ(ouverture.typeFichier, "tsr2d");
    ASSERT_EQ(espace.TableauSequences.size(), 1U);
    EXPECT_FLOAT_EQ(espace.TableauSequences[0].XMax, 3);
    EXPECT_FLOAT_EQ(espace.bloc.BlocX, 990);
    EXPECT_FLOAT_EQ(espace.bloc.BlocY, 390);
    EXPECT_EQ(espace.TypeEntree, 2);
    EXPECT_EQ(espace.TypeSortie, 1);
    EXPECT_EQ(espace.VitesseApproche, 0);
    EXPECT_EQ(espace.VitesseRetour, 0);
    EXPECT_FLOAT_EQ(espace.coeffTransf, 1);
    EXPECT_EQ(espace.cheminProjet, chemin);
    EXPECT_FALSE(espace.modifie);
}

TEST_F(EspaceOuvert, UnAncienProjetResteSansNom) {
    ASSERT_TRUE(Ouvrir(Ecrire("p.QNT", Projet("960", "", ""))));
    EXPECT_FLOAT_EQ(espace.bloc.BlocX, 960); // 960 is not below 960
    EXPECT_EQ(espace.TypeEntree, 2);
    EXPECT_TRUE(espace.cheminProjet.empty());
}

TEST_F(EspaceOuvert, UnProjet4AxesDonneSesDeuxProfils) {
    OuvertureFichier ouverture;
    ASSERT_TRUE(
        Ouvrir(Ecrire("aile.tsr", "[TypeProjet]\r\nOnglet=D4X\r\n[ParametresFichier]\r\n"
                                  "NumeroMajorVersionTessarel=5\r\n[Conception4axes_Emplanture]\r\n"
                                  "NombrePoints=2\r\n1=0:0:0\r\n2=100:1:0\r\n[Conception4axes_Saumon]\r\n"
                                  "NombrePoints=2\r\n1=0:0:0\r\n2=80:1:0\r\n"),
               &ouverture));
    EXPECT_EQ(ouverture.typeFichier, "tsr4x");
    ASSERT_EQ(espace.TableauSequences.size(), 2U);
    EXPECT_FLOAT_EQ(espace.TableauSequences[1].Largeur, 80);
    EXPECT_TRUE(espace.cheminProjet.empty());
}

TEST_F(EspaceOuvert, UnRefusLaisseToutEnPlaceEtNommeLeFichier) {
    ASSERT_TRUE(Ouvrir(Texte()));
    espace.modifie = false;
    const std::string mauvais =
        Ecrire("m.tsr", Projet("abc", "Decoupe2D_", "[TypeProjet]\r\nOnglet=TS2D\r\n"));
    EXPECT_FALSE(Ouvrir(mauvais));
    EXPECT_FALSE(Ouvrir(dossier.Fichier("absent.dxf")));
    EXPECT_FALSE(Ouvrir(Ecrire("a.xyz", "A\r\n0:0\r\n")));
    EXPECT_EQ(espace.TableauSequences.size(), 2U);
    EXPECT_FALSE(espace.modifie);
    ASSERT_EQ(boites.boites.size(), 3U);
    EXPECT_EQ(boites.boites[0].titre, "Erreur de lecture de fichier");
    EXPECT_NE(boites.boites[0].texte.find(mauvais + ", ligne 4"), std::string::npos)
        << boites.boites[0].texte;
    EXPECT_EQ(boites.boites[2].titre, "Ouverture impossible");
}

TEST_F(EspaceOuvert, UnProjetVideOuMalNommeNeSeSauvePas) {
    EXPECT_FALSE(EnregistrerEspace2D(espace, dossier.Fichier("p.tsr")));
    ASSERT_TRUE(Ouvrir(Texte()));
    EXPECT_FALSE(EnregistrerEspace2D(espace, dossier.Fichier("p.txt")));
    EXPECT_FALSE(EnregistrerEspace2D(espace, dossier.Fichier("absent/p.tsr")));
    ASSERT_EQ(boites.boites.size(), 3U);
    EXPECT_EQ(boites.boites[0].texte, "Un projet vide ne peut pas être sauvegardé.");
    EXPECT_EQ(boites.boites[1].texte,
              "L'extension de fichier n'est pas correcte, un projet doit être sauvegardé en .tsr");
    EXPECT_EQ(boites.boites[2].titre, "Anomalie");
    EXPECT_TRUE(espace.cheminProjet.empty());
    EXPECT_TRUE(espace.modifie);
}

TEST_F(EspaceOuvert, UnProjetSauveSeRouvreLeMeme) {
    ASSERT_TRUE(Ouvrir(Texte()));
    espace.TypeEntree = 1;
    espace.bloc = {200, 100};
    ASSERT_TRUE(EnregistrerEspace2D(espace, dossier.Fichier("p.tsr")));
    EXPECT_EQ(espace.cheminProjet, dossier.Fichier("p.tsr"));
    EXPECT_FALSE(espace.modifie);
    Espace2D relu = NouvelEspace2D(table);
    ASSERT_TRUE(OuvrirFichier2D(relu, dossier.Fichier("p.tsr"), table, 0.02F));
    EXPECT_EQ(relu.TableauSequences, espace.TableauSequences);
    EXPECT_FLOAT_EQ(relu.bloc.BlocX, 200);
    EXPECT_EQ(relu.TypeEntree, 1);
    EXPECT_TRUE(boites.boites.empty());
}

} // namespace
} // namespace tessarel
