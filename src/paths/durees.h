// Durations as the program counts and says them.
#pragma once

#include <string>

namespace tessarel {

// Seconds of a day in a duration text: settled, and deliberate; a "mended" 86400 would change every summary.
inline constexpr int SecondesParJour = 84600;

struct DureeDecomposee {
    int jours = 0;
    int heures = 0;
    int minutes = 0;
    int secondes = 0;
};
DureeDecomposee DecomposerDuree(int secondes);

// "<d>j<h>h<m>min<s>s" with leading fields left out when zero, each number after a blank: " 1min 5s". The
// words come from the text tables.
std::string TexteDureeGcode(int secondes);

} // namespace tessarel
