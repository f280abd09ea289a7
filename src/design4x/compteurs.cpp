// Point counters and the rule for unequal counts.
#include "compteurs.h"

#include "platform/nombres.h"

#include <algorithm>

namespace tessarel {

namespace {

constexpr std::int32_t PointsParBarre = 1000;
constexpr Masque MasqueCoordonnee = "#####0.0##";

} // namespace

EtatComptes RegleComptes(const ProjetCPX& projet) {
    const bool egaux = projet.E.Points.size() == projet.S.Points.size();
    return {egaux, egaux, egaux};
}

bool BarresPoints::GrossierActif() const {
    return nombre > PointsParBarre;
}

std::int32_t BarresPoints::GrossierMax() const {
    return GrossierActif() ? nombre / PointsParBarre : 0;
}

std::int32_t BarresPoints::FinMax() const {
    if (!GrossierActif()) return nombre;
    return grossier == GrossierMax() ? nombre - PointsParBarre * GrossierMax() : PointsParBarre;
}

std::int32_t BarresPoints::Point() const {
    return std::min(grossier * PointsParBarre + fin, nombre);
}

BarresPoints NouvellesBarres(std::int32_t nombre) {
    return {nombre, 1, 0};
}

BarresPoints BarresSurPoint(std::int32_t nombre, std::int32_t point) {
    BarresPoints barres = NouvellesBarres(nombre);
    point = std::clamp(point, 1, std::max(nombre, 1));
    if (barres.GrossierActif()) barres.grossier = (point - 1) / PointsParBarre;
    barres.fin = point - barres.grossier * PointsParBarre;
    return barres;
}

void InitialiserScrollbarsSuivantNbPoints(ProjetCPX& projet) {
    projet.E.PointCourant = projet.S.PointCourant = 0;
}

bool PlacerCompteur(ProjetCPX& projet, int index, std::int32_t point) {
    ProfilCPX& profil = index == 0 ? projet.E : projet.S;
    ProfilCPX& autre = index == 0 ? projet.S : projet.E;
    if (point < 1 || static_cast<std::size_t>(point) > profil.Points.size()) return false;
    profil.PointCourant = point - 1;
    if (autre.Points.size() == profil.Points.size()) autre.PointCourant = profil.PointCourant;
    return true;
}

TextesCompteur TextesDuCompteur(const ProjetCPX& projet, int index) {
    const ProfilCPX& profil = index == 0 ? projet.E : projet.S;
    const auto indice = static_cast<std::size_t>(profil.PointCourant);
    if (indice >= profil.Points.size()) return {};
    const PointProfil& p = profil.Points[indice];
    return {std::to_string(profil.PointCourant + 1),
            FormaterNombre(p.X, MasqueCoordonnee) + " : " + FormaterNombre(p.Y, MasqueCoordonnee)};
}

} // namespace tessarel
