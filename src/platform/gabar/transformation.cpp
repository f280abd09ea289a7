// Affine maps of DXF placement.
#include "transformation.h"

#include <cmath>
#include <numbers>

namespace tessarel {

Transformation Composer(const Transformation& exterieure, const Transformation& interieure) {
    if (exterieure.identite) return interieure;
    if (interieure.identite) return exterieure;
    Transformation r;
    r.identite = false;
    for (int i = 0; i < 3; ++i) {
        const double* e = exterieure.a + static_cast<std::ptrdiff_t>(4) * i;
        for (int j = 0; j < 4; ++j)
            r.a[4 * i + j] = e[0] * interieure.a[j] + e[1] * interieure.a[4 + j] +
                             e[2] * interieure.a[8 + j] + (j == 3 ? e[3] : 0.0);
    }
    return r;
}

Transformation Translation(const Point3& p) {
    Transformation t;
    t.a[3] = p.X;
    t.a[7] = p.Y;
    t.a[11] = p.Z;
    t.identite = p.X == 0 && p.Y == 0 && p.Z == 0;
    return t;
}

Transformation Echelle(double x, double y, double z) {
    Transformation t;
    t.a[0] = x;
    t.a[5] = y;
    t.a[10] = z;
    t.identite = x == 1 && y == 1 && z == 1;
    return t;
}

Transformation RotationZ(double degres) {
    Transformation t;
    // Quarter turns are exact: a drawing turned by 90 degrees keeps its right angles and its whole numbers.
    const double quarts = degres / 90.0;
    double c = 0;
    double s = 0;
    if (quarts == std::floor(quarts)) {
        const int quart = static_cast<int>(std::fmod(std::fmod(quarts, 4.0) + 4.0, 4.0));
        constexpr double cosinus[4] = {1, 0, -1, 0};
        constexpr double sinus[4] = {0, 1, 0, -1};
        c = cosinus[quart];
        s = sinus[quart];
    } else {
        const double angle = degres * std::numbers::pi / 180.0;
        c = std::cos(angle);
        s = std::sin(angle);
    }
    t.a[0] = c;
    t.a[1] = -s;
    t.a[4] = s;
    t.a[5] = c;
    t.identite = c == 1 && s == 0;
    return t;
}

Point3 ProduitVectoriel(const Point3& u, const Point3& v) {
    return {u.Y * v.Z - u.Z * v.Y, u.Z * v.X - u.X * v.Z, u.X * v.Y - u.Y * v.X};
}

Point3 Unitaire(const Point3& v) {
    const double longueur = std::hypot(v.X, v.Y, v.Z);
    if (!(longueur > 0) || !std::isfinite(longueur)) return {0, 0, 1};
    return {v.X / longueur, v.Y / longueur, v.Z / longueur};
}

Transformation DepuisExtrusion(const Point3& direction) {
    if (direction.X == 0 && direction.Y == 0 && direction.Z > 0) return {};
    const Point3 z = Unitaire(direction);
    // Near the world's Z the X axis comes from the world's Y, else from its Z; the 1/64 is the format's own.
    constexpr double seuil = 1.0 / 64.0;
    const bool presqueZ = std::abs(z.X) < seuil && std::abs(z.Y) < seuil;
    const Point3 x = Unitaire(ProduitVectoriel(presqueZ ? Point3{0, 1, 0} : Point3{0, 0, 1}, z));
    const Point3 y = Unitaire(ProduitVectoriel(z, x));
    Transformation t;
    t.identite = false;
    const Point3 axes[3] = {x, y, z};
    for (int j = 0; j < 3; ++j) {
        t.a[j] = axes[j].X;
        t.a[4 + j] = axes[j].Y;
        t.a[8 + j] = axes[j].Z;
    }
    return t;
}

double EtirementMaximal(const Transformation& t) {
    if (t.identite) return 1;
    // Largest singular value of the 2 x 2 part.
    const double a = t.a[0];
    const double b = t.a[1];
    const double c = t.a[4];
    const double d = t.a[5];
    const double somme = (a * a + b * b + c * c + d * d) / 2;
    const double ecart = std::hypot((a * a + b * b - c * c - d * d) / 2, a * c + b * d);
    return std::sqrt(somme + ecart);
}

} // namespace tessarel
