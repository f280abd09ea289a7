// The speeds of a cut and the durations that follow from them.
#pragma once

#include "paths/points.h"

#include <optional>
#include <span>
#include <vector>

namespace tessarel {

// Sets `Vitesse` of each vertex: that of the segment that ends there, rapid when the vertex before says so,
// else the cutting speed (mm/s).
void AppliquerVitesses(Sequence& SequenceDecoupe, float vitesseDecoupe, float vitesseRapide);

// Below this speed (mm/s) a cut is refused.
inline constexpr double VitesseMinimale = 0.05;

// Seconds of the segment that ends at each vertex, 0 at the first. The first segment is timed from (0, 0),
// wherever the machine has its origin. Nothing when a segment runs below VitesseMinimale.
std::optional<std::vector<float>> ChronometrerSegments(const Sequence& SequenceDecoupe, float vitesseDecoupe,
                                                       float vitesseRapide);

// Whole seconds of a cut: the heating, then each segment, rounded (halves to even) at each addition.
// Deliberate: a segment under half a second adds nothing, as in every file that users know.
int DureeTotale(std::span<const float> durees, int tempoChauffe);

} // namespace tessarel
