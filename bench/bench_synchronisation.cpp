// Synchronisation of two dense profiles, beside one pass that only reads and writes as many points.
#include "design4x/synchronisation.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace tessarel;

namespace {

// A flat loop, about 500 mm around on the root, whose vertices are spread unevenly; it begins above the
// middle.
std::vector<PointProfil> Boucle(std::size_t nombre, double taille) {
    std::vector<PointProfil> points(nombre);
    for (std::size_t i = 0; i < nombre; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(nombre - 1);
        const double a = 6.283185307179586 * (0.25 + t + 0.01 * std::sin(40 * t));
        points[i].X = taille * std::cos(a);
        points[i].Y = 0.12 * taille * std::sin(a);
    }
    return points;
}

ProjetCPX DeuxBoucles(const benchmark::State& etat) {
    ProjetCPX projet;
    projet.E.Points = Boucle(static_cast<std::size_t>(etat.range(0)), 125);
    projet.S.Points = Boucle(static_cast<std::size_t>(etat.range(1)), 90);
    return projet;
}

void NoterParPoint(benchmark::State& etat, std::size_t points) {
    etat.counters["per point"] =
        benchmark::Counter(static_cast<double>(etat.iterations()) * static_cast<double>(points),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    etat.counters["points"] = static_cast<double>(points);
}

void Synchroniser(benchmark::State& etat) {
    const ProjetCPX projet = DeuxBoucles(etat);
    std::size_t points = 0;
    for (auto _ : etat) {
        etat.PauseTiming();
        ProjetCPX copie = projet;
        etat.ResumeTiming();
        if (SynchroniserProfils(copie) != EtatSynchro::Faite) etat.SkipWithError("not synchronised");
        points = 2 * copie.E.Points.size();
    }
    NoterParPoint(etat, points);
}
BENCHMARK(Synchroniser)
    ->Args({100'000, 70'000})
    ->Args({10'000, 7'000})
    ->Args({300, 200})
    ->Unit(benchmark::kMillisecond);

// The memory alone: both profiles read once, fresh arrays of the result's size written once.
void LireEtEcrireAutant(benchmark::State& etat) {
    const ProjetCPX projet = DeuxBoucles(etat);
    const std::size_t points = projet.E.Points.size() + projet.S.Points.size();
    for (auto _ : etat) {
        for (int cote = 0; cote < 2; ++cote) {
            std::vector<PointProfil> copie;
            copie.reserve(points);
            copie.insert(copie.end(), projet.E.Points.begin(), projet.E.Points.end());
            copie.insert(copie.end(), projet.S.Points.begin(), projet.S.Points.end());
            benchmark::DoNotOptimize(copie.data());
        }
    }
    NoterParPoint(etat, 2 * points);
}
BENCHMARK(LireEtEcrireAutant)->Args({100'000, 70'000})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
