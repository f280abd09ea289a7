// What every user of a path needs: its box, its reverse, several of them end to end.
#include "points.h"

#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

void CalculerBornesSequence(Sequence& sequence) {
    sequence.XMin = sequence.XMax = sequence.YMin = sequence.YMax = 0;
    if (!sequence.Points.empty()) {
        const PointProfil& premier = sequence.Points.front();
        sequence.XMin = sequence.XMax = EnSimple(premier.X);
        sequence.YMin = sequence.YMax = EnSimple(premier.Y);
    }
    // The box is held in 32 bits, so what an unrounded coordinate leaves in it is its rounded value.
    for (const PointProfil& p : sequence.Points) {
        const float x = EnSimple(p.X);
        const float y = EnSimple(p.Y);
        if (x < sequence.XMin) sequence.XMin = x;
        if (x > sequence.XMax) sequence.XMax = x;
        if (y < sequence.YMin) sequence.YMin = y;
        if (y > sequence.YMax) sequence.YMax = y;
    }
    sequence.Largeur = std::abs(sequence.XMax - sequence.XMin);
    sequence.Hauteur = std::abs(sequence.YMax - sequence.YMin);
}

void InverserSequence(Sequence& sequence) {
    std::reverse(sequence.Points.begin(), sequence.Points.end());
}

Sequence ConcatenerSequences(std::span<const Sequence> sequences) {
    std::size_t total = 0;
    for (const Sequence& s : sequences) total += s.Points.size();
    Sequence ensemble;
    ensemble.Points.reserve(total);
    for (const Sequence& s : sequences)
        ensemble.Points.insert(ensemble.Points.end(), s.Points.begin(), s.Points.end());
    CalculerBornesSequence(ensemble);
    return ensemble;
}

Etendue CadrageSequences(std::span<const Sequence> sequences) {
    Etendue cadre;
    bool premiere = true;
    for (const Sequence& s : sequences) {
        if (s.Points.empty()) continue;
        if (premiere) cadre = {s.XMin, s.XMax, s.YMin, s.YMax};
        premiere = false;
        cadre.XMin = std::min(cadre.XMin, s.XMin);
        cadre.XMax = std::max(cadre.XMax, s.XMax);
        cadre.YMin = std::min(cadre.YMin, s.YMin);
        cadre.YMax = std::max(cadre.YMax, s.YMax);
    }
    return cadre;
}

} // namespace tessarel
