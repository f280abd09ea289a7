// The measuring tool.
#include "mesurer.h"

#include "app/texts/textes.h"
#include "design4x/boites_cpx.h"
#include "design4x/selection.h"
#include "platform/nombres.h"

#include <array>
#include <cmath>

namespace tessarel {

namespace {

constexpr Masque MasqueMesure = "#####0.0##";

// The first two marked points of a side, and how many there are in all.
struct Marques {
    std::array<const PointProfil*, 2> points = {};
    std::size_t nombre = 0;
};

Marques MarquesDe(const std::vector<PointProfil>& points, std::uint16_t mode) {
    Marques marques;
    for (const PointProfil& p : points) {
        if (!Porte(p, mode)) continue;
        if (marques.nombre < marques.points.size()) marques.points[marques.nombre] = &p;
        ++marques.nombre;
    }
    return marques;
}

std::string Distance(int rangee, const PointProfil& a, const PointProfil& b, double dz) {
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    return TextesMessages(rangee) + FormaterNombre(std::sqrt(dx * dx + dy * dy + dz * dz), MasqueMesure) +
           "mm";
}

} // namespace

std::string cmdMesurerCPX(const ProjetCPX& projet, std::uint16_t mode) {
    const Marques e = MarquesDe(projet.E.Points, mode);
    const Marques s = MarquesDe(projet.S.Points, mode);
    if (e.nombre == 1 && s.nombre == 1)
        return Distance(MessageMesureDeuxCotes, *e.points[0], *s.points[0],
                        static_cast<double>(projet.Ecartement));
    std::string texte;
    if (e.nombre == 2) texte = Distance(MessageDistanceE, *e.points[0], *e.points[1], 0);
    if (s.nombre == 2) {
        if (!texte.empty()) texte += " - ";
        texte += Distance(MessageDistanceS, *s.points[0], *s.points[1], 0);
    }
    return texte;
}

} // namespace tessarel
