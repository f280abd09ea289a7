// Plotter files: what each instruction draws, where it stands in millimetres, and what is refused.
#include "outils/dessins.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fmt/format.h>
#include <random>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

DessinLu Lire(const std::string& texte) {
    return LireTexte(texte, "plt");
}

// All polylines, parted by " | "; the refusal where there is one.
std::string Traces(const DessinLu& d) {
    if (!d.refus.empty()) return d.refus;
    std::string texte;
    for (const auto& polyligne : d.polylignes) texte += (texte.empty() ? "" : " | ") + EnTexte(polyligne);
    return texte;
}

std::string Traces(const std::string& texte) {
    return Traces(Lire(texte));
}

bool Note(const DessinLu& d, const std::string& mot) {
    for (const std::string& note : d.rapport.notes)
        if (note.find(mot) != std::string::npos) return true;
    return false;
}

// Extents as "xmin ymin xmax ymax", to the hundredth.
std::string Bornes(const DessinLu& d) {
    if (!d.refus.empty()) return d.refus;
    const auto rond = [](float v) { return std::round(static_cast<double>(v) * 100) / 100 + 0.0; };
    return fmt::format("{} {} {} {}", rond(d.etendue.XMin), rond(d.etendue.YMin), rond(d.etendue.XMax),
                       rond(d.etendue.YMax));
}

std::string Bornes(const std::string& texte) {
    return Bornes(Lire(texte));
}

// Every point of the polyline and every middle of its chords lies within the limit of the circle.
void VerifierSurCercle(const std::vector<PointSimple>& polyligne, double cx, double cy, double rayon) {
    for (std::size_t i = 0; i < polyligne.size(); ++i) {
        EXPECT_NEAR(std::hypot(polyligne[i].X - cx, polyligne[i].Y - cy), rayon, 1e-4);
        if (i == 0) continue;
        const double mx = (polyligne[i].X + polyligne[i - 1].X) / 2.0;
        const double my = (polyligne[i].Y + polyligne[i - 1].Y) / 2.0;
        EXPECT_GE(std::hypot(mx - cx, my - cy), rayon - 0.0101);
    }
}

} // namespace

TEST(Plt, UneUniteDuTraceurVautUnQuarantiemeDeMm) {
    EXPECT_EQ(Traces("IN;PU0,0;PD400,0;PU;"), "0,0 10,0");
    EXPECT_EQ(Traces("IN;PU0,0;PD400,0,400,200;PU;"), "0,0 10,0 10,5");
    EXPECT_EQ(Traces("IN;PU;PA100,-100;PD;PA1,3;"), "2.5,-2.5 0.025,0.075");
}

TEST(Plt, LaPlumeBaisseeTraceEtLeveeCommenceUneAutreLigne) {
    const auto d = Lire("IN;PU0,0;PD400,0;PU400,400;PD0,400;PU800,800;SP0;");
    EXPECT_EQ(Traces(d), "0,0 10,0 | 10,10 0,10");
    EXPECT_EQ(d.rapport.lus.at("PD"), 2);
}

TEST(Plt, PaAvecLaPlumeBaisseeTrace) {
    EXPECT_EQ(Traces("PA0,0;PD;PA400,0,400,400;PU;PA0,0;"), "0,0 10,0 10,10");
}

TEST(Plt, LesDeplacementsRelatifsPartentDeLaPlume) {
    EXPECT_EQ(Traces("PA400,400;PR;PD400,0,0,400;PU40,0;PD-40,40;"), "10,10 20,10 20,20 | 21,20 20,21");
    EXPECT_EQ(Traces("PA400,400;PD;PR40,0;PA0,0;"), "10,10 11,10 0,0");
}

TEST(Plt, CeQuiSeToucheSeJoint) {
    const auto d = Lire("PU0,0;PD400,0;PU400,0;PD400,400;PU0,0;PD0,400,400,400;");
    EXPECT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(d.polylignes[0].size(), 5U);
    EXPECT_EQ(d.rapport.joints, 2);
    EXPECT_EQ(d.rapport.retournes, 1);
}

TEST(Plt, UnPointSeulEstLaisseEtCompte) {
    const auto d = Lire("PU0,0;PD400,0;PU40,40;PD;PU80,80;PD80,80;PU;");
    EXPECT_EQ(Traces(d), "0,0 10,0");
    EXPECT_EQ(d.rapport.ignores.at("PD"), 1);
}

