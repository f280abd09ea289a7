// The deeds of the workshop on the paths of a project: transform, duplicate, delete, cut in two, insert a
// point. All compute the bounds of what they changed; none draws and none keeps a state.
#pragma once

#include "paths/points.h"
#include "work2d/transformations.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tessarel {

// On the points of the selected paths only; how many there were.
std::size_t TransformerSelection(std::span<Sequence> sequences, const Transformation& transformation);

// A copy of a path stands this far from it on both axes.
inline constexpr double EcartCopie = 30; // mm

// Appends a copy of each selected path; the copies are then what is selected. How many there are.
std::size_t DupliquerSelection(std::vector<Sequence>& sequences);

// Removes the selected paths; how many there were.
std::size_t SupprimerSelection(std::vector<Sequence>& sequences);

// Cuts a path in two at a vertex (from 0), which both halves keep; the second stands right after the first.
// False after the told box on its first or last vertex, or where there is no such vertex; nothing is changed
// then.
bool CouperSequence(std::vector<Sequence>& sequences, std::size_t rang, std::size_t sommet);

// Puts a vertex at `ou` between vertex `segment` (from 0) and the next. False, and nothing is done, where
// there is no such segment or one of its ends stands there already.
bool InsererPoint(Sequence& sequence, std::size_t segment, PointDessin ou);

// What is read of a file, before it is taken in: all paths turned over from left to right, or run the other
// way.
void MiroirFichierSource(std::span<Sequence> sequences);
void InverserSensSequences(std::span<Sequence> sequences);

} // namespace tessarel
