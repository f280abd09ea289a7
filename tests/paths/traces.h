// Paths of the tests, by their vertices.
#pragma once

#include "paths/points.h"

#include <utility>
#include <vector>

namespace tessarel::essais {

inline Sequence Trace(const std::vector<std::pair<double, double>>& sommets) {
    Sequence s;
    for (const auto& [x, y] : sommets) {
        PointProfil p;
        p.X = x;
        p.Y = y;
        s.Points.push_back(p);
    }
    return s;
}

} // namespace tessarel::essais
