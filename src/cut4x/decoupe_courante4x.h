// The cut of the program, as the windows of the two 4-axis tabs share it.
#pragma once

#include "cut4x/decoupe4x.h"

#include <string>

namespace tessarel {

// One per program; its parameters are ParametresD4X.
extern DecoupeD4X DecoupeCouranteD4X;

// The passage to the cut tab: sets DecoupePossible and gives the sentence of lblDecoupeImpossible, empty when
// that is hidden. `projetOuvert`: ProjetOuvert4X.
std::string ArriverEnDecoupe(const ProjetCPX& projet, bool projetOuvert);

// Computes the cut of the design with the parameters, the material and the machine in force. Does nothing
// unless the current mode is "D4X".
void CalculerDecoupeD4X(const ProjetCPX& projet);

} // namespace tessarel
