// Spars and profiles inserted into the wire's path at a place of each profile, and the mode in which it is
// done.
//
//   round spar from below          square spar from below           exit to the right
//        . - .                        3-------2                      place
//      /       \                      |   c   |                        o-----------o
//     |    c    |   c: centre,        4--0.6--1                        7           1
//      \       /    DimLong(1) from       | |
//        0 - n      the place            place o 7
//         | |
//        place
//
// The run starts and ends by links between the place and the slot; their points carry DrapeauSansDecalage, so
// that the kerf does not widen them, and so does the place itself. All its points are selected.
#pragma once

#include "design4x/historique.h"
#include "design4x/projet_cpx.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tessarel {

enum class TypeTrajet : std::int16_t {
    RondParLeBas = 0,
    RondParLeHaut = 1,
    CarreParLeBas = 2,
    CarreParLeHaut = 3,
    SortieADroite = 4,
    ProfilFichier = 5,
};

// mm. Round spar: radius, distance of the centre from the place. Square spar: width, distance of the centre,
// height. Exit: distance. Whatever is not named for a type is not used by it.
using DimensionsLongeron = std::array<float, 3>;

// How many of the dimensions a type uses.
int NombreDimensions(TypeTrajet type);

// A dimension of 0 becomes 1, after the box; those that the type does not use stay.
void RemplacerZeros(TypeTrajet type, DimensionsLongeron& dimensions);

// The run to be put after the place `lieu`; the last point is the place again. None for ProfilFichier.
std::vector<PointProfil> GenererTrajet(TypeTrajet type, const DimensionsLongeron& dimensions,
                                       const PointProfil& lieu);

// Index of the selected point of a profile (the first, if there are more), else of its last point; -1 in a
// profile without points.
std::int32_t PointInsertion(const ProfilCPX& profil);

// Puts the trajectory after the place of each profile: as many points on one side as on the other. The box of
// a profile without a selected point comes first. Refreshes the measures; false without points, or for
// ProfilFichier.
bool InsererLongeron(ProjetCPX& projet, TypeTrajet type, DimensionsLongeron dimensions);

// The same with points of a file, the same for both sides, moved so that the first stands where the place is;
// it is the place itself that stays, since two points at one place would stop the cut.
bool InsererProfil(ProjetCPX& projet, const std::vector<PointProfil>& profil);

// The insertion mode: what was there when it was entered.
struct ModeInsertion {
    bool actif = false;
    HistoriqueCPX historique;
};

void EntrerModeInsertion(ModeInsertion& mode, const HistoriqueCPX& historique);

// Leaves the mode. With `conserver` the file names get the suffix "-mod" and all that was done counts as one
// state after that of the entry; without, the project of the entry comes back.
void QuitterModeInsertion(ModeInsertion& mode, HistoriqueCPX& historique, ProjetCPX& projet, bool conserver);

} // namespace tessarel
