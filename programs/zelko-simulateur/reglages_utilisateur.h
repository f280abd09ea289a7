// What the virtual box takes from the user's settings: the language, and the machines he has described.
// Nothing is made there and nothing changed.
#pragma once

#include "app/texts/textes.h"
#include "machine/table_machine.h"

#include <string>

namespace tessarel::simulateur {

Langue LangueDesReglages(const std::string& documents);
// Lets MachineConnue look into the settings file, where there is one.
void OuvrirReglages(const std::string& documents);
// A machine of the program or of the settings by its name, or by the first 8 characters of it that a memory
// holds. False when there is none.
bool MachineConnue(const std::string& nom, TableMachine& table);

} // namespace tessarel::simulateur
