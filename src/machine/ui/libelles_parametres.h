// The words of the parameter window and of the one that asks for a name, and the contents of a memory as
// text.
#pragma once

#include "machine/table_machine.h"
#include "ui/libelles.h"

#include <QString>
#include <span>

namespace tessarel {

std::span<const Libelle> LibellesParametresTables();
std::span<const Libelle> LibellesNouvelleTable();

// What a memory of the interface holds, as a table in rich text; what differs from `table` stands out.
QString TexteContenuMemoire(const TableMachine& memoire, const TableMachine& table);

} // namespace tessarel
