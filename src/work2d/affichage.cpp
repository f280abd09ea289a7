// The framing of the 2D window.
#include "work2d/affichage.h"

#include "platform/nombres.h"

#include <algorithm>

namespace tessarel {

namespace {

void Elargir(double& bas, double& haut) {
    if (haut - bas >= CoteMiniZoom) return;
    const double milieu = (bas + haut) / 2;
    bas = milieu - CoteMiniZoom / 2;
    haut = milieu + CoteMiniZoom / 2;
}

} // namespace

ZoneVisible CalculerZoneVisible(std::span<const Sequence> sequences, const TableMachine& table) {
    const bool desPoints =
        std::any_of(sequences.begin(), sequences.end(), [](const Sequence& s) { return !s.Points.empty(); });
    if (!desPoints) return {0, EnSimple(table.CourseX), 0, EnSimple(table.CourseY)};
    const Etendue cadre = CadrageSequences(sequences);
    return {cadre.XMin, cadre.XMax, cadre.YMin, cadre.YMax};
}

CadreDessin CadreToutVoir(const ZoneVisible& zone, const TableMachine& table) {
    CadreDessin cadre{
        std::max<double>(zone.ZoneVisibleXMin, 0), std::min<double>(zone.ZoneVisibleXMax, table.CourseX),
        std::max<double>(zone.ZoneVisibleYMin, 0), std::min<double>(zone.ZoneVisibleYMax, table.CourseY)};
    if (cadre.XMin > cadre.XMax || cadre.YMin > cadre.YMax)
        cadre = {zone.ZoneVisibleXMin, zone.ZoneVisibleXMax, zone.ZoneVisibleYMin, zone.ZoneVisibleYMax};
    Elargir(cadre.XMin, cadre.XMax);
    Elargir(cadre.YMin, cadre.YMax);
    return cadre;
}

} // namespace tessarel
