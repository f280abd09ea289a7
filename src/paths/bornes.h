// The box of points that no sequence holds.
#pragma once

#include "paths/points.h"

#include <span>

namespace tessarel {

// What CalculerBornesSequence fills in, on a sequence without points.
Sequence BornesDesPoints(std::span<const PointProfil> points);

} // namespace tessarel
