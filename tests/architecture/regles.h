// The rules of the house as routines over the text of one file: arrows between folders, foreign includes,
// words that have no place here, length, opening sentence. Each gives the breaches found, none when all is
// well.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel::architecture {

// One breach: line from 1 (0 where the whole file is meant) and what is wrong.
struct Entorse {
    long ligne = 0;
    std::string raison;
};

// A folder and the folders that stand directly below it. What those stand on is below it too.
using Fleches = std::map<std::string, std::vector<std::string>>;

// The one table of the house: folders of src/ without that prefix, then programs/, tests/, bench/, fuzz/.
const Fleches& FlechesDeLaMaison();

// True when `haut` may include a header of `bas`: itself, or what is reached by going down the arrows.
bool PeutInclure(const Fleches& fleches, const std::string& haut, const std::string& bas);

// Folder of the table that holds a path from the repository's root; empty when none does.
std::string DossierDe(const Fleches& fleches, const std::string& chemin);

// Longest file allowed, in lines.
inline constexpr long LignesMax = 600;

// `chemin` is the file's path from the repository's root, with '/'.
std::vector<Entorse> VerifierInclusions(const Fleches& fleches, const std::string& chemin,
                                        std::string_view texte);
std::vector<Entorse> VerifierMots(std::string_view texte);
std::vector<Entorse> VerifierLongueur(std::string_view texte);
std::vector<Entorse> VerifierPhraseOuvrante(std::string_view texte);

// The arrows that a CMake file declares with tessarel_module(): folder and the folders it links, by target.
Fleches FlechesDeCMake(std::string_view texte);

} // namespace tessarel::architecture
