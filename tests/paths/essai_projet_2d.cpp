// 2D projects: what is written byte for byte, and all that a reader must take or refuse.
#include "paths/fichier_projet.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <random>

using namespace tessarel;

namespace {

std::string Version() {
    return "[ParametresFichier]\r\n"
           "NumeroMajorVersionTessarel=" +
           std::to_string(TESSAREL_VERSION_MAJEURE) +
           "\r\n"
           "NumeroMinorVersionTessarel=" +
           std::to_string(TESSAREL_VERSION_MINEURE) +
           "\r\n"
           "NumeroRevisionVersionTessarel=" +
           std::to_string(TESSAREL_VERSION_REVISION) + "\r\n";
}

PointProfil Point(double x, double y, std::uint16_t drapeaux = 0) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Drapeaux = drapeaux;
    return p;
}

std::string Ecrit(const Projet2D& projet) {
    const essais::DossierProvisoire dossier;
    EcrireProjet2D(dossier.Fichier("p.tsr"), projet);
    return LireFichierEntier(dossier.Fichier("p.tsr"));
}

Projet2D Lu(const std::string& texte, bool ancien = false) {
    return AnalyserProjet2D(texte, "essai.tsr", ancien);
}

// Description of the fault that refuses a text; empty when it is taken.
std::string Refus(const std::string& texte, bool ancien = false) {
    try {
        Lu(texte, ancien);
    } catch (const FauteLecture& faute) {
        return faute.what();
    }
    return "";
}

// A project of one sequence whose section holds these lines.
std::string AvecSequence(const std::string& lignes) {
    return "[TypeProjet]\r\nOnglet=TS2D\r\n[Decoupe2D_ParametresSequences]\r\nNombreSequences=1\r\n"
           "[Decoupe2D_Sequence1]\r\n" +
           lignes;
}

std::vector<std::pair<double, double>> Points(const Projet2D& projet) {
    std::vector<std::pair<double, double>> liste;
    for (const Sequence& s : projet.TableauSequences)
        for (const PointProfil& p : s.Points) liste.emplace_back(p.X, p.Y);
    return liste;
}
using Liste = std::vector<std::pair<double, double>>;

} // namespace

TEST(EcritureProjet2D, UneSequenceOctetPourOctet) {
    Projet2D projet;
    Sequence s;
    s.Points = {Point(104.25, 30.5), Point(-0.0000004, 12.0000005), Point(1.0 / 3, 12345.6789, 4)};
    projet.TableauSequences = {s};
    projet.BlocX = 600;
    projet.BlocY = 104.3F;
    projet.TypeEntree = 2;
    projet.TypeSortie = 0;
    projet.VitesseApproche = 1;
    projet.VitesseRetour = 0;
    EXPECT_EQ(Ecrit(projet), "[TypeProjet]\r\n"
                             "Onglet=TS2D\r\n"
                             "[Decoupe2D_ParametresSequences]\r\n"
                             "NombreSequences=1\r\n"
                             "[Decoupe2D_Sequence1]\r\n"
                             "NombrePoints=3\r\n"
                             "1=104.250000:30.500000:0\r\n"
                             "2=0.000000:12.000001:0\r\n"
                             "3=0.333333:12345.678900:4\r\n"
                             "[Decoupe2D_Bloc]\r\n"
                             "BlocX=600.000000\r\n"
                             "BlocY=104.300000\r\n"
                             "[Decoupe2D_Decoupe]\r\n"
                             "TypeEntree=2\r\n"
                             "TypeSortie=0\r\n"
                             "VitesseApproche=1\r\n"
                             "VitesseRetour=0\r\n" +
                                 Version());
}

TEST(EcritureProjet2D, SansSequenceNiOption) {
    EXPECT_EQ(Ecrit(Projet2D()), "[TypeProjet]\r\n"
                                 "Onglet=TS2D\r\n"
                                 "[Decoupe2D_ParametresSequences]\r\n"
                                 "NombreSequences=0\r\n"
                                 "[Decoupe2D_Bloc]\r\n"
                                 "BlocX=0.000000\r\n"
                                 "BlocY=0.000000\r\n"
                                 "[Decoupe2D_Decoupe]\r\n" +
                                     Version());
}

