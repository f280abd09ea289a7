// The whole repository against the rules of the house: every include, every tracked text, every source file.
#include "architecture/regles.h"

#include "platform/fichiers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

using namespace tessarel;
using namespace tessarel::architecture;

namespace {

const std::string RACINE = TESSAREL_RACINE;

std::string SortieDeGit(const std::string& arguments) {
    std::string sortie;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> tube(
        ::popen(("git -C '" + RACINE + "' " + arguments + " 2>/dev/null").c_str(), "r"), ::pclose);
    char bloc[4096];
    while (tube) {
        const std::size_t lus = std::fread(bloc, 1, sizeof bloc, tube.get());
        if (lus == 0) break;
        sortie.append(bloc, lus);
    }
    return sortie;
}

// In a copy without history everything counts but what a build leaves behind.
std::vector<std::string> FichiersDuDossier() {
    std::vector<std::string> fichiers;
    for (auto it = std::filesystem::recursive_directory_iterator(RACINE);
         it != std::filesystem::recursive_directory_iterator(); ++it) {
        const std::string nom = it->path().filename().string();
        if (it->is_directory() && (nom == ".git" || nom == "build" || nom == ".cache")) {
            it.disable_recursion_pending();
        } else if (it->is_regular_file()) {
            fichiers.push_back(std::filesystem::relative(it->path(), RACINE).generic_string());
        }
    }
    return fichiers;
}

// Paths from the root, of tracked files that are there.
const std::vector<std::string>& FichiersSuivis() {
    static const std::vector<std::string> suivis = [] {
        std::vector<std::string> fichiers;
        const std::string sortie = SortieDeGit("ls-files -z");
        for (const std::string_view chemin : Decouper(sortie, std::string_view("\0", 1))) {
            if (!chemin.empty() && FichierExiste(RACINE + "/" + std::string(chemin)))
                fichiers.emplace_back(chemin);
        }
        return fichiers.empty() ? FichiersDuDossier() : fichiers;
    }();
    return suivis;
}

bool EstSource(const std::string& chemin) {
    const std::string extension = ExtensionMinuscule(chemin);
    const bool dossier =
        std::ranges::any_of(std::vector<std::string>{"src/", "programs/", "tests/", "bench/", "fuzz/"},
                            [&](const std::string& d) { return chemin.starts_with(d); });
    return dossier && (extension == "h" || extension == "cpp");
}

std::string LireSuivi(const std::string& chemin) {
    return LireFichierEntier(RACINE + "/" + chemin);
}

void Signaler(const std::string& chemin, const std::vector<Entorse>& entorses) {
    for (const Entorse& e : entorses) ADD_FAILURE() << chemin << ":" << e.ligne << ": " << e.raison;
}

} // namespace

TEST(Architecture, LesFichiersSuivisSontTrouves) {
    const auto& suivis = FichiersSuivis();
    EXPECT_GT(std::ranges::count_if(suivis, EstSource), 40);
    EXPECT_NE(std::ranges::find(suivis, "src/CMakeLists.txt"), suivis.end());
    EXPECT_NE(std::ranges::find(suivis, "src/app/texts/textes.h"), suivis.end());
}

TEST(Architecture, LesInclusionsDescendent) {
    for (const std::string& chemin : FichiersSuivis()) {
        if (EstSource(chemin))
            Signaler(chemin, VerifierInclusions(FlechesDeLaMaison(), chemin, LireSuivi(chemin)));
    }
}

TEST(Architecture, LaConstructionALesMemesFleches) {
    const Fleches declarees = FlechesDeCMake(LireSuivi("src/CMakeLists.txt"));
    EXPECT_GE(declarees.size(), 13U);
    for (const auto& [haut, liens] : declarees) {
        EXPECT_TRUE(FlechesDeLaMaison().contains(haut)) << haut;
        for (const std::string& bas : liens) {
            EXPECT_TRUE(PeutInclure(FlechesDeLaMaison(), haut, bas)) << haut << " links " << bas;
        }
    }
    for (const auto& [haut, liens] : FlechesDeLaMaison()) {
        if (!declarees.contains(haut)) continue;
        for (const std::string& bas : liens) {
            EXPECT_TRUE(PeutInclure(declarees, haut, bas)) << haut << " does not link " << bas;
        }
    }
}

TEST(Architecture, AucuneFlecheNeTourneEnRond) {
    for (const auto& [haut, liens] : FlechesDeCMake(LireSuivi("src/CMakeLists.txt"))) {
        for (const std::string& bas : liens) {
            EXPECT_FALSE(PeutInclure(FlechesDeLaMaison(), bas, haut)) << haut << " <-> " << bas;
        }
    }
}

TEST(Architecture, AucunMotInterdit) {
    for (const std::string& chemin : FichiersSuivis()) {
        Signaler(chemin, VerifierMots(chemin));
        const std::string texte = LireSuivi(chemin);
        if (texte.find('\0') == std::string::npos) Signaler(chemin, VerifierMots(texte));
    }
}

TEST(Architecture, AucuneSourceTropLongue) {
    for (const std::string& chemin : FichiersSuivis()) {
        if (EstSource(chemin)) Signaler(chemin, VerifierLongueur(LireSuivi(chemin)));
    }
}

TEST(Architecture, ChaqueSourceSOuvreParUnePhrase) {
    for (const std::string& chemin : FichiersSuivis()) {
        if (EstSource(chemin)) Signaler(chemin, VerifierPhraseOuvrante(LireSuivi(chemin)));
    }
}
