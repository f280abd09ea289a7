// The law of kerf against the speed of the wire, and the offset that follows from it.
#pragma once

#include "cut4x/parametres_decoupe4x.h"
#include "machine/matieres.h"
#include "platform/nombres.h"

namespace tessarel {

//  kerf
//   |  \                    SaigneeVDsur2 at V/2, SaigneeVD at V: a straight line through both. Deliberate:
//   |    o                  it is used as it stands for every speed, below V/2 too; a clamp there would
//   |      \                change every taper steeper than 2 to 1.
//   |        o
//   +----|---|--- v
//       V/2  V
inline double Saignee(double v, const ValeursDecoupe& matiere) {
    const double pleine = matiere.SaigneeVD;
    const double demie = matiere.SaigneeVDsur2;
    return 2 * (pleine - demie) * v / matiere.Vitesse + 2 * demie - pleine;
}

// Offset of the end that runs at the cutting speed: the calibration itself, not through the line.
inline float DecalagePleineVitesse(double signe, const ValeursDecoupe& matiere) {
    return EnSimple(signe * matiere.SaigneeVD / 2);
}
// Offset of the end that runs at `vitesse` mm/s, slower than the cutting speed or equal to it.
inline float DecalageCoteLent(double signe, float vitesse, const ValeursDecoupe& matiere) {
    return EnSimple(signe * Saignee(vitesse, matiere) / 2);
}

} // namespace tessarel
