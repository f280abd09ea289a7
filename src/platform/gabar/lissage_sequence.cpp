// Smoothing of the stretch between two points of a polyline by a cubic whose neighbours give its tangents.
#include "gabar.h"

#include "courbes.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// A stretch of more chords than this is no profile: its coordinates are those of a damaged file.
constexpr double CordesMaxLissage = 65536;

struct Vecteur {
    double X = 0;
    double Y = 0;
};

Vecteur Difference(const PointSimple& a, const PointSimple& b) {
    return {static_cast<double>(a.X) - b.X, static_cast<double>(a.Y) - b.Y};
}

// Step of the centripetal knots from one point to the other.
double PasNoeud(const PointSimple& a, const PointSimple& b) {
    const Vecteur d = Difference(b, a);
    return std::sqrt(std::hypot(d.X, d.Y));
}

// The stretch as a cubic in s from 0 to 1, by its ends and its speeds there.
struct Troncon {
    Vecteur debut;
    Vecteur corde; // from p1 to p2
    Vecteur vitesse1;
    Vecteur vitesse2;
};

// Speed at `milieu` for a unit of s, when a stretch of `pas` knots begins or ends there.
Vecteur VitesseAuPoint(const PointSimple& avant, const PointSimple& milieu, const PointSimple& apres,
                       double pasAvant, double pasApres, double pas) {
    const Vecteur a = Difference(milieu, avant);
    const Vecteur b = Difference(apres, milieu);
    const Vecteur c = Difference(apres, avant);
    const double somme = pasAvant + pasApres;
    return {(a.X / pasAvant - c.X / somme + b.X / pasApres) * pas,
            (a.Y / pasAvant - c.Y / somme + b.Y / pasApres) * pas};
}

// `pas1`, from p1 to p2, is above 0.
Troncon TronconCentripete(const std::vector<PointSimple>& p, double pas1) {
    const double pas0 = PasNoeud(p[0], p[1]) > 0 ? PasNoeud(p[0], p[1]) : pas1;
    const double pas2 = PasNoeud(p[2], p[3]) > 0 ? PasNoeud(p[2], p[3]) : pas1;
    return {{p[1].X, p[1].Y},
            Difference(p[2], p[1]),
            VitesseAuPoint(p[0], p[1], p[2], pas0, pas1, pas1),
            VitesseAuPoint(p[1], p[2], p[3], pas1, pas2, pas1)};
}

// A chord over a step h of s strays by at most h²/8 times the greatest second derivative, which a cubic has
// at one of its ends.
std::size_t NombreCordesTroncon(const Troncon& t) {
    const double debut = std::hypot(6 * t.corde.X - 4 * t.vitesse1.X - 2 * t.vitesse2.X,
                                    6 * t.corde.Y - 4 * t.vitesse1.Y - 2 * t.vitesse2.Y);
    const double fin = std::hypot(6 * t.corde.X - 2 * t.vitesse1.X - 4 * t.vitesse2.X,
                                  6 * t.corde.Y - 2 * t.vitesse1.Y - 4 * t.vitesse2.Y);
    const double n = std::ceil(std::sqrt(std::max(debut, fin) / (8 * ErreurCorde)));
    if (!(n >= 1)) return 1;
    return static_cast<std::size_t>(std::min(n, CordesMaxLissage));
}

PointSimple PointDuTroncon(const Troncon& t, double s) {
    const double corde = s * s * (3 - 2 * s);
    const double v1 = s * (1 - s) * (1 - s);
    const double v2 = s * s * (s - 1);
    PointSimple p;
    p.X = EnSimple(t.debut.X + corde * t.corde.X + v1 * t.vitesse1.X + v2 * t.vitesse2.X);
    p.Y = EnSimple(t.debut.Y + corde * t.corde.Y + v1 * t.vitesse1.Y + v2 * t.vitesse2.Y);
    return p;
}

} // namespace

void LissageSequence(std::vector<PointSimple>& points) {
    if (points.size() != 4)
        throw FauteInterne(
            SelonLangue("LissageSequence attend quatre points.", "LissageSequence expects four points."));
    const double pas1 = PasNoeud(points[1], points[2]);
    if (!(pas1 > 0)) return;
    const Troncon troncon = TronconCentripete(points, pas1);
    const std::size_t cordes = NombreCordesTroncon(troncon);
    const PointSimple p2 = points[2];
    const PointSimple p3 = points[3];
    points.resize(2);
    points.reserve(cordes + 3);
    for (std::size_t k = 1; k < cordes; ++k) {
        PointSimple p = PointDuTroncon(troncon, static_cast<double>(k) / static_cast<double>(cordes));
        p.CodeSequence = points[1].CodeSequence;
        points.push_back(p);
    }
    points.push_back(p2);
    points.push_back(p3);
}

} // namespace tessarel
