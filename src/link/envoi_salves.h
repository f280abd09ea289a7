// The list of a cut sent to the box: the wire is cold, and confirmed so, however the run ends.
#pragma once

#include "link/liste_salves.h"
#include "link/marche.h"

namespace tessarel {

struct ResultatEnvoi {
    ResultatMarche marche;
    // The box confirmed it, and its switch does not leave the wire to the knob. Where false, a box told that
    // the wire may be hot.
    bool chauffeCoupee = false;
};

// Streams a list and follows it to its end. Both cutting modes drive it: it checks no switches and shows no
// result. Afterwards the heat is off: P 0 until the box confirms; before it B 0 where nothing had moved yet.
// A fault that an event handler throws goes on to the caller once the wire is stopped and cold.
ResultatEnvoi EnvoyerSalves(const TableauSalves& salves, const SuiviMarche& suivi);

// Asks the box before a cut. True when the machine has no switches, or all are closed; else after the box of
// row 30 (the table in RAM has none active) or 45 (one is open).
bool InterrupteursPermettentLaDecoupe(const TableMachine& table);

} // namespace tessarel
