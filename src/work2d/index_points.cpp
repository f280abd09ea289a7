// The boxes over runs of segments, and the searches that go through them.
#include "work2d/index_points.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessarel {

namespace {

using Boite = IndexPoints::Boite;

// The 32 bits of a box may lose the last digits of a coordinate: outwards, never inwards.
float VersLeBas(double valeur) {
    const auto f = static_cast<float>(valeur);
    return f <= valeur ? f : std::nextafter(f, -std::numeric_limits<float>::infinity());
}
float VersLeHaut(double valeur) {
    const auto f = static_cast<float>(valeur);
    return f >= valeur ? f : std::nextafter(f, std::numeric_limits<float>::infinity());
}

Boite BoiteDe(std::span<const PointProfil> points) {
    double x0 = points[0].X;
    double x1 = x0;
    double y0 = points[0].Y;
    double y1 = y0;
    for (const PointProfil& p : points) {
        x0 = std::min(x0, p.X);
        x1 = std::max(x1, p.X);
        y0 = std::min(y0, p.Y);
        y1 = std::max(y1, p.Y);
    }
    return {VersLeBas(x0), VersLeHaut(x1), VersLeBas(y0), VersLeHaut(y1)};
}

void Etendre(Boite& a, const Boite& b) {
    a.xMin = std::min(a.xMin, b.xMin);
    a.xMax = std::max(a.xMax, b.xMax);
    a.yMin = std::min(a.yMin, b.yMin);
    a.yMax = std::max(a.yMax, b.yMax);
}

// Squared distance from a place to a box, 0 inside.
double Distance2(const Boite& b, double x, double y) {
    const double dx = std::max({b.xMin - x, x - b.xMax, 0.0});
    const double dy = std::max({b.yMin - y, y - b.yMax, 0.0});
    return dx * dx + dy * dy;
}

PointDessin PiedSur(const PointProfil& a, const PointProfil& b, double x, double y) {
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    const double carre = dx * dx + dy * dy;
    if (!(carre > 0)) return {a.X, a.Y};
    const double t = std::clamp(((x - a.X) * dx + (y - a.Y) * dy) / carre, 0.0, 1.0);
    return {a.X + dx * t, a.Y + dy * t};
}

std::size_t NombreSegments(const Sequence& s) {
    return s.Points.empty() ? 0 : std::max<std::size_t>(s.Points.size() - 1, 1);
}

// Calls `visiter(sequence, premier, dernier)` for each run of segments whose box is nearer than `limite`,
// which the visitor may lower as it finds.
template <typename Visiter>
void PourChaqueSuite(const IndexPoints& index, std::span<const Sequence> sequences, double x, double y,
                     const double& limite, Visiter visiter) {
    const std::size_t nombre = std::min(sequences.size(), index.entieres.size());
    for (std::size_t s = 0; s < nombre; ++s) {
        const std::size_t segments = NombreSegments(sequences[s]);
        if (segments == 0 || Distance2(index.entieres[s], x, y) > limite) continue;
        const Boite* boite = index.boites.data() + index.premieres[s];
        for (std::size_t debut = 0; debut < segments; debut += IndexPoints::SegmentsParBoite, ++boite) {
            if (Distance2(*boite, x, y) > limite) continue;
            visiter(s, debut, std::min(debut + IndexPoints::SegmentsParBoite, segments));
        }
    }
}

// True when a segment has a part in the frame.
bool Traverse(const PointProfil& a, const PointProfil& b, const CadreDessin& c) {
    double t0 = 0;
    double t1 = 1;
    const auto borner = [&](double pas, double place) {
        if (pas == 0) return place >= 0;
        const double t = place / pas;
        if (pas < 0) {
            t0 = std::max(t0, t);
        } else {
            t1 = std::min(t1, t);
        }
        return t0 <= t1;
    };
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    return borner(-dx, a.X - c.XMin) && borner(dx, c.XMax - a.X) && borner(-dy, a.Y - c.YMin) &&
           borner(dy, c.YMax - a.Y);
}

bool Contient(const CadreDessin& c, const Boite& b) {
    return b.xMin >= c.XMin && b.xMax <= c.XMax && b.yMin >= c.YMin && b.yMax <= c.YMax;
}
bool Rencontre(const CadreDessin& c, const Boite& b) {
    return b.xMax >= c.XMin && b.xMin <= c.XMax && b.yMax >= c.YMin && b.yMin <= c.YMax;
}

bool SequenceTraverse(const Sequence& s, const Boite* boites, const CadreDessin& cadre) {
    const std::size_t segments = NombreSegments(s);
    for (std::size_t debut = 0; debut < segments; debut += IndexPoints::SegmentsParBoite, ++boites) {
        if (!Rencontre(cadre, *boites)) continue;
        const std::size_t fin = std::min(debut + IndexPoints::SegmentsParBoite, segments);
        for (std::size_t i = debut; i < fin; ++i) {
            if (Traverse(s.Points[i], s.Points[std::min(i + 1, s.Points.size() - 1)], cadre)) return true;
        }
    }
    return false;
}

} // namespace

