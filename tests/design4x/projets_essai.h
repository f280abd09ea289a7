// Small 4-axis projects for the tests.
#pragma once

#include "design4x/projet_cpx.h"

#include <initializer_list>
#include <vector>

namespace tessarel::essais {

struct PointEssai {
    double x;
    double y;
    int drapeaux = 0;
};

inline std::vector<PointProfil> Points(std::initializer_list<PointEssai> points) {
    std::vector<PointProfil> resultat;
    for (const PointEssai& p : points) {
        PointProfil point;
        point.X = p.x;
        point.Y = p.y;
        point.Drapeaux = static_cast<std::uint16_t>(p.drapeaux);
        resultat.push_back(point);
    }
    return resultat;
}

// Both profiles in place, measured, `ecartement` mm apart.
inline ProjetCPX Projet(std::initializer_list<PointEssai> emplanture,
                        std::initializer_list<PointEssai> saumon, float ecartement = 500) {
    ProjetCPX projet;
    projet.E.Points = Points(emplanture);
    projet.S.Points = Points(saumon);
    projet.Ecartement = ecartement;
    EcrireZ(projet);
    CalculerExtremesCPX(projet);
    return projet;
}

} // namespace tessarel::essais
