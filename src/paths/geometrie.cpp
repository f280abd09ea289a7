// Thinning of points by a sliding window, and the crossing of two segments.
#include "geometrie.h"

#include "paths/cone_sur.h"
#include "platform/nombres.h"

#include <cstddef>
#include <span>

namespace tessarel {

namespace {

// The segment from the anchor to the end of a window. `Reel` is the width in which a walk holds coordinates
// and what comes of them; the threshold, the place on the chord and the squared distance are 32 bits in both
// walks.
template <typename Reel>
struct Corde {
    Reel dx;
    Reel dy;
    Reel longueur2;
};

template <typename Reel, typename Point>
Corde<Reel> CordeEntre(const Point& ancre, const Point& fin) {
    const auto dx = static_cast<Reel>(static_cast<double>(fin.X) - ancre.X);
    const auto dy = static_cast<Reel>(static_cast<double>(fin.Y) - ancre.Y);
    return {dx, dy, static_cast<Reel>(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy)};
}

// Expressions are computed in 64 bits and held as told. The foot on the chord is a point, so it has the width
// of the coordinates: in 32 bits that is what lets exactly aligned points go at a tolerance of 0.
template <typename Reel, typename Point>
bool PointDansTolerance(const Point& ancre, const Corde<Reel>& corde, const Point& q, float seuil) {
    const double qx = static_cast<double>(q.X) - ancre.X;
    const double qy = static_cast<double>(q.Y) - ancre.Y;
    // On a chord no longer than the tolerance points are measured from the anchor: doubles vanish so.
    if (corde.longueur2 <= seuil) return EnSimple(qx * qx + qy * qy) <= seuil;
    float t = EnSimple((qx * corde.dx + qy * corde.dy) / corde.longueur2);
    if (t < 0) t = 0;
    if (t > 1) t = 1;
    const double ex =
        static_cast<double>(static_cast<Reel>(ancre.X + static_cast<double>(t) * corde.dx)) - q.X;
    const double ey =
        static_cast<double>(static_cast<Reel>(ancre.Y + static_cast<double>(t) * corde.dy)) - q.Y;
    return EnSimple(ex * ex + ey * ey) <= seuil;
}

// Whether all points strictly between `a` and `fin` lie within the tolerance of the chord between the two.
template <typename Reel, typename Point>
bool FenetrePasse(std::span<const Point> points, std::size_t a, std::size_t fin, float seuil,
                  const ConeSur& cone) {
    const Corde<Reel> corde = CordeEntre<Reel>(points[a], points[fin]);
    if (cone.ToutPresDeLAncre()) return true;
    if (corde.longueur2 > seuil && cone.Contient(corde.dx, corde.dy)) return true;
    for (std::size_t m = a + 1; m < fin; ++m)
        if (!PointDansTolerance<Reel>(points[a], corde, points[m], seuil)) return false;
    return true;
}

// The walk that both routines share. Calls `garder` with the index of each point kept, in ascending order;
// the points from the last index given onwards must still be as they were.
template <typename Reel, typename Point, typename Garder>
void ParcourirFenetres(std::span<const Point> points, float tolerance, Garder garder) {
    const std::size_t dernier = points.size() - 1;
    const float seuil = tolerance * tolerance;
    ConeSur cone = ConeSur::PourPoints(points, tolerance, seuil);
    garder(0);
    std::size_t ancre = 0;
    while (ancre + 2 <= dernier) {
        cone.Ouvrir(points[ancre].X, points[ancre].Y);
        std::size_t fin = ancre + 1;
        bool passe = true;
        while (passe && fin + 1 <= dernier) {
            cone.Ajouter(points[fin].X, points[fin].Y);
            ++fin;
            passe = FenetrePasse<Reel>(points, ancre, fin, seuil, cone);
        }
        // The last end whose window passed; after a window that ran to the end, the last point but one, which
        // is not kept.
        ancre = fin - 1;
        if (!passe) garder(ancre);
    }
    garder(dernier);
}

} // namespace

std::int32_t ReductionPointsAlignes(std::vector<PointSimple>& points, float distNettoyage) {
    if (points.size() > 3) {
        std::size_t gardes = 0;
        // Only coordinates move: the other fields stay in their slots.
        ParcourirFenetres<float>(std::span<const PointSimple>(points), distNettoyage, [&](std::size_t i) {
            points[gardes].X = points[i].X;
            points[gardes].Y = points[i].Y;
            ++gardes;
        });
        points.resize(gardes);
    }
    return static_cast<std::int32_t>(points.size());
}

void MarquerPointsConserves(std::vector<PointProfil>& points, float tolerance) {
    if (points.empty()) return;
    ParcourirFenetres<double>(std::span<const PointProfil>(points), tolerance,
                              [&](std::size_t i) { points[i].Drapeaux |= DrapeauConserve; });
}

Croisement IntersectionSegments(float x0, float y0, float x1, float y1, float x2, float y2, float x3,
                                float y3, float& x, float& y) {
    const double a = static_cast<double>(x1) - x0;
    const double b = static_cast<double>(x2) - x3;
    const double c = static_cast<double>(y1) - y0;
    const double e = static_cast<double>(y2) - y3;
    const float d = EnSimple(a * e - c * b);
    if (d == 0) return Croisement::Parallele;
    const double f = static_cast<double>(x2) - x0;
    const double g = static_cast<double>(y2) - y0;
    const float t = EnSimple((f * e - g * b) / d);
    const float u = EnSimple((a * g - f * c) / d);
    const auto rendre = [&](double px, double py, Croisement code) {
        x = EnSimple(px);
        y = EnSimple(py);
        return code;
    };
    const double px = x0 + a * t;
    const double py = y0 + c * t;
    const bool dedans = t >= 0 && t <= 1 && u >= 0 && u <= 1;
    if (!dedans) return rendre(px, py, Croisement::HorsSegments);
    if (t == 0) return rendre(x0, y0, Croisement::DebutA);
    if (t == 1) return rendre(x1, y1, Croisement::FinA);
    if (u == 0) return rendre(x2, y2, Croisement::DebutB);
    if (u == 1) return rendre(x3, y3, Croisement::FinB);
    return rendre(px, py, Croisement::Propre);
}

} // namespace tessarel
