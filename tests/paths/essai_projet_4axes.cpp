// 4-axis projects, new and oldest: keys, comment, version rule, refusals.
#include "paths/fichier_projet.h"

#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;

namespace {

const std::string Donnees = std::string(TESSAREL_RACINE) + "/tests/paths/donnees/";

constexpr const char* BoiteAncienne =
    "Attention, ce fichier provient d'une ancienne version de Tessarel, il peut y avoir un erreur sur le "
    "placement en Z.\r\nUne fois le fichier ouvert, corrigez le placement et réenregistrez (clic sur le "
    "bouton "
    "Enregistrer) pour supprimer ce message à la prochaine ouverture.";

PointProfil Point(double x, double y, std::uint16_t drapeaux) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Drapeaux = drapeaux;
    return p;
}

// The project of donnees/quatre_axes.tsr.
Projet4axes Exemple() {
    Projet4axes p;
    p.Onglet = D4X;
    p.Emplanture.NomFichier = "racine é.dat";
    p.Emplanture.sequence.Points = {Point(0, 0, 1), Point(-12.5, 3.0000012, 132),
                                    Point(1234.5678912, 0, 65535)};
    CalculerBornesSequence(p.Emplanture.sequence);
    p.Ecartement = 750;
    p.Epaisseur = 40;
    p.MargeBaE = 5.1;
    p.MargeBaS = 5.2;
    p.MargeBfE = 6.3;
    p.MargeBfS = 6.4;
    p.DistProfilDessousE = 7.1234565;
    p.Omega = 45;
    p.Alpha = -30;
    p.Commentaire = "ab\r\ncd";
    p.TypeEntree = 1;
    p.TypeApprocheBF = 2;
    p.TypeSortie = 0;
    p.TypeRetourBF = 1;
    p.SortieIntermediaire = 2;
    p.CurseurSortieIntermediaire = 17;
    p.CurseurSortieIntermediaire2 = 42;
    p.TypePositionZ = 3;
    p.CoteDecalage = 1;
    p.TypeAlgorithmeDecalage = 1;
    p.EpaisseurLests = 30;
    p.OffsetBlocX = 10.5;
    p.OffsetBlocY = 0;
    p.OffsetBlocZ = -0.5;
    return p;
}

std::string Ecrit(const Projet4axes& projet) {
    const essais::DossierProvisoire dossier;
    EcrireProjet4axes(dossier.Fichier("p.tsr"), projet);
    return LireFichierEntier(dossier.Fichier("p.tsr"));
}

Projet4axes Lu(const std::string& texte) {
    return AnalyserProjet4axes(texte, "essai.tsr");
}

const std::string Version = "[ParametresFichier]\r\nNumeroMajorVersionTessarel=5\r\n";

// A project with a version whose comment is this value.
std::string AvecCommentaire(const std::string& valeur) {
    return Version +
           "[Conception4axes_Emplanture]\r\nNombrePoints=0\r\n[Conception4axes_Affichage]\r\nCommentaire=" +
           valeur + "\r\n";
}

void AttendreEgaux(const Projet4axes& a, const Projet4axes& b, double ecart) {
    EXPECT_EQ(a.Onglet, b.Onglet);
    for (const auto profil : {&Projet4axes::Emplanture, &Projet4axes::Saumon}) {
        EXPECT_EQ((a.*profil).NomFichier, (b.*profil).NomFichier);
        const std::vector<PointProfil>& pa = (a.*profil).sequence.Points;
        const std::vector<PointProfil>& pb = (b.*profil).sequence.Points;
        ASSERT_EQ(pa.size(), pb.size());
        for (std::size_t i = 0; i < pa.size(); ++i) {
            EXPECT_NEAR(pa[i].X, pb[i].X, ecart);
            EXPECT_NEAR(pa[i].Y, pb[i].Y, ecart);
            EXPECT_EQ(pa[i].Drapeaux, pb[i].Drapeaux);
        }
    }
    for (const auto reel : {&Projet4axes::Ecartement, &Projet4axes::Epaisseur, &Projet4axes::MargeBaE,
                            &Projet4axes::MargeBaS, &Projet4axes::MargeBfE, &Projet4axes::MargeBfS,
                            &Projet4axes::DistProfilDessousE, &Projet4axes::EpaisseurLests,
                            &Projet4axes::OffsetBlocX, &Projet4axes::OffsetBlocY, &Projet4axes::OffsetBlocZ})
        EXPECT_NEAR(a.*reel, b.*reel, ecart);
    for (const auto entier :
         {&Projet4axes::Omega, &Projet4axes::Alpha, &Projet4axes::TypeEntree, &Projet4axes::TypeApprocheBF,
          &Projet4axes::TypeSortie, &Projet4axes::TypeRetourBF, &Projet4axes::SortieIntermediaire,
          &Projet4axes::CurseurSortieIntermediaire, &Projet4axes::CurseurSortieIntermediaire2,
          &Projet4axes::TypePositionZ, &Projet4axes::CoteDecalage, &Projet4axes::TypeAlgorithmeDecalage})
        EXPECT_EQ(a.*entier, b.*entier);
    EXPECT_EQ(a.Commentaire, b.Commentaire);
}

} // namespace

