// A machine record as the virtual box keeps it: what a program stores in a memory, and the mechanics around
// it.
#pragma once

#include "link/simulateur/boite.h"
#include "machine/table_machine.h"

namespace tessarel::simulateur {

// The three parts that a save of this machine leaves in a memory; FauteDepassement where it does not fit.
MemoireBoite MemoireDeMachine(const TableMachine& table);

Mecanique MecaniqueDeMachine(const TableMachine& table);

} // namespace tessarel::simulateur
