// A cut on the machine from a terminal: the bar of the run, Ctrl-C as the Stop button, and the exit status.
#pragma once

#include "work2d/decoupe2d.h"

#include <string>

namespace tessarel::lot {

// Looks for the library and the box, and asks for what a cut needs of them. False after a box.
bool MachinePrete();

// Runs the cut; returns an exit status. After a stop prints where the wire stands.
int CouperSurMachine(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                     const std::string& nomMatiere);

} // namespace tessarel::lot
