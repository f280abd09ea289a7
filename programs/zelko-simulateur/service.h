// The virtual box at work, with its window or without.
#pragma once

#include "arguments.h"

namespace tessarel::simulateur {

// Both serve until the program is asked to end, and give its exit status. Faults of the start are thrown.
int ServirSansFenetre(const Arguments& arguments);
// In a build without windows, and without a display, this says so and refuses.
int ServirAvecFenetre(const Arguments& arguments, int& argc, char** argv);

// The line by which a script knows that the box is there.
void DirePret(const std::string& phrase);
void Avertir(const std::string& texte);

} // namespace tessarel::simulateur
