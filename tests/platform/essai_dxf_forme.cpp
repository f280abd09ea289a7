// The text of a DXF: what it may look like, and how a bad one is refused.
#include "outils/dessins.h"
#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fmt/format.h>
#include <sys/stat.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr const char* Ligne = "0 LINE|8 0|10 0|20 0|11 1|21 1";

// The sentence of the refusal must hold each of these.
void AttendreRefus(const DessinLu& d, std::initializer_list<const char*> morceaux, long ligne = -1) {
    EXPECT_NE(d.refus, "") << "the file was read";
    if (ligne >= 0) {
        EXPECT_EQ(d.ligne, ligne) << d.refus;
    }
    for (const char* m : morceaux)
        EXPECT_NE(d.refus.find(m), std::string::npos) << m << " is not in: " << d.refus;
}

std::string Blocs(const std::string& blocs) {
    return "0 SECTION|2 BLOCKS|" + blocs + "|0 ENDSEC";
}

} // namespace

TEST(DxfForme, LesFinsDeLigneDeTousLesSystemesPassent) {
    const std::string lf = DxfAvecEntites(Ligne);
    std::string crlf;
    std::string cr;
    for (const char c : lf) {
        crlf += c == '\n' ? "\r\n" : std::string(1, c);
        cr += c == '\n' ? '\r' : c;
    }
    for (const std::string& texte : {lf, crlf, cr}) EXPECT_EQ(LireTexte(texte).polylignes.size(), 1U);
}

TEST(DxfForme, LesMotsSeLisentEnTouteCasseEtSansEnTete) {
    EXPECT_EQ(
        LireTexte(Paires("0 section|2 Entities|0 Line|10 0|20 0|11 1|21 1|0 endsec|0 eof")).polylignes.size(),
        1U);
    // Entities without a section around them.
    EXPECT_EQ(LireTexte(Paires("0 LINE|10 0|20 0|11 1|21 1|0 EOF")).polylignes.size(), 1U);
}

TEST(DxfForme, BlancsCommentairesMarqueDOrdreEtLignesDeFinPassent) {
    EXPECT_EQ(
        LireTexte("\xEF\xBB\xBF" + Paires("999 un commentaire") + DxfAvecEntites(Ligne) + "\n\n  \n\x1a")
            .polylignes.size(),
        1U);
    EXPECT_EQ(
        LireTexte(
            "  0  \n SECTION \n  2\n ENTITIES\n0\nLINE\n 10\n  +1.5e1  \n 20\n 2.\n 11\n.5\n 21\n-0\n0\n"
            "ENDSEC\n0\nEOF")
            .polylignes.size(),
        1U);
}

TEST(DxfForme, LesGroupesDesAutresProgrammesNeComptentPas) {
    const auto d =
        LireTexte(DxfAvecEntites("0 LINE|102 {AUTRE|10 99|40 nan|102 }|10 0|20 0|11 1|21 1|1001 APP|1010 "
                                 "77|101 Embedded Object|10 55"));
    ASSERT_EQ(d.refus, "");
    EXPECT_EQ(EnTexte(d.polylignes[0]), "0,0 1,1");
}

TEST(DxfForme, CeQuiNEstPasUnTraceEstCompte) {
    const auto d =
        LireTexte(DxfAvecEntites(std::string(Ligne) + "|0 TEXT|10 0|20 0|1 mot|0 POINT|10 0|20 0|0 POINT|10 "
                                                      "1|20 0"));
    EXPECT_EQ(d.rapport.ignores.at("TEXT"), 1);
    EXPECT_EQ(d.rapport.ignores.at("POINT"), 2);
}

TEST(DxfRefus, UnFichierSansTraceDitCeQuIlTient) {
    AttendreRefus(LireTexte(DxfAvecEntites(
                      "0 TEXT|10 0|20 0|1 mot|0 POINT|10 0|20 0|0 POINT|10 1|20 0|0 LINE|67 1|10 0|20 "
                      "0|11 1|21 1")),
                  {"POINT 2", "TEXT 1", "1 entit"});
}

TEST(DxfRefus, UnFichierVide) {
    AttendreRefus(LireTexte(""), {"vide"});
    AttendreRefus(LireTexte("\r\n \n"), {"vide"});
}

TEST(DxfRefus, UnFichierBinaire) {
    AttendreRefus(LireTexte(std::string("Binary DXF\r\n\x1a\0\0\0SECTION", 23)), {"binaire"});
}

