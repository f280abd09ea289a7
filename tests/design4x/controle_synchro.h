// What any synchronised pair must show, whatever the profiles.
#pragma once

#include "design4x/projet_cpx.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tessarel::essais {

using ProfilEssai = std::vector<PointProfil>;

// Length of the path up to each point.
inline std::vector<double> Abscisses(const ProfilEssai& points) {
    std::vector<double> s(points.size(), 0);
    for (std::size_t i = 1; i < points.size(); ++i)
        s[i] = s[i - 1] + std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    return s;
}

// Each old vertex in its turn, with its flags; between two of them only points without flags that lie on the
// segment, in its direction.
inline void ControlerSommetsGardes(const ProfilEssai& avant, const ProfilEssai& apres, double tolerance) {
    ASSERT_FALSE(apres.empty());
    std::size_t i = 0;
    double place = 0;
    for (const PointProfil& p : apres) {
        if (i < avant.size() && p.X == avant[i].X && p.Y == avant[i].Y && p.Drapeaux == avant[i].Drapeaux) {
            ++i;
            place = 0;
            continue;
        }
        ASSERT_GT(i, 0U);
        ASSERT_LT(i, avant.size());
        ASSERT_EQ(p.Drapeaux, 0);
        const double dx = avant[i].X - avant[i - 1].X;
        const double dy = avant[i].Y - avant[i - 1].Y;
        const double longueur = std::hypot(dx, dy);
        const double x = p.X - avant[i - 1].X;
        const double y = p.Y - avant[i - 1].Y;
        ASSERT_LE(std::fabs(x * dy - y * dx), tolerance * longueur) << "off the segment";
        const double t = (x * dx + y * dy) / longueur;
        ASSERT_GE(t, place - tolerance) << "backwards";
        ASSERT_LE(t, longueur + tolerance) << "beyond the segment";
        place = t;
    }
    ASSERT_EQ(i, avant.size()) << "a vertex is missing";
}

// Ends of sections stand against each other, and in between both sides are at the same fraction of theirs.
inline void ControlerCorrespondance(const ProjetCPX& projet, double tolerance) {
    const ProfilEssai& e = projet.E.Points;
    const ProfilEssai& s = projet.S.Points;
    ASSERT_EQ(e.size(), s.size());
    const std::vector<double> ae = Abscisses(e);
    const std::vector<double> as = Abscisses(s);
    std::size_t debut = 0;
    for (std::size_t fin = 1; fin < e.size(); ++fin) {
        ASSERT_EQ(e[fin].Drapeaux & DrapeauSynchro, s[fin].Drapeaux & DrapeauSynchro) << "pair " << fin;
        if ((e[fin].Drapeaux & DrapeauSynchro) == 0) continue;
        const double echelle = (ae[fin] - ae[debut]) / (as[fin] - as[debut]);
        for (std::size_t k = debut; k <= fin; ++k)
            ASSERT_NEAR(ae[k] - ae[debut], (as[k] - as[debut]) * echelle, tolerance) << "pair " << k;
        debut = fin;
    }
}

} // namespace tessarel::essais
