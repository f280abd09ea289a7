// From drawing files to sequences: the steps, their edge cases, the text of coordinates.
#include "paths/import.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

using namespace tessarel;

namespace {

PointSimple Point(float x, float y, char a = '0', char b = '0') {
    PointSimple p;
    p.X = x;
    p.Y = y;
    p.CodeSequence = {a, b};
    return p;
}

std::string Coordonnees(const Sequence& s) {
    std::string texte;
    for (const PointProfil& p : s.Points)
        texte += (texte.empty() ? "" : " ") + std::to_string(static_cast<int>(p.X)) + "," +
                 std::to_string(static_cast<int>(p.Y));
    return texte;
}

class Import : public ::testing::Test {
protected:
    std::string Ecrire(const std::string& nom, const std::string& texte) {
        EcrireFichierAtomique(dossier.Fichier(nom), texte);
        return dossier.Fichier(nom);
    }
    essais::DossierProvisoire dossier;
};

std::string RefusDe(const std::string& chemin) {
    try {
        (void)LireDessin(chemin, 0.02F);
    } catch (const Faute& faute) {
        return faute.what();
    }
    return "";
}

} // namespace

TEST(CreerSequences, DesCodesDescendantsSeparentLesTraces) {
    const auto s = CreerSequencesDepuisPoints(
        {Point(0, 0, 'B', '0'), Point(9, 0, 'B', '0'), Point(0, 5, 'A', '9'), Point(7, 6, 'A', '9')}, "dxf",
        0.02F);
    ASSERT_EQ(s.size(), 2U);
    EXPECT_EQ(Coordonnees(s[0]), "0,0 9,0");
    EXPECT_EQ(Coordonnees(s[1]), "0,5 7,6");
    EXPECT_EQ(s[1].XMax, 7);
    EXPECT_EQ(s[1].Hauteur, 1);
}

TEST(CreerSequences, UnPremierCodeQuiNEstPasAuDessusDuDernierFaitUnSeulTrace) {
    const std::vector<PointSimple> montants = {Point(0, 0, 'A', '0'), Point(9, 0, 'A', '0'),
                                               Point(0, 5, 'B', '0')};
    EXPECT_EQ(CreerSequencesDepuisPoints(montants, "dxf", 0.02F).size(), 1U);
    const std::vector<PointSimple> egaux = {Point(0, 0, 'A', '0'), Point(9, 0, 'B', '0'),
                                            Point(0, 5, 'A', '0')};
    EXPECT_EQ(CreerSequencesDepuisPoints(egaux, "dxf", 0.02F).size(), 1U);
}

TEST(CreerSequences, LOrdreDesCodesVautJusquAuSecondCaractere) {
    const std::vector<PointSimple> p = {Point(0, 0, 'A', '1'), Point(9, 0, 'A', '0')};
    EXPECT_EQ(CreerSequencesDepuisPoints(p, "dxf", 0.02F).size(), 2U);
}

TEST(CreerSequences, UnTableauVideNeDonneRien) {
    EXPECT_TRUE(CreerSequencesDepuisPoints({}, "dxf", 0.02F).empty());
}

TEST(CreerSequences, UneTableDuBordDeFuiteEstMiree) {
    // X from 10 to 0 and back: mirrored, so that it begins at 0. The mean is 5.
    const std::vector<PointSimple> p = {Point(10, 0), Point(4, 3), Point(0, 0), Point(5, -2), Point(10, 0)};
    const auto s = CreerSequencesDepuisPoints(p, "dat", 0.02F);
    ASSERT_EQ(s.size(), 1U);
    EXPECT_EQ(Coordonnees(s[0]), "0,0 6,3 10,0 5,-2 0,0");
}

TEST(CreerSequences, UneTableDuBordDAttaqueResteTelleQuelle) {
    const std::vector<PointSimple> p = {Point(0, 0), Point(4, 3), Point(10, 0), Point(5, -2), Point(0, 0)};
    EXPECT_EQ(Coordonnees(CreerSequencesDepuisPoints(p, "DAT", 0.02F)[0]), "0,0 4,3 10,0 5,-2 0,0");
}

