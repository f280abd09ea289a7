// Small 4-axis projects for the tests.
#pragma once

#include "design4x/projet_cpx.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>
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

// Root: chord 100, height 12 (Y -3..9), leading edge (100, 4), trailing edge (0, 1). Tip: chord 50, height 6
// (Y 3.5..9.5), leading edge (70, 7), trailing edge (20, 5.5). Sweep 30 at the leading edge, 20 at the
// trailing edge, dihedral 6.5; spacing 500.
inline ProjetCPX Losanges() {
    return Projet({{0, 1}, {40, 9}, {100, 4}, {40, -3}, {0, 1}},
                  {{20, 5.5}, {40, 9.5}, {70, 7}, {40, 3.5}, {20, 5.5}});
}

using Coordonnees = std::vector<std::pair<double, double>>;

inline Coordonnees Places(const std::vector<PointProfil>& points) {
    Coordonnees places;
    for (const PointProfil& p : points) places.emplace_back(p.X, p.Y);
    return places;
}

inline void AttendrePoints(const ProfilCPX& profil, const Coordonnees& points, double tolerance) {
    ASSERT_EQ(profil.Points.size(), points.size());
    for (std::size_t k = 0; k < points.size(); ++k) {
        EXPECT_NEAR(profil.Points[k].X, points[k].first, tolerance) << k;
        EXPECT_NEAR(profil.Points[k].Y, points[k].second, tolerance) << k;
    }
}

} // namespace tessarel::essais
