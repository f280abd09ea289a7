// Every DXF of the corpus against what other readers found in it.
#include "corpus/verites.h"

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <iostream>
#include <map>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Millimetres in the units that occur in the corpus.
double MmParUnite(const nlohmann::json& verite) {
    static const std::map<std::string, double> unites = {{"1", 25.4}, {"6", 1000.0}};
    const auto brut = verite.find("raw");
    if (brut == verite.end() || !brut->contains("insunits") || brut->at("insunits").is_null()) return 1;
    const auto it = unites.find(brut->at("insunits").get<std::string>());
    return it == unites.end() ? 1 : it->second;
}

// Curve entities that the truth does not count: 3DLINE, the line with a height of the oldest versions, cuts
// as any line does.
int TracesHorsVerite(const RapportLecture& rapport) {
    const auto it = rapport.lus.find("3DLINE");
    return it == rapport.lus.end() ? 0 : it->second;
}

int TracesLus(const RapportLecture& rapport) {
    int n = 0;
    for (const auto& [genre, compte] : rapport.lus) n += compte;
    return n;
}

} // namespace

TEST(CorpusDxf, ChaqueFichierDonneCeQueLesAutresLecteursYTrouvent) {
    const auto fichiers = FichiersDuCorpus("dxf");
    if (fichiers.empty()) GTEST_SKIP() << "no corpus here";
    std::string manques;
    for (const FichierCorpus& f : fichiers) {
        const Lecture l = LireCorpus(f, "dxf");
        if (const std::string m = JugerIssue(f, l); !m.empty()) manques += m + "\n";
        if (!l.lue || !f.verite.value("sure", false)) continue;
        const int hors = TracesHorsVerite(l.rapport);
        const int attendus = f.verite.value("paths", 0);
        if (TracesLus(l.rapport) - hors != attendus)
            manques += fmt::format("{}: expected {} paths before joining, got {}\n", f.nom, attendus,
                                   TracesLus(l.rapport) - hors);
        if (hors > 0) continue; // wider than the truth, rightly
        if (const std::string m = JugerEtendue(f, l.etendue, MmParUnite(f.verite)); !m.empty())
            manques += m + "\n";
    }
    EXPECT_EQ(manques, "") << "misses:\n" << manques;
}

TEST(CorpusDxf, ChaqueRefusDitPourquoi) {
    const auto fichiers = FichiersDuCorpus("dxf");
    if (fichiers.empty()) GTEST_SKIP() << "no corpus here";
    for (const FichierCorpus& f : fichiers) {
        const Lecture l = LireCorpus(f, "dxf");
        if (l.lue) continue;
        EXPECT_TRUE(l.refus.starts_with(f.chemin)) << l.refus;
        EXPECT_EQ(l.points.size(), 1U) << f.nom;
    }
}
