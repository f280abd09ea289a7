// What a tool works on that takes all points when none is selected.
#pragma once

#include "design4x/projet_cpx.h"
#include "design4x/selection.h"

#include <algorithm>

namespace tessarel {

// Runs `outil` on the selected points; with none on either side, on all of them, none being selected after
// it. The tool selection is meant whatever the current mode: marks of another kind stay where they are.
template <typename Outil>
void SurSelectionOuTout(ProjetCPX& projet, Outil outil) {
    const auto choisi = [](const PointProfil& p) { return Porte(p, DrapeauOutil); };
    const bool tout = std::none_of(projet.E.Points.begin(), projet.E.Points.end(), choisi) &&
                      std::none_of(projet.S.Points.begin(), projet.S.Points.end(), choisi);
    const auto marquer = [&](bool oui) {
        for (std::vector<PointProfil>* points : {&projet.E.Points, &projet.S.Points})
            for (PointProfil& p : *points)
                p.Drapeaux =
                    static_cast<std::uint16_t>(oui ? p.Drapeaux | DrapeauOutil : p.Drapeaux & ~DrapeauOutil);
    };
    if (tout) marquer(true);
    outil();
    if (tout) marquer(false);
}

} // namespace tessarel