TEST(CreerSequences, UnPremierPointSurLaMoyenneSeRegleParLeSecond) {
    // Mean of X: 5 in both.
    const std::vector<PointSimple> recule = {Point(5, 0), Point(0, 3), Point(10, -4)};
    EXPECT_EQ(Coordonnees(CreerSequencesDepuisPoints(recule, "dat", 0.02F)[0]), "5,0 10,3 0,-4");
    const std::vector<PointSimple> avance = {Point(5, 0), Point(10, 3), Point(0, -4)};
    EXPECT_EQ(Coordonnees(CreerSequencesDepuisPoints(avance, "dat", 0.02F)[0]), "5,0 10,3 0,-4");
}

TEST(CreerSequences, SeulesLesTablesSontMirees) {
    const std::vector<PointSimple> p = {Point(10, 0), Point(4, 3), Point(0, 0)};
    EXPECT_EQ(Coordonnees(CreerSequencesDepuisPoints(p, "dxf", 0.02F)[0]), "10,0 4,3 0,0");
}

TEST(CreerSequences, DeuxPointsIdentiquesNEnFontQuUn) {
    const auto s = CreerSequencesDepuisPoints({Point(3, 4), Point(3, 4)}, "dxf", 0.02F);
    ASSERT_EQ(s.size(), 1U);
    EXPECT_EQ(Coordonnees(s[0]), "3,4");
    EXPECT_EQ(s[0].Largeur, 0);
    const auto distincts = CreerSequencesDepuisPoints({Point(3, 4), Point(3, 5)}, "dxf", 0.02F);
    EXPECT_EQ(distincts[0].Points.size(), 2U);
}

TEST(CreerSequences, LesPointsAlignesPartentSaufDUnProjet) {
    std::vector<PointSimple> p;
    for (int i = 0; i <= 10; ++i) p.push_back(Point(static_cast<float>(i), 0));
    std::size_t retires = 99;
    EXPECT_EQ(CreerSequencesDepuisPoints(p, "tsr", 0.02F, &retires)[0].Points.size(), 11U);
    EXPECT_EQ(retires, 0U);
    const auto s = CreerSequencesDepuisPoints(p, "dxf", 0.02F, &retires);
    EXPECT_LT(s[0].Points.size(), 11U);
    EXPECT_EQ(s[0].Points.size() + retires, 11U);
    EXPECT_EQ(s[0].XMax, 10);
}

TEST(LignesNumeriques, SeulLePremierCaractereCompte) {
    for (const char* oui : {"-1:2", "+1:2", "0:0", "9", ".5:1", "  7:1", "\t8:1\r", "-- titre"})
        EXPECT_TRUE(EstLigneNumerique(oui)) << oui;
    for (const char* non : {"", "   ", "Carre", ",5:1", ":1", "POLYLINE", "\r"})
        EXPECT_FALSE(EstLigneNumerique(non)) << non;
}

TEST_F(Import, LesRectanglesLivresDonnentDeuxTraces) {
    const auto d = LireDessin(
        Ecrire("rectangles.txt",
               "Rectangle\r\n0.0:25.0\r\n0.0:50.0\r\n100.0:50.0\r\n100.0:0.0\r\n0.0:0.0\r\n0.0:25.0\r\n"
               "Carre\r\n0.0:25.0\r\n0.0:50.0\r\n50.0:50.0\r\n50.0:0.0\r\n0.0:0.0\r\n0.0:25.0\r\n"),
        0.02F);
    ASSERT_EQ(d.sequences.size(), 2U);
    EXPECT_EQ(d.extension, "txt");
    EXPECT_EQ(d.sequences[0].Largeur, 100);
    EXPECT_EQ(d.sequences[1].Largeur, 50);
    EXPECT_EQ(d.sequences[1].Hauteur, 50);
}

TEST_F(Import, UneLigneVideSepareDeuxTraces) {
    const auto s = LireCoordonneesTexte(Ecrire("a.txt", "titre\r\n1:2\r\n3:4\r\n\r\n5:6\r\n"));
    ASSERT_EQ(s.size(), 2U);
    EXPECT_EQ(Coordonnees(s[0]), "1,2 3,4");
    EXPECT_EQ(Coordonnees(s[1]), "5,6");
}

