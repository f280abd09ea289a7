// EPS drawings through the interpreter. Lengths by hand: a point is 25.4/72 mm, so 72 are 25.4.
#include "outils/dessins.h"
#include "outils/dossiers.h"
#include "outils/processeur.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"
#include "platform/processus.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

class Eps : public ::testing::Test {
protected:
    void SetUp() override {
        if (TrouverProgramme("gs").empty()) GTEST_SKIP() << "no Ghostscript here";
    }
};

const std::string Entete = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 100 100\n";

DessinLu Lire(const std::string& corps) {
    return LireTexte(Entete + corps, "eps");
}

// All polylines, parted by '|'.
std::string Traces(const std::string& corps) {
    const DessinLu l = Lire(corps);
    std::string texte = l.refus;
    for (const auto& p : l.polylignes) texte += (texte.empty() ? "" : "|") + EnTexte(p);
    return texte;
}

// A little-endian 32-bit word.
std::string Mot(unsigned v) {
    std::string s;
    for (int i = 0; i < 4; ++i, v >>= 8U) s += static_cast<char>(v & 0xFFU);
    return s;
}

constexpr const char* Carre = "0 0 moveto 72 0 lineto 72 72 lineto 0 72 lineto closepath ";
constexpr const char* TracesDuCarre = "0,0 25.4,0 25.4,25.4 0,25.4 0,0";

} // namespace

TEST_F(Eps, LeTraitEtLAplatSeValent) {
    for (const char* operateur : {"stroke", "fill", "eofill"})
        EXPECT_EQ(Traces(std::string(Carre) + operateur), TracesDuCarre) << operateur;
    EXPECT_EQ(Traces("0 0 72 72 rectfill"), TracesDuCarre);
    EXPECT_EQ(Traces("0 0 72 72 rectstroke"), TracesDuCarre);
    EXPECT_EQ(Traces("0 0 72 72 [2 0 0 2 0 0] rectstroke"), TracesDuCarre);
    EXPECT_EQ(Traces("[0 0 72 72 72 0 72 -72] rectfill"),
              std::string(TracesDuCarre) + "|25.4,0 50.8,0 50.8,-25.4 25.4,-25.4 25.4,0");
    EXPECT_EQ(Traces("{0 0 72 72 setbbox 0 0 moveto 72 72 lineto} ustroke"), "0,0 25.4,25.4");
    EXPECT_EQ(Traces("{0 0 72 72 setbbox 0 0 moveto 72 72 lineto} [1 0 0 1 0 0] ustroke"), "0,0 25.4,25.4");
    EXPECT_EQ(Traces("{0 0 72 72 setbbox 0 0 moveto 72 72 lineto 72 0 lineto} ufill"),
              "0,0 25.4,25.4 25.4,0");
}

TEST_F(Eps, AvecOuSansShowpage) {
    EXPECT_EQ(Traces(std::string(Carre) + "stroke showpage"), TracesDuCarre);
    EXPECT_EQ(Traces(std::string(Carre) + "stroke\n%%EOF\n\x04"), TracesDuCarre);
    EXPECT_EQ(Traces(std::string(Carre) + "stroke quit 0 0 moveto 9 9 lineto stroke"), TracesDuCarre);
}

TEST_F(Eps, CeQuiNEstPasPeintNeVautRien) {
    EXPECT_EQ(Traces(std::string(Carre) + "newpath 0 0 moveto 72 0 lineto stroke"), "0,0 25.4,0");
    // A painted path is gone.
    EXPECT_EQ(Traces("0 0 moveto 72 0 lineto stroke 0 72 moveto 72 72 lineto stroke"),
              "0,0 25.4,0|0,25.4 25.4,25.4");
}

TEST_F(Eps, LesTransformationsEtLesProceduresSontSuivies) {
    EXPECT_EQ(Traces("/S {stroke} bind def 10 20 translate 2 dup scale 90 rotate 0 0 moveto 36 0 lineto S"),
              "3.5277777,7.0555553 3.5277777,32.455555");
    EXPECT_EQ(
        Traces("/m /moveto load def /n {lineto} def /d 5 def 3 {0 0 m 72 0 n stroke 0 72 translate} repeat"),
        "0,0 25.4,0|0,25.4 25.4,25.4|0,50.8 25.4,50.8");
}

