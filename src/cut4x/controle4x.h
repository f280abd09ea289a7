// The limit checks of a 4-axis cut: table top, strokes, speeds of the carriages, length of the wire.
#pragma once

#include "cut4x/decoupe4x.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessarel {

// Results of ControlerDecoupeD4X; the wire takes 100 off, or gives -100 by itself.
inline constexpr int ControleBon = 1;
inline constexpr int ControleTropBasOuCourses = -1;
inline constexpr int ControleVitesses = -11;
inline constexpr int ControleFil = -100;

// Box of the points of both sides but for the first and the last, the wire's parking place. It starts from 0
// where a side has fewer than three points.
BornesD4X LimitesSequencesD4X(const PaireD4X& paire);

// A segment that a carriage can't follow: its index from 0.
struct SegmentTropRapide {
    std::size_t indice = 0;
    bool emplanture = false; // carriage 2, the E list
};

// All that the checks find, without a box: what the drawing shows in bold.
struct ConstatD4X {
    bool sousLePlateau = false; // the rest then was not looked at
    bool coursesDepassees = false;
    bool filTropLong = false;
    std::vector<SegmentTropRapide> tropRapides;
};
ConstatD4X ConstaterDecoupeD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe);

// The checks with their one box; changes no state. 1 when all passed. -1 for the table top or strokes alone,
// -11 with a speed fault; 100 less with a wire too long, which by itself is -100. From -100 down the caller
// steps the wire through all points for the user to see.
int ControlerDecoupeD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe);

} // namespace tessarel
