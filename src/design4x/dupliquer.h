// Two wings from one design.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Index 0: the points of both profiles twice, one after the other at the same place. Index 1: a second pair
// below the first in one block, `ecartementAiles` mm of foam between them (0 is replaced by 1 after a box).
// The wire enters and leaves each outline by a run of 4 mm:
//
//      A---P1 ... Pn---A     A stands 4 mm before P1 at its height; B the same for the copy.
//      B---Q1 ... Qn---B     The way from A to B lies outside both outlines, and is selected.
//
// The copies are not selected. The dihedral is kept. Refreshes the measures; false without points.
bool cmdDupliquer(ProjetCPX& projet, int index, double ecartementAiles);

} // namespace tessarel