TEST(EcritureProjet4axes, OctetPourOctet) {
    const std::string version =
        "[ParametresFichier]\r\nNumeroMajorVersionTessarel=" + std::to_string(TESSAREL_VERSION_MAJEURE) +
        "\r\nNumeroMinorVersionTessarel=" + std::to_string(TESSAREL_VERSION_MINEURE) +
        "\r\nNumeroRevisionVersionTessarel=" + std::to_string(TESSAREL_VERSION_REVISION) + "\r\n";
    EXPECT_EQ(Ecrit(Exemple()), LireFichierEntier(Donnees + "quatre_axes.tsr") + version);
}

TEST(EcritureProjet4axes, CommentaireSurUneLigne) {
    const auto ligne = [](const std::string& commentaire) {
        Projet4axes projet;
        projet.Commentaire = commentaire;
        const std::string texte = Ecrit(projet);
        const std::size_t debut = texte.find("Commentaire=");
        return texte.substr(debut, texte.find("\r\n", debut) - debut);
    };
    EXPECT_EQ(ligne("ab\r\ncd"), "Commentaire=ab;cd");
    EXPECT_EQ(ligne(""), "Commentaire=0");
    EXPECT_EQ(ligne("seul"), "Commentaire=seul");
    EXPECT_EQ(ligne("a\r\n\r\nb\r\n"), "Commentaire=a;;b;");
    // Line ends of other systems must not break out of the value.
    EXPECT_EQ(ligne("a\n[Decoupe4axes]\rb"), "Commentaire=a;[Decoupe4axes];b");
}

TEST(EcritureProjet4axes, NomDeFichierSurUneLigne) {
    Projet4axes projet;
    projet.Emplanture.NomFichier = "a\r\nb\nc";
    EXPECT_NE(Ecrit(projet).find("\r\nNomFichier=a b c\r\n"), std::string::npos);
}

TEST(LectureProjet4axes, RelitCeQuiEstEcrit) {
    const essais::BoitesEnregistrees boites;
    const Projet4axes relu = Lu(Ecrit(Exemple()));
    AttendreEgaux(relu, Exemple(), 0.50001e-6);
    EXPECT_EQ(relu.Emplanture.sequence.XMax, 1234.567891F);
    EXPECT_EQ(relu.version.majeure, std::to_string(TESSAREL_VERSION_MAJEURE));
    EXPECT_EQ(relu.version.mineure, std::to_string(TESSAREL_VERSION_MINEURE));
    EXPECT_EQ(relu.version.revision, std::to_string(TESSAREL_VERSION_REVISION));
    EXPECT_TRUE(boites.boites.empty());
}

TEST(LectureProjet4axes, RelitDesProjetsAleatoires) {
    const essais::BoitesEnregistrees boites;
    std::mt19937 hasard(4);
    std::uniform_real_distribution<double> tirage(-900, 900);
    for (int essai = 0; essai < 100; ++essai) {
        Projet4axes p = Exemple();
        p.Onglet = hasard() % 2 == 0 ? C4X : D4X;
        for (const auto profil : {&Projet4axes::Emplanture, &Projet4axes::Saumon}) {
            (p.*profil).sequence.Points.clear();
            for (std::size_t i = hasard() % 200; i > 0; --i)
                (p.*profil).sequence.Points.push_back(
                    Point(tirage(hasard), tirage(hasard), static_cast<std::uint16_t>(hasard() % 256)));
        }
        for (const auto reel :
             {&Projet4axes::Ecartement, &Projet4axes::Epaisseur, &Projet4axes::MargeBaE,
              &Projet4axes::MargeBaS, &Projet4axes::MargeBfE, &Projet4axes::MargeBfS,
              &Projet4axes::DistProfilDessousE, &Projet4axes::EpaisseurLests, &Projet4axes::OffsetBlocX,
              &Projet4axes::OffsetBlocY, &Projet4axes::OffsetBlocZ})
            p.*reel = tirage(hasard);
        for (const auto choix :
             {&Projet4axes::TypeEntree, &Projet4axes::TypeApprocheBF, &Projet4axes::TypeSortie,
              &Projet4axes::TypeRetourBF, &Projet4axes::SortieIntermediaire, &Projet4axes::TypePositionZ,
              &Projet4axes::CoteDecalage})
            p.*choix = static_cast<int>(hasard() % 3);
        p.Omega = static_cast<int>(hasard() % 720) - 360;
        p.Alpha = static_cast<int>(hasard() % 720) - 360;
        p.Commentaire.clear();
        for (std::size_t i = hasard() % 60; i > 0; --i) p.Commentaire += hasard() % 7 == 0 ? "\r\n" : "é";
        const std::string texte = Ecrit(p);
        const Projet4axes relu = Lu(texte);
        AttendreEgaux(relu, p, 0.50001e-6);
        EXPECT_EQ(Ecrit(relu), texte);
    }
    EXPECT_TRUE(boites.boites.empty());
}

