// Speeds and durations of a 2D cut.
#include "work2d/vitesses.h"

#include "platform/nombres.h"

#include <cmath>

namespace tessarel {

void AppliquerVitesses(Sequence& SequenceDecoupe, float vitesseDecoupe, float vitesseRapide) {
    bool rapide = false;
    for (PointProfil& sommet : SequenceDecoupe.Points) {
        sommet.Vitesse = rapide ? vitesseRapide : vitesseDecoupe;
        rapide = sommet.Rapide;
    }
}

std::optional<std::vector<float>> ChronometrerSegments(const Sequence& SequenceDecoupe, float vitesseDecoupe,
                                                       float vitesseRapide) {
    const std::vector<PointProfil>& points = SequenceDecoupe.Points;
    std::vector<float> durees(points.size());
    double x = 0;
    double y = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const float vitesse = points[i - 1].Rapide ? vitesseRapide : vitesseDecoupe;
        if (!(vitesse >= VitesseMinimale)) return std::nullopt;
        const double dx = points[i].X - x;
        const double dy = points[i].Y - y;
        durees[i] = EnSimple(std::sqrt(dx * dx + dy * dy) / vitesse);
        x = points[i].X;
        y = points[i].Y;
    }
    return durees;
}

int DureeTotale(std::span<const float> durees, int tempoChauffe) {
    std::int32_t total = tempoChauffe;
    for (std::size_t i = 1; i < durees.size(); ++i)
        total = ArrondiLong(static_cast<double>(total) + durees[i]);
    return total;
}

} // namespace tessarel
