// A second wing in place or below the first.
#include "dupliquer.h"

#include "design4x/aile.h"
#include "design4x/boites_cpx.h"

#include <vector>

namespace tessarel {

namespace {

// Length of the run into and out of an outline, mm.
constexpr double LongueurLien = 4;

PointProfil Copie(PointProfil p) {
    p.Drapeaux = static_cast<std::uint16_t>(p.Drapeaux & ~DrapeauOutil);
    return p;
}

PointProfil Lien(const PointProfil& premier, double bas, std::uint16_t drapeaux) {
    PointProfil lien;
    lien.X = premier.X - LongueurLien;
    lien.Y = premier.Y - bas;
    lien.Z = premier.Z;
    lien.Drapeaux = drapeaux;
    return lien;
}

void DoublerSurPlace(std::vector<PointProfil>& points) {
    const std::size_t nombre = points.size();
    points.reserve(2 * nombre);
    for (std::size_t i = 0; i < nombre; ++i) points.push_back(Copie(points[i]));
}

void Empiler(std::vector<PointProfil>& points, double bas) {
    if (points.empty()) return;
    const std::vector<PointProfil> aile = std::move(points);
    points = {};
    points.reserve(2 * aile.size() + 4);
    points.push_back(Lien(aile.front(), 0, 0));
    points.insert(points.end(), aile.begin(), aile.end());
    points.push_back(Lien(aile.front(), 0, DrapeauOutil));
    points.push_back(Lien(aile.front(), bas, DrapeauOutil));
    for (const PointProfil& p : aile) {
        points.push_back(Copie(p));
        points.back().Y -= bas;
    }
    points.push_back(Lien(aile.front(), bas, 0));
}

} // namespace

bool cmdDupliquer(ProjetCPX& projet, int index, double ecartementAiles) {
    if (projet.E.Points.empty() && projet.S.Points.empty()) return false;
    if (index == 0) {
        DoublerSurPlace(projet.E.Points);
        DoublerSurPlace(projet.S.Points);
        CalculerExtremesCPX(projet);
        return true;
    }
    if (ecartementAiles == 0) {
        BoiteRemarque(MessageValeursNulles);
        ecartementAiles = 1;
    }
    const double bas =
        static_cast<double>(projet.YmaxGlobal) - static_cast<double>(projet.YminGlobal) + ecartementAiles;
    const float diedre = projet.DiedreMm;
    Empiler(projet.E.Points, bas);
    Empiler(projet.S.Points, bas);
    CalculerExtremesCPX(projet);
    txtDiedreMm(projet, static_cast<double>(diedre));
    return true;
}

} // namespace tessarel