TEST(LectureProjet4axes, SectionsLesPlusAnciennes) {
    essais::BoitesEnregistrees boites;
    const Projet4axes projet = LireProjet4axes(Donnees + "ancien_quatre_axes.tsr");
    EXPECT_EQ(projet.Onglet, C4X);
    EXPECT_EQ(projet.Emplanture.NomFichier, "vieux.dat");
    ASSERT_EQ(projet.Emplanture.sequence.Points.size(), 2U);
    EXPECT_EQ(projet.Emplanture.sequence.Points[0], Point(100, 0.5, 32));
    EXPECT_EQ(projet.Emplanture.sequence.Largeur, 100.0F);
    EXPECT_EQ(projet.Saumon.NomFichier, "bout.dat");
    ASSERT_EQ(projet.Saumon.sequence.Points.size(), 1U);
    EXPECT_EQ(projet.Saumon.sequence.Points[0], Point(80.25, -1, 0));
    EXPECT_EQ(projet.Ecartement, 600);
    EXPECT_EQ(projet.Omega, 20);
    EXPECT_EQ(projet.Alpha, 10);
    EXPECT_EQ(projet.Commentaire, "aile droite\r\nà refaire");
    EXPECT_EQ(projet.Epaisseur, 0);
    ASSERT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(boites.boites[0].texte, BoiteAncienne);
    EXPECT_EQ(boites.boites[0].titre, "Ancienne version de fichier");
}

// Where both sets stand in one file, the new one counts.
TEST(LectureProjet4axes, SectionsRecentesAvantLesAnciennes) {
    const essais::BoitesEnregistrees boites;
    const Projet4axes projet = Lu("[Emplanture]\r\nNomFichier=a\r\n[Position]\r\nEcartement=1\r\n"
                                  "[Conception4axes_Emplanture]\r\nNomFichier=b\r\n");
    EXPECT_EQ(projet.Emplanture.NomFichier, "b");
    EXPECT_EQ(projet.Ecartement, 0);
}

TEST(LectureProjet4axes, SansVersionMajeureLePlacementVientDeLAncienneCle) {
    const std::string decoupe = "[Decoupe4axes]\r\nZFaceBloc1=12.5\r\nOffsetBlocZ=99\r\n";
    for (const char* version :
         {"", "[ParametresFichier]\r\n", "[ParametresFichier]\r\nNumeroMajorVersionTessarel=\r\n",
          "[ParametresFichier]\r\nNumeroMinorVersionTessarel=1\r\n"}) {
        const essais::BoitesEnregistrees boites;
        EXPECT_EQ(Lu(decoupe + version).OffsetBlocZ, 12.5);
        ASSERT_EQ(boites.boites.size(), 1U);
        EXPECT_EQ(boites.boites[0].texte, BoiteAncienne);
    }
    for (const char* version : {"4", "0", "abc"}) {
        const essais::BoitesEnregistrees boites;
        const Projet4axes projet =
            Lu(decoupe + "[ParametresFichier]\r\nNumeroMajorVersionTessarel=" + version + "\r\n");
        EXPECT_EQ(projet.OffsetBlocZ, 99);
        EXPECT_EQ(projet.version.majeure, version);
        EXPECT_TRUE(boites.boites.empty());
    }
}

