// A project, its block and its history, as a window holds them: each deed keeps the state, acts, and says
// what it did as the window does.
#pragma once

#include "outils_decoupe.h"
#include "work2d/edition.h"
#include "work2d/historique2d.h"
#include "work2d/placement.h"
#include "work2d/selection.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tessarel::essais {

struct AtelierEssai {
    std::vector<Sequence> sequences;
    Bloc bloc{100, 50};
    float coeff = 1;
    Historique2D historique;
    TableMachine table = MachineEssai();

    void Memoriser() { MemoriserTransformation(historique, sequences, bloc, coeff); }
    bool Arriere() { return cmdUndoTS2D(historique, SensHistorique::Arriere, sequences, bloc, coeff); }
    bool Avant() { return cmdUndoTS2D(historique, SensHistorique::Avant, sequences, bloc, coeff); }

    void Transformer(const Transformation& t) {
        Memoriser();
        TransformerSelection(sequences, t);
        AnnoncerTransformation(historique, t);
    }
    void Inverser() {
        Transformation sens;
        sens.genre = GenreTransformation::Sens;
        Transformer(sens);
    }
    void Dupliquer() {
        Memoriser();
        DupliquerSelection(sequences);
        AnnoncerTransformation(historique, Deplacement(EcartCopie, EcartCopie));
    }
    void Supprimer() {
        Memoriser();
        SupprimerSelection(sequences);
    }
    void Inserer(std::size_t rang, std::size_t segment, PointDessin ou) {
        Memoriser();
        InsererPoint(sequences[rang], segment, ou);
    }
    void Retirer(std::size_t rang, std::size_t sommet) {
        Memoriser();
        sequences[rang].Points.erase(sequences[rang].Points.begin() + static_cast<std::ptrdiff_t>(sommet));
        CalculerBornesSequence(sequences[rang]);
    }
    void Couper(std::size_t rang, std::size_t sommet) {
        Memoriser();
        CouperSequence(sequences, rang, sommet);
    }
    void Placer(Bloc nouveau, const ReglesPlacement& regles) {
        Memoriser();
        bloc = nouveau;
        AnnoncerTransformation(historique, AjusterAuBloc(sequences, bloc, regles, table, coeff));
        OublierMemorisation(historique, sequences, bloc);
    }
};

// A wavy outline whose coordinates have all their digits.
inline Sequence Contour(double x, double y, std::size_t points) {
    Sequence s;
    s.Points.reserve(points);
    for (std::size_t i = 0; i < points; ++i) {
        const double t = 6.283 * static_cast<double>(i) / static_cast<double>(points - 1);
        PointProfil p;
        p.X = x + 40 * std::cos(t) + 3 * std::sin(9 * t);
        p.Y = y + 40 * std::sin(t);
        s.Points.push_back(p);
    }
    s.Selection = SelectionSequence;
    CalculerBornesSequence(s);
    return s;
}

// `points` in all, shared out evenly; all selected.
inline AtelierEssai AvecContours(std::size_t traces, std::size_t points) {
    AtelierEssai a;
    a.sequences.reserve(traces);
    for (std::size_t i = 0; i < traces; ++i) {
        const auto rang = static_cast<double>(i);
        a.sequences.push_back(Contour(rang * 0.7, rang / 3, points / traces));
    }
    return a;
}

// Nothing is near enough here: every bit of every point, box and selection.
inline bool MemesBits(const std::vector<Sequence>& a, const std::vector<Sequence>& b) {
    if (a.size() != b.size()) return false;
    const auto bornes = [](const Sequence& s) {
        std::vector<std::uint32_t> mots;
        for (const float f : {s.XMin, s.XMax, s.YMin, s.YMax, s.Largeur, s.Hauteur})
            mots.push_back(std::bit_cast<std::uint32_t>(f));
        return mots;
    };
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].Points.size() != b[i].Points.size() || a[i].Selection != b[i].Selection) return false;
        if (bornes(a[i]) != bornes(b[i])) return false;
        for (std::size_t k = 0; k < a[i].Points.size(); ++k)
            if (!tessarel::MemesBits(a[i].Points[k], b[i].Points[k])) return false;
    }
    return true;
}

} // namespace tessarel::essais