IndexPoints IndexerPoints(std::span<const Sequence> sequences) {
    IndexPoints index;
    index.entieres.reserve(sequences.size());
    index.premieres.reserve(sequences.size());
    for (const Sequence& s : sequences) {
        index.premieres.push_back(static_cast<std::uint32_t>(index.boites.size()));
        Boite entiere;
        const std::size_t segments = NombreSegments(s);
        for (std::size_t debut = 0; debut < segments; debut += IndexPoints::SegmentsParBoite) {
            const std::size_t fin = std::min(debut + IndexPoints::SegmentsParBoite + 1, s.Points.size());
            index.boites.push_back(BoiteDe(std::span(s.Points).subspan(debut, fin - debut)));
            if (debut == 0) {
                entiere = index.boites.back();
            } else {
                Etendre(entiere, index.boites.back());
            }
        }
        index.entieres.push_back(entiere);
    }
    return index;
}

double RayonSurvol(double coteVue) {
    return coteVue * std::sqrt(ToleranceSurvol);
}

std::optional<SegmentTouche> ChercherSegment(const IndexPoints& index, std::span<const Sequence> sequences,
                                             double x, double y, double rayon, bool seulementSelection) {
    SegmentTouche touche;
    double limite = rayon * rayon;
    bool trouve = false;
    PourChaqueSuite(index, sequences, x, y, limite, [&](std::size_t s, std::size_t debut, std::size_t fin) {
        const Sequence& sequence = sequences[s];
        if (seulementSelection && (sequence.Selection & SelectionSequence) == 0) return;
        for (std::size_t i = debut; i < fin; ++i) {
            const PointDessin pied = PiedSur(
                sequence.Points[i], sequence.Points[std::min(i + 1, sequence.Points.size() - 1)], x, y);
            const double d2 = (pied.X - x) * (pied.X - x) + (pied.Y - y) * (pied.Y - y);
            if (d2 > limite) continue;
            // Strictly within the reach, strictly nearer on the same path; as near is enough for a path
            // drawn later.
            if (d2 == limite && (!trouve || touche.sequence == s)) continue;
            trouve = true;
            limite = d2;
            touche = {s, i, pied, d2};
        }
    });
    if (!trouve) return std::nullopt;
    return touche;
}

std::optional<SommetTouche> ChercherSommet(const IndexPoints& index, std::span<const Sequence> sequences,
                                           double x, double y, double rayon) {
    SommetTouche touche;
    double limite = rayon * rayon;
    bool trouve = false;
    PourChaqueSuite(index, sequences, x, y, limite, [&](std::size_t s, std::size_t debut, std::size_t fin) {
        const std::vector<PointProfil>& points = sequences[s].Points;
        for (std::size_t i = debut; i <= std::min(fin, points.size() - 1); ++i) {
            const double d2 = (points[i].X - x) * (points[i].X - x) + (points[i].Y - y) * (points[i].Y - y);
            if (d2 >= limite) continue;
            trouve = true;
            limite = d2;
            touche = {s, i, d2};
        }
    });
    if (!trouve) return std::nullopt;
    return touche;
}

std::vector<std::size_t> SequencesDansCadre(const IndexPoints& index, std::span<const Sequence> sequences,
                                            const CadreDessin& cadre, bool entieres) {
    std::vector<std::size_t> rangs;
    const std::size_t nombre = std::min(sequences.size(), index.entieres.size());
    for (std::size_t s = 0; s < nombre; ++s) {
        if (sequences[s].Points.empty()) continue;
        const bool dedans = Contient(cadre, index.entieres[s]);
        if (dedans || (!entieres && Rencontre(cadre, index.entieres[s]) &&
                       SequenceTraverse(sequences[s], index.boites.data() + index.premieres[s], cadre))) {
            rangs.push_back(s);
        }
    }
    return rangs;
}

} // namespace tessarel