TEST(DxfRefus, UnAutreGenreDeFichierDitLaLigne) {
    AttendreRefus(LireTexte("%!PS-Adobe\nnewpath\n"), {"%!PS-Adobe"}, 1);
    AttendreRefus(LireTexte(DxfAvecEntites(Ligne).substr(0, 25) + "\nabc\nxyz\n"), {"abc"});
}

TEST(DxfRefus, UnFichierTronqueOuQuIlLeSoit) {
    const std::string entier = DxfAvecEntites("0 LWPOLYLINE|90 2|70 0|10 0|20 0|10 5|20 5");
    ASSERT_EQ(LireTexte(entier).refus, "");
    const std::size_t finEntites = entier.find("ENDSEC");
    for (std::size_t n = 1; n < finEntites; ++n)
        EXPECT_NE(LireTexte(entier.substr(0, n)).refus, "") << "cut after " << n << " bytes";
    AttendreRefus(LireTexte(entier.substr(0, entier.find("20\n5"))), {"LWPOLYLINE", "tronqué"}, 16);
}

TEST(DxfRefus, DesCoordonneesQuiNeSontPasDesNombres) {
    for (const char* mot : {"nan", "inf", "-nan(ind)", "1.#QNAN", "1,5", "abc", "0x10", "--1", "1e"})
        AttendreRefus(LireTexte(DxfAvecEntites(fmt::format("0 LINE|10 {}|20 0|11 1|21 1", mot))), {mot}, 8);
    AttendreRefus(LireTexte(DxfAvecEntites("0 LINE|10|20 0|11 1|21 1")), {"code 10"}, 8);
}

