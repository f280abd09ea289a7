// Shifts each segment of a path along its normal and joins the shifted segments at their crossings.
#include "work2d/decalage.h"

#include "app/texts/textes.h"
#include "paths/geometrie.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

namespace {

// Below this on both axes two points are one and give no direction (mm).
constexpr float EcartConfondu = 0.01F;

struct SegmentDecale {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

bool SontConfondus(const PointProfil& p, const PointProfil& q) {
    return EnSimple(std::abs(q.X - p.X)) < EcartConfondu && EnSimple(std::abs(q.Y - p.Y)) < EcartConfondu;
}

//            b = -dx/L
//     p ------------> q     travel
//            |
//            v (a, b)       unit normal on the right
SegmentDecale DecalerSegment(const PointProfil& p, const PointProfil& q, float decalage) {
    const double dx = q.X - p.X;
    const double dy = q.Y - p.Y;
    const double longueur = std::sqrt(dx * dx + dy * dy);
    const float a = EnSimple(dy / longueur);
    const float b = EnSimple(-dx / longueur);
    const double vx = static_cast<double>(a) * decalage;
    const double vy = static_cast<double>(b) * decalage;
    return {p.X + vx, p.Y + vy, q.X + vx, q.Y + vy};
}

// The vertex that two neighbouring shifted segments share. A crossing outside both counts as well: that is
// how an outer corner gets its tip.
PointProfil Raccord(const SegmentDecale& avant, const SegmentDecale& apres) {
    PointProfil sommet;
    float x = 0;
    float y = 0;
    const Croisement code = IntersectionSegments(EnSimple(avant.x0), EnSimple(avant.y0), EnSimple(avant.x1),
                                                 EnSimple(avant.y1), EnSimple(apres.x0), EnSimple(apres.y0),
                                                 EnSimple(apres.x1), EnSimple(apres.y1), x, y);
    if (code == Croisement::Parallele) {
        sommet.X = (avant.x1 + apres.x0) / 2;
        sommet.Y = (avant.y1 + apres.y0) / 2;
    } else {
        sommet.X = x;
        sommet.Y = y;
    }
    return sommet;
}

PointProfil Bout(double x, double y) {
    PointProfil sommet;
    sommet.X = x;
    sommet.Y = y;
    return sommet;
}

} // namespace

Sequence DecalerSequenceTS2D(const Sequence& SequenceAssemblee, float decalage, float vitesseDecoupe) {
    const std::vector<PointProfil>& source = SequenceAssemblee.Points;
    Sequence decalee;
    if (decalage == 0 || source.size() < 2) {
        decalee = SequenceAssemblee;
    } else {
        decalee.Points.reserve(source.size());
        SegmentDecale avant;
        for (std::size_t i = 0; i + 1 < source.size(); ++i) {
            if (SontConfondus(source[i], source[i + 1])) {
                AfficherCritique(TextesDoubles(1, 1), TextesDoubles(1, 2));
                return {};
            }
            const SegmentDecale segment = DecalerSegment(source[i], source[i + 1], decalage);
            decalee.Points.push_back(i == 0 ? Bout(segment.x0, segment.y0) : Raccord(avant, segment));
            avant = segment;
        }
        decalee.Points.push_back(Bout(avant.x1, avant.y1));
    }
    for (PointProfil& sommet : decalee.Points) {
        sommet.Vitesse = vitesseDecoupe;
        sommet.Rapide = false;
    }
    CalculerBornesSequence(decalee);
    return decalee;
}

} // namespace tessarel
