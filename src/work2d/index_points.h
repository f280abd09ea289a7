// Finds the segment, vertex or path under a place: boxes over runs of segments, so that a hundred thousand
// points cost microseconds.
#pragma once

#include "paths/points.h"
#include "platform/dessin.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tessarel {

// Boxes of the sequences it was made from; a change of their points makes it stale. The points themselves are
// not copied: every search is given the same sequences again.
struct IndexPoints {
    static constexpr std::size_t SegmentsParBoite = 32;
    struct Boite {
        float xMin = 0, xMax = 0, yMin = 0, yMax = 0;
    };
    std::vector<Boite> entieres;          // one for each sequence
    std::vector<std::uint32_t> premieres; // place in `boites` of the first one of each sequence
    std::vector<Boite> boites;            // one for each run of segments
};

IndexPoints IndexerPoints(std::span<const Sequence> sequences);

// A place on a segment: that from vertex `segment` to the next one of its sequence, counted from 0.
struct SegmentTouche {
    std::size_t sequence = 0;
    std::size_t segment = 0;
    PointDessin pied;     // nearest place on it
    double distance2 = 0; // squared distance, mm²
};

// A segment is touched when the square of its distance to the pointer, taken with the smaller side of the
// view as the unit, lies below this: a hundredth of that side, at every zoom.
inline constexpr double ToleranceSurvol = 0.0001;
// The reach in mm that follows, for a view whose smaller side shows `coteVue` mm.
double RayonSurvol(double coteVue);

// The segment nearest to (x, y) within `rayon` mm; of several at the same distance the last drawn. A path of
// one point counts as a segment without length. With `seulementSelection` the others are passed over.
std::optional<SegmentTouche> ChercherSegment(const IndexPoints& index, std::span<const Sequence> sequences,
                                             double x, double y, double rayon,
                                             bool seulementSelection = false);

struct SommetTouche {
    std::size_t sequence = 0;
    std::size_t sommet = 0;
    double distance2 = 0;
};
// The vertex nearest to (x, y) within `rayon` mm.
std::optional<SommetTouche> ChercherSommet(const IndexPoints& index, std::span<const Sequence> sequences,
                                           double x, double y, double rayon);

// The paths that lie in a frame: wholly, or with any part of theirs.
std::vector<std::size_t> SequencesDansCadre(const IndexPoints& index, std::span<const Sequence> sequences,
                                            const CadreDessin& cadre, bool entieres);

} // namespace tessarel
