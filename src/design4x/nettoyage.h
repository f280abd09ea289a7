// Cleaning of the profiles: double and aligned points go, on each side by itself or in corresponding pairs.
#pragma once

#include "design4x/projet_cpx.h"

namespace tessarel {

// Tolerance of the synchronous cleaning, mm; independent of DistNettoyage.
inline constexpr float ToleranceNettoyageSynchrone = 0.025F;

// Thins each profile by itself with the tolerance `distNettoyage`, mm; counts may become unequal. Only
// coordinates are written back, through 32 bits: flags stay in their slots and so come to sit on other
// points. Deliberate: projects made so far rely on where their marks end up. Measures are not refreshed.
void NettoyageTotal(ProjetCPX& projet, float distNettoyage);

// Drops the pairs of points that neither side needs, so that the others still correspond. False, after a box
// and with nothing changed, when the counts differ. The scratch bit is clear on every point kept. Measures
// are not refreshed.
bool NettoyageSynchrone(ProjetCPX& projet);

// The command: with equal counts it asks whether the pairs are to be kept. Refreshes the measures; the caller
// takes the undo snapshots, one before and one after.
void cmdNettoyage(ProjetCPX& projet, float distNettoyage);

} // namespace tessarel
