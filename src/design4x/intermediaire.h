// The intermediate profile: where a plane between root and tip cuts the wing. It lets a wing wider than the
// table be cut in two runs.
#pragma once

#include "design4x/projet_cpx.h"

#include <vector>

namespace tessarel {

struct ProfilIntermediaire {
    std::vector<PointProfil> Points;
    float Ecartement = 0;            // between root and tip when it was made
    float DistanceIntermediaire = 0; // mm from the root
    [[nodiscard]] bool Present() const { return !Points.empty(); }
};

// Makes it at `distance` mm from the root. False, after a box, when the counts differ, when there is no point
// or no spacing; `intermediaire` then stays as it was. Its points carry no flag.
bool CalculerProfilIntermediaire(const ProjetCPX& projet, double distance,
                                 ProfilIntermediaire& intermediaire);

// It takes the place of the root, or of the tip, with the flags of the profile that it replaces; the spacing
// becomes what is left, or the distance. The measures are refreshed and `intermediaire` is emptied. False,
// and nothing changed, when the distance is 0 or the profile is absent, and after the box of a spacing that
// would not be above 0.
bool cmdIntermediaireToEmplanture(ProjetCPX& projet, ProfilIntermediaire& intermediaire);
bool cmdIntermediaireToSaumon(ProjetCPX& projet, ProfilIntermediaire& intermediaire);

} // namespace tessarel
