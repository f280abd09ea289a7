// Selection of paths, and the parts of the transform box under the pointer.
#include "work2d/selection.h"

#include "work2d/transformations.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarel {

namespace {

// Corners first: on a small box they lie over their neighbours.
constexpr std::array<std::string_view, 4> Coins = {"HG", "HD", "BG", "BD"};
constexpr std::array<std::string_view, 4> Milieux = {"HM", "BM", "MG", "MD"};
// A side of the drawn box shorter than this has no room for a handle in its middle.
constexpr double CotePourMilieu = 36; // pixels

bool Choisir(Sequence& sequence, bool choisie) {
    const bool avant = EstSelectionnee(sequence);
    if (choisie) {
        sequence.Selection |= SelectionSequence;
    } else {
        sequence.Selection &= static_cast<std::uint8_t>(~SelectionSequence);
    }
    return avant != choisie;
}

double CarreDistance(PointDessin a, PointDessin b) {
    return (a.X - b.X) * (a.X - b.X) + (a.Y - b.Y) * (a.Y - b.Y);
}

} // namespace

std::size_t CompterSelections(std::span<const Sequence> sequences) {
    return static_cast<std::size_t>(std::count_if(sequences.begin(), sequences.end(), EstSelectionnee));
}

Sequence CalculerBoiteSelection(std::span<const Sequence> sequences) {
    Sequence boite;
    bool premiere = true;
    for (const Sequence& s : sequences) {
        if (!EstSelectionnee(s) || s.Points.empty()) continue;
        boite.XMin = premiere ? s.XMin : std::min(boite.XMin, s.XMin);
        boite.XMax = premiere ? s.XMax : std::max(boite.XMax, s.XMax);
        boite.YMin = premiere ? s.YMin : std::min(boite.YMin, s.YMin);
        boite.YMax = premiere ? s.YMax : std::max(boite.YMax, s.YMax);
        premiere = false;
    }
    boite.Largeur = std::abs(boite.XMax - boite.XMin);
    boite.Hauteur = std::abs(boite.YMax - boite.YMin);
    if (!premiere) boite.Selection = SelectionSequence;
    return boite;
}

bool Selectionner(std::span<Sequence> sequences, std::span<const std::size_t> rangs, ModeSelection mode) {
    bool change = false;
    if (mode == ModeSelection::Seule) {
        // One pass that sets each path at once, so that "changed" means changed.
        std::vector<bool> voulues(sequences.size(), false);
        for (const std::size_t rang : rangs) {
            if (rang < sequences.size()) voulues[rang] = true;
        }
        for (std::size_t i = 0; i < sequences.size(); ++i) change |= Choisir(sequences[i], voulues[i]);
        return change;
    }
    for (const std::size_t rang : rangs) {
        if (rang >= sequences.size()) continue;
        const bool choisie = mode == ModeSelection::Ajouter || !EstSelectionnee(sequences[rang]);
        change |= Choisir(sequences[rang], choisie);
    }
    return change;
}

bool ToutSelectionner(std::span<Sequence> sequences, bool choisir) {
    bool change = false;
    for (Sequence& sequence : sequences) change |= Choisir(sequence, choisir);
    return change;
}

Sequence BoiteAffichee(const Sequence& BoiteSelection, double echelle) {
    const auto retrait = static_cast<float>(RetraitBoite / echelle);
    Sequence boite = BoiteSelection;
    boite.XMin -= retrait;
    boite.XMax += retrait;
    boite.YMin -= retrait;
    boite.YMax += retrait;
    boite.Largeur = boite.XMax - boite.XMin;
    boite.Hauteur = boite.YMax - boite.YMin;
    return boite;
}

std::vector<std::string_view> PoigneesMontrees(const Sequence& BoiteSelection, double echelle) {
    if (BoiteSelection.Selection == 0) return {};
    const bool large = BoiteSelection.Largeur > 0;
    const bool haute = BoiteSelection.Hauteur > 0;
    std::vector<std::string_view> noms;
    const bool coins = large && haute;
    if (coins) noms.assign(Coins.begin(), Coins.end());
    const Sequence affichee = BoiteAffichee(BoiteSelection, echelle);
    // Without corners the middle ones are all there is.
    const bool placeX = !coins || affichee.Largeur * echelle >= CotePourMilieu;
    const bool placeY = !coins || affichee.Hauteur * echelle >= CotePourMilieu;
    for (const std::string_view milieu : Milieux) {
        const bool surY = milieu[0] != 'M';
        if (surY ? haute && placeX : large && placeY) noms.push_back(milieu);
    }
    return noms;
}

SurvolBoite SurvolerBoite(const Sequence& BoiteSelection, PointDessin souris, double echelle) {
    if (BoiteSelection.Selection == 0) return {};
    const Sequence boite = BoiteAffichee(BoiteSelection, echelle);
    const double rayon = RayonPoignee / echelle;
    for (const std::string_view nom : PoigneesMontrees(BoiteSelection, echelle)) {
        const PointDessin place = PlacePoignee(boite, nom);
        if (std::abs(place.X - souris.X) <= rayon && std::abs(place.Y - souris.Y) <= rayon)
            return {ZoneBoite::Poignee, nom};
    }
    const double x = std::max({boite.XMin - souris.X, souris.X - boite.XMax, 0.0});
    const double y = std::max({boite.YMin - souris.Y, souris.Y - boite.YMax, 0.0});
    if (x == 0 && y == 0) return {ZoneBoite::Dedans, ""};
    if (std::hypot(x, y) * echelle <= LargeurRotation) return {ZoneBoite::Rotation, ""};
    return {};
}

std::string_view CoinSegment(PointDessin debut, PointDessin fin, PointDessin souris) {
    const bool premier = CarreDistance(debut, souris) <= CarreDistance(fin, souris);
    const bool debutAGauche = debut.X <= fin.X;
    const bool debutEnHaut = debut.Y >= fin.Y;
    const bool gauche = premier == debutAGauche;
    const bool haut = premier == debutEnHaut;
    if (gauche) return haut ? "AC" : "AD";
    return haut ? "BC" : "BD";
}

} // namespace tessarel
