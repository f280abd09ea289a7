// A 4-axis cut from the command line: what is asked beside the options of every cut, and the doing of it.
#pragma once

#include "decoupe_lot.h"

#include <CLI/CLI.hpp>

#include <string>

namespace tessarel::lot {

// Declares the options of a 4-axis cut on the verb.
void DeclarerOptions4axes(CLI::App& verbe, Demande4axes& demande);

// True for a cut that is made on 4 axes: a project of one of the two 4-axis tabs, or the guillotine.
bool EstDecoupe4axes(const DemandeDecoupe& demande);

// Returns an exit status.
int Decouper4axes(const DemandeDecoupe& demande);

} // namespace tessarel::lot
