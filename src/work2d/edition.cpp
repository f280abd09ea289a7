// The deeds of the workshop on the paths of a project.
#include "work2d/edition.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "work2d/selection.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// "Vous avez coupé sur le premier point d'un profil...", and its twin.
constexpr int DoublesCoupeAuPremier = 13;
constexpr int DoublesCoupeAuDernier = 14;

// A vertex this near to another adds nothing that a machine could show.
constexpr double DistanceConfondue = 1e-6; // mm

bool Confondus(const PointProfil& p, PointDessin ou) {
    return std::abs(p.X - ou.X) < DistanceConfondue && std::abs(p.Y - ou.Y) < DistanceConfondue;
}

void Refuser(int rangee) {
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
}

} // namespace

std::size_t TransformerSelection(std::span<Sequence> sequences, const Transformation& transformation) {
    std::size_t nombre = 0;
    for (Sequence& sequence : sequences) {
        if (!EstSelectionnee(sequence)) continue;
        TransformerPoints(sequence.Points, transformation);
        CalculerBornesSequence(sequence);
        ++nombre;
    }
    return nombre;
}

std::size_t DupliquerSelection(std::vector<Sequence>& sequences) {
    const std::size_t avant = sequences.size();
    const std::size_t copies = CompterSelections(sequences);
    sequences.reserve(avant + copies);
    for (std::size_t i = 0; i < avant; ++i) {
        if (!EstSelectionnee(sequences[i])) continue;
        sequences.push_back(sequences[i]);
        TransformerPoints(sequences.back().Points, Deplacement(EcartCopie, EcartCopie));
        CalculerBornesSequence(sequences.back());
    }
    if (copies > 0) ToutSelectionner(std::span(sequences).first(avant), false);
    return copies;
}

std::size_t SupprimerSelection(std::vector<Sequence>& sequences) {
    return std::erase_if(sequences, EstSelectionnee);
}

bool CouperSequence(std::vector<Sequence>& sequences, std::size_t rang, std::size_t sommet) {
    if (rang >= sequences.size() || sommet >= sequences[rang].Points.size()) return false;
    Sequence& debut = sequences[rang];
    if (sommet == 0 || sommet + 1 == debut.Points.size()) {
        Refuser(sommet == 0 ? DoublesCoupeAuPremier : DoublesCoupeAuDernier);
        return false;
    }
    Sequence fin;
    fin.Selection = debut.Selection;
    const auto coupure = debut.Points.begin() + static_cast<std::ptrdiff_t>(sommet);
    fin.Points.assign(coupure, debut.Points.end());
    debut.Points.erase(coupure + 1, debut.Points.end());
    debut.Points.shrink_to_fit(); // each piece would keep the room of the whole
    CalculerBornesSequence(debut);
    CalculerBornesSequence(fin);
    sequences.insert(sequences.begin() + static_cast<std::ptrdiff_t>(rang) + 1, std::move(fin));
    return true;
}

bool InsererPoint(Sequence& sequence, std::size_t segment, PointDessin ou) {
    if (!std::isfinite(ou.X) || !std::isfinite(ou.Y)) return false;
    if (sequence.Points.size() < 2 || segment > sequence.Points.size() - 2) return false;
    if (Confondus(sequence.Points[segment], ou) || Confondus(sequence.Points[segment + 1], ou)) return false;
    PointProfil point;
    point.X = ou.X;
    point.Y = ou.Y;
    sequence.Points.insert(sequence.Points.begin() + static_cast<std::ptrdiff_t>(segment) + 1, point);
    CalculerBornesSequence(sequence);
    return true;
}

void MiroirFichierSource(std::span<Sequence> sequences) {
    const Etendue cadre = CadrageSequences(sequences);
    Transformation miroir;
    miroir.genre = GenreTransformation::Miroir;
    miroir.fixe = {(static_cast<double>(cadre.XMin) + cadre.XMax) / 2, 0};
    for (Sequence& sequence : sequences) {
        TransformerPoints(sequence.Points, miroir);
        CalculerBornesSequence(sequence);
    }
}

void InverserSensSequences(std::span<Sequence> sequences) {
    for (Sequence& sequence : sequences) {
        InverserSequence(sequence);
        CalculerBornesSequence(sequence);
    }
}

} // namespace tessarel
