// What the mouse does to points on the picture of the design.
#pragma once

#include "design4x/projet_cpx.h"
#include "design4x/vue_cpx.h"

namespace tessarel {

// How near to a point a click must be, pixels.
inline constexpr double TolerancePointage = 12;

// The point nearest to a place on the picture, among the profiles that are shown.
struct PointVise {
    int index = 0;            // 0 root, 1 tip
    std::int32_t indice = -1; // in its profile; -1: none within the tolerance
    [[nodiscard]] bool Trouve() const { return indice >= 0; }
};
PointVise PointLePlusProche(const VueCPX& vue, PointEcran lieu);

// Left click: toggles the flag of `mode` on the nearest point. False when there is none.
bool BasculerPoint(ProjetCPX& projet, const VueCPX& vue, PointEcran lieu, std::uint16_t mode);
// Left drag: toggles it on all points shown inside the frame. False when there is none.
bool BasculerCadre(ProjetCPX& projet, const VueCPX& vue, PointEcran a, PointEcran b, std::uint16_t mode);
// A click in the counters: toggles it on the point of a counter, index 0 the root's, 1 the tip's.
bool BasculerPointCourant(ProjetCPX& projet, int index, std::uint16_t mode);

// Ctrl + drag by (dx, dy) pixels: moves the selected points. False after a box in another mode than that of
// the tools and outside the side view, and silently without a selection.
bool DeplacerALaSouris(ProjetCPX& projet, const VueCPX& vue, double dx, double dy, std::uint16_t mode);

} // namespace tessarel
