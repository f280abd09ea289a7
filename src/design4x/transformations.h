// Tools that move the selected points without changing their number: each profile by itself, with its own
// centre and extents. Each refreshes the measures; false when nothing was selected, and nothing changed.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Adds `valeur` (mm) to X (axe 0) or Y (axe 1).
bool txtDeplacer(ProjetCPX& projet, int axe, double valeur);

// Stretches by `pourcent` along X (axe 0) or Y (axe 1), about the middle of the selection's box.
bool txtEtirer(ProjetCPX& projet, int axe, double pourcent);

// Turns by `degres` about the middle of the selection's box.
bool txtTourner(ProjetCPX& projet, double degres);

// Mirrors within the selection's box: index 0 over and under, 1 left and right. With nothing selected on
// either side, all points.
bool cmdSymetrie(ProjetCPX& projet, int index);

} // namespace tessarel
