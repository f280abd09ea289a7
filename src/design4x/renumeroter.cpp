// The start of a profile moved to its point counter.
#include "design4x/edition_points.h"
#include "design4x/selection.h"
#include "design4x/selection_totale.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// Ends nearer than this close a profile, mm.
constexpr float ToleranceFermeture = 0.025F;
// With fewer points there is nothing to turn.
constexpr std::size_t SelectionMin = 4;

bool EstFerme(const std::vector<PointProfil>& points) {
    const double dx = points.back().X - points.front().X;
    const double dy = points.back().Y - points.front().Y;
    return std::sqrt(dx * dx + dy * dy) <= static_cast<double>(ToleranceFermeture);
}

std::vector<std::size_t> IndicesChoisis(const std::vector<PointProfil>& points) {
    std::vector<std::size_t> indices;
    indices.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        if (Porte(points[i], DrapeauOutil)) indices.push_back(i);
    return indices;
}

// Coordinates walk along the run until those of its `depart`-th point stand first; flags keep their places.
void Tourner(std::vector<PointProfil>& points, const std::vector<std::size_t>& suite, std::size_t depart) {
    const std::vector<PointProfil> avant = points;
    for (std::size_t k = 0; k < suite.size(); ++k) {
        const PointProfil& source = avant[suite[(k + depart) % suite.size()]];
        points[suite[k]].X = source.X;
        points[suite[k]].Y = source.Y;
    }
}

bool Renumeroter(ProfilCPX& profil) {
    std::vector<PointProfil>& points = profil.Points;
    std::vector<std::size_t> suite = IndicesChoisis(points);
    if (suite.size() < SelectionMin || profil.PointCourant <= 0) return false;
    auto courant = static_cast<std::size_t>(profil.PointCourant);
    if (!std::binary_search(suite.begin(), suite.end(), courant)) return false;

    const bool ouvert =
        EstFerme(points) && Porte(points.front(), DrapeauOutil) && Porte(points.back(), DrapeauOutil);
    if (ouvert) {
        points.erase(points.begin());
        --courant;
        suite = IndicesChoisis(points);
    }
    const auto depart = std::lower_bound(suite.begin(), suite.end(), courant) - suite.begin();
    Tourner(points, suite, static_cast<std::size_t>(depart));
    if (ouvert) {
        PointProfil fin = points[suite.front()];
        fin.Drapeaux = DrapeauOutil;
        points.insert(points.begin() + static_cast<std::ptrdiff_t>(suite.back()) + 1, fin);
    }
    profil.PointCourant = static_cast<std::int32_t>(suite.front());
    return true;
}

} // namespace

bool cmdRenumeroter(ProjetCPX& projet) {
    bool fait = false;
    SurSelectionOuTout(projet, [&] {
        const bool emplanture = Renumeroter(projet.E);
        fait = Renumeroter(projet.S) || emplanture;
    });
    if (fait) CalculerExtremesCPX(projet);
    return fait;
}

} // namespace tessarel
