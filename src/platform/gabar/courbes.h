// Curves of a drawing as chords: arcs, ellipses, bulges and splines, none further from its curve than the
// limit.
#pragma once

#include "transformation.h"

#include <vector>

namespace tessarel {

// Greatest distance between a curve and its chords, mm.
inline constexpr double ErreurCorde = 0.01;

// Where the points of a curve go: through the placement of its entity, into the piece under way.
struct Plume {
    Assemblage& assemblage;
    const Transformation& placement;
};

inline void Poser(const Plume& plume, double x, double y, double z) {
    const Point2 p = Projeter(plume.placement, x, y, z);
    AjouterPoint(plume.assemblage, p.X, p.Y);
}

// Number of equal chords that keep an arc of this radius (in mm) and sweep (radians) within the limit; never
// more than an eighth of a turn each. FauteLecture when there would be too many.
std::size_t NombreCordes(const Assemblage& a, double rayon, double balayage);

// Arc of a circle from `debut` by `balayage`, radians, both its ends put down.
void TracerArc(const Plume& plume, const Point3& centre, double rayon, double debut, double balayage);
// Whole circle, first point at the angle 0, quadrant points exact.
void TracerCercle(const Plume& plume, const Point3& centre, double rayon);

// Ellipse with its half axes as vectors, from parameter `debut` by `balayage`.
void TracerEllipse(const Plume& plume, const Point3& centre, const Point3& demiGrand, const Point3& demiPetit,
                   double debut, double balayage);

// Segment between two vertices with a bulge (tangent of a quarter of the sweep, positive to the left); the
// first vertex is there already, the second is put down.
void TracerRenflement(const Plume& plume, const Point3& p, const Point3& q, double renflement);

// Spline of `degre` by control points, knots and weights (empty: all 1), over the knots' own domain.
struct Spline {
    int degre = 3;
    std::vector<Point3> controles;
    std::vector<double> noeuds;
    std::vector<double> poids;
    std::vector<Point3> passages; // fit points, used when there are no control points
    Point3 tangenteDebut;         // of the fit points; zero when free
    Point3 tangenteFin;
};
// FauteLecture when knots, weights or degree make no spline.
void TracerSpline(const Plume& plume, const Spline& spline);

} // namespace tessarel
