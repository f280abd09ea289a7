// Removing, inserting, reversing, closing.
#include "edition_points.h"

#include "design4x/boites_cpx.h"
#include "design4x/selection.h"
#include "design4x/selection_totale.h"

#include <algorithm>

namespace tessarel {

namespace {

bool Choisi(const PointProfil& p) {
    return Porte(p, DrapeauOutil);
}

// At least two points without the tool selection; the count stops there.
bool GardeDeuxPoints(const std::vector<PointProfil>& points) {
    int libres = 0;
    for (const PointProfil& p : points)
        if (!Choisi(p) && ++libres == 2) return true;
    return false;
}

PointProfil Milieu(const PointProfil& a, const PointProfil& b) {
    PointProfil milieu;
    milieu.X = (a.X + b.X) / 2;
    milieu.Y = (a.Y + b.Y) / 2;
    milieu.Z = a.Z;
    constexpr std::uint16_t herites = DrapeauSansDecalage | DrapeauCorde;
    milieu.Drapeaux = static_cast<std::uint16_t>(DrapeauOutil | (a.Drapeaux & b.Drapeaux & herites));
    return milieu;
}

bool InsererMilieux(std::vector<PointProfil>& points) {
    std::size_t ajouts = 0;
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        if (Choisi(points[i]) && Choisi(points[i + 1])) ++ajouts;
    if (ajouts == 0) return false;
    std::vector<PointProfil> suite;
    suite.reserve(points.size() + ajouts);
    for (std::size_t i = 0; i < points.size(); ++i) {
        suite.push_back(points[i]);
        if (i + 1 < points.size() && Choisi(points[i]) && Choisi(points[i + 1]))
            suite.push_back(Milieu(points[i], points[i + 1]));
    }
    points = std::move(suite);
    return true;
}

bool InverserSuites(std::vector<PointProfil>& points) {
    bool fait = false;
    for (auto debut = points.begin(); debut != points.end();) {
        if (!Choisi(*debut)) {
            ++debut;
            continue;
        }
        const auto fin = std::find_if_not(debut, points.end(), Choisi);
        std::reverse(debut, fin);
        fait = true;
        debut = fin;
    }
    return fait;
}

} // namespace

void LimiterCompteurs(ProjetCPX& projet) {
    for (ProfilCPX* profil : {&projet.E, &projet.S}) {
        const auto dernier = static_cast<std::int32_t>(profil->Points.size()) - 1;
        profil->PointCourant = std::clamp(profil->PointCourant, 0, std::max(dernier, 0));
    }
}

bool cmdSupprimer(ProjetCPX& projet) {
    if (!GardeDeuxPoints(projet.E.Points) || !GardeDeuxPoints(projet.S.Points)) {
        BoiteArret(MessageGarderDeuxPoints);
        return false;
    }
    const std::size_t retires =
        std::erase_if(projet.E.Points, Choisi) + std::erase_if(projet.S.Points, Choisi);
    if (retires == 0) return false;
    LimiterCompteurs(projet);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdInsererPoint(ProjetCPX& projet) {
    const bool emplanture = InsererMilieux(projet.E.Points);
    const bool saumon = InsererMilieux(projet.S.Points);
    if (!emplanture && !saumon) return false;
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdInverserSelection(ProjetCPX& projet) {
    bool fait = false;
    SurSelectionOuTout(projet, [&] {
        const bool emplanture = InverserSuites(projet.E.Points);
        fait = InverserSuites(projet.S.Points) || emplanture;
    });
    if (fait) CalculerExtremesCPX(projet);
    return fait;
}

bool cmdFermerProfil(ProjetCPX& projet, int index) {
    std::vector<PointProfil>& points = (index == 0 ? projet.E : projet.S).Points;
    if (points.empty()) return false;
    const PointProfil premier = points.front();
    if (premier.X == points.back().X && premier.Y == points.back().Y) {
        BoiteRemarque(index == 0 ? MessageDejaFermeE : MessageDejaFermeS);
        return false;
    }
    points.push_back(premier);
    CalculerExtremesCPX(projet);
    return true;
}

} // namespace tessarel
