// The search for the origin: to the switches, out of them, and from there to the origin.
#pragma once

#include "link/mouvements.h"

#include <cstdint>

namespace tessarel {

enum class AxesOrigine { X, Y, XetY };

enum class FinOrigine {
    Trouvee,
    SansInterrupteurs, // the machine has none that are active: nothing moved; the box was shown
    Annulee,           // by the user or by the STOP button; the box was shown
    FinDeCourse,       // the limit loop opened; the box was shown
    EncoreOuverts,     // three tries did not close the loop; the box was shown
    MarcheImpossible   // moves are not enabled, the box is gone or stands without a reason; the box was shown
};

// Brings the wire to its switches and just out of them, at VitesseDecoupeParDefaut, the heat untouched.
// Afterwards the box is in normal mode again. FauteDepassement where the machine's ratios give no step count.
//
// All origin switches share one loop, so an open loop does not say whose it is. X and Y are therefore sought
// one after the other, Y first; the two ends of the wire travel together, or it would be torn. The first
// switch stops both; then each end in turn backs off in small steps until the loop closes: that end is done.
// An end whose switch was not the one travels again.
// `rangeeAnnulation` is the row of TextesDoubles that tells of a stop.
inline constexpr int RangeeOrigineAnnulee = 25;
FinOrigine RechercheOrigine(const TableMachine& table, AxesOrigine axes, const SuiviMarche& suivi,
                            int rangeeAnnulation = RangeeOrigineAnnulee);

// From the switches to the origin: PasToOrigine of each axis in `axes`, away from the switch.
ResultatMouvement AllerDesInterrupteursALOrigine(const TableMachine& table, AxesOrigine axes,
                                                 const SuiviMarche& suivi);

// Box of a run that ended in a way that is neither the user's nor the machine's told doing: given up,
// without a reason, or never begun because moves are not enabled. True when one was shown.
bool AnnoncerMarcheAnormale(FinMarche fin);

} // namespace tessarel
