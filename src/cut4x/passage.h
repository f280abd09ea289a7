// The passage from the design tab to the cut: whether the project can be cut, and the sentence that says why
// not.
#pragma once

#include "design4x/projet_cpx.h"
#include "machine/table_machine.h"

#include <string>

namespace tessarel {

// `raison` is what lblDecoupeImpossible shows, with `titre` where it is told as a box; both are empty when
// the label is hidden: a cut that is possible, or no project at all.
struct PassageD4X {
    bool DecoupePossible = false;
    std::string raison;
    std::string titre;
};

// `projetOuvert`: ProjetOuvert4X. The window opens in any case; this decides what it can do.
PassageD4X PasserEnDecoupe(const ProjetCPX& projet, bool projetOuvert, const TableMachine& table);

// False, after its box, for a machine with its origin at the top, which the 4-axis cut can't drive.
bool MachineAcceptee4axes(const TableMachine& table);

} // namespace tessarel
