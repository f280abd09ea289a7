// Length and direction of a segment of a profile, as all of the 4-axis cut measures them.
#pragma once

#include "paths/points.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

inline constexpr double PiD4X = 3.14159265358979;
inline constexpr double DeuxPiD4X = 6.28318530717958;

// Length in the XY plane, mm, held in 32 bits like every length; the distance along the wire does not enter.
inline float LongueurSegment(const PointProfil& p, const PointProfil& q) {
    const double dx = q.X - p.X;
    const double dy = q.Y - p.Y;
    return EnSimple(std::sqrt(dx * dx + dy * dy));
}

// Direction from (x1, y1) to (x2, y2), 0 to 2π, in 32 bits; the two must differ.
inline float DirectionVecteur(double x1, double y1, double x2, double y2) {
    const float dx = EnSimple(x2 - x1);
    const float dy = EnSimple(y2 - y1);
    float angle = 0;
    if (dx == 0) {
        angle = EnSimple(dy < 0 ? -PiD4X / 2 : PiD4X / 2);
    } else {
        const double pente = std::atan(static_cast<double>(dy) / dx);
        if (dx > 0)
            angle = EnSimple(pente);
        else
            angle = EnSimple(dy >= 0 ? pente + PiD4X : pente - PiD4X);
    }
    return angle < 0 ? EnSimple(angle + DeuxPiD4X) : angle;
}

} // namespace tessarel
