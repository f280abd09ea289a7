// The crossing of two selected segments as a new point of the profile.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

enum class IssueIntersection {
    RienChoisi, // no selected point on either profile
    Refusee,    // no point put in; a box has told why
    Faite,      // a point was put in, on one profile at least
};

// On each profile with selected points: the four of them, consecutive in pairs, make two segments, and their
// crossing is put into the second, or into the first where it falls on an end of the second. Nothing is moved
// or removed. A refusal on one side is told in a box and leaves that side as it was; the other is treated all
// the same. Refreshes the measures; the caller takes the undo snapshots, one before and one after.
IssueIntersection cmdIntersection(ProjetCPX& projet);

} // namespace tessarel
