// Splines as chords: B-splines, rational or not, by knot spans; fit points by the cubic that runs through
// them.
#include "courbes.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

// The format allows few degrees; past this a file is damaged, and the cost of a point grows with the square.
constexpr int DegreMax = 15;
// A span is halved this often at most: 2^20 chords on one span are enough for any drawing in range.
constexpr int ProfondeurMax = 20;

[[noreturn]] void RefuserSpline(const Assemblage& a, const char* francais, const char* anglais) {
    throw FauteLecture(*a.chemin, a.ligne,
                       Bilingue(fmt::format("SPLINE : {}", francais), fmt::format("SPLINE: {}", anglais)));
}

struct Homogene {
    double X = 0, Y = 0, Z = 0, W = 1;
};

// Point at `t` of the span that begins at knot `k`, by de Boor's scheme.
Point3 Evaluer(const Spline& s, std::size_t k, double t) {
    const auto p = static_cast<std::size_t>(s.degre);
    std::array<Homogene, DegreMax + 1> d;
    for (std::size_t j = 0; j <= p; ++j) {
        const std::size_t i = k - p + j;
        const double w = s.poids.empty() ? 1 : s.poids[i];
        const Point3& c = s.controles[i];
        d[j] = {c.X * w, c.Y * w, c.Z * w, w};
    }
    for (std::size_t r = 1; r <= p; ++r) {
        for (std::size_t j = p; j >= r; --j) {
            const std::size_t i = k - p + j;
            const double largeur = s.noeuds[i + p - r + 1] - s.noeuds[i];
            const double u = largeur > 0 ? (t - s.noeuds[i]) / largeur : 0;
            d[j] = {(1 - u) * d[j - 1].X + u * d[j].X, (1 - u) * d[j - 1].Y + u * d[j].Y,
                    (1 - u) * d[j - 1].Z + u * d[j].Z, (1 - u) * d[j - 1].W + u * d[j].W};
        }
    }
    return {d[p].X / d[p].W, d[p].Y / d[p].W, d[p].Z / d[p].W};
}

double DistanceCorde(Point2 p, Point2 a, Point2 b) {
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    const double carre = dx * dx + dy * dy;
    // Distance to the segment, not to its line: a span may turn back on itself.
    const double u = carre > 0 ? std::clamp(((p.X - a.X) * dx + (p.Y - a.Y) * dy) / carre, 0.0, 1.0) : 0;
    return std::hypot(p.X - a.X - u * dx, p.Y - a.Y - u * dy);
}

struct Morceau {
    double t0, t1;
    Point2 p0, p1;
    int profondeur;
};

// Halves a piece of curve until its chord is close at three places within; puts down all points but the
// first.
template <typename Courbe>
void Subdiviser(const Plume& plume, const Courbe& courbe, double t0, double t1) {
    std::array<Morceau, ProfondeurMax + 2> pile;
    std::size_t n = 0;
    pile[n++] = {t0, t1, courbe(t0), courbe(t1), 0};
    while (n != 0) {
        const Morceau m = pile[--n];
        const double tm = m.t0 + (m.t1 - m.t0) / 2;
        const Point2 milieu = courbe(tm);
        const auto ecart = [&](Point2 p) { return DistanceCorde(p, m.p0, m.p1); };
        // Points that are no numbers or are out of range end here too, and are refused when put down.
        const bool assez = !(ecart(milieu) > ErreurCorde) &&
                           !(ecart(courbe(m.t0 + (m.t1 - m.t0) / 4)) > ErreurCorde) &&
                           !(ecart(courbe(m.t0 + (m.t1 - m.t0) * 3 / 4)) > ErreurCorde);
        if (assez || m.profondeur == ProfondeurMax) {
            AjouterPoint(plume.assemblage, m.p1.X, m.p1.Y);
        } else {
            pile[n++] = {tm, m.t1, milieu, m.p1, m.profondeur + 1};
            pile[n++] = {m.t0, tm, m.p0, milieu, m.profondeur + 1};
        }
    }
}

void VerifierSpline(const Assemblage& a, const Spline& s) {
    if (s.degre < 1 || s.degre > DegreMax) RefuserSpline(a, "degré hors limites", "degree out of range");
    const auto p = static_cast<std::size_t>(s.degre);
    const std::size_t n = s.controles.size();
    if (n < p + 1) RefuserSpline(a, "pas assez de points de contrôle", "not enough control points");
    if (s.noeuds.size() != n + p + 1)
        RefuserSpline(a, "le nombre de nœuds ne convient pas aux points de contrôle",
                      "the number of knots does not match the control points");
    if (!std::is_sorted(s.noeuds.begin(), s.noeuds.end()))
        RefuserSpline(a, "les nœuds ne sont pas croissants", "the knots are not in increasing order");
    if (!(s.noeuds[p] < s.noeuds[n]))
        RefuserSpline(a, "les nœuds n'ouvrent aucun intervalle", "the knots span no interval");
    if (!s.poids.empty() && s.poids.size() != n)
        RefuserSpline(a, "le nombre de poids ne convient pas aux points de contrôle",
                      "the number of weights does not match the control points");
    if (std::any_of(s.poids.begin(), s.poids.end(), [](double w) { return !(w > 0); }))
        RefuserSpline(a, "un poids n'est pas positif", "a weight is not positive");
}

