// Wing files: the two profiles and how they are placed. Results by hand.
#include "paths/aile_importee.h"
#include "paths/import.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

using namespace tessarel;

namespace {

std::string Coordonnees(const std::vector<PointProfil>& points) {
    std::string texte;
    // Six significant digits; adding 0 takes the sign off a zero.
    for (const PointProfil& p : points)
        texte += fmt::format("{}{:.6g},{:.6g}", texte.empty() ? "" : " ", p.X + 0.0, p.Y + 0.0);
    return texte;
}

// "root | tip" of a list with semicolons.
std::string Poses(const std::string& texte) {
    const auto s = SequencesAile(AnalyserCpx(texte, "a.cpx"));
    std::string pose;
    for (const Sequence& sequence : s) pose += (pose.empty() ? "" : " | ") + Coordonnees(sequence.Points);
    return pose;
}

// Root from (0,0) to (100,10), tip from (0,0) to (50,5), with keys before, in the root and in the tip.
std::string Liste(const std::string& commun, const std::string& emplanture, const std::string& saumon) {
    return commun + "[Emplanture]\r\n" + emplanture + "0;0\r\n100;10\r\n60;-4\r\n[Saumon]\r\n" + saumon +
           "0;0\r\n50;5\r\n";
}

long LigneFautive(const std::string& texte, bool fc = false) {
    try {
        (void)(fc ? AnalyserFc(texte, "a.fc") : AnalyserCpx(texte, "a.cpx"));
    } catch (const FauteLecture& faute) {
        return faute.Ligne();
    }
    return -1;
}

const std::string AncienProjet =
    "[TypeProjet]\r\nOnglet=C4X\r\n[Saumon]\r\nNomFichier=bout.dat\r\nNombrePoints=2\r\n"
    "2=50.000000:5.000000:0\r\n1=0.000000:0.000000:0\r\n"
    "[Emplanture]\r\nNomFichier=pied.dat\r\nNombrePoints=3\r\n1=0.000000:0.000000:0\r\n"
    "2=100.000000:10.000000:2\r\n3=60.500000:-4.000000:0\r\n"
    "[Position]\r\nEcartement=600.000000\r\n[Affichage]\r\nCommentaire=aile;droite\r\n";

class FichierAile : public ::testing::Test {
protected:
    std::string Ecrire(const std::string& nom, const std::string& texte) {
        EcrireFichierAtomique(dossier.Fichier(nom), texte);
        return dossier.Fichier(nom);
    }
    essais::DossierProvisoire dossier;
};

} // namespace

TEST(Aile, LAncienProjetDonneSesDeuxProfils) {
    const AileImportee aile = AnalyserCpx(AncienProjet, "a.cpx");
    EXPECT_EQ(Coordonnees(aile.Emplanture.Points), "0,0 100,10 60.5,-4");
    EXPECT_EQ(Coordonnees(aile.Saumon.Points), "0,0 50,5");
    EXPECT_EQ(aile.Emplanture.Fichier, "pied.dat");
    EXPECT_EQ(aile.Envergure, 600);
    EXPECT_EQ(aile.Commentaire, "aile\r\ndroite");
}

TEST(Aile, LaListeDonneSesDeuxProfils) {
    EXPECT_EQ(Poses(Liste("", "", "")), "0,0 100,10 60,-4 | 0,0 50,5");
    // Bare section names, points with their number, commas, the colon, LF alone, more fields.
    EXPECT_EQ(Poses("Emplanture\n1=0;0\n2=1,5;2,5\nSaumon;\n0:1:9\n2;3;0\n"), "0,0 1.5,2.5 | 0,1 2,3");
}

TEST(Aile, LesClesSeLisentSelonLeurPlace) {
    const AileImportee aile =
        AnalyserCpx(Liste("Envergure;600\r\nEpaisseur;40,5\r\nMargeBA;8\r\n",
                          "MargeBF;12\r\nMDessous;7\r\nFichier;pied.dat\r\n",
                          "MargeBA;9\r\nVrillage;-2.5\r\nxHauteur;0.9\r\n") +
                        "[Divers]\r\nFlecheBA;30\r\nDecalage;4\r\nCouleur;rouge\r\nCouleur;vert\r\n",
                    "a.cpx");
    EXPECT_EQ(aile.Envergure, 600);
    EXPECT_EQ(aile.Epaisseur, 40.5);
    EXPECT_EQ(aile.MDessous, 7);
    EXPECT_EQ(aile.FlecheBA, 30);
    EXPECT_EQ(aile.Emplanture.MargeBA, 8);
    EXPECT_EQ(aile.Saumon.MargeBA, 9);
    EXPECT_EQ(aile.Emplanture.MargeBF, 12);
    EXPECT_EQ(aile.Saumon.MargeBF, std::nullopt);
    EXPECT_EQ(aile.Saumon.Vrillage, -2.5);
    EXPECT_EQ(aile.Saumon.xHauteur, 0.9);
    EXPECT_EQ(aile.Emplanture.xHauteur, 1);
    EXPECT_EQ(aile.Saumon.Decalage, 4); // outside both: the tip's
    EXPECT_EQ(aile.Emplanture.Decalage, 0);
    EXPECT_EQ(aile.Emplanture.Fichier, "pied.dat");
    EXPECT_EQ(aile.rapport.ignores, (std::map<std::string, int>{{"Couleur", 2}}));
}

