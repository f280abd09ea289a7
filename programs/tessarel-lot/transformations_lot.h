// What a cut from the shell does to its paths before they are placed: mirror, turn, scale, reverse.
#pragma once

#include "paths/points.h"

#include <vector>

namespace CLI {
class App;
}

namespace tessarel::lot {

// Done in this order, each about the box of all paths: the mirror and the turn about its middle, the scale
// about its lower left corner.
struct TransformationsLot {
    int miroir = -1;    // -1 none, 0 left to right, 1 top to bottom
    double tourner = 0; // degrees, counterclockwise
    double largeur = 0; // mm wanted, proportions kept; 0: not asked
    double hauteur = 0; // mm, likewise
    bool inverser = false;
};

void DeclarerTransformations(CLI::App& verbe, TransformationsLot& demande);

// False after the box that says why; the paths are then as they were.
bool TransformerTout(const TransformationsLot& demande, std::vector<Sequence>& sequences);

} // namespace tessarel::lot
