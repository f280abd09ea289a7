// What the 2D window frames: the paths of the project, as far as the table reaches.
#pragma once

#include "machine/table_machine.h"
#include "paths/points.h"
#include "platform/dessin.h"

#include <span>

namespace tessarel {

// The framing of all paths, mm; the whole table where there is no point.
struct ZoneVisible {
    float ZoneVisibleXMin = 0;
    float ZoneVisibleXMax = 0;
    float ZoneVisibleYMin = 0;
    float ZoneVisibleYMax = 0;
    friend bool operator==(const ZoneVisible&, const ZoneVisible&) = default;
};
ZoneVisible CalculerZoneVisible(std::span<const Sequence> sequences, const TableMachine& table);

// What a zoom on the paths shows: the framing, its low ends not below 0, its high ends not past the table. A
// framing wholly beside the table is shown as it is; a side under CoteMiniZoom is widened about its middle.
inline constexpr double CoteMiniZoom = 5; // mm: a single point has no side of its own
CadreDessin CadreToutVoir(const ZoneVisible& zone, const TableMachine& table);

} // namespace tessarel
