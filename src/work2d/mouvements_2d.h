// What the user moves and heats by hand in 2D: homing, the way back to the rest position, the storage
// position, and the wire's heat outside a cut.
#pragma once

#include "link/recherche_origine.h"
#include "work2d/decoupe_interface.h"

namespace tessarel {

enum class FinProcedure {
    Faite,
    Declinee, // the user said no
    Refusee,  // no interface, another table, switches, or a machine that can't; told by its box
    Annulee,  // stopped; told
    Echouee   // a switch opened, the switches didn't close, the box is gone; told
};

// Homing and from the switches to the origin. Asks nothing.
FinProcedure MiseAOrigine(const TableMachine& table, AxesOrigine axes, const SuiviMarche& suivi);

// Back to the rest position, after the checks of the link and the user's Yes.
FinProcedure RetourOrigine(const SuiviMarche& suivi);
// The same, and on to RangementSuivantX and Y at the rapid speed.
FinProcedure RangerLePortique(const SuiviMarche& suivi);

// One move of the arrows: `mm` by Axe, at a speed of the panel. False when the speed was refused. What
// stopped it is told.
bool DeplacerManuellement(const TableMachine& table, const std::array<double, 4>& mm, float vitesse,
                          const SuiviMarche& suivi);

// Before the wire heats outside a cut: the box's own switch may stand on MANU, and then the user is asked.
// False when the heat must stay off. The caller lets TempoChauffe pass before it shows the heat as reached.
bool ChauffeManuellePermise();
// P 1 at `chauffe` percent until the box echoes it. False where it does not go out or was given up.
bool AllumerChauffeManuelle(float chauffe, const SuiviMarche& suivi);

} // namespace tessarel
