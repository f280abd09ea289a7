// How the wire comes from its parking place to the first point of the profiles, how it goes back from the
// last, and where it may leave the block and return in mid-way.
//
// Seen along the wire, types 0 (trailing edge), 1 (from above) and 2 (leading edge) of an entry:
//
//      Yhaut ─ P2 ──────────── P4 ──────────────── P3
//              │         1      │          2        │
//              │              ┌─┼───────────────┐   │
//              A ── B ── C ──►│·▼ first point ·◄┼── P4
//              │       0      └─────────────────┘
//              Parking      Xbf               Xba
#pragma once

#include "cut4x/decoupe4x.h"

namespace tessarel {

// Fills the entry and the exit list of 5 points a side for the path of PaireBloc, `Rapide` set or not for
// the segment that starts at each point. Both lists of PaireBloc have points.
void CalculerEntreesSortiesD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// Puts them around the path: entry 1 to 4, the path, exit 2 to 5. The fifth entry point and the first exit
// point stand for the path's own ends and are not doubled.
void AjouterEntreesSortiesD4X(DecoupeD4X& decoupe);

// One or two moves out of the leading edge, with a stop, and back. A cursor outside the profile counts as its
// nearest point, as a scroll bar would have it.
void AjouterSortiesIntermediaires(const ParametresDecoupe4axes& parametres, DecoupeD4X& decoupe);

// Height at which the wire clears the weights, mm; `limitee` when the travel of the machine is lower.
struct HauteurDegagement {
    float Yhaut = 0;
    bool limitee = false;
};
HauteurDegagement CalculerYhaut(const ContexteD4X& contexte);

} // namespace tessarel
