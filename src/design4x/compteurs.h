// Point counters of the design window, and what depends on both profiles having the same number of points.
#pragma once

#include "design4x/projet_cpx.h"

#include <cstdint>
#include <string>

namespace tessarel {

// What the rule for unequal counts leaves live; to be applied after each operation that can change a count.
struct EtatComptes {
    bool chkFil = false;        // the wire from each point to its partner
    bool chkSurface = false;    // the ruled surface
    bool optSelection3 = false; // stop points
    friend bool operator==(const EtatComptes&, const EtatComptes&) = default;
};
EtatComptes RegleComptes(const ProjetCPX& projet);

// The two bars of a profile: up to 1000 points the fine one alone, beyond it the coarse one counts thousands.
// Positions are as shown, from 1 on the fine bar, from 0 on the coarse one.
struct BarresPoints {
    std::int32_t nombre = 0;
    std::int32_t fin = 1;
    std::int32_t grossier = 0;
    [[nodiscard]] bool GrossierActif() const;
    [[nodiscard]] std::int32_t GrossierMax() const;
    // Depends on the coarse position: at its maximum the remainder, 1000 elsewhere. A whole number of
    // thousands leaves 0 there: the bar then has one position, which shows the last point.
    [[nodiscard]] std::int32_t FinMax() const;
    // The point shown, from 1; 0 when there is none.
    [[nodiscard]] std::int32_t Point() const;
};

// Both positions on the first point.
BarresPoints NouvellesBarres(std::int32_t nombre);
// Positions that show `point`, from 1, kept within the points.
BarresPoints BarresSurPoint(std::int32_t nombre, std::int32_t point);

// InitialiserScrollbarsSuivantNbPoints for the record: both counters on the first point.
void InitialiserScrollbarsSuivantNbPoints(ProjetCPX& projet);
// Puts a counter (index 0 root, 1 tip) on `point`, from 1; the other follows when the counts are equal.
// False, and nothing changed, when there is no such point.
bool PlacerCompteur(ProjetCPX& projet, int index, std::int32_t point);

// lblNumPtE and lblCoordPtE (index 0), or those of the tip: "12" and "104.25 : 30.5"; empty without points.
struct TextesCompteur {
    std::string lblNumPt;
    std::string lblCoordPt;
};
TextesCompteur TextesDuCompteur(const ProjetCPX& projet, int index);

} // namespace tessarel
