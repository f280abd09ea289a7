// What is said of a file that was read, and files read for viewing.
#include "work2d/rapport_ouverture.h"

#include "app/texts/textes.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"
#include "work2d/apercu.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

class EssaiRapport : public ::testing::Test {
protected:
    void SetUp() override { ChargerMessages(Langue::Francais); }
    void TearDown() override { ChargerMessages(Langue::Francais); }
};

OuvertureFichier OuvertureDUnDessin() {
    OuvertureFichier ouverture;
    ouverture.typeFichier = "dxf";
    ouverture.sequences = 3;
    ouverture.points = 120;
    ouverture.pointsRetires = 7;
    ouverture.rapport.lus = {{"ARC", 2}, {"LINE", 9}};
    ouverture.rapport.couches = {{"0", 4}, {"contour", 7}};
    ouverture.rapport.ignores = {{"DIMENSION", 1}, {"TEXT", 2}};
    ouverture.rapport.joints = 8;
    ouverture.rapport.retournes = 3;
    ouverture.rapport.notes = {"unité du dessin : 25.4 mm"};
    return ouverture;
}

} // namespace

TEST_F(EssaiRapport, LaPhraseDitCeQuiFutLuJointRetourneAllegeEtLaisse) {
    EXPECT_EQ(PhraseOuverture("/a/b.dxf", OuvertureDUnDessin()),
              "b.dxf : tracés : 3, points : 120, joints : 8, retournés : 3, "
              "points retirés : 7, laissés de côté : 3");
    ChargerMessages(Langue::English);
    EXPECT_EQ(PhraseOuverture("/a/b.dxf", OuvertureDUnDessin()),
              "b.dxf: paths: 3, points: 120, joined: 8, turned around: 3, "
              "points removed: 7, skipped: 3");
}

TEST_F(EssaiRapport, LaPhraseTaitCeQuiNEutPasLieu) {
    OuvertureFichier ouverture;
    ouverture.typeFichier = "txt";
    ouverture.sequences = 1;
    ouverture.points = 5;
    EXPECT_EQ(PhraseOuverture("r.txt", ouverture), "r.txt : tracés : 1, points : 5");
}

TEST_F(EssaiRapport, LeRapportListeParGenreEtParCoucheLePlusFrequentDAbord) {
    EXPECT_EQ(RapportOuverture("/a/b.dxf", OuvertureDUnDessin()), "Fichier : /a/b.dxf\n"
                                                                  "Genre : dxf\n"
                                                                  "\n"
                                                                  "Tracés : 3\n"
                                                                  "Points : 120\n"
                                                                  "Points retirés par le nettoyage : 7\n"
                                                                  "Morceaux joints bout à bout : 8\n"
                                                                  "Dont retournés : 3\n"
                                                                  "\n"
                                                                  "Remarques :\n"
                                                                  "    unité du dessin : 25.4 mm\n"
                                                                  "\n"
                                                                  "Lu, par genre :\n"
                                                                  "    LINE : 9\n"
                                                                  "    ARC : 2\n"
                                                                  "\n"
                                                                  "Lu, par couche :\n"
                                                                  "    contour : 7\n"
                                                                  "    0 : 4\n"
                                                                  "\n"
                                                                  "Laissé de côté :\n"
                                                                  "    TEXT : 2\n"
                                                                  "    DIMENSION : 1\n");
}

TEST_F(EssaiRapport, LeResumeDUnDessinEstSonNomEtLeNombreDeTraces) {
    OuvertureFichier ouverture = OuvertureDUnDessin();
    EXPECT_EQ(ResumerFichier("/a/b.dxf", ouverture).texte,
              "b.dxf : 3 Profil(s)\nunité du dessin : 25.4 mm\nLaissé de côté : DIMENSION 1, TEXT 2");
    EXPECT_EQ(ResumerFichier("/a/b.dxf", ouverture).titre, "");
    EXPECT_EQ(ResumerFichier("/a/b.dxf", ouverture).nettoyage, "Nettoyage : 7");
    ouverture.rapport = {};
    ouverture.sequences = 1;
    EXPECT_EQ(ResumerFichier("/a/b.dxf", ouverture).texte, "b.dxf : Profil");
}

TEST_F(EssaiRapport, LeResumeDUnProjetEstSonGenre) {
    OuvertureFichier projet;
    projet.typeFichier = "tsr2d";
    projet.estProjet2D = true;
    EXPECT_EQ(ResumerFichier("a.tsr", projet).texte, "tsr2d");
    EXPECT_EQ(ResumerFichier("a.tsr", projet).titre, "Projet 2D");
    OuvertureFichier quatreAxes;
    quatreAxes.typeFichier = "tsr4x";
    EXPECT_EQ(ResumerFichier("a.tsr", quatreAxes).texte, "tsr4x");
    EXPECT_EQ(ResumerFichier("a.tsr", quatreAxes).titre, "Projet 4 axes");
}

TEST_F(EssaiRapport, UnApercuNeVautPlusQuandLeFichierOuLaToleranceChange) {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("a.txt");
    EcrireFichierAtomique(chemin, "0:0\r\n10:0\r\n");
    const ApercuFichier apercu = PreparerApercu(chemin, 0.02F);
    EXPECT_TRUE(ApercuValable(apercu, chemin, 0.02F));
    EXPECT_FALSE(ApercuValable(apercu, chemin, 0.03F));
    EXPECT_FALSE(ApercuValable(apercu, dossier.Fichier("b.txt"), 0.02F));
    EcrireFichierAtomique(chemin, "0:0\r\n10:0\r\n10:10\r\n");
    EXPECT_FALSE(ApercuValable(apercu, chemin, 0.02F));
    const std::string absent = dossier.Fichier("absent.txt");
    EXPECT_FALSE(ApercuValable(PreparerApercu(absent, 0.02F), absent, 0.02F));
}

TEST_F(EssaiRapport, LeCadreDUnApercuEntoureLesTraces) {
    Sequence rectangle;
    rectangle.Points.resize(2);
    rectangle.Points[1].X = 100;
    rectangle.Points[1].Y = 50;
    CalculerBornesSequence(rectangle);
    const CadreDessin cadre = CadreApercu({&rectangle, 1});
    EXPECT_DOUBLE_EQ(cadre.XMin, -6);
    EXPECT_DOUBLE_EQ(cadre.XMax, 106);
    EXPECT_DOUBLE_EQ(cadre.YMin, -6);
    EXPECT_DOUBLE_EQ(cadre.YMax, 56);
    const CadreDessin point = CadreApercu({});
    EXPECT_GT(point.XMax, point.XMin);
    EXPECT_GT(point.YMax, point.YMin);
}
