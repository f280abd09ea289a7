// Smoothing of the selected stretches of the profiles.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Rounds every segment whose two points carry the tool selection, on both profiles: the points of a curve
// through the four points around it (LissageSequence), thinned with `distNettoyage` (mm), are put in between,
// without flags. The profile's own points stay. Counts may become unequal. Refreshes the measures; the caller
// takes the undo snapshots, one before and one after. Linear in the points made.
void cmdLisser(ProjetCPX& projet, float distNettoyage);

} // namespace tessarel
