// Thinning of points and crossing of segments: the two routines that cut, import and design lean on.
#pragma once

#include "paths/points.h"

#include <cstdint>
#include <vector>

namespace tessarel {

// Thins in place by the sliding window with the tolerance `distNettoyage` (mm), in 32-bit floats; returns the
// number of points kept. At most three points come back as they are.
std::int32_t ReductionPointsAlignes(std::vector<PointSimple>& points, float distNettoyage);

// Scratch bit of `Drapeaux` that marks a kept point.
inline constexpr std::uint16_t DrapeauConserve = 128;

// The same walk on 64-bit coordinates: sets the scratch bit on the points that would be kept, removes
// nothing.
void MarquerPointsConserves(std::vector<PointProfil>& points, float tolerance);

// Results of IntersectionSegments. A is (x0,y0)-(x1,y1), B is (x2,y2)-(x3,y3).
enum class Croisement : std::int16_t {
    Parallele = 0,    // or a segment of no length; the outputs are left as they were
    Propre = 1,       // inside both
    HorsSegments = 2, // the point lies outside one of them
    DebutA = 3,
    FinA = 4,
    DebutB = 5,
    FinB = 6,
};

Croisement IntersectionSegments(float x0, float y0, float x1, float y1, float x2, float y2, float x3,
                                float y3, float& x, float& y);

} // namespace tessarel
