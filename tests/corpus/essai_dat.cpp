// Every profile table of the corpus against its truth.
#include "corpus/verites.h"
#include "platform/erreurs.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// A table of unit chord comes in at a chord of 100 mm.
double FacteurAttendu(const nlohmann::json& verite) {
    const auto& e = verite.at("extents");
    const double largeur = e.at(2).get<double>() - e.at(0).get<double>();
    const double hauteur = e.at(3).get<double>() - e.at(1).get<double>();
    return largeur >= 0.5 && largeur <= 1.5 && hauteur < 1 ? 100 / largeur : 1;
}

} // namespace

TEST(CorpusDat, ChaqueTableDonneSonProfil) {
    const auto fichiers = FichiersDuCorpus("dat");
    if (fichiers.empty()) GTEST_SKIP() << "no corpus here";
    std::string manques;
    for (const FichierCorpus& f : fichiers) {
        const Lecture l = LireCorpus(f, "dat");
        if (const std::string m = JugerIssue(f, l); !m.empty()) manques += m + "\n";
        if (!l.lue || !f.verite.value("sure", false)) continue;
        if (const std::string m = JugerEtendue(f, l.etendue, FacteurAttendu(f.verite)); !m.empty())
            manques += m + "\n";
        // Two surfaces that share their leading edge point lose one of the two.
        const auto attendus = f.verite.at("points").get<std::size_t>();
        const bool deuxSurfaces = f.verite.value("style", "") == "lednicer";
        if (l.points.size() != attendus && !(deuxSurfaces && l.points.size() + 1 == attendus))
            manques += fmt::format("{}: expected {} points, got {}\n", f.nom, attendus, l.points.size());
        if (l.rapport.lus.at("DAT") != 1)
            manques += fmt::format("{}: {} polylines\n", f.nom, l.rapport.lus.at("DAT"));
    }
    EXPECT_EQ(manques, "") << "misses:\n" << manques;
}
