// The key list that the two kinds of wing files share; they differ in what parts a key from its value.
#pragma once

#include "paths/aile_importee.h"

#include <string>

namespace tessarel {

// The two sections.
inline constexpr const char* SectionEmplanture = "Emplanture";
inline constexpr const char* SectionSaumon = "Saumon";

// FauteLecture saying that points were expected in one of them.
[[noreturn]] void RefuserSansSection(const std::string& chemin, long ligne);

// Reads the list. `separateur` stands between key and value: ';' or '='.
AileImportee LireListeAile(const std::string& texte, char separateur, const std::string& chemin);

// Lengths from inches to mm.
void ConvertirPouces(AileImportee& aile);

// The sequences of a wing that was read from `chemin`, as LireCPX2TS2D gives them.
std::vector<Sequence> SequencesDepuisAile(AileImportee aile, const std::string& chemin,
                                          RapportLecture* rapport);

} // namespace tessarel