TEST(EcritureProjet2D, ToutOuRien) {
    const essais::DossierProvisoire dossier;
    const std::string cible = dossier.Fichier("p.tsr");
    EcrireFichierAtomique(cible, "ancien");
    EXPECT_THROW(EcrireProjet2D(dossier.Fichier("absent/p.tsr"), Projet2D()), FauteFichier);
    EXPECT_EQ(LireFichierEntier(cible), "ancien");
    EcrireProjet2D(cible, Projet2D());
    EXPECT_NE(LireFichierEntier(cible), "ancien");
    const auto debut = std::filesystem::directory_iterator(dossier.Chemin());
    EXPECT_EQ(std::distance(debut, std::filesystem::directory_iterator()), 1);
}

TEST(LectureProjet2D, RelitCeQuiEstEcritAuxArrondisDuMasque) {
    std::mt19937 hasard(42);
    std::uniform_real_distribution<double> tirage(-2000, 2000);
    for (int essai = 0; essai < 20; ++essai) {
        Projet2D projet;
        const std::size_t sequences = hasard() % 5;
        for (std::size_t k = 0; k < sequences; ++k) {
            Sequence s;
            const std::size_t points = hasard() % 1200;
            for (std::size_t i = 0; i < points; ++i)
                s.Points.push_back(
                    Point(tirage(hasard), tirage(hasard), static_cast<std::uint16_t>(hasard())));
            projet.TableauSequences.push_back(s);
        }
        projet.BlocX = static_cast<float>(std::abs(tirage(hasard)));
        projet.BlocY = static_cast<float>(std::abs(tirage(hasard)));
        projet.TypeEntree = static_cast<int>(hasard() % 3);
        projet.TypeSortie = static_cast<int>(hasard() % 3);
        projet.VitesseApproche = 1;
        const std::string texte = Ecrit(projet);
        const Projet2D relu = Lu(texte);
        ASSERT_EQ(relu.TableauSequences.size(), sequences);
        for (std::size_t k = 0; k < sequences; ++k) {
            const Sequence& avant = projet.TableauSequences[k];
            const Sequence& apres = relu.TableauSequences[k];
            ASSERT_EQ(apres.Points.size(), avant.Points.size());
            for (std::size_t i = 0; i < avant.Points.size(); ++i) {
                ASSERT_NEAR(apres.Points[i].X, avant.Points[i].X, 0.50001e-6);
                ASSERT_NEAR(apres.Points[i].Y, avant.Points[i].Y, 0.50001e-6);
                ASSERT_EQ(apres.Points[i].Drapeaux, avant.Points[i].Drapeaux);
            }
            Sequence bornee = apres;
            CalculerBornesSequence(bornee);
            EXPECT_EQ(bornee, apres);
        }
        EXPECT_NEAR(relu.BlocX, projet.BlocX, 5e-4F);
        EXPECT_EQ(relu.TypeEntree, projet.TypeEntree);
        EXPECT_EQ(relu.TypeSortie, projet.TypeSortie);
        // Written a second time the text no longer changes, but for the options that are not read back.
        Projet2D encore = relu;
        encore.VitesseApproche = 1;
        EXPECT_EQ(Ecrit(encore), texte);
    }
}

TEST(LectureProjet2D, AncienQnt) {
    const Projet2D projet =
        LireProjet2D(std::string(TESSAREL_RACINE) + "/tests/paths/donnees/carre.qnt", true);
    EXPECT_EQ(Points(projet), (Liste{{0, 0}, {40, 0}, {40, 25.5}, {7, 8}}));
    ASSERT_EQ(projet.TableauSequences.size(), 2U);
    EXPECT_EQ(projet.TableauSequences[0].Largeur, 40.0F);
    EXPECT_EQ(projet.TableauSequences[0].Hauteur, 25.5F);
    EXPECT_EQ(projet.TableauSequences[1].Points[0].Drapeaux, 2);
    EXPECT_EQ(projet.BlocX, 100.0F);
    EXPECT_EQ(projet.BlocY, 50.0F);
    EXPECT_EQ(projet.TypeEntree, 2);
    EXPECT_EQ(projet.TypeSortie, 1);
}

TEST(LectureProjet2D, LesVitessesNeSontPasRelues) {
    const Projet2D projet =
        Lu("[Decoupe2D_Decoupe]\r\nTypeEntree=1\r\nVitesseApproche=1\r\nVitesseRetour=1\r\n");
    EXPECT_EQ(projet.TypeEntree, 1);
    EXPECT_FALSE(projet.VitesseApproche);
    EXPECT_FALSE(projet.VitesseRetour);
}

