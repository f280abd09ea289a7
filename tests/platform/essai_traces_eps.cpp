// The interpreter's lines as polylines. Lengths by hand: 72000 thousandths of a point are 25.4 mm.
#include "outils/dessins.h"
#include "platform/erreurs.h"
#include "platform/gabar/traces_eps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace tessarel;

namespace {

TracesEps Lire(std::string_view texte) {
    TracesEps t;
    AvalerTraces(t, texte, "a.eps");
    TerminerTraces(t);
    return t;
}

std::string Points(const TracesEps& t) {
    return essais::EnTexte(t.points);
}

} // namespace

TEST(TracesEps, UnPointVautUnSoixanteDouziemeDePouce) {
    const TracesEps t = Lire("S\nm 0 0\nl 72000 0\nl 72000 -144000\nfin\n");
    EXPECT_EQ(Points(t), "0,0 25.4,0 25.4,-50.8");
    EXPECT_EQ(t.rapport.lus.at("stroke"), 1);
    EXPECT_TRUE(t.complet);
}

TEST(TracesEps, LaFermetureRevientAuDebut) {
    EXPECT_EQ(Points(Lire("F\nm 0 0\nl 72000 0\nl 0 72000\nh\n")), "0,0 25.4,0 0,25.4 0,0");
    EXPECT_EQ(Points(Lire("F\nm 0 0\nl 72000 0\nl 0 0\nh\n")), "0,0 25.4,0 0,0");
}

TEST(TracesEps, UneLigneApresLaFermeturePartDuDebutFerme) {
    const TracesEps t = Lire("S\nm 72000 0\nl 144000 0\nh\nl 72000 72000\n");
    ASSERT_EQ(t.debuts.size(), 2U);
    EXPECT_EQ(Points(t), "25.4,0 50.8,0 25.4,0 25.4,0 25.4,25.4");
    EXPECT_EQ(t.debuts[1], 3U);
}

TEST(TracesEps, CeQuiEstSansLongueurNEstPasUnTrace) {
    EXPECT_TRUE(Lire("S\nm 5 5\nS\nm 7 7\nl 7 7\nF\nm 1 1\nh\nF\nm 0 0\nc 0 0 0 0 0 0\nh\n").points.empty());
}

TEST(TracesEps, ChaqueOperateurCompteSesTraces) {
    const TracesEps t =
        Lire("S\nm 0 0\nl 9 9\nm 0 9\nl 9 0\nF\nm 0 0\nl 9 9\nE\nm 0 0\nl 9 9\nR\nm 0 0\nl 9 9\n");
    EXPECT_EQ(t.rapport.lus,
              (std::map<std::string, int>{{"stroke", 2}, {"fill", 1}, {"eofill", 1}, {"rectangle", 1}}));
    EXPECT_GT(t.points.front().CodeSequence, t.points.back().CodeSequence);
    EXPECT_NE(t.points[1].CodeSequence, t.points[2].CodeSequence);
}

TEST(TracesEps, UneCourbeResteAUnCentiemeDeMillimetre) {
    // A quarter of a circle of 720 pt = 254 mm, by the usual control points: off the true circle by less than
    // 0.03 % of the radius, 0.07 mm; the chords may leave it inwards by 0.01 mm more.
    const TracesEps t = Lire("S\nm 720000 0\nc 720000 397645 397645 720000 0 720000\n");
    ASSERT_GT(t.points.size(), 10U);
    double pire = 0;
    for (std::size_t i = 1; i < t.points.size(); ++i) {
        // The middle of a chord against the curve's own points close by, found by bisection of the parameter.
        const double x = (t.points[i - 1].X + t.points[i].X) / 2.0;
        const double y = (t.points[i - 1].Y + t.points[i].Y) / 2.0;
        double meilleur = 1e9;
        for (int k = 0; k <= 20000; ++k) {
            const double u = k / 20000.0;
            const double v = 1 - u;
            const double r = 254;
            const double c = 397645 * 25.4 / 72000;
            const double bx = v * v * v * r + 3 * v * v * u * r + 3 * v * u * u * c;
            const double by = 3 * v * v * u * c + 3 * v * u * u * r + u * u * u * r;
            meilleur = std::min(meilleur, std::hypot(bx - x, by - y));
        }
        pire = std::max(pire, meilleur);
    }
    // The samples of the curve lie 0.02 mm apart: 0.01 mm sideways adds a hair to the distance.
    EXPECT_LE(pire, 0.0145);
    EXPECT_GT(pire, 0.002); // and no ten times finer than asked
}

TEST(TracesEps, LesMorceauxSeCollentOuQuIlsSoientCoupes) {
    const std::string texte =
        "bavardage\nS\nm 0 0\nl 72000 0\nc 1 2 3 4 72000 72000\nh\ni image\n! undefined\n";
    const TracesEps entier = Lire(texte);
    for (std::size_t coupe = 0; coupe <= texte.size(); ++coupe) {
        TracesEps t;
        AvalerTraces(t, std::string_view(texte).substr(0, coupe), "a.eps");
        AvalerTraces(t, std::string_view(texte).substr(coupe), "a.eps");
        TerminerTraces(t);
        EXPECT_EQ(Points(t), Points(entier)) << coupe;
        EXPECT_EQ(t.erreur, "undefined");
    }
}

TEST(TracesEps, CeQuiNEstPasDeNousEstPasse) {
    const TracesEps t = Lire("S\nm 0 0\nm deux\nl 1\nl 72000 0 9\nc 1 2 3\nl 72000 0\n" +
                             std::string(5000, 'l') + "\nl 999999999999 0\nh9\n");
    EXPECT_EQ(Points(t), "0,0 25.4,0");
}

TEST(TracesEps, UneCoordonneeHorsLimitesEstRefusee) {
    EXPECT_THROW(Lire("S\nm 0 0\nl ? 0\n"), FauteLecture);
    EXPECT_EQ(Lire("S\n?\n").rapport.ignores.at("path"), 1);
}

TEST(TracesEps, CeQuiNEstPasUnTraceSeCompte) {
    const TracesEps t = Lire("i text\ni image\ni text\n");
    EXPECT_EQ(t.rapport.ignores, (std::map<std::string, int>{{"text", 2}, {"image", 1}}));
    std::string beaucoup;
    for (int i = 0; i < 1000; ++i) beaucoup += "i " + std::to_string(i) + "\n";
    EXPECT_EQ(Lire(beaucoup).rapport.ignores.size(), 50U);
}
