// The virtual box with its window, from the first event to the last.
#pragma once

#include "link/simulateur/poste_virtuel.h"
#include "link/simulateur/vues_machine.h"

namespace tessarel::simulateur {

// True where a window can be shown: a display, or a window system that needs none, is named.
bool EcranPresent();

// Plugs the box in, tells `pret` its sentence, shows the window and serves until it is closed or the program
// is asked to end. `mousse` gives the foam that lies on the table of a machine at first. What went wrong on
// the way is told in the window's log. Faults of the start are thrown.
int MontrerSimulateur(OptionsPoste options, int& argc, char** argv,
                      const std::function<void(const std::string& phrase)>& pret,
                      const std::function<BlocMousse(const std::string& machine)>& mousse);

} // namespace tessarel::simulateur