TEST(LectureProjet2D, CleAbsenteVautZero) {
    for (const char* texte : {"", "[TypeProjet]\r\nOnglet=TS2D\r\n", "[Decoupe2D_ParametresSequences]\r\n",
                              "[Decoupe2D_ParametresSequences]\r\nNombreSequences=\r\n", "n'importe quoi"}) {
        const Projet2D projet = Lu(texte);
        EXPECT_TRUE(projet.TableauSequences.empty());
        EXPECT_EQ(projet.BlocX, 0.0F);
        EXPECT_EQ(projet.TypeEntree, 0);
    }
    const Projet2D vide = Lu(AvecSequence(""));
    ASSERT_EQ(vide.TableauSequences.size(), 1U);
    EXPECT_TRUE(vide.TableauSequences[0].Points.empty());
    EXPECT_EQ(Points(Lu(AvecSequence("NombrePoints=1\r\n1=::\r\n"))), (Liste{{0, 0}}));
}

TEST(LectureProjet2D, OrdreDesSectionsEtDesClesSansImportance) {
    const Projet2D projet = Lu("[Decoupe2D_Decoupe]\nTypeSortie=2\nTypeEntree=1\n"
                               "[Decoupe2D_Sequence2]\n2=4:4:0\n1=3:3:0\nNombrePoints=2\n"
                               "[Decoupe2D_Bloc]\nBlocY=7\nBlocX=6\n"
                               "[Decoupe2D_Sequence1]\n3=1:3:3\nNombrePoints=4\n1=1:1:1\n4=1:4:4\n2=1:2:2\n"
                               "[Decoupe2D_ParametresSequences]\nNombreSequences=2\n"
                               "[TypeProjet]\nOnglet=TS2D\n");
    EXPECT_EQ(Points(projet), (Liste{{1, 1}, {1, 2}, {1, 3}, {1, 4}, {3, 3}, {4, 4}}));
    EXPECT_EQ(projet.TableauSequences[0].Points[2].Drapeaux, 3);
    EXPECT_EQ(projet.TypeEntree, 1);
    EXPECT_EQ(projet.TypeSortie, 2);
    EXPECT_EQ(projet.BlocX, 6.0F);
    EXPECT_EQ(projet.BlocY, 7.0F);
}

TEST(LectureProjet2D, PointsBattusCommeLesCartes) {
    std::mt19937 hasard(9);
    std::vector<std::string> lignes = {"NombrePoints=500\r\n"};
    for (int i = 1; i <= 500; ++i)
        lignes.push_back(std::to_string(i) + "=" + std::to_string(i) + ".5:-" + std::to_string(i) + ":0\r\n");
    for (int essai = 0; essai < 20; ++essai) {
        std::string texte;
        for (const std::string& ligne : lignes) texte += ligne;
        const Projet2D projet = Lu(AvecSequence(texte));
        const std::vector<PointProfil>& points = projet.TableauSequences[0].Points;
        ASSERT_EQ(points.size(), 500U);
        for (std::size_t i = 0; i < 500; ++i) {
            ASSERT_EQ(points[i].X, static_cast<double>(i) + 1.5);
            ASSERT_EQ(points[i].Y, -static_cast<double>(i) - 1);
        }
        std::shuffle(lignes.begin(), lignes.end(), hasard);
    }
}

TEST(LectureProjet2D, CasseIndifferente) {
    const Projet2D projet = Lu("[DECOUPE2D_PARAMETRESSEQUENCES]\r\nnombresequences=1\r\n"
                               "[decoupe2d_sequence1]\r\nnombrepoints=1\r\n1=2:3:0\r\n"
                               "[decoupe2d_bloc]\r\nblocx=5\r\nBLOCY=6\r\n");
    EXPECT_EQ(Points(projet), (Liste{{2, 3}}));
    EXPECT_EQ(projet.BlocX, 5.0F);
    EXPECT_EQ(projet.BlocY, 6.0F);
}

