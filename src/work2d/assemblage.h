// Both ends of the road of a 2D cut: the paths joined into one, and the three parts joined into what the wire
// follows.
#pragma once

#include "work2d/decoupe2d.h"

#include <span>

namespace tessarel {

// All points of all sequences end to end, thinned with `distNettoyage` (mm); bounds computed. Coordinates
// come out with 32-bit precision. The wire travels straight from the last point of a sequence to the first of
// the next.
Sequence AssemblageSequencesTransfPourDecoupe(std::span<const Sequence> TableauSequences,
                                              float distNettoyage);

// Entry, cut path and exit in one list; the vertex that two parts share stands there once. Bounds computed.
Sequence AssemblageSequenceDecoupe(const Sequence& TrajetEntree, const Sequence& SequenceDecalee,
                                   const Sequence& TrajetSortie);

// FauteDepassement when a cut path of `points` vertices is too long; the sentence says how many there are and
// how to thin them.
void VerifierNombrePoints(std::size_t points);

} // namespace tessarel
