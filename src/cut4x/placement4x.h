// The designed pair on the table: mirrored if asked, then moved so that its block stands where it is told.
#pragma once

#include "cut4x/decoupe4x.h"

namespace tessarel {

// E and S change places: points, and margins of the block with them. The flags travel with their points.
void SymetriserPaire(ProjetCPX& paire);

// The positioned pair and its two faces: bottom of the block at OffsetBlocY, its first corner in X at
// OffsetBlocX, the faces at ZSaumon and ZEmplanture.
void PlacerProfilsSurBloc(const ParametresDecoupe4axes& parametres, DecoupeD4X& decoupe);

} // namespace tessarel
