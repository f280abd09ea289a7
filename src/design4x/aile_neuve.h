// A wing from two profiles as files give them: the road of the design window in one go.
#pragma once

#include "design4x/projet_cpx.h"

#include <optional>
#include <string>
#include <vector>

namespace tessarel {

// A profile as read: leading edge towards greater X.
struct ProfilLu {
    std::string NomFichier;
    std::vector<PointProfil> Points;
};

struct PlanAile {
    double Corde = 0;       // mm, of the root
    double CordeSaumon = 0; // mm
    double Ecartement = 0;  // mm
    double Fleche = 0;      // mm
    // Height of the tip's foot over the root's, mm; without it both profiles keep the height at which they
    // are drawn.
    std::optional<double> DiedreMm;
    double Vrillage = 0;         // degrees of the tip about its leading edge, positive when the nose rises
    std::optional<int> BlocAuto; // index of cmdBlocAuto
};

// Chords, spacing, twist of the tip, sweep, dihedral and block, in this order, each by its tool. False after
// the box of the tool that refuses, or of a chord that is not above 0; `projet` then is of no use.
bool ConstruireAile(const ProfilLu& emplanture, const ProfilLu& saumon, const PlanAile& plan,
                    ProjetCPX& projet);

// Before a synchronisation: the tip is turned round where it runs against the root, and the leading edges are
// marked DrapeauSynchro, so that nose comes to stand by nose.
void PreparerSynchronisation(ProjetCPX& projet);

// Whether the outline of a profile is walked clockwise, over the top from the trailing edge: the foam to keep
// then lies on the right of the walk.
bool TourneADroite(const std::vector<PointProfil>& points);

} // namespace tessarel
