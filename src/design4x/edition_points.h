// Tools that add, remove or reorder points of the profiles. Each refreshes the measures and keeps the point
// counters within the points that are left; the rule for unequal counts is RegleComptes. False: nothing
// changed (after the told box, where there is one).
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Removes the selected points of both sides; refused when a side would keep fewer than two.
bool cmdSupprimer(ProjetCPX& projet);

// Puts a point in the middle of each segment whose two ends are selected.
bool cmdInsererPoint(ProjetCPX& projet);

// Reverses the order of the points within each run of selected points; with nothing selected, of all points.
bool cmdInverserSelection(ProjetCPX& projet);

// Closes a profile by a copy of its first point: index 0 the root, 1 the tip. Refused when it is closed.
bool cmdFermerProfil(ProjetCPX& projet, int index);

// Makes the selected points of each profile start at its point counter. A closed profile is opened before and
// closed again after; a profile with fewer than four selected points, or whose counter stands at its first
// point or at a point that is not selected, stays. With nothing selected, all points.
bool cmdRenumeroter(ProjetCPX& projet);

// Keeps the point counters within the points.
void LimiterCompteurs(ProjetCPX& projet);

} // namespace tessarel
