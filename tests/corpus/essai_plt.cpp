// Every plotter file of the corpus against what other readers found in it.
#include "corpus/verites.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fmt/format.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

constexpr double MmParUnite = 0.025;

// The truth takes this one for something else than HPGL because it doesn't know BL and PB, which buffer a
// label and write it: they are instructions like any others, and the stroke of 75 mm beside them is there to
// be cut. The two other "polylines" of the truth are dots, which carry its extents down to 125 mm.
constexpr const char* EtiquettesTampon = "plt/hp2xx__cp.plt";

// The truth counts strokes, edges and dots, not the outlines of filled areas.
int TraitsLus(const RapportLecture& rapport) {
    const auto points = rapport.ignores.find("PD");
    int n = points == rapport.ignores.end() ? 0 : points->second;
    for (const auto& [genre, compte] : rapport.lus)
        if (genre != "FP") n += compte;
    return n;
}

// The same figures for a drawing that the sheet shows turned: the truth gives it as it was before.
std::string JugerTaille(const FichierCorpus& f, const Etendue& e, int quarts) {
    const auto& attendu = f.verite.at("extents");
    double largeur = (attendu.at(2).get<double>() - attendu.at(0).get<double>()) * MmParUnite;
    double hauteur = (attendu.at(3).get<double>() - attendu.at(1).get<double>()) * MmParUnite;
    if (quarts % 2 == 1) std::swap(largeur, hauteur);
    if (std::abs(e.XMax - e.XMin - largeur) <= 0.02 && std::abs(e.YMax - e.YMin - hauteur) <= 0.02) return "";
    return fmt::format("{}: size expected {} x {}, got {} x {}", f.nom, largeur, hauteur, e.XMax - e.XMin,
                       e.YMax - e.YMin);
}

} // namespace

TEST(CorpusPlt, ChaqueFichierDonneCeQueLesAutresLecteursYTrouvent) {
    const auto fichiers = FichiersDuCorpus("plt");
    if (fichiers.empty()) GTEST_SKIP() << "no corpus here";
    std::string manques;
    for (const FichierCorpus& f : fichiers) {
        const Lecture l = LireCorpus(f, "plt");
        if (f.nom == EtiquettesTampon) {
            EXPECT_TRUE(l.lue) << l.refus;
            EXPECT_EQ(TraitsLus(l.rapport), 3);
            EXPECT_EQ(l.etendue.XMin, 25);
            EXPECT_EQ(l.etendue.XMax, 100);
            EXPECT_EQ(l.etendue.YMin, 175);
            EXPECT_EQ(l.etendue.YMax, 175);
            continue;
        }
        if (const std::string m = JugerIssue(f, l); !m.empty()) manques += m + "\n";
        if (!l.lue) continue;
        // Also where the truth is unsure: its doubt is about the frame of SC without IP, and ours is the
        // same.
        const int quarts = f.verite.at("rotated").get<int>() / 90;
        const std::string e =
            quarts == 0 ? JugerEtendue(f, l.etendue, MmParUnite) : JugerTaille(f, l.etendue, quarts);
        if (!e.empty()) manques += e + "\n";
        const int attendus = f.verite.at("polylines").get<int>();
        if (TraitsLus(l.rapport) != attendus)
            manques += fmt::format("{}: expected {} polylines before joining, got {}\n", f.nom, attendus,
                                   TraitsLus(l.rapport));
    }
    EXPECT_EQ(manques, "") << "misses:\n" << manques;
}

TEST(CorpusPlt, ChaqueRefusDitPourquoi) {
    for (const FichierCorpus& f : FichiersDuCorpus("plt")) {
        const Lecture l = LireCorpus(f, "plt");
        if (l.lue) continue;
        EXPECT_TRUE(l.refus.starts_with(f.chemin)) << l.refus;
        EXPECT_EQ(l.points.size(), 1U) << f.nom;
    }
}