TEST(LectureProjet2D, PremiereSectionEtPremiereCleComptent) {
    const Projet2D projet =
        Lu("[Decoupe2D_Bloc]\r\nBlocX=1\r\nBlocX=2\r\n[Decoupe2D_Bloc]\r\nBlocX=3\r\nBlocY=4\r\n");
    EXPECT_EQ(projet.BlocX, 1.0F);
    EXPECT_EQ(projet.BlocY, 0.0F);
    EXPECT_EQ(
        Points(Lu(AvecSequence("NombrePoints=3\r\n1=1:0:0\r\n1=9:9:9\r\n2=2:0:0\r\n1=9:9:9\r\n3=3:0:0\r\n"))),
        (Liste{{1, 0}, {2, 0}, {3, 0}}));
    EXPECT_EQ(
        Points(Lu(AvecSequence("NombrePoints=3\r\n2=2:0:0\r\n2=9:9:9\r\n1=1:0:0\r\n2=8:8:8\r\n3=3:0:0\r\n"))),
        (Liste{{1, 0}, {2, 0}, {3, 0}}));
}

TEST(LectureProjet2D, EspacesCommentairesEtGuillemets) {
    const Projet2D projet =
        Lu("  [Decoupe2D_Bloc]  \r\n; BlocX=9\r\n\tBlocX = \"12,5\" \r\nBlocY='7.25'\r\n" +
           AvecSequence("; 1=9:9:9\r\n\r\nNombrePoints = 2\r\n 1 = 1 : 2 : 3 \r\n"
                        "2=\"-1.5:+2.5e1:0\"\r\n"));
    EXPECT_EQ(projet.BlocX, 12.5F);
    EXPECT_EQ(projet.BlocY, 7.25F);
    EXPECT_EQ(Points(projet), (Liste{{1, 2}, {-1.5, 25}}));
}

TEST(LectureProjet2D, FinDuFichierSansFinDeLigne) {
    EXPECT_EQ(Points(Lu(AvecSequence("NombrePoints=2\n1=1:2:0\n2=3:4:0"))), (Liste{{1, 2}, {3, 4}}));
    EXPECT_EQ(Lu("[Decoupe2D_Bloc]\nBlocX=3").BlocX, 3.0F);
    EXPECT_EQ(Lu("[Decoupe2D_Bloc]").BlocX, 0.0F);
}

TEST(LectureProjet2D, ChampsDeTropIgnores) {
    EXPECT_EQ(Points(Lu(AvecSequence("NombrePoints=1\r\n1=1:2:0:abc:5\r\n"))), (Liste{{1, 2}}));
}

TEST(LectureProjet2D, LignesAuDelaDuCompteIgnorees) {
    EXPECT_EQ(Points(Lu(AvecSequence("NombrePoints=2\r\n1=1:0:0\r\n2=2:0:0\r\n3=3:0:0\r\n4=abc\r\n"))),
              (Liste{{1, 0}, {2, 0}}));
    EXPECT_EQ(Points(Lu(AvecSequence("4=abc\r\n2=2:0:0\r\n1=1:0:0\r\nNombrePoints=2\r\n"))),
              (Liste{{1, 0}, {2, 0}}));
    const Projet2D projet =
        Lu(AvecSequence("NombrePoints=0\r\n") + "[Decoupe2D_Sequence2]\r\nNombrePoints=abc\r\n1=abc\r\n");
    EXPECT_EQ(projet.TableauSequences.size(), 1U);
}

TEST(LectureProjet2D, CompteAuDessusDesLignesRefuse) {
    EXPECT_EQ(Refus(AvecSequence("NombrePoints=2000000000\r\n1=1:0:0\r\n2=2:0:0\r\n3=3:0:0\r\n")),
              "essai.tsr, ligne 6 : [Decoupe2D_Sequence1] 2000000000 points sont annoncés, 3 sont présents");
    EXPECT_EQ(
        Refus(AvecSequence("NombrePoints=4\r\n1=1:0:0\r\n2=2:0:0\r\n4=4:0:0\r\n4=4:0:0\r\n5=5:0:0\r\n")),
        "essai.tsr, ligne 6 : [Decoupe2D_Sequence1] 4 points sont annoncés, 3 sont présents");
    // A key is a text: 01 is not 1.
    EXPECT_EQ(Refus(AvecSequence("NombrePoints=1\r\n01=1:0:0\r\n")),
              "essai.tsr, ligne 6 : [Decoupe2D_Sequence1] 1 points sont annoncés, 0 sont présents");
    EXPECT_EQ(
        Refus("[Decoupe2D_ParametresSequences]\r\nNombreSequences=2000000000\r\n[Decoupe2D_Sequence1]\r\n"
              "[Decoupe2D_Sequence3]\r\n[Decoupe2D_Sequence03]\r\n[Decoupe2D_SequenceX]\r\n"),
        "essai.tsr, ligne 2 : [Decoupe2D_ParametresSequences] 2000000000 séquences sont annoncées, 2 sont "
        "présentes");
    EXPECT_EQ(Refus("[ParametresSequences]\r\nNombreSequences=1\r\n", true),
              "essai.tsr, ligne 2 : [ParametresSequences] 1 séquences sont annoncées, 0 sont présentes");
}

