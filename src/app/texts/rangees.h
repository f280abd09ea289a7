// The numbered rows as they are written down: French and English side by side, in files by ranges of rows.
#pragma once

#include <array>
#include <span>

namespace tessarel {

// One row of a table. UTF-8; lines of a text are separated by CR LF. An empty title shows only its text.
struct RangeeTexte {
    int rangee; // from 1
    const char* texteFrancais;
    const char* titreFrancais;
    const char* texteEnglish;
    const char* titreEnglish;
};

// A file for each range; a row stands in one of them only. To change or add a row: in the file of its range,
// both languages at once.
std::span<const RangeeTexte> Messages001a060();
std::span<const RangeeTexte> Messages061a120();
std::span<const RangeeTexte> Messages121a190();
std::span<const RangeeTexte> Messages191a255();
std::span<const RangeeTexte> Doubles01a64();
std::span<const RangeeTexte> RangeesDesEtats();

inline std::array<std::span<const RangeeTexte>, 4> PlagesMessages() {
    return {Messages001a060(), Messages061a120(), Messages121a190(), Messages191a255()};
}

} // namespace tessarel
