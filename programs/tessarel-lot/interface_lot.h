// The interface box as the batch program meets it: looked for, its memories read and held against the
// machine.
#pragma once

#include "app/demarrage/etat_splash.h"

#include <string>
#include <vector>

namespace tessarel::lot {

// Looks for the library and the box, as the desktop program does at its start; the machine is TableINI. Where
// a memory agrees it is loaded, and moves are enabled. A library that is missing is told on standard error.
EtatSplash ChercherInterface();
// After it: false also for a box that was left running.
bool MemoiresLues();

// What differs between a machine and a memory of the box, one line each, as "Zelko.x=1  <>  TableINI.x=2
// NOK"; empty when the two agree.
std::vector<std::string> DifferencesAvecMemoire(const TableMachine& table, const TableMachine& memoire);

} // namespace tessarel::lot
