// Paths that a drawing holds twice: the wire would cut them twice.
#pragma once

#include "paths/points.h"

#include <cstddef>
#include <span>

namespace tessarel {

// How many sequences repeat an earlier one, vertex by vertex, walked in the same direction or in the other:
// an outline that is both filled and stroked comes so. Sequences of fewer than two vertices don't count.
// Linear in the vertices.
std::size_t CompterDoublons(std::span<const Sequence> sequences);

} // namespace tessarel
