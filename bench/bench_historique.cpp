// Undo of the 2D workshop over 100 000 points: what taking a step up costs, what going back costs where the
// longest chain of transformations has to be replayed, and what a hundred steps take.
#include "work2d/edition.h"
#include "work2d/historique2d.h"
#include "work2d/selection.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using namespace tessarel;

namespace {

constexpr std::size_t PointsEnTout = 100000;

struct Atelier {
    std::vector<Sequence> sequences;
    Bloc bloc{300, 200};
    float coeff = 1;
    TableMachine table;
    Historique2D historique;
    std::mt19937 hasard{3};

    void Memoriser() { MemoriserTransformation(historique, sequences, bloc, coeff); }
    bool Reculer(SensHistorique sens) { return cmdUndoTS2D(historique, sens, sequences, bloc, coeff); }
    // Only the deed; the state before it is kept already.
    void Transformer(const Transformation& t) {
        TransformerSelection(sequences, t);
        AnnoncerTransformation(historique, t);
    }
    void Ajuster() {
        bloc.BlocX += 0.7F;
        AnnoncerTransformation(historique,
                               AjusterAuBloc(sequences, bloc, {true, true, true, 5, 5}, table, coeff));
    }
    void Inserer() {
        Sequence& s = sequences[hasard() % sequences.size()];
        const std::size_t segment = hasard() % (s.Points.size() - 1);
        InsererPoint(s, segment, {s.Points[segment].X + 0.01, s.Points[segment].Y + 0.01});
    }
    void Couper() {
        const std::size_t rang = hasard() % sequences.size();
        const std::size_t points = sequences[rang].Points.size();
        if (points > 2) CouperSequence(sequences, rang, 1 + hasard() % (points - 2));
    }
    void Tourner() { Transformer(Rotation({150, 100}, 1)); }
    void Inverser() {
        Transformation sens;
        sens.genre = GenreTransformation::Sens;
        Transformer(sens);
    }
    // Nobody says what it was.
    void Taire() {
        Tourner();
        historique.derniere.reset();
    }
};

Atelier Contours(std::size_t traces) {
    Atelier a;
    const std::size_t points = PointsEnTout / traces;
    a.sequences.resize(traces);
    for (std::size_t c = 0; c < traces; ++c) {
        for (std::size_t i = 0; i < points; ++i) {
            const double t = static_cast<double>(i) * 6.283 / static_cast<double>(points);
            const double r = 30 + 6 * std::sin(7 * t);
            PointProfil p;
            p.X = 50 + static_cast<double>(c % 10) * 9 + r * std::cos(t);
            p.Y = 40 + static_cast<double>(c / 10 % 8) * 6 + r * std::sin(t);
            a.sequences[c].Points.push_back(p);
        }
        CalculerBornesSequence(a.sequences[c]);
    }
    ToutSelectionner(a.sequences, true);
    return a;
}

// The time is that of MemoriserTransformation alone, step after step; the deed itself is not counted.
template <typename Action>
void Prendre(benchmark::State& etat, Action action) {
    Atelier a = Contours(static_cast<std::size_t>(etat.range(0)));
    a.Memoriser();
    for (auto _ : etat) {
        etat.PauseTiming();
        if (a.historique.PileTransformations.size() > 100) {
            a = Contours(static_cast<std::size_t>(etat.range(0)));
            a.Memoriser();
        }
        action(a);
        etat.ResumeTiming();
        a.Memoriser();
    }
}

void PrendreRotation(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Tourner(); });
}
void PrendreAjustement(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Ajuster(); });
}
void PrendreInsertion(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Inserer(); });
}
void PrendreCoupe(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Couper(); });
}
void PrendreInversion(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Inverser(); });
}
void PrendreInconnue(benchmark::State& etat) {
    Prendre(etat, [](Atelier& a) { a.Taire(); });
}

// To and fro between two states whose points are the longest chain away from those that are held.
template <typename Action>
void Revenir(benchmark::State& etat, int pas, Action action) {
    Atelier a = Contours(static_cast<std::size_t>(etat.range(0)));
    for (int i = 0; i < pas; ++i) {
        a.Memoriser();
        action(a);
    }
    a.Memoriser();
    a.Reculer(SensHistorique::Arriere);
    bool arriere = true;
    for (auto _ : etat) {
        a.Reculer(arriere ? SensHistorique::Arriere : SensHistorique::Avant);
        arriere = !arriere;
    }
    etat.counters["Mo"] = static_cast<double>(MemoireHistorique(a.historique)) / (1 << 20);
}

void RevenirDeRotations(benchmark::State& etat) {
    Revenir(etat, ProfondeurMaxi, [](Atelier& a) { a.Tourner(); });
}
void RevenirDAjustements(benchmark::State& etat) {
    Revenir(etat, ProfondeurMaxi, [](Atelier& a) { a.Ajuster(); });
}
void RevenirDInsertions(benchmark::State& etat) {
    Revenir(etat, 31, [](Atelier& a) { a.Inserer(); });
}
void RevenirDeCoupes(benchmark::State& etat) {
    Revenir(etat, 100, [](Atelier& a) { a.Couper(); });
}

// A hundred turns of everything, each kept, and all the way back.
void CentPasEtRetour(benchmark::State& etat) {
    std::size_t octets = 0;
    for (auto _ : etat) {
        Atelier a = Contours(static_cast<std::size_t>(etat.range(0)));
        for (int i = 0; i < 100; ++i) {
            a.Memoriser();
            a.Tourner();
        }
        a.Memoriser();
        octets = MemoireHistorique(a.historique);
        while (a.Reculer(SensHistorique::Arriere)) {
        }
    }
    etat.counters["Mo"] = static_cast<double>(octets) / (1 << 20);
}

void Traces(benchmark::internal::Benchmark* banc) {
    banc->ArgName("traces")->Arg(1)->Arg(100)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond);
}

// Two points have no vertex between them.
void TracesQuiSeCoupent(benchmark::internal::Benchmark* banc) {
    banc->ArgName("traces")->Arg(1)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(PrendreRotation)->Apply(Traces);
BENCHMARK(PrendreAjustement)->Apply(Traces);
BENCHMARK(PrendreInsertion)->Apply(Traces);
BENCHMARK(PrendreCoupe)->Apply(TracesQuiSeCoupent);
BENCHMARK(PrendreInversion)->Apply(Traces);
BENCHMARK(PrendreInconnue)->Apply(Traces);
BENCHMARK(RevenirDeRotations)->Apply(Traces);
BENCHMARK(RevenirDAjustements)->Apply(Traces);
BENCHMARK(RevenirDInsertions)->Apply(Traces);
BENCHMARK(RevenirDeCoupes)->Apply(TracesQuiSeCoupent);
BENCHMARK(CentPasEtRetour)->Apply(Traces);

} // namespace

BENCHMARK_MAIN();