void TracerParControles(const Plume& plume, const Spline& s) {
    VerifierSpline(plume.assemblage, s);
    const auto p = static_cast<std::size_t>(s.degre);
    bool premier = true;
    for (std::size_t k = p; k < s.controles.size(); ++k) {
        const double t0 = s.noeuds[k];
        const double t1 = s.noeuds[k + 1];
        if (!(t0 < t1)) continue;
        const auto courbe = [&](double t) {
            const Point3 q = Evaluer(s, k, t);
            return Projeter(plume.placement, q.X, q.Y, q.Z);
        };
        if (premier) {
            const Point2 q = courbe(t0);
            AjouterPoint(plume.assemblage, q.X, q.Y);
            premier = false;
        }
        // A span of degree p may wave p - 1 times: as many pieces from the start, so that no wave hides
        // between the places that are looked at.
        const int pieces = s.degre == 1 ? 1 : s.degre;
        for (int i = 0; i < pieces; ++i)
            Subdiviser(plume, courbe, t0 + (t1 - t0) * i / pieces,
                       i + 1 == pieces ? t1 : t0 + (t1 - t0) * (i + 1) / pieces);
    }
}

Point3 Combiner(const Point3& a, double ka, const Point3& b, double kb) {
    return {a.X * ka + b.X * kb, a.Y * ka + b.Y * kb, a.Z * ka + b.Z * kb};
}

bool EstNul(const Point3& v) {
    return v.X == 0 && v.Y == 0 && v.Z == 0;
}

// Tangents (by unit of length) of the cubic with continuous curvature through points at distances `h`: a
// three-band system, solved by elimination. Free ends are straight, given tangents are kept.
std::vector<Point3> TangentesPassages(const std::vector<Point3>& q, const std::vector<double>& h,
                                      const Spline& s) {
    const std::size_t n = q.size();
    std::vector<double> diagonale(n, 2);
    std::vector<double> suivant(n, 0);
    std::vector<Point3> m(n);
    const auto pente = [&](std::size_t i) { return Combiner(q[i + 1], 1 / h[i], q[i], -1 / h[i]); };
    const auto ecrireLigne = [&](std::size_t i, double avant, double milieu, double apres,
                                 const Point3& droite) {
        const double facteur = i == 0 ? 0 : avant / diagonale[i - 1];
        diagonale[i] = milieu - (i == 0 ? 0 : facteur * suivant[i - 1]);
        suivant[i] = apres;
        m[i] = i == 0 ? droite : Combiner(droite, 1, m[i - 1], -facteur);
    };
    if (EstNul(s.tangenteDebut)) {
        ecrireLigne(0, 0, 2, 1, Combiner(pente(0), 3, {}, 0));
    } else {
        ecrireLigne(0, 0, 1, 0, Unitaire(s.tangenteDebut));
    }
    for (std::size_t i = 1; i + 1 < n; ++i)
        ecrireLigne(i, h[i], 2 * (h[i - 1] + h[i]), h[i - 1],
                    Combiner(pente(i - 1), 3 * h[i], pente(i), 3 * h[i - 1]));
    if (EstNul(s.tangenteFin)) {
        ecrireLigne(n - 1, 1, 2, 0, Combiner(pente(n - 2), 3, {}, 0));
    } else {
        ecrireLigne(n - 1, 0, 1, 0, Unitaire(s.tangenteFin));
    }
    for (std::size_t i = n; i-- > 0;) {
        m[i] = Combiner(m[i], 1 / diagonale[i], {}, 0);
        if (i + 1 < n) m[i] = Combiner(m[i], 1, m[i + 1], -suivant[i] / diagonale[i]);
    }
    return m;
}

void TracerParPassages(const Plume& plume, const Spline& s) {
    std::vector<Point3> q;
    std::vector<double> h;
    for (const Point3& p : s.passages) {
        const double pas = q.empty() ? 0 : std::hypot(p.X - q.back().X, p.Y - q.back().Y, p.Z - q.back().Z);
        if (!q.empty() && pas == 0) continue;
        if (!q.empty()) h.push_back(pas);
        q.push_back(p);
    }
    if (q.size() < 2) RefuserSpline(plume.assemblage, "pas assez de points", "not enough points");
    const std::vector<Point3> m = TangentesPassages(q, h, s);
    const Point2 debut = Projeter(plume.placement, q[0].X, q[0].Y, q[0].Z);
    AjouterPoint(plume.assemblage, debut.X, debut.Y);
    for (std::size_t i = 0; i + 1 < q.size(); ++i) {
        const auto courbe = [&](double u) {
            const double v = 1 - u;
            const Point3 p = Combiner(Combiner(q[i], v * v * (1 + 2 * u), q[i + 1], u * u * (3 - 2 * u)), 1,
                                      Combiner(m[i], u * v * v * h[i], m[i + 1], -u * u * v * h[i]), 1);
            return Projeter(plume.placement, p.X, p.Y, p.Z);
        };
        Subdiviser(plume, courbe, 0, 0.5);
        Subdiviser(plume, courbe, 0.5, 1);
    }
}

} // namespace

void TracerSpline(const Plume& plume, const Spline& spline) {
    if (spline.controles.empty() && !spline.passages.empty()) {
        TracerParPassages(plume, spline);
    } else {
        TracerParControles(plume, spline);
    }
}

} // namespace tessarel
