// Flags set and cleared on many points at once.
#include "selection.h"

#include "paths/tables_degres.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// Beyond these the path turns; the values themselves do not count.
constexpr float AngleMin = 30;
constexpr float AngleMax = 330;
constexpr double DegresParRadian = 180 / Pi;

BoiteProfil BoiteDe(const std::vector<PointProfil>& points, std::uint16_t drapeau) {
    BoiteProfil boite;
    for (const PointProfil& p : points) {
        if (!Porte(p, drapeau)) continue;
        if (boite.Nombre++ == 0) {
            boite.Xmin = boite.Xmax = p.X;
            boite.Ymin = boite.Ymax = p.Y;
        }
        boite.Xmin = std::min(boite.Xmin, p.X);
        boite.Xmax = std::max(boite.Xmax, p.X);
        boite.Ymin = std::min(boite.Ymin, p.Y);
        boite.Ymax = std::max(boite.Ymax, p.Y);
    }
    return boite;
}

void Poser(std::vector<PointProfil>& points, std::uint16_t drapeau) {
    for (PointProfil& p : points) p.Drapeaux |= drapeau;
}

void Oter(std::vector<PointProfil>& points, std::uint16_t drapeau) {
    for (PointProfil& p : points) p.Drapeaux = static_cast<std::uint16_t>(p.Drapeaux & ~drapeau);
}

// Direction of the segment a-b in degrees, from 0 up to 360, by way of 32 bits.
float Direction(const PointProfil& a, const PointProfil& b) {
    const float dx = EnSimple(b.X - a.X);
    const float dy = EnSimple(b.Y - a.Y);
    double angle = 0;
    if (dx == 0)
        angle = dy < 0 ? -Pi / 2 : Pi / 2;
    else
        angle = std::atan(static_cast<double>(dy) / dx);
    if (dx < 0) angle += dy < 0 ? -Pi : Pi;
    if (angle < 0) angle += 2 * Pi;
    return EnSimple(EnSimple(angle) * DegresParRadian);
}

} // namespace

bool EstModeSelection(int valeur) {
    return valeur == DrapeauCorde ||
           std::find(ModesSelection.begin(), ModesSelection.end(), valeur) != ModesSelection.end();
}

BoutonsSelection BoutonsDuMode(std::uint16_t mode) {
    return {mode == DrapeauAlignement, mode == DrapeauSynchro, mode != DrapeauArret};
}

BoiteSelectionCPX BoiteSelection(const ProjetCPX& projet, std::uint16_t drapeau) {
    return {BoiteDe(projet.E.Points, drapeau), BoiteDe(projet.S.Points, drapeau)};
}

bool cmdSelectAll(ProjetCPX& projet, int index, std::uint16_t mode) {
    if (!BoutonsDuMode(mode).selectionAutomatique) return false;
    Poser(index == 0 ? projet.E.Points : projet.S.Points, mode);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdRAZSelection(ProjetCPX& projet, int index, std::uint16_t mode) {
    if (index == 0 || mode == DrapeauArret) Oter(projet.E.Points, mode);
    if (index != 0 || mode == DrapeauArret) Oter(projet.S.Points, mode);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdSelectionAuto(ProjetCPX& projet, int index, std::uint16_t mode) {
    if (!BoutonsDuMode(mode).selectionAutomatique) return false;
    CalculerExtremesCPX(projet);
    ProfilCPX& profil = index == 0 || index == 2 ? projet.S : projet.E;
    if (profil.Points.empty()) return false;
    const ExtremesProfil& x = profil.Extremes;
    const bool enX = index < 2;
    for (const std::int32_t i : {enX ? x.IndiceXmin : x.IndiceYmin, enX ? x.IndiceXmax : x.IndiceYmax})
        profil.Points[static_cast<std::size_t>(i)].Drapeaux |= mode;
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdSelectionAngle(ProjetCPX& projet, int index, std::uint16_t mode) {
    if (!BoutonsDuMode(mode).selectionAutomatique) return false;
    std::vector<PointProfil>& points = (index == 0 ? projet.S : projet.E).Points;
    if (points.size() < 3) return false;
    float entrant = Direction(points[0], points[1]);
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const float sortant = Direction(points[i], points[i + 1]);
        const float difference = std::abs(sortant - entrant);
        if (difference > AngleMin && difference < AngleMax) points[i].Drapeaux |= mode;
        entrant = sortant;
    }
    CalculerExtremesCPX(projet);
    return true;
}

} // namespace tessarel
