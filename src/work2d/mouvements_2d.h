// What the user moves and heats by hand in 2D: homing, the way back to the rest position, the storage
// position, and what is asked before the wire is lit outside a cut.
#pragma once

#include "link/recherche_origine.h"
#include "work2d/decoupe_interface.h"

#include <array>
#include <functional>

namespace tessarel {

enum class FinProcedure {
    Faite,
    Declinee,          // the user said no
    Refusee,           // no interface, another table, switches, or a machine that can't; told by its box
    OuvrirParametrage, // refused as well, and the user wants the machine's parameters
    Annulee,           // stopped; told, but for an arrow
    Echouee            // a switch opened, the switches didn't close, the box is gone; told
};

// Switches the wire off where a hand has lit it; true when it is cold for certain. Empty: it was never lit.
// A procedure calls it before it asks anything: its boxes wait for an answer, and a wire that stands goes on
// melting, unwatched.
using RefroidirManuel = std::function<bool()>;

// Homing and from the switches to the origin. Asks nothing.
FinProcedure MiseAOrigine(const TableMachine& table, AxesOrigine axes, const SuiviMarche& suivi);

// Back to the rest position, after the checks of the link and the user's Yes.
FinProcedure RetourOrigine(const SuiviMarche& suivi, const RefroidirManuel& refroidir = {});
// The same, and on to RangementSuivantX and Y at the rapid speed.
FinProcedure RangerLePortique(const SuiviMarche& suivi, const RefroidirManuel& refroidir = {});
// The origin of one direction, X or Y, both ends of the wire together; the other direction is not moved. Asks
// the switches before the user: the search would stop at once on one that is open.
FinProcedure OrigineDUnAxe(AxesOrigine axe, const SuiviMarche& suivi, const RefroidirManuel& refroidir = {});

// One move of the arrows: `mm` by Axe, at a speed of the panel. Annulee is the arrow that was let go, or
// Stop, where the box had no reason of its own to stand still in the same instant. At any other end that is
// not its own the wire is switched off before the box of it is shown.
FinProcedure DeplacerManuellement(const TableMachine& table, const std::array<double, 4>& mm, float vitesse,
                                  const SuiviMarche& suivi, const RefroidirManuel& refroidir = {});

// Before the wire heats outside a cut. The box's ON/OFF switch on OFF refuses, for it would be shown hot and
// stay cold; PC/MANU on MANU asks the user. False when the heat must stay off, told.
bool ChauffeManuellePermise();

} // namespace tessarel
