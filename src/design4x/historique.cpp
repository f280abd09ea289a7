// Undo and redo of the design.
#include "historique.h"

#include <utility>

namespace tessarel {

namespace {

using PointsPartages = std::shared_ptr<const std::vector<PointProfil>>;

PointsPartages Partager(const std::vector<PointProfil>& points, const PointsPartages& precedents) {
    if (precedents && *precedents == points) return precedents;
    return std::make_shared<const std::vector<PointProfil>>(points);
}

// The project without its points, which leave it for that moment so that they are not copied on the way.
ProjetCPX SansPoints(ProjetCPX& projet) {
    std::vector<PointProfil> e = std::move(projet.E.Points);
    std::vector<PointProfil> s = std::move(projet.S.Points);
    projet.E.Points = {};
    projet.S.Points = {};
    ProjetCPX reste = projet;
    projet.E.Points = std::move(e);
    projet.S.Points = std::move(s);
    return reste;
}

// Rank of the entry that is shown, in the array.
std::size_t Rang(const HistoriqueCPX& historique) {
    return static_cast<std::size_t>(historique.PositionUndo) - 1;
}

} // namespace

void MemoPourUndo(HistoriqueCPX& historique, ProjetCPX& projet) {
    std::vector<EntreeUndo>& entrees = historique.entrees;
    EntreeUndo entree;
    const EntreeUndo* precedente = historique.PositionUndo >= 1 ? &entrees[Rang(historique)] : nullptr;
    entree.PointsE = Partager(projet.E.Points, precedente != nullptr ? precedente->PointsE : nullptr);
    entree.PointsS = Partager(projet.S.Points, precedente != nullptr ? precedente->PointsS : nullptr);
    entree.reste = SansPoints(projet);

    entrees.resize(static_cast<std::size_t>(historique.PositionUndo)); // the redo states are gone
    if (entrees.size() >= ProfondeurUndo) entrees.erase(entrees.begin());
    entrees.push_back(std::move(entree));
    historique.PositionUndo = static_cast<float>(entrees.size());
    historique.cmdUndoCPX1 = false;
    historique.cmdUndoCPX0 = historique.PositionUndo > 1;
}

bool cmdUndoCPX(HistoriqueCPX& historique, ProjetCPX& projet, int index) {
    const auto derniere = static_cast<float>(historique.entrees.size());
    if (index == 0) {
        if (historique.PositionUndo < 2) return false;
        historique.PositionUndo -= 1;
        historique.cmdUndoCPX1 = true;
        if (historique.PositionUndo == 1) historique.cmdUndoCPX0 = false;
    } else {
        if (historique.PositionUndo >= derniere) return false;
        historique.PositionUndo += 1;
        historique.cmdUndoCPX0 = true;
        if (historique.PositionUndo == derniere) historique.cmdUndoCPX1 = false;
    }
    return RevenirEtatUndo(historique, projet);
}

bool RevenirEtatUndo(const HistoriqueCPX& historique, ProjetCPX& projet) {
    if (historique.PositionUndo < 1) return false;
    const EntreeUndo& entree = historique.entrees[Rang(historique)];
    projet = entree.reste;
    projet.E.Points = *entree.PointsE;
    projet.S.Points = *entree.PointsS;
    return true;
}

} // namespace tessarel
