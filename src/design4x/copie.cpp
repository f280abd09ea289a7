// Clipboard of the design.
#include "copie.h"

#include "design4x/boites_cpx.h"
#include "design4x/edition_points.h"
#include "design4x/selection.h"

#include <algorithm>
#include <iterator>

namespace tessarel {

namespace {

bool Choisi(const PointProfil& p) {
    return Porte(p, DrapeauOutil);
}

std::vector<PointProfil> PointsChoisis(const std::vector<PointProfil>& points) {
    std::vector<PointProfil> choisis;
    std::copy_if(points.begin(), points.end(), std::back_inserter(choisis), Choisi);
    return choisis;
}

void Deselectionner(std::vector<PointProfil>& points) {
    for (PointProfil& p : points) p.Drapeaux = static_cast<std::uint16_t>(p.Drapeaux & ~DrapeauOutil);
}

bool SansAncre(const std::vector<PointProfil>& points, const std::vector<PointProfil>& copie) {
    return !copie.empty() && !points.empty() && std::none_of(points.begin(), points.end(), Choisi);
}

void AjouterCopie(std::vector<PointProfil>& suite, const std::vector<PointProfil>& copie) {
    const PointProfil ancre = suite.back();
    const PointProfil& premier = copie.front();
    for (const PointProfil& p : copie) {
        PointProfil nouveau;
        nouveau.X = ancre.X + (p.X - premier.X);
        nouveau.Y = ancre.Y + (p.Y - premier.Y);
        nouveau.Z = ancre.Z;
        nouveau.Drapeaux = DrapeauOutil;
        suite.push_back(nouveau);
    }
}

bool Coller(std::vector<PointProfil>& points, const std::vector<PointProfil>& copie) {
    if (copie.empty() || points.empty()) return false;
    const auto ancres = static_cast<std::size_t>(std::count_if(points.begin(), points.end(), Choisi));
    std::vector<PointProfil> suite;
    suite.reserve(points.size() + std::max<std::size_t>(ancres, 1) * copie.size());
    for (const PointProfil& p : points) {
        suite.push_back(p);
        if (Choisi(p)) AjouterCopie(suite, copie);
    }
    if (ancres == 0) AjouterCopie(suite, copie);
    points = std::move(suite);
    return true;
}

} // namespace

bool cmdCopier(ProjetCPX& projet, PressePapiersCPX& copie) {
    copie.CopieE = PointsChoisis(projet.E.Points);
    copie.CopieS = PointsChoisis(projet.S.Points);
    if (copie.CouperEnCours || (copie.CopieE.empty() && copie.CopieS.empty())) return false;
    Deselectionner(projet.E.Points);
    Deselectionner(projet.S.Points);
    CalculerExtremesCPX(projet);
    return true;
}

bool cmdCouper(ProjetCPX& projet, PressePapiersCPX& copie) {
    copie.CouperEnCours = true;
    cmdCopier(projet, copie);
    const bool fait = cmdSupprimer(projet);
    copie.CouperEnCours = false;
    return fait;
}

bool cmdColler(ProjetCPX& projet, const PressePapiersCPX& copie) {
    if (SansAncre(projet.E.Points, copie.CopieE) || SansAncre(projet.S.Points, copie.CopieS))
        BoiteRemarque(MessageSansPointInsertion);
    const bool emplanture = Coller(projet.E.Points, copie.CopieE);
    const bool saumon = Coller(projet.S.Points, copie.CopieS);
    if (!emplanture && !saumon) return false;
    CalculerExtremesCPX(projet);
    return true;
}

} // namespace tessarel
