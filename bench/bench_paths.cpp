// Thinning of a million points: an ordinary drawing with noise, a straight run, sparse points that all stay.
#include "paths/geometrie.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

using namespace tessarel;

namespace {

constexpr std::size_t NombrePoints = 1'000'000;
constexpr float Tolerance = 0.02F;

// A wavy outline walked in steps of `pas` mm, each point off by up to `bruit` mm.
template <typename Point>
std::vector<Point> CourbeBruitee(double pas, double bruit) {
    std::mt19937 hasard(1);
    std::uniform_real_distribution<double> tirage(-bruit, bruit);
    std::vector<Point> points(NombrePoints);
    double x = 0;
    double y = 0;
    double cap = 0;
    for (std::size_t i = 0; i < NombrePoints; ++i) {
        const double s = static_cast<double>(i) * pas;
        cap = 1.7 * std::sin(s / 23) + s / 180; // bends between 7 mm and a straight line
        x += pas * std::cos(cap);
        y += pas * std::sin(cap);
        points[i].X = static_cast<decltype(points[i].X)>(x + tirage(hasard));
        points[i].Y = static_cast<decltype(points[i].Y)>(y + tirage(hasard));
    }
    return points;
}

void NoterParPoint(benchmark::State& etat, std::size_t gardes) {
    etat.counters["per point"] =
        benchmark::Counter(static_cast<double>(etat.iterations()) * NombrePoints,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    etat.counters["kept"] = static_cast<double>(gardes);
}

// Arguments: step and noise in thousandths of a millimetre.
void ReduireCourbe(benchmark::State& etat) {
    const auto points = CourbeBruitee<PointSimple>(static_cast<double>(etat.range(0)) / 1000,
                                                   static_cast<double>(etat.range(1)) / 1000);
    std::size_t gardes = 0;
    for (auto _ : etat) {
        etat.PauseTiming();
        std::vector<PointSimple> copie = points;
        etat.ResumeTiming();
        ReductionPointsAlignes(copie, Tolerance);
        gardes = copie.size();
    }
    NoterParPoint(etat, gardes);
}
BENCHMARK(ReduireCourbe)
    ->Args({10, 1})
    ->Args({50, 2})
    ->Args({100, 0})
    ->Args({100, 5})
    ->Args({100, 15})
    ->Args({500, 5})
    ->Args({2000, 10})
    ->Unit(benchmark::kMillisecond);

void MarquerCourbe(benchmark::State& etat) {
    auto points = CourbeBruitee<PointProfil>(static_cast<double>(etat.range(0)) / 1000,
                                             static_cast<double>(etat.range(1)) / 1000);
    for (auto _ : etat) MarquerPointsConserves(points, 0.025F);
    std::size_t gardes = 0;
    for (const PointProfil& p : points) gardes += (p.Drapeaux & DrapeauConserve) != 0 ? 1 : 0;
    NoterParPoint(etat, gardes);
}
BENCHMARK(MarquerCourbe)->Args({100, 5})->Unit(benchmark::kMillisecond);

// One window over all points.
void ReduireLigneDroite(benchmark::State& etat) {
    std::vector<PointSimple> points(NombrePoints);
    for (std::size_t i = 0; i < NombrePoints; ++i) {
        points[i].X = static_cast<float>(static_cast<double>(i) * 0.001);
        points[i].Y = static_cast<float>(static_cast<double>(i) * 0.0004);
    }
    std::size_t gardes = 0;
    for (auto _ : etat) {
        etat.PauseTiming();
        std::vector<PointSimple> copie = points;
        etat.ResumeTiming();
        ReductionPointsAlignes(copie, Tolerance);
        gardes = copie.size();
    }
    NoterParPoint(etat, gardes);
}
BENCHMARK(ReduireLigneDroite)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
