// Which paths are selected in the 2D window, the box around them, and what a place on the table means to the
// hand: a handle, the inside, the ring that turns, or nothing.
#pragma once

#include "paths/points.h"
#include "platform/dessin.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace tessarel {

inline bool EstSelectionnee(const Sequence& sequence) {
    return (sequence.Selection & SelectionSequence) != 0;
}

std::size_t CompterSelections(std::span<const Sequence> sequences);

// The box around the selected paths as a Sequence without points; all zeros when none that has points is
// selected. Their own boxes must be valid.
Sequence CalculerBoiteSelection(std::span<const Sequence> sequences);

// What a click does: alone it selects the one path, with Shift it adds it, with Ctrl it adds or takes away.
enum class ModeSelection { Seule, Ajouter, Basculer };

// `rangs` are places in `sequences`; an empty list with Seule deselects all. True when something changed.
bool Selectionner(std::span<Sequence> sequences, std::span<const std::size_t> rangs, ModeSelection mode);
bool ToutSelectionner(std::span<Sequence> sequences, bool choisir);

// What lies under the pointer on the transform box.
enum class ZoneBoite { Dehors, Dedans, Poignee, Rotation };
struct SurvolBoite {
    ZoneBoite zone = ZoneBoite::Dehors;
    std::string_view HandleCourant; // "HG" and so on, "" outside handles
    friend bool operator==(const SurvolBoite&, const SurvolBoite&) = default;
};

// Distances of the box in pixels, the same at every zoom.
inline constexpr double RetraitBoite = 10;    // the drawn box stands off the paths by that much
inline constexpr double RayonPoignee = 8;     // of a handle's catch
inline constexpr double LargeurRotation = 30; // of the ring outside the handles that turns

// The box as drawn: enlarged by the stand-off. `echelle` is in pixels per mm.
Sequence BoiteAffichee(const Sequence& BoiteSelection, double echelle);
// The handles that the drawn box has room for: all eight, or the corners of a small one; those of an axis
// without extent are left out.
std::vector<std::string_view> PoigneesMontrees(const Sequence& BoiteSelection, double echelle);
SurvolBoite SurvolerBoite(const Sequence& BoiteSelection, PointDessin souris, double echelle);

// Name of the end of a segment that is nearest to a place: A left or B right, C high or D low. The end that
// comes first is A of a vertical one and C of a level one.
std::string_view CoinSegment(PointDessin debut, PointDessin fin, PointDessin souris);

} // namespace tessarel