TEST(LectureProjet2D, NombresImpossiblesRefusesAvecLeurLigne) {
    EXPECT_EQ(Refus("[Decoupe2D_Bloc]\r\n\r\nBlocX=abc\r\n"),
              "essai.tsr, ligne 3 : un nombre était attendu au lieu de « abc »");
    EXPECT_EQ(Refus("[Decoupe2D_Bloc]\r\nBlocY=1e300\r\n"),
              "essai.tsr, ligne 2 : la valeur « 1e300 » est hors limites");
    const std::string debut = "NombrePoints=2\r\n1=1:2:0\r\n";
    for (const char* mauvais : {"nan", "inf", "-inf", "1.2.3", "12a", "0x10", "1e999", "--1", "+-1"})
        EXPECT_EQ(Refus(AvecSequence(debut + "2=0:" + mauvais + ":0\r\n")),
                  std::string("essai.tsr, ligne 8 : un nombre était attendu au lieu de « ") + mauvais + " »");
    for (const char* grand : {"1e300", "-1e300", "1e19"})
        EXPECT_EQ(Refus(AvecSequence(debut + "2=" + grand + ":0:0\r\n")),
                  std::string("essai.tsr, ligne 8 : la valeur « ") + grand + " » est hors limites");
    for (const char* drapeaux : {"65536", "-1", "1e10"})
        EXPECT_EQ(Refus(AvecSequence(debut + "2=0:0:" + drapeaux + "\r\n")),
                  std::string("essai.tsr, ligne 8 : la valeur « ") + drapeaux + " » est hors limites");
    for (const char* point : {"", "1", "1:2", "1;2;3"})
        EXPECT_EQ(Refus(AvecSequence(debut + "2=" + point + "\r\n")),
                  std::string("essai.tsr, ligne 8 : un point X:Y:Drapeaux était attendu au lieu de « ") +
                      point + " »");
    EXPECT_EQ(Refus(AvecSequence("NombrePoints=-1\r\n")),
              "essai.tsr, ligne 6 : un nombre entier était attendu au lieu de « -1 »");
    EXPECT_EQ(Refus(AvecSequence("NombrePoints=3000000000\r\n")),
              "essai.tsr, ligne 6 : la valeur « 3000000000 » est hors limites");
    EXPECT_EQ(Refus("[Decoupe2D_ParametresSequences]\r\nNombreSequences=-4\r\n"),
              "essai.tsr, ligne 2 : un nombre entier était attendu au lieu de « -4 »");
    EXPECT_EQ(Refus("[Decoupe2D_Decoupe]\r\nTypeEntree=3\r\n"),
              "essai.tsr, ligne 2 : un choix de 0 à 2 était attendu au lieu de « 3 »");
}

// The value is cut before it is read: what would be beyond is not there.
TEST(LectureProjet2D, ValeurCoupeeA255Caracteres) {
    const std::string zeros(250, '0');
    EXPECT_EQ(Lu("[Decoupe2D_Bloc]\r\nBlocX=" + zeros + "12345678\r\n").BlocX, 12345.0F);
    const Projet2D projet = Lu(AvecSequence("NombrePoints=1\r\n1=" + zeros + "1:2:39\r\n"));
    EXPECT_EQ(projet.TableauSequences[0].Points[0].Drapeaux, 3);
}

TEST(LectureProjet2D, ValeurCoupeeAuPremierNul) {
    std::string texte = "[Decoupe2D_Bloc]\r\nBlocX=12@34\r\n";
    texte[texte.find('@')] = '\0';
    EXPECT_EQ(Lu(texte).BlocX, 12.0F);
}

TEST(LectureProjet2D, AncienEncodageEtMarqueDOrdre) {
    EXPECT_EQ(Lu("\xEF\xBB\xBF[Decoupe2D_Bloc]\r\nBlocX=3\r\n").BlocX, 3.0F);
    EXPECT_EQ(Lu("; d\xE9"
                 "coupe\r\n[Decoupe2D_Bloc]\r\nBlocX=4\r\n")
                  .BlocX,
              4.0F);
}