TEST(Aile, LesMiroirsTournentAutourDuMilieuDuProfil) {
    // Root: X from 0 to 100, Y from -4 to 10.
    EXPECT_EQ(Poses(Liste("", "MiroirHorizontal;true\r\n", "")), "100,0 0,10 40,-4 | 0,0 50,5");
    EXPECT_EQ(Poses(Liste("MiroirVertical;True\r\n", "", "")), "0,6 100,-4 60,10 | 0,5 50,0");
    EXPECT_EQ(Poses(Liste("MiroirVertical;1\r\nMiroirHorizontal;false\r\n", "", "")),
              "0,0 100,10 60,-4 | 0,0 50,5");
}

TEST(Aile, LaHauteurMultiplieEtZeroNeFaitRien) {
    EXPECT_EQ(Poses(Liste("", "xHauteur;0.5\r\n", "xHauteur;0\r\n")), "0,0 100,5 60,-2 | 0,0 50,5");
}

TEST(Aile, LeVrillageLeveLeNez) {
    // Tip about (50,5): (0,0) lies at (-50,-5) from it; a quarter turn brings it to (5,-50).
    EXPECT_EQ(Poses(Liste("", "", "Vrillage;90\r\n")), "0,0 100,10 60,-4 | 55,-45 50,5");
}

TEST(Aile, LaFlecheReculeLeBordDAttaqueDuSaumon) {
    // The tip's greatest X goes from 50 to 100 - 30.
    EXPECT_EQ(Poses(Liste("FlecheBA;30\r\n", "", "")), "0,0 100,10 60,-4 | 20,0 70,5");
    EXPECT_EQ(Poses(Liste("FlecheBA;0\r\n", "", "")), "0,0 100,10 60,-4 | 50,0 100,5");
}

TEST(Aile, LeDecalageMonte) {
    EXPECT_EQ(Poses(Liste("Decalage;3\r\n", "", "")), "0,0 100,10 60,-4 | 0,3 50,8");
    EXPECT_EQ(Poses(Liste("", "Decalage;-1\r\n", "")), "0,-1 100,9 60,-5 | 0,0 50,5");
}

TEST(Aile, LesPoucesDeviennentDesMillimetres) {
    for (const char* unite : {"in\r\n", "in;true\r\n", "Unite;in\r\n", "IN\r\n"}) {
        const AileImportee aile = AnalyserCpx(
            unite + Liste("Envergure;10\r\nMargeBA;1\r\n", "", "Vrillage;2\r\nDecalage;1\r\n"), "a.cpx");
        EXPECT_EQ(Coordonnees(aile.Emplanture.Points), "0,0 2540,254 1524,-101.6") << unite;
        EXPECT_EQ(aile.Envergure, 254);
        EXPECT_DOUBLE_EQ(*aile.Saumon.MargeBA, 25.4);
        EXPECT_DOUBLE_EQ(aile.Saumon.Decalage, 25.4);
        EXPECT_EQ(aile.Saumon.Vrillage, 2);
        EXPECT_EQ(aile.rapport.notes.size(), 1U);
    }
    EXPECT_FALSE(AnalyserCpx(Liste("in;false\r\n", "", ""), "a.cpx").Pouces);
}

TEST(Aile, LaListeAEgauxSeLitDeMeme) {
    const AileImportee aile =
        AnalyserFc("[Emplanture]\r\nFichier=pied.dat\r\nNombrePoints=2\r\n1=0;0\r\n2=10.5;1\r\n3=99;99\r\n"
                   "MiroirVertical=true\r\n[Saumon]\r\n0,0;1\r\n5,25;2\r\n[Divers]\r\nEnvergure=300\r\n"
                   "Commentaire=aile; droite\r\nCommentaire=\r\nCommentaire=à moi\r\n",
                   "a.fc");
    EXPECT_EQ(Coordonnees(aile.Emplanture.Points), "0,0 10.5,1"); // those beyond the count are none
    EXPECT_EQ(Coordonnees(aile.Saumon.Points), "0,1 5.25,2");
    EXPECT_TRUE(aile.Emplanture.MiroirVertical);
    EXPECT_EQ(aile.Envergure, 300);
    EXPECT_EQ(aile.Commentaire, "aile; droite\r\n\r\nà moi");
}