TEST_F(Eps, LaDecoupeNeCoupeRien) {
    EXPECT_EQ(Traces("0 0 9 9 rectclip 0 0 moveto 72 0 lineto stroke"), "0,0 25.4,0");
}

TEST_F(Eps, LesLettresEtLesImagesSontLaisseesEtComptees) {
    const DessinLu l =
        Lire("/Helvetica findfont 12 scalefont setfont 0 0 moveto (abc) show "
             "/D 8 dict dup begin /FontType 3 def /FontMatrix [.1 0 0 .1 0 0] def /FontBBox [0 0 9 9] def "
             "/Encoding 256 array def 0 1 255 {Encoding exch /a put} for "
             "/BuildChar {pop pop 9 0 setcharwidth 0 0 moveto 9 9 lineto stroke} def end definefont pop "
             "/D findfont 12 scalefont setfont 0 0 moveto (a) show "
             "2 2 8 [1 0 0 1 0 0] {<00>} image 0 0 moveto 72 0 lineto stroke");
    ASSERT_EQ(l.refus, "");
    ASSERT_EQ(l.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(l.polylignes[0]), "0,0 25.4,0");
    EXPECT_EQ(l.rapport.ignores, (std::map<std::string, int>{{"text", 2}, {"image", 1}}));
}

TEST_F(Eps, LesContoursDeLettresPeintsSontDesTraces) {
    const DessinLu l = Lire("/Helvetica findfont 72 scalefont setfont 0 0 moveto (O) false charpath stroke");
    EXPECT_EQ(l.refus, "");
    EXPECT_EQ(l.polylignes.size(), 2U);
}

TEST_F(Eps, CeQueLeFichierImprimeNEgarePas) {
    EXPECT_EQ(Traces("(m 1 2\\nl 3 4\\n) print (l 9 9) = (%stdout) (w) file (x l 5 5) writestring "
                     "0 0 moveto 72 0 lineto stroke"),
              "0,0 25.4,0");
}

TEST_F(Eps, LApercuBinaireEstSaute) {
    const std::string ps = Entete + "0 0 moveto 72 0 lineto stroke";
    const std::string entete =
        "\xC5\xD0\xD3\xC6" + Mot(40) + Mot(static_cast<unsigned>(ps.size())) + std::string(18, '\0');
    const DessinLu l = LireTexte(entete + std::string(10, 'z') + ps + "\x49\x49 preview \x80", "eps");
    EXPECT_EQ(l.refus, "");
    ASSERT_EQ(l.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte(l.polylignes[0]), "0,0 25.4,0");
    EXPECT_NE(LireTexte(entete, "eps").refus, "");
    EXPECT_NE(LireTexte(entete.substr(0, 6), "eps").refus, "");
    EXPECT_NE(LireTexte("\xC5\xD0\xD3\xC6" + Mot(0xFFFFFFFF) + Mot(0xFFFFFFFF) + std::string(18, '\0'), "eps")
                  .refus,
              "");
}

TEST_F(Eps, LEnteteDImprimanteEstSaute) {
    EXPECT_EQ(
        LireTexte("\x1B%-12345X@PJL JOB\r\n\r\n" + Entete + "0 0 moveto 72 0 lineto stroke", "eps").refus,
        "");
    EXPECT_EQ(LireTexte("\xEF\xBB\xBF" + Entete + "0 0 moveto 72 0 lineto stroke", "eps").refus, "");
}

TEST_F(Eps, UnDessinSansTraceDitCeQuIlPeint) {
    EXPECT_NE(Lire("showpage").refus.find("aucun tracé"), std::string::npos);
    EXPECT_NE(Lire("2 2 8 [1 0 0 1 0 0] {<00>} image").refus.find("1 × image"), std::string::npos);
}

