// A run of a verb: settings and machine loaded as the desktop program does, boxes on standard error, faults
// shown.
#pragma once

#include "app/texts/textes.h"
#include "arguments.h"

#include <string>

namespace tessarel::lot {

// Language of the settings file under `documents` (empty: the user's own), French where there is none.
// Creates nothing.
Langue LangueDesReglages(const std::string& documents);

// Starts up, does the verb's work and returns the exit status.
int Executer(const Commande& commande);

} // namespace tessarel::lot
