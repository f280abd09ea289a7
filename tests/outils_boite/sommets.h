// Points of a path for the machine, written short.
#pragma once

#include "paths/points.h"

namespace tessarel::essais {

// `vitesse` (mm/s) is that of the segment that ends here, `rapide` is about the one that starts here.
inline PointProfil Sommet(double x, double y, float vitesse, bool rapide = false) {
    PointProfil p;
    p.X = x;
    p.Y = y;
    p.Vitesse = vitesse;
    p.Rapide = rapide;
    return p;
}

} // namespace tessarel::essais