TEST(Plt, LesDeuxEcrituresDesArgumentsSeValent) {
    constexpr const char* attendu = "0,0 10,0 10,10 | 1,1 2,2";
    for (const char* texte : {
             "IN;SP1;PU0,0;PD400,0,400,400;PU40,40;PD80,80;PU;SP0;",
             "IN SP1 PU 0 0 PD 400 0 400 400 PU 40 40 PD 80 80 PU SP0",
             "INSP1PU0,0PD400,0,400,400PU40,40PD80,80PUSP0",
             "in;sp1;pu0,0;pd400,0,400,400;pu40,40;pd80,80;pu;sp0;",
             "IN\r\nSP1\r\nPU0,0\r\nPD400,0,\r\n400,400\r\nPU40,40\r\nPD80,80\r\n",
             "IN;PU0,0;PD400.0,+0 400.,400,;PU 40 , 40;;PD\t80,8.0e1;",
             "IN\rSP1\rPU0 0\rPD400 0 400 400\rPU40 40\rPD80 80\r",
         })
        EXPECT_EQ(Traces(texte), attendu) << texte;
    // A sign begins a number.
    EXPECT_EQ(Traces("PU0,0;PD400-200-400+200"), "0,0 10,-5 -10,5");
}

TEST(Plt, LesArcsTournentVersLaGauche) {
    // From (10, 0) round the origin by 90 degrees: ends at (0, 10).
    const auto d = Lire("PU400,0;PD;AA0,0,90;PU;");
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(Bornes(d), "0 0 10 10");
    EXPECT_NEAR(d.polylignes[0].back().X, 0, 1e-5);
    EXPECT_NEAR(d.polylignes[0].back().Y, 10, 1e-5);
    VerifierSurCercle(d.polylignes[0], 0, 0, 10);
    EXPECT_EQ(Bornes("PU400,0;PD;AA0,0,-90;PU;"), "0 -10 10 0");
    EXPECT_EQ(Bornes("PU400,0;PD;AA0,0,180,5;PU;"), "-10 0 10 10");
    // Relative: the centre 400 to the left of the pen.
    EXPECT_EQ(Bornes("PU800,400;PD;AR-400,0,180;PU;"), "0 10 20 20");
    // The drawing goes on from the end of the arc.
    EXPECT_EQ(Bornes("PU400,0;PD;AA0,0,90;PD-800,400;"), "-20 0 10 10");
    // With the pen up the arc only moves.
    EXPECT_EQ(Bornes("PU400,0;AA0,0,90;PR;PD400,0;"), "0 10 10 10");
    // Two turns and a quarter end where a quarter does.
    EXPECT_NEAR(Lire("PU400,0;PD;AA0,0,810;").polylignes[0].back().Y, 10, 1e-4);
}

TEST(Plt, LesArcsParTroisPoints) {
    // (10,0), (0,10), (-10,0): the upper half of a circle round the origin.
    const auto d = Lire("PU400,0;PD;AT0,400,-400,0;");
    EXPECT_EQ(Bornes(d), "-10 0 10 10");
    VerifierSurCercle(d.polylignes[0], 0, 0, 10);
    EXPECT_EQ(Bornes("PU400,0;PD;AT0,-400,-400,0;"), "-10 -10 10 0");
    EXPECT_EQ(Bornes("PU400,0;PD;RT-400,400,-800,0;"), "-10 0 10 10");
    // Three quarters of the circle the long way round.
    EXPECT_EQ(Bornes("PU400,0;PD;AT-400,0,0,-400;"), "-10 -10 10 10");
    // In line: straight. The end on the start: a whole circle.
    EXPECT_EQ(Traces("PU0,0;PD;AT400,0,800,0;"), "0,0 10,0 20,0");
    EXPECT_EQ(Bornes("PU400,0;PD;AT-400,0,400,0;"), "-10 -10 10 10");
}

