// Marks on the points: selection modes, setting and clearing flags, and the box around what is selected.
//
// Every routine that changes flags refreshes the measures, since the chord and the alignment means rest on
// flags. Those that return bool tell whether they did something; the caller then takes the undo snapshot.
#pragma once

#include "design4x/projet_cpx.h"

#include <array>
#include <cstdint>

namespace tessarel {

// Flags of the modes optSelection(0) to optSelection(4); the chord mode, DrapeauCorde, is that of
// chkSelectionPointsCordes.
inline constexpr std::array<std::uint16_t, 5> ModesSelection = {
    DrapeauOutil, DrapeauAlignement, DrapeauSynchro, DrapeauArret, DrapeauSansDecalage};

// Whether a number is one of the six values of ModeSelection.
bool EstModeSelection(int valeur);

// Which buttons are live in a mode.
struct BoutonsSelection {
    bool cmdAligner = false;
    bool cmdSynchroOptimale = false;
    // cmdSelectAll, cmdSelectionAuto and cmdSelectionAngle: stop points are set one by one.
    bool selectionAutomatique = true;
    friend bool operator==(const BoutonsSelection&, const BoutonsSelection&) = default;
};
BoutonsSelection BoutonsDuMode(std::uint16_t mode);

// Extents of the points of one profile that carry a flag; zeros when there is none.
struct BoiteProfil {
    double Xmin = 0;
    double Xmax = 0;
    double Ymin = 0;
    double Ymax = 0;
    std::int32_t Nombre = 0;
    [[nodiscard]] bool Presente() const { return Nombre > 0; }
    friend bool operator==(const BoiteProfil&, const BoiteProfil&) = default;
};

// With DrapeauOutil the two `Nombre` are NbSelE and NbSelS.
struct BoiteSelectionCPX {
    BoiteProfil E;
    BoiteProfil S;
};
BoiteSelectionCPX BoiteSelection(const ProjetCPX& projet, std::uint16_t drapeau);

inline bool Porte(const PointProfil& point, std::uint16_t drapeau) {
    return (point.Drapeaux & drapeau) == drapeau;
}

// Sets or removes the flag of `mode` on all points of a profile: index 0 the root, 1 the tip. Setting does
// nothing in the stop mode; clearing then acts on both profiles whatever the index.
bool cmdSelectAll(ProjetCPX& projet, int index, std::uint16_t mode);
bool cmdRAZSelection(ProjetCPX& projet, int index, std::uint16_t mode);

// Sets the flag on the two points of extreme X (index 0 tip, 1 root) or of extreme Y (2 tip, 3 root).
bool cmdSelectionAuto(ProjetCPX& projet, int index, std::uint16_t mode);

// Sets the flag on the points where the path turns by more than 30 degrees: index 0 the tip, 1 the root.
bool cmdSelectionAngle(ProjetCPX& projet, int index, std::uint16_t mode);

} // namespace tessarel
