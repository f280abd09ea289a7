// Every text the user reads, but for a few fixed literals: tables filled at start-up from one of two language
// sets that are built alike, row for row.
#pragma once

#include <cstddef>
#include <string>

namespace tessarel {

enum class Langue { Francais, English };

// "English" gives the English set, any other value the French one.
Langue LangueDepuisTexte(const std::string& valeur);

// Fills all tables from the set of a language. Before the first call the tables hold the French set.
void ChargerMessages(Langue langue);
Langue LangueCourante();

// Rows count from 1. A row that is not assigned is empty; so is one out of range.
inline constexpr std::size_t RangeesMessages = 255;
inline constexpr std::size_t RangeesDoubles = 64;
inline constexpr std::size_t RangeesEtats = 64;
const std::string& TextesMessages(int rangee);
const std::string& TitresMessages(int rangee);
const std::string& TextesDoubles(int rangee, int colonne); // colonne 1: text, 2: title
const std::string& TextesEtats(int rangee);

// Rows of TextesEtats: what a run is doing.
enum RangeeEtat : int {
    EtatPret = 1,
    EtatOrigine = 2,
    EtatChauffe = 3,
    EtatDecoupe = 4,
    EtatArrete = 5,
    EtatRetour = 6,
    EtatTermine = 7,
    EtatAnnule = 8,
    EtatPointArret = 9,
    EtatMouvement = 10,
    EtatNettoyage = 11,
    EtatRangement = 12,
    EtatExport = 13,
    EtatSimulation = 14,
};

} // namespace tessarel
