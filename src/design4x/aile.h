// Tools that place the two profiles against each other: chord, spacing, sweep, dihedral, alignment, exchange.
// Each refreshes the measures; false when nothing changed (after the told box, where there is one).
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Scales a profile (index 0 root, 1 tip) about the origin of its coordinates to the chord `corde`, mm.
// Refused when its chord is 0.
bool txtCorde(ProjetCPX& projet, int index, double corde);

// Spacing of the two planes, mm; refused when not above 0.
bool txtEcartementZ(ProjetCPX& projet, double ecartement);

// Moves the tip along X until its leading edge stands `fleche` mm behind that of the root.
bool txtFleche(ProjetCPX& projet, double fleche);
// The same: index 0 trailing edges aligned, 1 half of the way, 2 leading edges aligned.
bool cmdFleche(ProjetCPX& projet, int index);

// Moves the tip along Y until its foot stands `diedre` mm above that of the root; the block's foot stays
// under the lower of the two.
bool txtDiedreMm(ProjetCPX& projet, double diedre);
// The same: index 0 tops aligned, 1 leading edges, 2 middles, 3 trailing edges, 4 undersides.
bool cmdDiedre(ProjetCPX& projet, int index);
// The same by the angle between the middles, degrees. 0 moves nothing: deliberate, the field is only shown
// anew.
bool txtDiedreDeg(ProjetCPX& projet, double degres);

// Moves the tip so that the mean of its alignment points lands on that of the root's.
bool cmdAligner(ProjetCPX& projet);

// Exchanges root and tip with their margins; the block stays where it is. The point counters return to the
// first points.
bool cmdInverserProfilsES(ProjetCPX& projet);

} // namespace tessarel
