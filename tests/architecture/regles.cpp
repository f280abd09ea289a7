// The rules of the house: arrows between folders and what a file may include.
#include "architecture/regles.h"

#include "platform/fichiers.h"

#include <algorithm>
#include <cctype>
#include <set>

namespace tessarel::architecture {
namespace {

bool CommencePar(std::string_view texte, std::string_view debut) {
    return texte.starts_with(debut);
}

// Qt lives in the windows, in the image decoder, and in what starts or tests windows.
bool QtPermis(const std::string& chemin) {
    if (CommencePar(chemin, "src/ui/") || CommencePar(chemin, "src/platform/images/")) return true;
    if (CommencePar(chemin, "src/")) return chemin.find("/ui/") != std::string::npos;
    return CommencePar(chemin, "programs/tessarel/") || CommencePar(chemin, "programs/explications/") ||
           CommencePar(chemin, "tests/fenetres/") || CommencePar(chemin, "bench/bench_fenetre");
}

bool EstQt(std::string_view entete) {
    return CommencePar(entete, "Qt") || (entete.size() > 1 && entete[0] == 'Q' &&
                                         std::isupper(static_cast<unsigned char>(entete[1])) != 0);
}

// <vector>, <cmath>: no folder, no suffix.
bool EstStandard(std::string_view entete) {
    return !entete.empty() && std::islower(static_cast<unsigned char>(entete[0])) != 0 &&
           entete.find_first_of("./") == std::string_view::npos;
}

// The operating system's own headers, which tests need to run programs and to spoil files.
bool EstSysteme(std::string_view entete) {
    static const std::set<std::string_view> connus = {
        "fcntl.h", "poll.h", "signal.h", "spawn.h", "unistd.h", "errno.h", "dirent.h", "stdlib.h", "sched.h"};
    return CommencePar(entete, "sys/") || connus.contains(entete);
}

// Why a header in angle brackets may not be included there; empty when it may.
std::string RefusEtranger(const std::string& chemin, std::string_view entete) {
    if (EstQt(entete)) return QtPermis(chemin) ? "" : "Qt outside windows and the image decoder";
    if (EstStandard(entete) || CommencePar(entete, "fmt/")) return "";
    if (CommencePar(chemin, "src/platform/")) return "";
    // What the batch program says and reads on its own account: words of the command line, one JSON object.
    if (CommencePar(chemin, "programs/tessarel-lot/") &&
        (CommencePar(entete, "CLI/") || CommencePar(entete, "nlohmann/"))) {
        return "";
    }
    if (CommencePar(chemin, "programs/commun/") && CommencePar(entete, "CLI/")) return "";
    if (CommencePar(chemin, "tests/") && (CommencePar(entete, "gtest/") || EstSysteme(entete))) return "";
    // What is known of foreign files is kept as JSON.
    if (CommencePar(chemin, "tests/corpus/") && CommencePar(entete, "nlohmann/")) return "";
    // Other readers of the same files, held against ours.
    if (CommencePar(chemin, "tests/pairs/") && CommencePar(entete, "dxflib/")) return "";
    // Benchmarks measure themselves against the bare library.
    if (CommencePar(chemin, "bench/") &&
        (CommencePar(entete, "benchmark/") || CommencePar(entete, "dxflib/") || EstSysteme(entete))) {
        return "";
    }
    return "foreign header outside src/platform";
}

// Splits "#include <x>" or "#include "x""; false when the line is no include.
bool LireInclusion(std::string_view ligne, char& marque, std::string_view& entete) {
    std::string_view reste = Rogner(ligne);
    if (!CommencePar(reste, "#")) return false;
    reste = Rogner(reste.substr(1));
    if (!CommencePar(reste, "include")) return false;
    reste = Rogner(reste.substr(7));
    if (reste.empty() || (reste[0] != '<' && reste[0] != '"')) return false;
    marque = reste[0];
    const std::size_t fin = reste.find(marque == '<' ? '>' : '"', 1);
    if (fin == std::string_view::npos) return false;
    entete = reste.substr(1, fin - 1);
    return true;
}

// Folder of the table meant by a quoted include, written from src/ or, by a test or a program, from its own
// tree.
std::string DossierInclus(const Fleches& fleches, const std::string& chemin, std::string_view entete) {
    if (entete.find('/') == std::string_view::npos) return DossierDe(fleches, chemin);
    const std::string depuisSrc = DossierDe(fleches, "src/" + std::string(entete));
    for (const char* arbre : {"tests/", "programs/"})
        if (depuisSrc.empty() && CommencePar(chemin, arbre))
            return DossierDe(fleches, arbre + std::string(entete));
    return depuisSrc;
}

std::string RefusMaison(const Fleches& fleches, const std::string& chemin, std::string_view entete) {
    if (entete.ends_with(".moc") && QtPermis(chemin)) return "";
    if (entete.find("..") != std::string_view::npos) return "path with '..'";
    const std::string haut = DossierDe(fleches, chemin);
    const std::string bas = DossierInclus(fleches, chemin, entete);
    if (haut.empty()) return "this folder is not in the table of arrows";
    if (bas.empty()) return "included folder is not in the table of arrows";
    return PeutInclure(fleches, haut, bas) ? ""
                                           : "arrow from " + haut + " to " + bas + " goes up or sideways";
}

} // namespace

const Fleches& FlechesDeLaMaison() {
    static const Fleches fleches = {
        {"platform", {}},
        {"platform/gabar", {"platform"}},
        {"platform/images", {"platform"}},
        {"platform/bibliotheque_zelko", {"platform"}},
        {"app/texts", {"platform"}},
        {"app/settings", {"platform"}},
        {"paths", {"app/settings", "app/texts", "platform/gabar"}},
        {"machine", {"paths"}},
        {"link", {"machine"}},
        {"link/simulateur", {"link"}},
        {"work2d", {"link"}},
        {"design4x", {"machine"}},
        {"cut4x", {"design4x", "link"}},
        {"app/demarrage", {"cut4x"}},
        {"ui", {"app/settings", "app/texts", "platform/images"}},
        {"link/simulateur/ui", {"ui", "link/simulateur"}},
        {"machine/ui", {"ui", "link", "app/demarrage"}},
        {"work2d/ui", {"ui", "work2d", "app/demarrage"}},
        {"app/ui", {"ui", "app/demarrage"}},
        {"programs/tessarel", {"app/ui", "work2d/ui", "machine/ui"}},
        {"programs/commun", {"platform"}},
        {"programs/tessarel-lot", {"programs/commun", "app/demarrage", "work2d", "cut4x", "platform/images"}},
        {"programs/explications", {"machine", "platform/images"}},
        {"programs/zelko-simulateur",
         {"programs/commun", "link/simulateur/ui", "link/simulateur", "app/demarrage", "work2d"}},
        {"tests/outils", {"platform", "platform/gabar"}},
        {"tests/outils_boite", {"tests/outils", "link", "link/simulateur"}},
        {"tests/architecture", {"tests/outils"}},
        {"tests/platform", {"tests/outils", "platform/gabar", "platform/images"}},
        {"tests/app", {"tests/outils", "app/demarrage"}},
        {"tests/paths", {"tests/outils", "paths"}},
        {"tests/machine", {"tests/outils", "machine"}},
        {"tests/link/fausse", {}},
        {"tests/link", {"tests/outils_boite", "tests/link/fausse"}},
        {"tests/work2d", {"tests/outils_boite", "work2d"}},
        {"tests/design4x", {"tests/outils", "design4x"}},
        {"tests/cut4x", {"tests/outils_boite", "cut4x"}},
        {"tests/corpus", {"tests/outils", "paths"}},
        {"tests/pairs", {"tests/outils", "platform/gabar"}},
        {"tests/bout_en_bout", {"tests/outils", "paths"}},
        {"tests/fenetres", {"tests/outils_boite", "app/ui", "work2d/ui", "machine/ui", "link/simulateur/ui"}},
        {"bench", {"work2d", "work2d/ui", "cut4x", "link/simulateur"}},
        {"fuzz", {"work2d", "link/simulateur"}},
    };
    return fleches;
}

bool PeutInclure(const Fleches& fleches, const std::string& haut, const std::string& bas) {
    if (haut == bas) return true;
    const auto ici = fleches.find(haut);
    if (ici == fleches.end()) return false;
    return std::ranges::any_of(
        ici->second, [&](const std::string& dessous) { return PeutInclure(fleches, dessous, bas); });
}

std::string DossierDe(const Fleches& fleches, const std::string& chemin) {
    std::string dossier = CommencePar(chemin, "src/") ? chemin.substr(4) : chemin;
    // The longest folder wins: platform/gabar before platform. A folder that is not named is no part of its
    // parent.
    const std::size_t fin = dossier.rfind('/');
    dossier = fin == std::string::npos ? "" : dossier.substr(0, fin);
    return fleches.contains(dossier) ? dossier : "";
}

std::vector<Entorse> VerifierInclusions(const Fleches& fleches, const std::string& chemin,
                                        std::string_view texte) {
    std::vector<Entorse> entorses;
    long numero = 0;
    for (const std::string_view ligne : Decouper(texte, "\n")) {
        ++numero;
        char marque = 0;
        std::string_view entete;
        if (!LireInclusion(ligne, marque, entete)) continue;
        const std::string refus =
            marque == '<' ? RefusEtranger(chemin, entete) : RefusMaison(fleches, chemin, entete);
        if (!refus.empty()) entorses.push_back({numero, std::string(entete) + ": " + refus});
    }
    return entorses;
}

Fleches FlechesDeCMake(std::string_view texte) {
    std::map<std::string, std::string> dossiers; // by target
    std::map<std::string, std::vector<std::string>> cibles;
    for (std::size_t p = texte.find("tessarel_module("); p != std::string_view::npos;
         p = texte.find("tessarel_module(", p + 1)) {
        const std::size_t debut = p + std::string_view("tessarel_module(").size();
        const std::string_view appel = texte.substr(debut, texte.find(')', debut) - debut);
        std::string nom;
        std::string_view rubrique;
        for (std::size_t i = 0; i < appel.size();) {
            const std::size_t mot = appel.find_first_not_of(" \t\n", i);
            if (mot == std::string_view::npos) break;
            const std::size_t apres = std::min(appel.find_first_of(" \t\n", mot), appel.size());
            const std::string_view valeur = appel.substr(mot, apres - mot);
            i = apres;
            if (nom.empty())
                nom = valeur;
            else if (valeur == "DOSSIER" || valeur == "LIENS" || valeur == "PRIVES")
                rubrique = valeur;
            else if (rubrique == "DOSSIER")
                dossiers[nom] = valeur;
            else
                cibles[nom].emplace_back(valeur);
        }
    }
    Fleches fleches;
    for (const auto& [nom, dossier] : dossiers) {
        std::vector<std::string>& liens = fleches[dossier];
        for (const std::string& cible : cibles[nom]) {
            if (dossiers.contains(cible)) liens.push_back(dossiers[cible]);
        }
    }
    return fleches;
}

} // namespace tessarel::architecture
