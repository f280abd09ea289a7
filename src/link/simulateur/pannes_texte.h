// Faults of the virtual box as a user writes them: "reponse-perdue:echange=12:fois=3".
#pragma once

#include "link/simulateur/pannes.h"

#include <string>
#include <string_view>

namespace tessarel::simulateur {

// Name of the fault as in the log, then its settings, parted by ':', in any order:
//   echange=N  salve=N  tick=N  commande=L (a letter)  fois=N  retard=MS  retablie-echanges=N  retablie-ms=MS
// FauteConversion with what is wrong and what was expected.
PanneProgrammee LirePanne(std::string_view texte);

// All names, parted by ", ".
std::string NomsDesPannes();

} // namespace tessarel::simulateur
