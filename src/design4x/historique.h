// The undo store of the design: whole projects, 40 deep, sharing the points that did not change.
//
// Entries hold the points of a profile as an array that nobody changes any more. A push takes over the arrays
// of the entry before where the points are the same, so that 40 states of a project whose tip alone is worked
// on hold its root once:
//
//      entries     1      2      3            PositionUndo is the entry that is shown, from 1; those
//      root        o------o------o            above it are the redo states, which the next push drops.
//      tip         o      o      o
#pragma once

#include "design4x/projet_cpx.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace tessarel {

inline constexpr std::size_t ProfondeurUndo = 40;

// One state: the project without its points, and the points.
struct EntreeUndo {
    ProjetCPX reste;
    std::shared_ptr<const std::vector<PointProfil>> PointsE;
    std::shared_ptr<const std::vector<PointProfil>> PointsS;
};

struct HistoriqueCPX {
    std::vector<EntreeUndo> entrees;
    float PositionUndo = 0;   // held, and compared, in 32 bits: deliberate, whole numbers all the same
    bool cmdUndoCPX0 = false; // undo is live
    bool cmdUndoCPX1 = false; // redo is live
};

// Pushes a copy of the project, which comes back as it was. The caller has put the point counters and the
// display options into it.
void MemoPourUndo(HistoriqueCPX& historique, ProjetCPX& projet);

// Index 0 goes one state back, 1 one forward, and copies it over `projet`. False when there is none.
bool cmdUndoCPX(HistoriqueCPX& historique, ProjetCPX& projet, int index);

// Copies the state that is shown over `projet`, whatever was done to it since. False when there is none.
bool RevenirEtatUndo(const HistoriqueCPX& historique, ProjetCPX& projet);

} // namespace tessarel
