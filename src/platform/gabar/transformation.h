// Placement of DXF entities: affine maps of space, of which the drawing keeps the X and Y.
#pragma once

#include "assemblage.h"

namespace tessarel {

struct Point3 {
    double X = 0;
    double Y = 0;
    double Z = 0;
};

// x' = a[0] x + a[1] y + a[2] z + a[3], and so on by rows of four.
struct Transformation {
    double a[12] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};
    bool identite = true;
};

// First `interieure`, then `exterieure`.
Transformation Composer(const Transformation& exterieure, const Transformation& interieure);
Transformation Translation(const Point3& p);
Transformation Echelle(double x, double y, double z);
Transformation RotationZ(double degres);
// From the object coordinates of an entity with this extrusion direction to world coordinates, by the
// arbitrary axis rule of the format.
Transformation DepuisExtrusion(const Point3& direction);

// X and Y of the image of a point.
inline Point2 Projeter(const Transformation& t, double x, double y, double z) {
    if (t.identite) return {x, y};
    return {t.a[0] * x + t.a[1] * y + t.a[2] * z + t.a[3], t.a[4] * x + t.a[5] * y + t.a[6] * z + t.a[7]};
}

// The greatest factor by which the map, seen from above, lengthens a segment of the plane Z = const.
double EtirementMaximal(const Transformation& t);

Point3 ProduitVectoriel(const Point3& u, const Point3& v);
// Length 1; the Z axis when the vector has no length.
Point3 Unitaire(const Point3& v);

} // namespace tessarel
