// The cone of directions in which a chord surely passes near all points seen so far: it spares the thinning
// walk the tests of a window whose outcome is certain, without changing any.
//
// Seen from the anchor A, a point Q at a distance r above the tolerance e lies within e of the ray of
// direction u exactly when u stays within asin(e / r) of the direction of Q. The cone is the intersection of
// these wedges; points nearer to A than e are within e of any segment that starts at A. A chord that points
// into the cone and is at least as long as the farthest r has the foot of every point on it, so every point
// is within e of it.
//
//            hi  _-Q          The walk itself computes with 32-bit roundings. For a point at r, with
//            coordinates
//              _- _-          up to M, these move the foot by less than r * 2^-22 + M * 2^-23 (direction,
//              place
//            _-_-     chord   on the chord, foot; each at most a few units of 2^-24), and the squared
//            distance by
//          _-_-  _ _ - >      less than a part in 2^23. e is the tolerance less twice as much. So whatever
//          the
//         A _ -               cone lets pass, the walk's own tests let pass; what it does not is still
//         tested.
//              -  lo
#pragma once

#include <cmath>
#include <span>

namespace tessarel {

class ConeSur {
public:
    // A cone for windows over these points. One that can promise nothing (a tolerance too small against the
    // coordinates, values that leave the range of 32 bits) lets no chord pass.
    template <typename Point>
    static ConeSur PourPoints(std::span<const Point> points, float tolerance, float seuil) {
        double maximum = 0;
        bool sain = seuil > SeuilMin;
        for (const Point& p : points) {
            const double x = std::abs(static_cast<double>(p.X));
            const double y = std::abs(static_cast<double>(p.Y));
            sain = sain && x < CoordonneeMax && y < CoordonneeMax;
            if (x > maximum) maximum = x;
            if (y > maximum) maximum = y;
        }
        ConeSur cone;
        cone.m_tolerance =
            std::abs(static_cast<double>(tolerance)) * (1 - RetraitRelatif) - maximum * RetraitCoordonnee;
        cone.m_inutile = !sain || !(cone.m_tolerance > 0);
        return cone;
    }

    // Starts anew at an anchor.
    void Ouvrir(double x, double y) {
        m_x = x;
        m_y = y;
        m_contraint = false;
        m_vide = m_inutile;
        m_rayon2 = 0;
    }

    // Takes in a point that later windows will have to pass.
    void Ajouter(double x, double y) {
        if (m_vide) return;
        const double vx = x - m_x;
        const double vy = y - m_y;
        const double r2 = vx * vx + vy * vy;
        const double e = m_tolerance - (std::abs(vx) + std::abs(vy)) * RetraitRayon;
        if (e <= 0) {
            m_vide = true;
            return;
        }
        if (r2 <= e * e) return;
        if (r2 > m_rayon2) m_rayon2 = r2;
        const double c = std::sqrt(r2 - e * e);
        Resserrer({vx * c + vy * e, vy * c - vx * e}, {vx * c - vy * e, vy * c + vx * e});
    }

    // All points taken in are nearer to the anchor than the tolerance: any window passes.
    [[nodiscard]] bool ToutPresDeLAncre() const { return !m_vide && !m_contraint; }

    // A chord longer than the tolerance with these components surely passes.
    [[nodiscard]] bool Contient(double dx, double dy) const {
        return !m_vide && dx * dx + dy * dy >= m_rayon2 && Entre(m_bas, {dx, dy}, m_haut);
    }

private:
    // Parts of the tolerance, of the radius and of the largest coordinate that are given away.
    static constexpr double RetraitRelatif = 0x1p-20;
    static constexpr double RetraitRayon = 0x1p-21;
    static constexpr double RetraitCoordonnee = 0x1p-22;
    // Between these no square leaves the normal range of 32 bits.
    static constexpr float SeuilMin = 1e-30F;
    static constexpr double CoordonneeMax = 1e15;

    struct Direction {
        double x = 0;
        double y = 0;
    };
    static double Produit(Direction a, Direction b) { return a.x * b.y - a.y * b.x; }
    // `d` in the cone from `bas` counter-clockwise to `haut`, narrower than a half-turn.
    static bool Entre(Direction bas, Direction d, Direction haut) {
        return Produit(bas, d) >= 0 && Produit(d, haut) >= 0;
    }

    // The common part of two cones narrower than a half-turn begins at one of their lower limits and ends at
    // one of their upper ones, each of which then lies in both.
    void Resserrer(Direction bas, Direction haut) {
        if (!m_contraint) {
            m_contraint = true;
            m_bas = bas;
            m_haut = haut;
            return;
        }
        const bool basEntre = Entre(m_bas, bas, m_haut);
        const bool hautEntre = Entre(m_bas, haut, m_haut);
        m_vide = !((basEntre || Entre(bas, m_bas, haut)) && (hautEntre || Entre(bas, m_haut, haut)));
        if (basEntre) m_bas = bas;
        if (hautEntre) m_haut = haut;
    }

    double m_tolerance = 0;
    bool m_inutile = true;
    double m_x = 0;
    double m_y = 0;
    bool m_contraint = false; // some point limits the directions
    bool m_vide = true;       // nothing can be promised
    double m_rayon2 = 0;      // squared distance of the farthest such point
    Direction m_bas;
    Direction m_haut;
};

} // namespace tessarel
