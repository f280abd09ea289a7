// The design tool that shifts runs of selected points sideways.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Shifts each run of selected points by `distance` mm to the right of the walk, to the left when negative, on
// both profiles. False after the stop box when two points of a run are nearly the same: runs before it are
// shifted all the same, since each is checked when its turn comes. Refreshes the measures.
bool txtDecaler(ProjetCPX& projet, double distance);

} // namespace tessarel