TEST(DxfRefus, DesCoordonneesHorsDuMondeDisentLEntite) {
    for (const char* mot : {"1e300", "-1e300", "1e308", "1e400", "100000000001"})
        AttendreRefus(LireTexte(DxfAvecEntites(fmt::format("0 LINE|10 0|20 0|11 {}|21 1", mot))),
                      {mot[2] == '4' ? "1e400" : "hors limites"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 LINE|10 0|20 0|11 1e300|21 1")), {"LINE", "1e+300"}, 6);
    EXPECT_EQ(LireTexte(DxfAvecEntites("0 LINE|10 -1e11|20 0|11 1e11|21 1")).refus, "");
}

TEST(DxfRefus, UnMilliardDeSommetsAnnoncesNePrendPasLaMemoire) {
    const auto d = LireTexte(DxfAvecEntites("0 LWPOLYLINE|90 1000000000|70 0|10 0|20 0|10 5|20 5"));
    EXPECT_EQ(d.refus, "");
    EXPECT_EQ(d.polylignes.size(), 1U);
}

TEST(DxfRefus, DesRayonsDemesures) {
    for (const char* rayon : {"1e308", "1e20", "1e13"})
        AttendreRefus(LireTexte(DxfAvecEntites(fmt::format("0 ARC|10 0|20 0|40 {}|50 0|51 90", rayon))),
                      {"ARC"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 CIRCLE|10 0|20 0|40 1e308")), {"CIRCLE"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 ELLIPSE|10 0|20 0|11 1e308|21 0|40 1|41 0|42 6")), {"ELLIPSE"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 LWPOLYLINE|70 0|10 0|20 0|42 1e308|10 1|20 0")),
                  {"LWPOLYLINE"});
}

TEST(DxfRefus, UneSplineDeNoeudsFaux) {
    const auto spline = [](const std::string& noeuds, const std::string& reste = "") {
        return LireTexte(
            DxfAvecEntites("0 SPLINE|70 8|71 2" + noeuds + "|10 0|20 0|10 1|20 2|10 2|20 0" + reste));
    };
    ASSERT_EQ(spline("|40 0|40 0|40 0|40 1|40 1|40 1").refus, "");
    AttendreRefus(spline("|40 0|40 0|40 0|40 1|40 1"), {"SPLINE", "nœuds"});
    AttendreRefus(spline(""), {"SPLINE", "nœuds"});
    AttendreRefus(spline("|40 0|40 0|40 1|40 0|40 1|40 1"), {"SPLINE", "croissants"});
    AttendreRefus(spline("|40 0|40 0|40 0|40 0|40 0|40 0"), {"SPLINE"});
    AttendreRefus(spline("|40 0|40 0|40 0|40 1|40 1|40 1", "|41 1|41 -1|41 1"), {"SPLINE", "poids"});
    AttendreRefus(spline("|40 0|40 0|40 0|40 1|40 1|40 1", "|41 1"), {"SPLINE", "poids"});
    AttendreRefus(spline("|40 0|40 0|40 0|40 1|40 1|40 1", "|71 1000000"), {"SPLINE", "degré"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 SPLINE|71 3|40 0|40 1")), {"SPLINE"});
}

TEST(DxfRefus, UnBlocQuiSeContient) {
    AttendreRefus(
        LireTexte(DxfAvecEntites("0 INSERT|2 A|10 0|20 0",
                                 Blocs("0 BLOCK|2 A|10 0|20 0|0 INSERT|2 B|10 0|20 0|0 ENDBLK|0 BLOCK|2 B|10 "
                                       "0|20 0|0 INSERT|2 a|10 0|20 0|0 ENDBLK"))),
        {"« a »", "lui-même"});
}

TEST(DxfRefus, DixMilleBlocsImbriques) {
    std::string blocs;
    for (int i = 0; i < 10000; ++i)
        blocs += fmt::format("{}0 BLOCK|2 N{}|10 0|20 0|0 INSERT|2 N{}|10 1|20 0|0 ENDBLK", i == 0 ? "" : "|",
                             i, i + 1);
    blocs += "|0 BLOCK|2 N10000|10 0|20 0|0 LINE|10 0|20 0|11 1|21 1|0 ENDBLK";
    AttendreRefus(LireTexte(DxfAvecEntites("0 INSERT|2 N0|10 0|20 0", Blocs(blocs))), {"imbriqués"});
}

TEST(DxfRefus, UnReseauDUnMilliardDeCopies) {
    const std::string bloc = Blocs("0 BLOCK|2 B|10 0|20 0|0 LINE|10 0|20 0|11 1|21 1|0 ENDBLK");
    AttendreRefus(LireTexte(DxfAvecEntites("0 INSERT|2 B|10 0|20 0|70 31623|71 31623|44 1|45 1", bloc)),
                  {"31623"});
    AttendreRefus(LireTexte(DxfAvecEntites("0 INSERT|2 B|10 0|20 0|70 2000000000|71 2000000000", bloc)),
                  {"trop"});
}

// Each block holds two of the next: 2^40 lines, or nothing at all 2^40 times.
TEST(DxfRefus, DesBlocsQuiDoublentFinissentEnTempsBorne) {
    for (const char* fond : {"|0 LINE|10 0|20 0|11 1|21 1", ""}) {
        std::string blocs;
        for (int i = 0; i < 40; ++i)
            blocs += fmt::format(
                "0 BLOCK|2 N{}|10 0|20 0|0 INSERT|2 N{}|10 1|20 0|0 INSERT|2 N{}|10 0|20 2|0 ENDBLK|", i,
                i + 1, i + 1);
        blocs += "0 BLOCK|2 N40|10 0|20 0" + std::string(fond) + "|0 ENDBLK";
        AttendreRefus(LireTexte(DxfAvecEntites("0 INSERT|2 N0|10 0|20 0", Blocs(blocs))), {"trop grand"});
    }
}

TEST(DxfRefus, CeQuiNEstPasUnFichier) {
    const DossierProvisoire dossier;
    const std::string tuyau = dossier.Fichier("tuyau.dxf");
    ASSERT_EQ(::mkfifo(tuyau.c_str(), 0600), 0);
    std::vector<PointSimple> points(7);
    Etendue e;
    for (const std::string& chemin : {dossier.Chemin(), tuyau, dossier.Fichier("absent.dxf")}) {
        EXPECT_THROW(LireFichier(points, chemin, e, "dxf"), FauteFichier) << chemin;
        // A failed read leaves one point at 0.
        ASSERT_EQ(points.size(), 1U);
        EXPECT_EQ(points[0].X, 0);
        points.resize(7);
    }
}

TEST(DxfRefus, UnNomAvecAccentsGuillemetsEtSautDeLigne) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("d\xC3\xA9"
                                               "coupe \"1\"\n'2'.dxf");
    EcrireFichierAtomique(chemin, DxfAvecEntites(Ligne));
    std::vector<PointSimple> points;
    Etendue e;
    LireFichier(points, chemin, e, "DXF");
    EXPECT_EQ(points.size(), 2U);
}
