// Copy, cut and paste of selected points, on both profiles at once. Each refreshes the measures; false when
// nothing changed.
#pragma once

#include "design4x/projet_cpx.h"

#include <vector>

namespace tessarel {

// What was copied: whole records, of each side.
struct PressePapiersCPX {
    std::vector<PointProfil> CopieE;
    std::vector<PointProfil> CopieS;
    bool CouperEnCours = false; // the copy leaves the selection, for the cut that follows
};

// Takes the selected points; they are no longer selected afterwards, unless they are being cut.
bool cmdCopier(ProjetCPX& projet, PressePapiersCPX& copie);

// Copies, then removes the selected points with the limits of cmdSupprimer.
bool cmdCouper(ProjetCPX& projet, PressePapiersCPX& copie);

// After each selected point of a side (else, after a box, after its last point) puts the points copied from
// that side, moved so that the first of them lands on it. They come in selected. The caller takes one undo
// snapshot before and one after.
bool cmdColler(ProjetCPX& projet, const PressePapiersCPX& copie);

} // namespace tessarel
