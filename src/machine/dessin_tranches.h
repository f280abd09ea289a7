// The slice test as a picture: the foam seen from its side, the wire and its path, the slices cut so far, the
// dimensions. Not to scale: a pass is long and a slice thin.
#pragma once

#include "machine/tranches.h"
#include "platform/dessin.h"

#include <span>
#include <vector>

namespace tessarel {

struct VueTranches {
    DimensionsTranches Dimensions = {};
    std::vector<std::size_t> Mouvements; // made so far, numbers of the buttons
    double Fraction = 1;                 // how much of the last one, 0 to 1
    bool Sombre = false;
};

// Where the wire is after these moves, in mm of the picture.
PointDessin FilSurLImage(std::span<const std::size_t> mouvements, double fraction);
CadreDessin CadreTranches();
Dessin DessinerTranches(const VueTranches& vue);

} // namespace tessarel