TEST(Plt, LesCourbesDeBezier) {
    // Its middle is (p0 + 3 c1 + 3 c2 + p3) / 8 = (5, 7.5).
    const auto absolue = Lire("PU0,0;PD;BZ0,400,400,400,400,0;");
    EXPECT_NEAR(absolue.etendue.YMax, 7.5, 0.0101);
    EXPECT_EQ(EnTexte({absolue.polylignes.at(0).front(), absolue.polylignes[0].back()}), "0,0 10,0");
    const auto relative = Lire("PU400,400;PD;BR0,400,400,400,400,0;");
    EXPECT_NEAR(relative.etendue.YMax, 17.5, 0.0101);
    EXPECT_EQ(EnTexte({relative.polylignes.at(0).front(), relative.polylignes[0].back()}), "10,10 20,10");
    // Every vertex is on the curve: x = 10 (3 t^2 - 2 t^3), y = 30 t (1 - t).
    const auto& points = absolue.polylignes[0];
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(points.size() - 1);
        EXPECT_NEAR(points[i].X, 10 * t * t * (3 - 2 * t), 1e-5);
        EXPECT_NEAR(points[i].Y, 30 * t * (1 - t), 1e-5);
    }
}

TEST(Plt, LeCercleEntoureLaPlumeQuiResteAuCentre) {
    const auto d = Lire("PU400,400;CI200;PD800,400;");
    ASSERT_EQ(d.polylignes.size(), 2U);
    EXPECT_EQ(d.rapport.lus.at("CI"), 1);
    VerifierSurCercle(d.polylignes[0], 10, 10, 5);
    EXPECT_EQ(EnTexte({d.polylignes[0].front()}), "15,10");
    EXPECT_EQ(EnTexte({d.polylignes[0].back()}), "15,10");
    EXPECT_EQ(EnTexte(d.polylignes[1]), "10,10 20,10");
    EXPECT_EQ(Bornes("PU400,400;CI-200,5;"), "5 5 15 15");
}

TEST(Plt, LesRectanglesPartentDeLaPlumeEtYReviennent) {
    EXPECT_EQ(Traces("PU400,400;EA800,600;"), "10,10 20,10 20,15 10,15 10,10");
    EXPECT_EQ(Traces("PU400,400;ER400,-200;"), "10,10 20,10 20,5 10,5 10,10");
    EXPECT_EQ(Traces("PU400,400;ER40,40;PR;PU40,0;PD40,0;"), "10,10 11,10 11,11 10,11 10,10 | 11,10 12,10");
    // Filled ones are cut along their outline.
    const auto d = Lire("PU400,400;RA800,600;RR40,40;");
    EXPECT_EQ(Traces(d), "10,10 20,10 20,15 10,15 10,10 | 10,10 11,10 11,11 10,11 10,10");
    EXPECT_EQ(d.rapport.lus.at("FP"), 2);
}

TEST(Plt, LeSecteurPartDuCentreEtYRevient) {
    const auto d = Lire("PU400,400;EW400,0,90;");
    ASSERT_EQ(d.polylignes.size(), 1U);
    EXPECT_EQ(EnTexte({d.polylignes[0][0], d.polylignes[0][1]}), "10,10 20,10");
    EXPECT_EQ(EnTexte({d.polylignes[0].back()}), "10,10");
    EXPECT_EQ(Bornes(d), "10 10 20 20");
    EXPECT_EQ(Bornes("PU400,400;EW400,90,90;"), "0 10 10 20");
    EXPECT_EQ(Bornes("PU400,400;EW400,0,-90;"), "10 0 20 10");
    // A negative radius looks the other way.
    EXPECT_EQ(Bornes("PU400,400;EW-400,0,90;"), "0 0 10 10");
    // A whole turn has no spokes.
    const auto tour = Lire("PU400,400;WG400,0,360;");
    VerifierSurCercle(tour.polylignes[0], 10, 10, 10);
}

