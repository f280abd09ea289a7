// Machine and material of a run, chosen by name for this run alone.
#pragma once

#include "machine/matieres.h"

#include <string>
#include <vector>

namespace tessarel::lot {

// The machines that can be named: the built-in ones, then those of the settings file in its order.
std::vector<std::string> NomsDesMachines();
// Makes the machine current, with its materials, without touching the settings; an empty name keeps the
// current one. False after a box.
bool ChoisirMachine(const std::string& nom);
// Name of a material as it is shown: the default one has the language's word for it.
std::string NomAffiche(const Matiere& matiere);
// Makes a material of the current machine current; an empty name keeps the current one. False after a box.
bool ChoisirMatiereNommee(const std::string& nom);

} // namespace tessarel::lot