TEST(LectureProjet2D, FichierIllisible) {
    const essais::DossierProvisoire dossier;
    EXPECT_THROW(LireProjet2D(dossier.Fichier("absent.tsr"), false), FauteFichier);
    EXPECT_THROW(LireProjet2D(dossier.Chemin(), false), FauteFichier);
    EXPECT_THROW(LireOngletProjet(dossier.Fichier("absent.tsr")), FauteFichier);
    EXPECT_THROW(LireSequencesProjet(dossier.Fichier("absent.tsr"), false), FauteFichier);
}

TEST(OngletProjet, TelQuIlStand) {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("p.tsr");
    const auto onglet = [&](const std::string& texte) {
        EcrireFichierAtomique(chemin, texte);
        return LireOngletProjet(chemin);
    };
    EXPECT_EQ(onglet("[TypeProjet]\r\nOnglet=TS2D\r\n"), "TS2D");
    EXPECT_EQ(onglet("[typeprojet]\r\nonglet=D4X"), "D4X");
    EXPECT_EQ(onglet("[TypeProjet]\r\nOnglet=autre chose\r\n"), "autre chose");
    EXPECT_EQ(onglet(""), "");
    EXPECT_EQ(onglet("[Emplanture]\r\nOnglet=C4X\r\n"), "");
    const std::string loin = "[Bloc]\r\n" + std::string(9000, 'x') + "\r\n";
    EXPECT_EQ(onglet(loin + "[TypeProjet]\r\nOnglet=C4X\r\n"), "C4X");
    EXPECT_EQ(onglet("[TypeProjet]\r\nOnglet=TS2D\r\n" + loin + "[TypeProjet]\r\nOnglet=C4X\r\n"), "TS2D");
    EXPECT_EQ(onglet("[TypeProjet]\r\n" + loin + "[TypeProjet]\r\nOnglet=C4X\r\n"), "");
    // The value that the end of the head falls into is read whole.
    for (std::size_t n = 4096 - 30; n < 4096 + 5; ++n) {
        EXPECT_EQ(onglet("[TypeProjet]\r\n;" + std::string(n - 15, 'x') + "\r\nOnglet=TS2D\r\n" + loin),
                  "TS2D");
    }
}

// Two squares: together 30 mm wide, so their copy stands 33 mm to the right.
TEST(SequencesProjet, UneDePlusQueLeFichierDecaleeDeSaLargeur) {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("p.tsr");
    EcrireFichierAtomique(chemin, "[Decoupe2D_ParametresSequences]\r\nNombreSequences=2\r\n"
                                  "[Decoupe2D_Sequence1]\r\nNombrePoints=2\r\n1=0:0:0\r\n2=10:10:1\r\n"
                                  "[Decoupe2D_Sequence2]\r\nNombrePoints=2\r\n1=20:0:0\r\n2=30:5:0\r\n");
    const std::vector<Sequence> sequences = LireSequencesProjet(chemin, false);
    ASSERT_EQ(sequences.size(), 3U);
    EXPECT_EQ(sequences[1].XMin, 20.0F);
    const Sequence& ensemble = sequences[2];
    ASSERT_EQ(ensemble.Points.size(), 4U);
    EXPECT_EQ(ensemble.Points[0].X, 33.0);
    EXPECT_EQ(ensemble.Points[1].X, 43.0);
    EXPECT_EQ(ensemble.Points[1].Y, 10.0);
    EXPECT_EQ(ensemble.Points[1].Drapeaux, 1);
    EXPECT_EQ(ensemble.Points[3].X, 63.0);
    EXPECT_EQ(ensemble.XMin, 33.0F);
    EXPECT_EQ(ensemble.XMax, 63.0F);
    EXPECT_EQ(ensemble.Largeur, 30.0F);

    const std::vector<Sequence> anciennes =
        LireSequencesProjet(std::string(TESSAREL_RACINE) + "/tests/paths/donnees/carre.qnt", true);
    ASSERT_EQ(anciennes.size(), 3U);
    EXPECT_EQ(anciennes[2].Points.size(), 4U);
    EXPECT_EQ(anciennes[2].XMin, 44.0F);

    const std::vector<Sequence> aucune = LireSequencesProjet(chemin, true);
    ASSERT_EQ(aucune.size(), 1U);
    EXPECT_TRUE(aucune[0].Points.empty());
}
