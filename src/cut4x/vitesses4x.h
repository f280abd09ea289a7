// From the two block faces to the two carriages: the wire extended, and a speed and a duration per segment.
//
//  Z  0        ZSaumon        ZSaumon + W      EcartementY1Y2
//     P1 ───────── S ═══════════════ E ────────────── P2        the wire, a straight line
//  carriage 1        block of width W            carriage 2
#pragma once

#include "cut4x/decoupe4x.h"

namespace tessarel {

// From PaireBloc to PaireChariots, both in one pass. The longer side of a segment runs at its nominal speed,
// and both share one duration. Rapid segments are brought down to VmaxAvecAccXY on each carriage by itself,
// so that their two durations can differ. FauteProcedureD4X when the block has no width or the cutting speed
// is 0.
void CalculerVitessesEtChariotsD4X(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// Ends of the wire at the planes of the carriages, for a wire through e and s, `w` mm apart.
struct ProjectionFil {
    double versChariot2 = 0; // (EcartementY1Y2 - ZSaumon)
    double versChariot1 = 0; // (ZSaumon + w)
    double w = 0;
    [[nodiscard]] double Chariot2(double s, double e) const { return s + (e - s) * versChariot2 / w; }
    [[nodiscard]] double Chariot1(double s, double e) const { return e + (s - e) * versChariot1 / w; }
};
ProjectionFil ProjectionDuFil(const TableMachine& table, float ZSaumon, float ecartement);

} // namespace tessarel
