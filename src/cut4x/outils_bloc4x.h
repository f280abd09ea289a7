// The two cuts that follow no profile: squaring the block, and the guillotine.
#pragma once

#include "cut4x/decoupe4x.h"

namespace tessarel {

// Replaces PaireBloc by the six points a side that trim both ends of the block, and its top too with
// chkSurfacer. The block stands as PlacerProfilsSurBloc left it.
void CalculerDressageD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// Replaces PaireBloc by a straight cut up to the told height, the same on both sides, with a stop at its end;
// `zE` and `zS` are the planes of the two lists. Deliberate: an angle of 0 is not guarded, and its endless
// tangent is refused by the check of the strokes.
void CalculerGuillotineD4X(const ContexteD4X& contexte, double zE, double zS, DecoupeD4X& decoupe);

} // namespace tessarel