TEST(Aile, CeQuiNeSeLitPasNommeSaLigne) {
    EXPECT_EQ(LigneFautive("[Emplanture]\n0;0\n1;x\n"), 3);
    EXPECT_EQ(LigneFautive("[Emplanture]\n0;0\n12\n"), 3);
    EXPECT_EQ(LigneFautive("1;2\n"), 1);              // in no section
    EXPECT_EQ(LigneFautive("[Saumon]\n1e12;2\n"), 2); // a million km
    EXPECT_EQ(LigneFautive("Envergure;large\n"), 1);
    EXPECT_EQ(LigneFautive("[Saumon]\nVrillage;1e308\n"), 2);
    EXPECT_EQ(LigneFautive("[Saumon]\nNombrePoints;-1\n"), 2);
    EXPECT_EQ(LigneFautive("[Saumon]\nNombrePoints=3\n1=0;0\n", true), 0);
    EXPECT_EQ(LigneFautive(std::string("[Saumon]\n\0", 10)), 0);
    EXPECT_EQ(LigneFautive("[Saumon]\nNombrePoints=3\n1=0:0:0\n"), 2); // an old project
}

TEST(Aile, UneValeurVideEstCelleDUneCleAbsente) {
    const AileImportee aile = AnalyserCpx("Envergure;\nVrillage;\nxHauteur;\n[Saumon]\n1;2\n", "a.cpx");
    EXPECT_EQ(aile.Envergure, std::nullopt);
    EXPECT_EQ(aile.Saumon.xHauteur, 1);
}

TEST_F(FichierAile, LesDeuxProfilsEntrentCommeDeuxTraces) {
    for (const char* nom : {"a.cpx", "B.CPX"}) {
        const DessinImporte dessin = LireDessin(Ecrire(nom, Liste("", "", "")), 0.02F);
        ASSERT_EQ(dessin.sequences.size(), 2U);
        EXPECT_EQ(Coordonnees(dessin.sequences[0].Points), "0,0 100,10 60,-4");
        EXPECT_EQ(dessin.sequences[1].XMax, 50);
        EXPECT_EQ(dessin.rapport.lus, (std::map<std::string, int>{{"CPX", 2}}));
    }
    EXPECT_EQ(LireDessin(Ecrire("a.fc", Liste("", "", "")), 0.02F).rapport.lus,
              (std::map<std::string, int>{{"FC", 2}}));
}

TEST_F(FichierAile, UnBoutSansPointSeDit) {
    const DessinImporte dessin = LireDessin(Ecrire("a.cpx", "[Emplanture]\n0;0\n9;9\n"), 0.02F);
    EXPECT_EQ(dessin.sequences.size(), 1U);
    ASSERT_EQ(dessin.rapport.notes.size(), 1U);
    EXPECT_NE(dessin.rapport.notes[0].find("Saumon"), std::string::npos);
    EXPECT_THROW((void)LireDessin(Ecrire("vide.cpx", ""), 0.02F), FauteLecture);
    EXPECT_THROW((void)LireDessin(Ecrire("autre.fc", "<html>\n<p>a=b\n"), 0.02F), FauteLecture);
}

TEST_F(FichierAile, UnBoutSansPointPrendSonFichierDansLeMemeDossier) {
    Ecrire("pied.txt", "0:0\n10:1\n");
    for (const char* nom : {"pied.txt", "C:\\profils\\pied.txt", "../../pied.txt"}) {
        const DessinImporte dessin = LireDessin(
            Ecrire("a.cpx", std::string("[Emplanture]\nFichier;") + nom + "\n[Saumon]\n0;0\n5;5\n"), 0.02F);
        ASSERT_EQ(dessin.sequences.size(), 2U) << nom;
        EXPECT_EQ(Coordonnees(dessin.sequences[0].Points), "0,0 10,1");
    }
    // Absent: the fault names it. A wing file is never read from a wing file.
    EXPECT_THROW((void)LireDessin(Ecrire("b.cpx", "[Emplanture]\nFichier;absent.dat\n"), 0.02F),
                 FauteFichier);
    EXPECT_THROW((void)LireDessin(Ecrire("c.cpx", "[Emplanture]\nFichier;c.cpx\n"), 0.02F), FauteLecture);
}
