// Every EPS of the corpus against what an independent run of its program painted.
#include "corpus/verites.h"
#include "platform/gabar/traces_eps.h"
#include "platform/processus.h"

#include <gtest/gtest.h>

#include <fmt/format.h>

using namespace tessarel;
using namespace tessarel::essais;

TEST(CorpusEps, ChaqueFichierDonneSesTracesPeints) {
    const auto fichiers = FichiersDuCorpus("eps");
    if (fichiers.empty()) GTEST_SKIP() << "no corpus here";
    if (TrouverProgramme("gs").empty()) GTEST_SKIP() << "no Ghostscript here";
    std::string manques;
    for (const FichierCorpus& f : fichiers) {
        const Lecture l = LireCorpus(f, "eps");
        if (const std::string m = JugerIssue(f, l); !m.empty()) manques += m + "\n";
        if (!l.lue || !f.verite.value("sure", false)) continue;
        if (const std::string m = JugerEtendue(f, l.etendue, MmParPoint); !m.empty()) manques += m + "\n";
        int traces = 0;
        for (const auto& [operateur, compte] : l.rapport.lus) traces += compte;
        if (traces != f.verite.at("subpaths").get<int>())
            manques += fmt::format("{}: expected {} subpaths, got {}\n", f.nom,
                                   f.verite.at("subpaths").get<int>(), traces);
    }
    EXPECT_EQ(manques, "") << "misses:\n" << manques;
}