TEST(Plt, LesEtiquettesSePassentParLeurFin) {
    EXPECT_EQ(Traces("PU0,0;LBPD4,4;\x03PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("DT#;PU0,0;LBtexte;PD9,9\x03#PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("DT#,1;PU0,0;LBa#DT;LBb#PD1,1\x03PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("DT#;IN;PU0,0;LBa#PD1,1\x03PD400,0;"), "0,0 10,0");
    const auto d = Lire("PU0,0;PD400,0;LBa\x03LB\x03");
    EXPECT_EQ(d.rapport.ignores.at("LB"), 2);
    // One without its end takes the rest of the file along, which is told with its line.
    const auto ouverte = Lire("PU0,0;PD400,0;\nLBtexte;PD800,800;\n");
    EXPECT_EQ(Traces(ouverte), "0,0 10,0");
    EXPECT_TRUE(Note(ouverte, "2"));
}

TEST(Plt, LesTextesEtSymbolesSansTrace) {
    EXPECT_EQ(Traces("SM*;PU0,0;SM;PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("SMP;PU0,0;PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("CO\"PD1,1;PD2,2\";BP1,\"PD3,3\";PU0,0;PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("# PD1,1\nPU0,0;\n# PD2,2\nPD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("PU0,0;#;PD400,0;"), "0,0 10,0");
    EXPECT_EQ(Traces("BLPD1,1\x03PB;PU0,0;PD400,0;"), "0,0 10,0");
}

TEST(Plt, LEchelleEtireLesUnitesEntreLesPointsDuCadre) {
    // 100 user units over 4000 plotter units: 1 mm each; over 2000 in Y: half a millimetre.
    EXPECT_EQ(Traces("IP0,0,4000,2000;SC0,100,0,100;PU0,0;PD100,0,100,100;"), "0,0 100,0 100,50");
    EXPECT_EQ(Traces("SC0,100,0,100;IP0,0,4000,2000;PU0,0;PD100,0,100,100;"), "0,0 100,0 100,50");
    // User units that begin elsewhere, and a frame that does.
    EXPECT_EQ(Traces("IP400,400,4400,4400;SC-50,50,-50,50;PU-50,-50;PD0,0;"), "10,10 60,60");
    // A frame upside down mirrors.
    EXPECT_EQ(Traces("IP0,4000,4000,0;SC0,100,0,100;PU0,0;PD100,10;"), "0,100 100,90");
    // SC alone goes back to plotter units, the pen staying where it is.
    EXPECT_EQ(Traces("IP0,0,4000,4000;SC0,100,0,100;PU10,10;SC;PD0,0;"), "10,10 0,0");
    EXPECT_EQ(Traces("IP0,0,4000,4000;SC0,100,0,100;PU10,10;SC;PR;PD400,0;"), "10,10 20,10");
}

TEST(Plt, UnPointDeCadreSeulEmmeneLAutre) {
    // P2 follows: the frame keeps the 10000 x 7200 it has by default.
    EXPECT_EQ(Traces("IP400,4500;SC0,100,0,100;PU0,0;PD100,100;"), "10,112.5 260,292.5");
}

TEST(Plt, SansCadreLEchelleEstCelleDUneFeuilleA4EtLeDit) {
    const auto d = Lire("SC0,1000,0,720;PU0,0;PD1000,720;");
    EXPECT_EQ(Traces(d), "0,0 250,180");
    EXPECT_TRUE(Note(d, "250 x 180"));
    EXPECT_FALSE(Note(Lire("IP0,0,4000,4000;SC0,1,0,1;PU0,0;PD1,1;"), "SC"));
    // The size of the sheet is the frame where it is given.
    EXPECT_EQ(Traces("PS4000,2000;SC0,100,0,100;PU0,0;PD100,100;"), "0,0 100,50");
    EXPECT_EQ(Traces("PS4000,2000;IR25,0,75,100;SC0,100,0,100;PU0,0;PD100,100;"), "25,0 75,50");
}

TEST(Plt, LEchelleEgaleEtLEchelleParFacteurs) {
    // 100 x 100 in 4000 x 2000: 20 plotter units each, centred in the width, or as told.
    EXPECT_EQ(Traces("IP0,0,4000,2000;SC0,100,0,100,1;PU0,0;PD100,100;"), "25,0 75,50");
    EXPECT_EQ(Traces("IP0,0,4000,2000;SC0,100,0,100,1,0,0;PU0,0;PD100,100;"), "0,0 50,50");
    // Factors: plotter units per user unit from P1.
    EXPECT_EQ(Traces("IP400,400,4000,2000;SC0,40,0,80,2;PU0,0;PD10,10;"), "10,10 20,30");
}

TEST(Plt, UneEchelleImpossibleEstLaisseeEtSignalee) {
    const auto d = Lire("SC5,5,0,10;PU0,0;PD400,0;");
    EXPECT_EQ(Traces(d), "0,0 10,0");
    EXPECT_TRUE(Note(d, "1"));
    EXPECT_EQ(Traces("IP0,0,0,0;PU0,0;PD400,0;"), "0,0 10,0");
}

TEST(Plt, LesCerclesSuiventLEchelle) {
    // An ellipse of half axes 20 and 10 mm.
    const auto d = Lire("IP0,0,8000,4000;SC0,100,0,100;PU50,50;CI10;");
    EXPECT_EQ(Bornes(d), "80 40 120 60");
    EXPECT_EQ(Bornes("IP0,0,8000,4000;SC0,100,0,100;PU60,50;PD;AA50,50,180;"), "80 50 120 60");
}

TEST(Plt, LaRotationTourneParQuarts) {
    EXPECT_EQ(Traces("RO90;PU0,0;PD400,0,400,200;"), "0,0 0,10 -5,10");
    EXPECT_EQ(Traces("RO180;PU0,0;PD400,0,400,200;"), "0,0 -10,0 -10,-5");
    EXPECT_EQ(Traces("RO270;PU0,0;PD400,0,400,200;"), "0,0 0,-10 5,-10");
    EXPECT_EQ(Traces("RO90;RO0;PU0,0;PD400,0;"), "0,0 10,0");
    // The pen stays on its place of the sheet.
    EXPECT_EQ(Traces("PU400,0;RO90;PR;PD400,0;"), "10,0 10,10");
}

TEST(Plt, InRemetToutEtFinitLeTrait) {
    EXPECT_EQ(Traces("IP0,0,4000,4000;SC0,100,0,100;RO90;PU5,5;PR;PD5,5;IN;PD400,0;"),
              "-5,5 -10,10 | 0,0 10,0");
    EXPECT_EQ(Traces("IP0,0,4000,4000;SC0,100,0,100;PU1,0;DF;PD400,0;"), "1,0 10,0");
}

TEST(Plt, LesPolygonesDonnentLeurContourUneFois) {
    constexpr const char* carre = "PU0,0;PM0;PD400,0,400,400,0,400;PM2;";
    constexpr const char* attendu = "0,0 10,0 10,10 0,10 0,0";
    EXPECT_EQ(Traces(std::string(carre) + "EP;"), attendu);
    EXPECT_EQ(Traces(std::string(carre) + "FP;"), attendu);
    const auto d = Lire(std::string(carre) + "FP;EP;");
    EXPECT_EQ(Traces(d), attendu);
    EXPECT_EQ(d.rapport.lus.at("EP"), 1);
    EXPECT_EQ(d.rapport.lus.count("FP"), 0U);
    // Not asked for: nothing.
    EXPECT_NE(Lire(carre).refus, "");
    // A hole as a subpolygon, and a circle.
    EXPECT_EQ(Traces("PU0,0;PM0;PD400,0,400,400;PM1;PU80,40;PD120,40,120,80;PM2;FP;"),
              "0,0 10,0 10,10 0,0 | 2,1 3,1 3,2 2,1");
    EXPECT_EQ(Bornes("PU400,400;PM0;CI200;PM2;EP;"), "5 5 15 15");
    // Edges follow the pen: two open parts stay open.
    EXPECT_EQ(Traces("PU0,0;PM0;PD400,0,400,400;PU80,40;PD120,40,120,80;PM2;EP;"),
              "0,0 10,0 10,10 | 2,1 3,1 3,2");
}

TEST(Plt, UneFinDePolygoneSansDebutNInterromptRien) {
    EXPECT_EQ(Traces("PU0,0;PD400,0;PM2;PD400,400;PM1;PD0,0;"), "0,0 10,0 10,10 0,0");
    EXPECT_EQ(Traces("PU0,0;PD400,0;PM2;FP;EP;"), "0,0 10,0");
}

TEST(Plt, LesPolylignesCodeesSeDecodent) {
    // Base 64: 400 is 800 once its sign is in, 32 and 12 as digits: 0x5F and 0xCB.
    EXPECT_EQ(Traces("PU0,0;PE\x5F\xCB\xBF;PU;"), "0,0 10,0");
    // -400 is 801, 33 and 12.
    EXPECT_EQ(Traces("PU0,0;PE\x60\xCB\xBF\xBF\x5F\xCB;"), "0,0 -10,0 -10,10");
    // Pen up to a place, then a step.
    EXPECT_EQ(Traces("PU40,40;PE<=\x5F\xCB\x5F\xCB\x5F\xCB\xBF;"), "10,10 20,10");
    EXPECT_EQ(Traces("PU0,0;PE\x5F\xCB\xBF<\x5F\xCB\xBF\x5F\xCB\xBF;"), "0,0 10,0 | 20,0 30,0");
    // Base 32: 800 is 0 and 25 as digits: '?' and 'x'; zero is '_'.
    EXPECT_EQ(Traces("PU0,0;PE7?x_\r\n_?x;"), "0,0 10,0 10,10");
    // -31 is 63: the greatest digit that does not end a number, 31 or '^', then 1 as a last digit, '`'.
    EXPECT_EQ(Traces("PU0,0;PE7^`_;"), "0,0 -0.775,0");
    // Two binary places: 1600 quarters are 400; 3200 is 0 and 50: 0x3F and 0xF1. The count 2 is 4: 0xC3.
    EXPECT_EQ(Traces("PU0,0;PE>\xC3?\xF1\xBF;"), "0,0 10,0");
    // A pen: 1 is 2, 0xC1.
    const auto d = Lire("PU0,0;PE:\xC1\x5F\xCB\xBF;");
    EXPECT_EQ(Traces(d), "0,0 10,0");
    EXPECT_EQ(d.rapport.couches.at("SP1"), 1);
    EXPECT_EQ(Lire("IN;\nPU0,0;PE\x5F\xCB\xBF").ligne, 2);
    EXPECT_NE(Lire("PU0,0;PE" + std::string(40, '?') + ";").refus, "");
}

TEST(Plt, LesEnTetesDuTraceurEtDeLImprimanteSePassent) {
    EXPECT_EQ(Traces("\x1B.(;\x1B.I81;;17:\x1B.N;19:IN;PU0,0;PD400,0;\x1B.Z"), "0,0 10,0");
    EXPECT_EQ(Traces("\x1B.Y\x1B.M500:\nPU0,0;PD400,0;\x1B.)"), "0,0 10,0");
    EXPECT_EQ(Traces("\x1B"
                     "E\x1B%0BBPINPU0,0PD400,0PG;"),
              "0,0 10,0");
    EXPECT_EQ(Traces("\x1B%-12345X@PJL JOB NAME=\"PD1,1\"\r\n@PJL ENTER LANGUAGE=HPGL2\r\nIN;PU0,0;PD400,0;"
                     "\x1B%-12345X"),
              "0,0 10,0");
    // Text of the printer's own language, and its raster data.
    EXPECT_EQ(Traces("\x1B*b6WPD1,1;\x1B%0BPU0,0;PD400,0;\x1B%0APD5,5;\x1B%0BPD400,400;"), "0,0 10,0 10,10");
}

TEST(Plt, LesPlumesSontLesCouchesDuRapport) {
    const auto d = Lire("SP1;PU0,0;PD400,0;PU0,40;SP3;PD400,40;PU0,80;PD400,80;PU;SP0;");
    EXPECT_EQ(d.rapport.couches, (std::map<std::string, int>{{"SP1", 1}, {"SP3", 2}}));
}

TEST(Plt, LesInstructionsInconnuesSontPasseesEtDites) {
    const auto d = Lire("IN;SP1;VS20;LT;ZZ5,5;PU0,0;PD400,0;");
    EXPECT_EQ(Traces(d), "0,0 10,0");
    EXPECT_TRUE(Note(d, "ZZ 1"));
    // What is no number moves nothing.
    EXPECT_EQ(Traces("IN;SP1;PU0,0;PUNaN,NaN;PD400,0;"), "0,0 10,0");
    EXPECT_TRUE(Note(Lire("PU0,0;PD400,0;PD5;PD0,0;"), "1"));
}

TEST(Plt, CeQuiNEstPasDuHpglLeDit) {
    EXPECT_NE(Lire("").refus, "");
    EXPECT_NE(Lire(" \r\n\r\n").refus, "");
    EXPECT_NE(Lire("0.1 0.2\n0.3 0.4\n").refus.find("HPGL"), std::string::npos);
    EXPECT_NE(Lire("set terminal png\nplot sin(x)\nset output\n").refus.find("HPGL"), std::string::npos);
    // Bytes at random, whatever false instruction comes first.
    for (unsigned graine = 1; graine <= 20; ++graine) {
        std::mt19937 alea(graine);
        std::string octets(20000, ' ');
        for (char& c : octets) c = static_cast<char>(alea());
        EXPECT_NE(Lire(octets).refus.find("HPGL"), std::string::npos) << graine;
    }
}

TEST(Plt, SansTraitLaRaisonEstDite) {
    EXPECT_NE(Lire("IN;PU0,0;PU400,0;SP0;").refus.find("plume"), std::string::npos);
    EXPECT_NE(Lire("IN;PA0,0;LBa\x03LBb\x03").refus.find("2 textes"), std::string::npos);
    EXPECT_NE(Lire("IN;PA0,0;PD0,0;PU;").refus.find("1 points"), std::string::npos);
    EXPECT_NE(Lire("IN;PU0,0;\nLBa;PD400,400;").refus.find("ligne 2"), std::string::npos);
}

TEST(Plt, UnFichierCoupeDitOu) {
    EXPECT_EQ(Lire("IN;\nPU0,0;\nPD400,0,400").ligne, 3);
    EXPECT_EQ(Lire("IN;\nPU0,0;\nPD400,0,400,").ligne, 3);
    // Cut between instructions it is as good as whole.
    EXPECT_EQ(Traces("IN;PU0,0;PD400,0"), "0,0 10,0");
    EXPECT_EQ(Traces("IN;PU0,0;PD400,0;P"), "0,0 10,0");
}

TEST(Plt, LesNombresDemesuresSontRefuses) {
    EXPECT_EQ(Lire("IN;\nPU0,0;\nPD1e300,0;").ligne, 3);
    EXPECT_EQ(Lire("IN;\nPU0,0;\nPD99999999999999999999999,0;").ligne, 3);
    EXPECT_EQ(Lire("IN;PU0,0;\nCI1e308;").ligne, 2);
    EXPECT_EQ(Lire("IN;PU0,0;PD;\nAA1e200,0,90;").ligne, 2);
    EXPECT_NE(Lire("IN;PU0,0;PD;AA400,0,1e999;").refus, "");
    EXPECT_NE(Lire("IN;PU0,0;PD;BZ1e300,0,0,1e300,1e308,0;").refus, "");
    EXPECT_NE(Lire("IP0,0,1e200,1e200;SC0,1,0,1;PU0,0;PD1,1;").refus, "");
    EXPECT_NE(Lire("PU0,0;PD" + std::string(100000, '9') + ",0;").refus, "");
    std::string polygones = "IN;PU0,0;";
    for (int i = 0; i < 100; ++i) polygones += "PM0;CI4e8;PM2;";
    EXPECT_NE(Lire(polygones).refus.find("5000000"), std::string::npos);
    // Where the pen only passes, they do no harm.
    EXPECT_EQ(Traces("PU1e300,1e300;PU0,0;PD400,0;"), "0,0 10,0");
}

TEST(Plt, UneSuiteDeSegmentsAuHasardRevientATroisMicrons) {
    std::mt19937 alea(3);
    std::uniform_int_distribution<int> place(-30000, 30000);
    for (int essai = 0; essai < 50; ++essai) {
        std::string absolu = "IN;PU0,0;PA;PD";
        std::string relatif = "IN;PU0,0;PR;PD";
        int x = 0;
        int y = 0;
        for (int i = 0; i < 20; ++i) {
            const int nx = place(alea);
            const int ny = place(alea);
            absolu += fmt::format("{}{},{}", i == 0 ? "" : ",", nx, ny);
            relatif += fmt::format(" {} {}", nx - x, ny - y);
            x = nx;
            y = ny;
        }
        EXPECT_EQ(Traces(absolu), Traces(relatif));
        const auto d = Lire(absolu);
        ASSERT_EQ(d.polylignes.size(), 1U);
        EXPECT_NEAR(d.polylignes[0].back().X, x * 0.025, 3e-3);
        EXPECT_NEAR(d.polylignes[0].back().Y, y * 0.025, 3e-3);
    }
}
