// Smoothing of the selected stretches: the four points around each, and where the new ones go.
#include "lissage.h"

#include "paths/geometrie.h"
#include "platform/gabar/gabar.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

namespace {

// First and last point closer than this on both axes close a profile, mm.
constexpr double ToleranceProfilFerme = 0.01;

using Profil = std::vector<PointProfil>;

PointSimple Simple(double x, double y) {
    PointSimple p;
    p.X = EnSimple(x);
    p.Y = EnSimple(y);
    return p;
}

PointSimple Simple(const PointProfil& p) {
    return Simple(p.X, p.Y);
}

bool EstFerme(const Profil& points) {
    return std::fabs(points.front().X - points.back().X) < ToleranceProfilFerme &&
           std::fabs(points.front().Y - points.back().Y) < ToleranceProfilFerme;
}

// Neighbour before the first segment. Of an open profile it is the plain difference of its two points, not a
// point reflected: deliberate, a change would alter the curve of every first segment cut so far.
PointSimple VoisinAvant(const Profil& p, std::size_t i) {
    if (i > 0) return Simple(p[i - 1]);
    if (EstFerme(p)) return Simple(p[p.size() - 2]);
    return Simple(p[0].X - p[1].X, p[0].Y - p[1].Y);
}

// Neighbour after the last segment; of an open profile the plain sum of its two points, deliberate likewise.
PointSimple VoisinApres(const Profil& p, std::size_t i) {
    if (i + 2 < p.size()) return Simple(p[i + 2]);
    if (EstFerme(p)) return Simple(p[1]);
    return Simple(p[i].X + p[i + 1].X, p[i].Y + p[i + 1].Y);
}

// The points of the curve over the segment that begins at `i`, its own two ends included.
void LisserSegment(const Profil& p, std::size_t i, float distNettoyage, std::vector<PointSimple>& t) {
    t.assign({VoisinAvant(p, i), Simple(p[i]), Simple(p[i + 1]), VoisinApres(p, i)});
    LissageSequence(t);
    t.erase(t.begin());
    t.pop_back();
    ReductionPointsAlignes(t, distNettoyage);
}

void LisserProfil(Profil& points, float distNettoyage) {
    Profil lisse;
    lisse.reserve(points.size());
    std::vector<PointSimple> t;
    for (std::size_t i = 0; i < points.size(); ++i) {
        lisse.push_back(points[i]);
        const bool choisi =
            i + 1 < points.size() && (points[i].Drapeaux & points[i + 1].Drapeaux & DrapeauOutil) != 0;
        if (!choisi) continue;
        LisserSegment(points, i, distNettoyage, t);
        for (std::size_t j = 1; j + 1 < t.size(); ++j) {
            PointProfil& p = lisse.emplace_back();
            p.X = t[j].X;
            p.Y = t[j].Y;
            p.Z = points[i].Z;
        }
    }
    points = std::move(lisse);
}

} // namespace

void cmdLisser(ProjetCPX& projet, float distNettoyage) {
    LisserProfil(projet.E.Points, distNettoyage);
    LisserProfil(projet.S.Points, distNettoyage);
    CalculerExtremesCPX(projet);
}

} // namespace tessarel