TEST(LectureProjet4axes, Commentaires) {
    const essais::BoitesEnregistrees boites;
    EXPECT_EQ(Lu(AvecCommentaire("0")).Commentaire, "");
    EXPECT_EQ(Lu(AvecCommentaire("")).Commentaire, "");
    EXPECT_EQ(Lu(AvecCommentaire("ab;cd")).Commentaire, "ab\r\ncd");
    EXPECT_EQ(Lu(AvecCommentaire("a;;b;")).Commentaire, "a\r\n\r\nb\r\n");
    EXPECT_EQ(Lu(AvecCommentaire("00")).Commentaire, "00");
    EXPECT_EQ(Lu(AvecCommentaire("d\xE9"
                                 "j\xE0"))
                  .Commentaire,
              "déjà");
    EXPECT_TRUE(boites.boites.empty());
}

// A comment line that itself holds ";" comes back as two lines.
TEST(LectureProjet4axes, PointVirguleDansUneLigneEnFaitDeux) {
    Projet4axes projet;
    projet.Commentaire = "a;b\r\nc";
    EXPECT_EQ(Lu(Ecrit(projet)).Commentaire, "a\r\nb\r\nc");
    projet.Commentaire = "0";
    EXPECT_EQ(Lu(Ecrit(projet)).Commentaire, "");
}

TEST(LectureProjet4axes, CommentaireTropLong) {
    const auto repete = [](const char* morceau, int fois) {
        std::string texte;
        for (int i = 0; i < fois; ++i) texte += morceau;
        return texte;
    };
    {
        const essais::BoitesEnregistrees boites;
        EXPECT_EQ(Lu(AvecCommentaire(repete("é", 256))).Commentaire, repete("é", 256));
        EXPECT_TRUE(boites.boites.empty());
    }
    const auto coupe = [](const std::string& valeur) {
        const essais::BoitesEnregistrees boites;
        const std::string commentaire = Lu(AvecCommentaire(valeur)).Commentaire;
        EXPECT_EQ(boites.boites.size(), 1U);
        if (boites.boites.empty()) return commentaire;
        EXPECT_EQ(boites.boites[0].texte, "Commentaire trop long, il sera limité à 256 caractères.");
        EXPECT_EQ(boites.boites[0].titre, "Taille du commentaire");
        return commentaire;
    };
    EXPECT_EQ(coupe(repete("é", 257)), repete("é", 256));
    EXPECT_EQ(coupe(repete("x", 5000)), repete("x", 256));
    // A line end takes two characters once read: 200 of the value are 300 of the comment.
    EXPECT_EQ(coupe(repete("a;", 100)), repete("a\r\n", 85) + "a");
    // The cut never leaves half a line end.
    EXPECT_EQ(coupe("x" + repete("x", 254) + ";y"), repete("x", 255));
}

TEST(LectureProjet4axes, NomDeFichierCoupeA255Caracteres) {
    const std::string nom = std::string(300, 'n');
    EXPECT_EQ(
        Lu(Version + "[Conception4axes_Emplanture]\r\nNomFichier=" + nom + "\r\n").Emplanture.NomFichier,
        nom.substr(0, 255));
}

// A file that is refused shows no box of what else was in it.
TEST(LectureProjet4axes, RefusSansBoite) {
    const essais::BoitesEnregistrees boites;
    const auto refus = [](const std::string& texte) -> std::string {
        try {
            Lu(texte);
        } catch (const FauteLecture& faute) {
            return faute.what();
        }
        return "";
    };
    EXPECT_EQ(refus("[Conception4axes_Emplanture]\r\nNombrePoints=2\r\n1=0:0:0\r\n"),
              "essai.tsr, ligne 2 : [Conception4axes_Emplanture] 2 points sont annoncés, 1 sont présents");
    EXPECT_EQ(refus("[Saumon]\r\nNombrePoints=1\r\n1=0:x:0\r\n"),
              "essai.tsr, ligne 3 : un nombre était attendu au lieu de « x »");
    EXPECT_EQ(refus("[Decoupe4axes]\r\nTypePositionZ=4\r\n"),
              "essai.tsr, ligne 2 : un choix de 0 à 3 était attendu au lieu de « 4 »");
    EXPECT_EQ(refus("[Decoupe4axes]\r\nZFaceBloc1=abc\r\n"),
              "essai.tsr, ligne 2 : un nombre était attendu au lieu de « abc »");
    EXPECT_EQ(refus("[Conception4axes_Affichage]\r\nOmega=1e12\r\n"),
              "essai.tsr, ligne 2 : la valeur « 1e12 » est hors limites");
    EXPECT_TRUE(boites.boites.empty());
    EXPECT_THROW(LireProjet4axes("/absent/p.tsr"), FauteFichier);
}
