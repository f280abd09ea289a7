// Two profiles of any point counts made to correspond point for point.
//
// A wire that moves on both sides at once needs the k-th point of the root to be reached with the k-th of the
// tip. The points flagged DrapeauSynchro cut both profiles into the same number of sections; inside a section
// both sides are walked at the same fraction of its length, and where one side has a vertex the other gets a
// point on its segment:
//
//      root   o------------o---------------------o      vertices of both sides are kept,
//             |            |         |           |      nothing is resampled
//      tip    o----------------------o-----------o
//
// Lengths, and the coordinates of the points put in, are held in 32 bits.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

enum class EtatSynchro {
    Faite,
    ProfilsAbsents,  // neither side has a point
    MarquesInegales, // different numbers of synchronisation points
    PointsConfondus, // a section without length, or whose two sides don't end together
};

// The synchronisation itself, without a word: ends are marked, then both profiles are replaced whole or, on
// refusal, stay as they were but for the end marks. Points put in have no flag; no point keeps more than X, Y
// and its flags (the planes follow from Ecartement). Measures are not refreshed. Linear in the points made,
// and the memory for them is taken at once.
EtatSynchro SynchroniserProfils(ProjetCPX& projet);

// The command: asks for a synchronous cleaning afterwards, sets the selection mode to synchronisation points,
// synchronises, refreshes the measures and tells the outcome in a box. True when the profiles were changed;
// the caller then refreshes the view and takes the undo snapshot.
bool cmdSynchroOptimale(ProjetCPX& projet);

} // namespace tessarel
