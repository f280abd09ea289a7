// What the readers promise of all that they read, whatever the bytes.
#pragma once

#include "paths/aile_importee.h"
#include "paths/import.h"
#include "platform/gabar/assemblage.h"
#include "platform/nombres.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

namespace tessarel::fuzz {

// A drawing has points, none beyond the greatest coordinate, and the codes of its polylines descend.
inline void VerifierDessin(const std::vector<PointSimple>& points, const RapportLecture& rapport) {
    if (points.empty() || rapport.lus.empty()) std::abort();
    for (const PointSimple& p : points)
        if (!(std::abs(p.X) <= EnSimple(CoordonneeMax) && std::abs(p.Y) <= EnSimple(CoordonneeMax)))
            std::abort();
    const bool plusieurs = points.front().CodeSequence != points.back().CodeSequence;
    if (plusieurs && points.front().CodeSequence < points.back().CodeSequence) std::abort();
}

inline void VerifierPoints(const Sequence& sequence) {
    for (const PointProfil& p : sequence.Points)
        if (!std::isfinite(p.X) || !std::isfinite(p.Y)) std::abort();
}

// A wing has a path for each end that has points, and keeps them on the way through the flat array.
inline void VerifierAile(const AileImportee& aile, const std::string& extension) {
    const auto sequences = SequencesAile(aile);
    const std::size_t bouts =
        (aile.Emplanture.Points.empty() ? 0U : 1U) + (aile.Saumon.Points.empty() ? 0U : 1U);
    if (sequences.size() != bouts) std::abort();
    for (const Sequence& s : sequences) VerifierPoints(s);
    if (sequences.empty()) return;
    if (CreerSequencesDepuisPoints(PointsDepuisSequences(sequences), extension, 0.02F).size() != bouts)
        std::abort();
}

} // namespace tessarel::fuzz
