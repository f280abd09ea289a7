// Profile tables: the forms they come in, and the one polyline they give.
#include "outils/dessins.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

DessinLu Lire(const std::string& texte) {
    return LireTexte(texte, "dat");
}

// A profile of chord 200 in Selig order: X from the trailing edge to the leading edge and back.
constexpr const char* Selig = "200,0 100,20 0,0 100,-10 200,0";

std::string Trace(const DessinLu& d) {
    return d.polylignes.size() == 1 ? EnTexte(d.polylignes[0]) : d.refus;
}

} // namespace

TEST(Dat, UneTableSeligResteDansSonOrdre) {
    EXPECT_EQ(Trace(Lire("PROFIL\n200 0\n100 20\n0 0\n100 -10\n200 0\n")), Selig);
    EXPECT_EQ(Trace(Lire("200 0\n100 20\n0 0\n100 -10\n200 0")), Selig);
}

TEST(Dat, UneTableLednicerDevientSelig) {
    EXPECT_EQ(Trace(Lire("PROFIL\n 3. 3.\n\n0 0\n100 20\n200 0\n\n0 0\n100 -10\n200 0\n")), Selig);
    // Without its counts, without its blank lines, with headings.
    EXPECT_EQ(Trace(Lire("PROFIL\n0 0\n100 20\n200 0\n\n0 0\n100 -10\n200 0\n")), Selig);
    EXPECT_EQ(Trace(Lire("PROFIL\n3 3\n0 0\n100 20\n200 0\n0 0\n100 -10\n200 0\n")), Selig);
    EXPECT_EQ(Trace(Lire("PROFIL\nextrados\n0 0\n100 20\n200 0\nintrados\n0 0\n100 -10\n200 0\n")), Selig);
}

TEST(Dat, DesComptesFauxSontSignalesEtSansEffet) {
    const auto d = Lire("PROFIL\n 61. 61.\n\n0 0\n1 .2\n2 0\n\n0 0\n1 -.1\n2 0\n");
    EXPECT_EQ(Trace(d), "2,0 1,0.2 0,0 1,-0.1 2,0");
    bool signale = false;
    for (const std::string& note : d.rapport.notes)
        signale = signale || note.find("61 + 61") != std::string::npos;
    EXPECT_TRUE(signale);
}

TEST(Dat, DeuxSurfacesDepuisLeBordDeFuiteDeviennentSelig) {
    EXPECT_EQ(Trace(Lire("PROFIL\n200 0\n100 20\n0 0\n\n200 0\n100 -10\n0 0\n")), Selig);
}

TEST(Dat, UneTableDuBordDAttaqueAutourResteTelleQuelle) {
    EXPECT_EQ(Trace(Lire("0 0\n100 20\n200 0\n100 -10\n0 0\n")), "0,0 100,20 200,0 100,-10 0,0");
}

TEST(Dat, TousLesSeparateursEtToutesLesFinsDeLigne) {
    EXPECT_EQ(Trace(Lire("PROFIL\r\n200\t0\r\n100,20\r\n0 ;  0\r\n 100 , -10 \r\n2.0E2;0.\r\n")), Selig);
    EXPECT_EQ(Trace(Lire("PROFIL\r200 0\r100 20\r0 0\r100 -10\r200 0")), Selig);
    EXPECT_EQ(Trace(Lire("PROFIL\n\n200 0\n\n100 20\n\n0 0\n100 -10\n\n200 0\n\n")), Selig);
}

TEST(Dat, LeTexteAutourDeLaTableEstPasse) {
    EXPECT_EQ(
        Trace(Lire("2032 un nom qui commence par un chiffre\ndeux\n200 0\n100 20\n0 0\n100 -10\n200 0\n\nun "
                   "commentaire\nhttp://exemple\n")),
        Selig);
}

TEST(Dat, UneSecondeTableEstLaisseeEtSignalee) {
    const auto d = Lire("A\n200 0\n100 20\n0 0\n100 -10\n200 0\ncorrection\n1 1\n2 2\n3 1\n");
    EXPECT_EQ(Trace(d), Selig);
    bool signale = false;
    for (const std::string& note : d.rapport.notes)
        signale = signale || note.find("3 points") != std::string::npos;
    EXPECT_TRUE(signale);
}

TEST(Dat, UneCordeDe1VientA100mm) {
    const auto d = Lire("PROFIL\n1 0\n0.5 0.1\n0 0\n0.5 -0.05\n1 0\n");
    EXPECT_EQ(Trace(d), "100,0 50,10 0,0 50,-5 100,0");
    EXPECT_EQ(d.etendue.XMax, 100);
    // The borders: 0.5 and 1.5 belong to it, a height of 1 does not, nor does a wider table.
    EXPECT_EQ(Lire("0.5 0\n.25 .1\n0 0\n.25 -.1\n.5 0\n").etendue.XMax, 100);
    EXPECT_EQ(Lire("1.5 0\n.75 .1\n0 0\n.75 -.1\n1.5 0\n").etendue.XMax, 100);
    EXPECT_FLOAT_EQ(Lire("0.49 0\n.25 .1\n0 0\n.25 -.1\n.49 0\n").etendue.XMax, 0.49F);
    EXPECT_FLOAT_EQ(Lire("1.51 0\n.75 .1\n0 0\n.75 -.1\n1.51 0\n").etendue.XMax, 1.51F);
    EXPECT_EQ(Lire("1 0\n.5 .5\n0 0\n.5 -.5\n1 0\n").etendue.XMax, 1);
}

TEST(Dat, UneTableEnPourcentGardeSaTaille) {
    EXPECT_EQ(Lire("PROFIL\n100 0\n50 8\n0 0\n50 -4\n100 0\n").etendue.XMax, 100);
    // Its first line is a point, not a pair of counts.
    EXPECT_EQ(Lire("PROFIL\n100 5\n50 8\n0 0\n50 -4\n100 -5\n").polylignes[0].size(), 5U);
}

TEST(Dat, CeQuiNEstPasUnProfilGardeSesTraces) {
    const auto d = Lire("courbe\n0 0\n10 5\n2 6\n12 9\n3 11\n14 15\n\n50 50\n60 60\n");
    ASSERT_EQ(d.polylignes.size(), 2U);
    EXPECT_EQ(EnTexte(d.polylignes[1]), "50,50 60,60");
}

TEST(Dat, CeQuiNEstPasUneTableDitPourquoi) {
    EXPECT_NE(Lire("").refus, "");
    EXPECT_NE(Lire("AUTEUR\nDATE 2000-03-02\n").refus, "");
    EXPECT_NE(Lire("0 1\n2 3\n").refus, "");
    EXPECT_EQ(Lire("titre\n1 2 3 4\n5 6 7 8\n1 2 3 4\n").ligne, 2);
    EXPECT_EQ(Lire("1 0\n0 1e300\n0.5 0\n1 1\n").ligne, 2);
    EXPECT_NE(Lire(std::string("1 0\n\0\0\n", 8)).refus, "");
    // A third column of zeros is the height of a flat profile.
    EXPECT_EQ(Trace(Lire("200 0 0\n100 20 0\n0 0 0\n100 -10 0\n200 0 0\n")), Selig);
}