TEST_F(Eps, UneErreurDuProgrammePorteSonNom) {
    EXPECT_NE(Lire("0 0 moveto 9 9 lineto stroke inconnu").refus.find("« undefined »"), std::string::npos);
    EXPECT_NE(Lire("{0 0 moveto").refus.find("« syntaxerror »"), std::string::npos);
    for (const char* loin : {"1e30 0", "0 -1e30", "801000 0", "0 845000", "0 -845000"})
        EXPECT_NE(Lire(std::string(loin) + " moveto 0 0 lineto stroke").refus, "") << loin;
    EXPECT_EQ(Lire("799000 0 moveto 0 0 lineto stroke").refus, "");
}

TEST_F(Eps, LesAutresFichiersRestentHorsDAtteinte) {
    const DossierProvisoire dossier;
    EcrireFichierAtomique(dossier.Fichier("secret"), "0 0 moveto 72 0 lineto stroke");
    const std::string secret = "(" + dossier.Fichier("secret") + ")";
    for (const std::string& corps :
         {secret + " run", secret + " (r) file pop", secret + " deletefile",
          "(" + dossier.Fichier("neuf") + ") (w) file pop",
          "(%pipe%touch " + dossier.Fichier("neuf") + ") (r) file pop",
          "<< /OutputFile (" + dossier.Fichier("neuf") + ") >> setpagedevice showpage"})
        EXPECT_NE(Lire(corps).refus, "") << corps;
    EXPECT_TRUE(FichierExiste(dossier.Fichier("secret")));
    EXPECT_FALSE(FichierExiste(dossier.Fichier("neuf")));
}

TEST_F(Eps, LaBoucleSansFinEstArretee) {
    for (const char* corps : {"{} loop", "{0 0 moveto 9 9 lineto stroke} loop"}) {
        const double avant = SecondesDesEnfants();
        const std::string refus = Lire(corps).refus;
        EXPECT_NE(refus.find("1.2 s"), std::string::npos) << corps << refus;
        EXPECT_LT(SecondesDesEnfants() - avant, 2.5) << corps; // of the processor
    }
}

TEST_F(Eps, LaMemoireSansFinEstArretee) {
    EXPECT_NE(Lire("[ {100000 array} loop").refus, "");
    EXPECT_NE(Lire("{65535 string} loop").refus, "");
}

TEST_F(Eps, UnNomDeFichierRetorsNeDerangePas) {
    const DossierProvisoire dossier;
    for (const char* nom : {"l'été \"ici\" $(x);\nfin.eps", "-dNOSAFER.eps", "(paren.eps", "100%d.eps"}) {
        const std::string chemin = dossier.Fichier(nom);
        EcrireFichierAtomique(chemin, Entete + "0 0 moveto 72 0 lineto stroke");
        std::vector<PointSimple> points;
        Etendue etendue;
        LireFichier(points, chemin, etendue, "EPS");
        EXPECT_EQ(points.size(), 2U) << nom;
        EXPECT_FLOAT_EQ(etendue.XMax, 25.4F);
    }
}

TEST(EpsSansInterprete, LePaquetManquantEstNomme) {
    const std::string ancien = std::getenv("PATH");
    setenv("PATH", "/absent", 1);
    const DessinLu l = LireTexte("%!PS\n0 0 moveto 9 9 lineto stroke", "eps");
    setenv("PATH", ancien.c_str(), 1);
    EXPECT_NE(l.refus.find("paquet ghostscript"), std::string::npos) << l.refus;
}

TEST(EpsSansInterprete, CeQuiNEstPasDuPostScriptLeDit) {
    EXPECT_NE(LireTexte("", "eps").refus.find("%!"), std::string::npos);
    EXPECT_NE(LireTexte(std::string("\0\1\2", 3), "eps").refus.find("%!"), std::string::npos);
    EXPECT_NE(LireTexte("0\nSECTION\n", "eps").refus.find("%!"), std::string::npos);
}
