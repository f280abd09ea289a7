// What every user of a path needs: its box, its reverse, several of them end to end.
#include "points.h"

#include "paths/bornes.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

Sequence BornesDesPoints(std::span<const PointProfil> points) {
    Sequence bornes;
    if (!points.empty()) {
        bornes.XMin = bornes.XMax = EnSimple(points.front().X);
        bornes.YMin = bornes.YMax = EnSimple(points.front().Y);
    }
    // The box is held in 32 bits, so what an unrounded coordinate leaves in it is its rounded value.
    for (const PointProfil& p : points) {
        const float x = EnSimple(p.X);
        const float y = EnSimple(p.Y);
        if (x < bornes.XMin) bornes.XMin = x;
        if (x > bornes.XMax) bornes.XMax = x;
        if (y < bornes.YMin) bornes.YMin = y;
        if (y > bornes.YMax) bornes.YMax = y;
    }
    bornes.Largeur = std::abs(bornes.XMax - bornes.XMin);
    bornes.Hauteur = std::abs(bornes.YMax - bornes.YMin);
    return bornes;
}

void CalculerBornesSequence(Sequence& sequence) {
    CopierBornes(BornesDesPoints(sequence.Points), sequence);
}

void CopierBornes(const Sequence& bornes, Sequence& sequence) {
    sequence.XMin = bornes.XMin;
    sequence.XMax = bornes.XMax;
    sequence.YMin = bornes.YMin;
    sequence.YMax = bornes.YMax;
    sequence.Largeur = bornes.Largeur;
    sequence.Hauteur = bornes.Hauteur;
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
