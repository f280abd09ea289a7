// The kerf offset of a 4-axis cut: the path of the wire's centre on both faces of the block.
//
// The end of the wire on the shorter path is slower and burns wider. The simple offset takes one value per
// side, from the whole lengths; the variable one a value per segment and side. Each has its own sign for the
// side and pairs it with its own normal; both conventions give the same side of the path.
#pragma once

#include "cut4x/decoupe4x.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessarel {

enum class CoteProfil { Emplanture, Saumon };

// One offset per side on PaireBloc; the count of points stays. `decalageE`, `decalageS`: what was applied,
// mm.
struct DecalagesSimples {
    float E = 0;
    float S = 0;
};
DecalagesSimples DecalageSimple(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// One offset per segment and side: N points become 2 (N - 1), each segment on its own and short links between
// them. Both clear DecoupePossible, after a box, on points too close for a direction.
void DecalageVariable(const ContexteD4X& contexte, DecoupeD4X& decoupe);

// Shifts a path by `decalage` mm to the right of the travel (left when negative); sharp corners, however
// acute. 0 leaves it as it is. False after the box of two points too close together, the path unchanged.
bool DecalerTrajectoireD4Xsimple(float decalage, std::vector<PointProfil>& chemin, CoteProfil cote,
                                 std::vector<PointProfil>& tampon);

// Shifts each segment by the Decalage of its first point, to the left when positive, and joins nothing: the
// ends at a corner are lengthened or shortened so that links bridge them. Nothing is done where the kerf at
// full speed is exactly 0.
void DecalerTrajectoireD4Xvariable(float SaigneeVD, std::vector<PointProfil>& chemin,
                                   std::vector<PointProfil>& tampon);

// By how much the end of a segment and the start of the next are lengthened at a corner (mm).
struct Prolongements {
    double A = 0;
    double B = 0;
};
// For a corner of `theta` radians, π straight on, between offsets ki and kj. An angle out of every range
// gives `precedent` after a box.
Prolongements ProlongementsCoin(double theta, double ki, double kj, const Prolongements& precedent);

// Corner between two directions (radians, from 0 to 2π each); 0 for a turn straight back.
double AngleCoin(float a1, float a2);

// "Points i and j are one": shows the box of a side; numbers count from 1.
void DirePointsConfondus(std::size_t i, std::size_t j, CoteProfil cote);

// Dimensions of the lowest point of each side from the offset found there: `decalageE`, `decalageS`, or where
// `variable` the Decalage of the point itself.
void CalculerCotesBasses(const ParametresDecoupe4axes& parametres, DecalagesSimples decalages, bool variable,
                         DecoupeD4X& decoupe);

// Below this on both axes, or as a length, two points are one (mm).
inline constexpr float DistanceConfondus = 0.001F;

} // namespace tessarel
