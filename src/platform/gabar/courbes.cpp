// Arcs, ellipses and bulges as chords.
#include "courbes.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <numbers>

namespace tessarel {

namespace {

constexpr double DeuxPi = 2 * std::numbers::pi;

// Radii past this leave nothing of the limit in 53 bits.
constexpr double RayonMax = 1e10;

} // namespace

std::size_t NombreCordes(const Assemblage& a, double rayon, double balayage) {
    if (!(rayon <= RayonMax))
        throw FauteLecture(
            *a.chemin, a.ligne,
            Bilingue(fmt::format("{} : rayon hors limites ({:g})", Citation(a.entite), rayon),
                     fmt::format("{}: radius out of range ({:g})", Citation(a.entite), rayon)));
    // A chord of angle t stays r (1 - cos(t/2)) inside its arc; the half-angle form does not lose small
    // values.
    const double rapport = std::min(1.0, ErreurCorde / (2 * rayon));
    const double pas = std::min(std::numbers::pi / 4, 4 * std::asin(std::sqrt(rapport)));
    const double nombre = std::ceil(std::abs(balayage) / pas - 1e-9);
    if (!(nombre < static_cast<double>(PointsMaxDessin)))
        throw FauteLecture(
            *a.chemin, a.ligne,
            Bilingue(fmt::format("{} : courbe trop longue pour être suivie", Citation(a.entite)),
                     fmt::format("{}: the curve is too long to be followed", Citation(a.entite))));
    return std::max<std::size_t>(1, static_cast<std::size_t>(nombre));
}

void TracerArc(const Plume& plume, const Point3& centre, double rayon, double debut, double balayage) {
    const std::size_t n = NombreCordes(plume.assemblage, rayon * EtirementMaximal(plume.placement), balayage);
    for (std::size_t i = 0; i <= n; ++i) {
        const double angle = debut + balayage * (static_cast<double>(i) / static_cast<double>(n));
        Poser(plume, centre.X + rayon * std::cos(angle), centre.Y + rayon * std::sin(angle), centre.Z);
    }
}

void TracerCercle(const Plume& plume, const Point3& centre, double rayon) {
    const std::size_t n = NombreCordes(plume.assemblage, rayon * EtirementMaximal(plume.placement), DeuxPi);
    const std::size_t quart = (n + 3) / 4;
    for (std::size_t q = 0; q < 4; ++q) {
        for (std::size_t i = 0; i < quart; ++i) {
            const double angle = std::numbers::pi / 2 * (static_cast<double>(i) / static_cast<double>(quart));
            const double c = i == 0 ? rayon : rayon * std::cos(angle);
            const double s = i == 0 ? 0 : rayon * std::sin(angle);
            const double x[4] = {c, -s, -c, s};
            const double y[4] = {s, c, -s, -c};
            Poser(plume, centre.X + x[q], centre.Y + y[q], centre.Z);
        }
    }
    Poser(plume, centre.X + rayon, centre.Y, centre.Z);
}

void TracerEllipse(const Plume& plume, const Point3& centre, const Point3& demiGrand, const Point3& demiPetit,
                   double debut, double balayage) {
    const double rayon = std::max(std::hypot(demiGrand.X, demiGrand.Y, demiGrand.Z),
                                  std::hypot(demiPetit.X, demiPetit.Y, demiPetit.Z));
    // A tilted plane feels the third column of the placement too.
    const double* a = plume.placement.a;
    const double etirement = a[2] == 0 && a[6] == 0
                                 ? EtirementMaximal(plume.placement)
                                 : std::hypot(std::hypot(a[0], a[1], a[2]), std::hypot(a[4], a[5], a[6]));
    // As the image of a circle of the great radius, by a map that lengthens nothing more.
    const std::size_t n = (NombreCordes(plume.assemblage, rayon * etirement, balayage) + 3) / 4 * 4;
    for (std::size_t i = 0; i <= n; ++i) {
        const double t = debut + balayage * (static_cast<double>(i) / static_cast<double>(n));
        const double c = std::cos(t);
        const double s = std::sin(t);
        Poser(plume, centre.X + demiGrand.X * c + demiPetit.X * s,
              centre.Y + demiGrand.Y * c + demiPetit.Y * s, centre.Z + demiGrand.Z * c + demiPetit.Z * s);
    }
}

void TracerRenflement(const Plume& plume, const Point3& p, const Point3& q, double renflement) {
    const double dx = q.X - p.X;
    const double dy = q.Y - p.Y;
    const double corde = std::hypot(dx, dy);
    const double fleche = std::abs(renflement) * corde / 2;
    const double etirement = EtirementMaximal(plume.placement);
    // A bulge so flat that it stays within the limit is a segment; its radius may be beyond all measure.
    if (fleche * etirement > ErreurCorde / 2) {
        const double rayon = corde * (1 + renflement * renflement) / (4 * std::abs(renflement));
        const double balayage = 4 * std::atan(renflement);
        const std::size_t n = NombreCordes(plume.assemblage, rayon * etirement, balayage);
        // The centre lies on the chord's perpendicular, left of it for a bulge below 1.
        const double h = (1 - renflement * renflement) / (4 * renflement);
        const double cx = (p.X + q.X) / 2 - dy * h;
        const double cy = (p.Y + q.Y) / 2 + dx * h;
        const double debut = std::atan2(p.Y - cy, p.X - cx);
        for (std::size_t i = 1; i < n; ++i) {
            const double angle = debut + balayage * (static_cast<double>(i) / static_cast<double>(n));
            Poser(plume, cx + rayon * std::cos(angle), cy + rayon * std::sin(angle), p.Z);
        }
    }
    Poser(plume, q.X, q.Y, q.Z);
}

} // namespace tessarel
