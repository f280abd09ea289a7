// The machines built into the program; the settings file is never asked for them.
#pragma once

#include "machine/table_machine.h"

#include <string>
#include <vector>

namespace tessarel {

// Their names, also those that TableauNomsMachines leaves out.
const std::vector<std::string>& NomsMachinesIntegrees();
// Fills `table` when the name is a reserved one; false otherwise, the table untouched. What a column leaves
// open keeps the value that `table` had.
bool LireMachineIntegree(const std::string& nom, TableMachine& table);

} // namespace tessarel
