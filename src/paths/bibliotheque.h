// The library: the user's folders and files below one root, as the trees of the windows show them, and copies
// into it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessarel {

// One folder of the library. Names are sorted as folder listings show them: letters of either case together.
struct DossierBibliotheque {
    std::string nom;    // last part of the path
    std::string chemin; // full path, no separator at its end
    std::vector<DossierBibliotheque> dossiers;
    std::vector<std::string> fichiers; // names, of the nine kinds only
};

struct ContenuBibliotheque {
    DossierBibliotheque racine;
    std::size_t fichiers = 0; // in all folders
    std::size_t dossiers = 0; // below the root
    bool complet = true;      // false: a limit was reached, what lies beyond is not shown
};

// Deeper folders and further entries are left out: a tree that no one can use, most often a link to a whole
// disk.
inline constexpr int ProfondeurMaxBibliotheque = 32;
inline constexpr std::size_t EntreesMaxBibliotheque = 100000;

// True for the nine extensions, in any case of letters.
bool EstFichierBibliotheque(const std::string& nom);

// All folders below `racine`, empty ones included, with their files. Hidden ones, and what is no regular
// file, are left out. A linked folder is entered once, and not at all when it leads back into the library. A
// folder that can't be read is there, empty; so is a root that is not there.
ContenuBibliotheque LireBibliotheque(const std::string& racine);

// Copies each file into `dossier` under its own name, in the place of one that is there; a file that is there
// already, itself, stays. Each copy is made in one step. Gives one sentence for each file that could not be
// copied; the others are copied all the same.
std::vector<std::string> CopierDansBibliotheque(const std::vector<std::string>& chemins,
                                                const std::string& dossier);

} // namespace tessarel