TEST_F(Import, LesChampsDeTropLaVirguleEtLaFinSansSautPassent) {
    const auto s = LireCoordonneesTexte(Ecrire("a.txt", "1,5:2,25:9:8\n -3.5 : +4"));
    ASSERT_EQ(s.size(), 1U);
    ASSERT_EQ(s[0].Points.size(), 2U);
    EXPECT_EQ(s[0].Points[0].X, 1.5);
    EXPECT_EQ(s[0].Points[0].Y, 2.25);
    EXPECT_EQ(s[0].Points[1].X, -3.5);
    EXPECT_EQ(s[0].Points[1].Y, 4);
}

TEST_F(Import, UneMarqueDOrdreNeCachePasLaPremiereLigne) {
    EXPECT_EQ(LireCoordonneesTexte(Ecrire("a.txt", "\xEF\xBB\xBF"
                                                   "1:2\n3:4\n"))[0]
                  .Points.size(),
              2U);
}

TEST_F(Import, UneLigneDeCoordonneesFaussesDitOu) {
    try {
        (void)LireCoordonneesTexte(Ecrire("a.txt", "titre\n1:2\n3;4\n"));
        FAIL();
    } catch (const FauteLecture& faute) {
        EXPECT_EQ(faute.Ligne(), 3);
        EXPECT_NE(std::string(faute.what()).find("a.txt"), std::string::npos);
    }
}

TEST_F(Import, LExtensionSeLitEnMinuscules) {
    EXPECT_EQ(LireDessin(Ecrire("A.TXT", "0:0\n5:5\n"), 0.02F).sequences.size(), 1U);
    EXPECT_EQ(LireDessin(
                  Ecrire("A.DXF",
                         "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n0\n20\n0\n11\n5\n21\n5\n0\nENDSEC\n0\nEOF\n"),
                  0.02F)
                  .extension,
              "dxf");
}

TEST_F(Import, UnFichierDeTraceurDonneSesTraces) {
    const auto dessin = LireDessin(Ecrire("A.PLT", "IN;PU0,0;PD400,0;PU0,400;PD400,400,400,800;PU;"), 0.02F);
    EXPECT_EQ(dessin.extension, "plt");
    ASSERT_EQ(dessin.sequences.size(), 2U);
    EXPECT_EQ(dessin.sequences[0].Points.back().X, 10);
    EXPECT_EQ(dessin.sequences[1].Points.size(), 3U);
}

TEST_F(Import, CeQuiNeSeLitPasLeDit) {
    for (const char* nom : {"a.plt", "a.eps", "a.cpx", "a.fc", "a.xyz", "sans"})
        EXPECT_NE(RefusDe(Ecrire(nom, "0:0\n")).find(nom), std::string::npos) << nom;
    EXPECT_NE(RefusDe(Ecrire("vide.txt", "titre\n")).find("X:Y"), std::string::npos);
    EXPECT_NE(RefusDe(dossier.Fichier("absent.dxf")).find("absent.dxf"), std::string::npos);
}

TEST(Extensions, LesNeufSontConnuesDansLOrdreDesFiltres) {
    const std::vector<std::string> attendues = {"tsr", "qnt", "dxf", "txt", "dat", "plt", "eps", "cpx", "fc"};
    EXPECT_EQ(ExtensionsConnues(), attendues);
}

TEST(PointsDesSequences, LesTracesReviennentSepares) {
    std::vector<Sequence> s(4);
    s[0].Points.resize(2);
    s[0].Points[1].X = 1.25;
    s[2].Points.resize(3); // the second is empty
    s[2].Points[1].Y = 7;
    s[3].Points.resize(1);
    const auto p = PointsDepuisSequences(s);
    ASSERT_EQ(p.size(), 6U);
    EXPECT_GT(p.front().CodeSequence, p.back().CodeSequence);
    const auto retour = CreerSequencesDepuisPoints(p, "tsr", 0.02F);
    ASSERT_EQ(retour.size(), 3U);
    EXPECT_EQ(retour[0].Points[1].X, 1.25);
    EXPECT_EQ(retour[1].Points[1].Y, 7);
}
