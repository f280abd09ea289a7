// One state of the 2D work as undo keeps it: how it is taken up beside the one before, and given back.
#pragma once

#include "work2d/placement.h"
#include "work2d/points_memorises.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <unordered_set>
#include <vector>

namespace tessarel {

// What undo gives back: the paths, and the block that they are placed in. Each table is shared with the state
// before where it is the same there; a state of which nothing was taken up has none.
struct EtatTransformations {
    std::shared_ptr<const PointsMemorises> points;
    std::shared_ptr<const std::vector<std::uint32_t>> longueurs; // points of each path
    std::shared_ptr<const std::vector<std::uint8_t>> selections;
    // Boxes of the paths, where one is not what CalculerBornesSequence makes of its points.
    std::shared_ptr<const std::vector<Sequence>> bornes;
    Bloc bloc;
    float coeffTransf = 1;
};

// Takes a state up. `avant`: the one before, null for none; `derniere`: what made the new one of it, as the
// deed says. Nothing is trusted, every point that is shared has been compared bit by bit:
//   - a path as it stood before, also at another place in the list, is shared;
//   - a path that the transformation made of the one at its place is held as that, and so is one behind the
//     last, if the transformation made it of a selected path: a copy;
//   - a path that begins or ends as one at its place, where a point was inserted or removed, or one cut in
//     two, shares its beginning and its end;
//   - what is left is held anew.
EtatTransformations PrendreEtat(const EtatTransformations* avant,
                                const std::optional<Transformation>& derniere,
                                std::span<const Sequence> sequences, Bloc bloc, float coeffTransf);

// The state into the paths, in the room they have.
void RendreEtat(const EtatTransformations& etat, std::vector<Sequence>& sequences, Bloc& bloc,
                float& coeffTransf);

// True when these are the paths of the state, whatever is selected, and its block.
bool MemesTraces(const EtatTransformations& etat, std::span<const Sequence> sequences, Bloc bloc);

// Bytes of a state that `vus` has not counted yet; what it shares is added to `vus`.
std::size_t MemoireEtat(const EtatTransformations& etat, std::unordered_set<const void*>& vus);

} // namespace tessarel
