// Motion frames: one of each kind, the search for a ramp level against the plain scan, and whole lists.
#include "link/liste_salves.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace tessarel;

namespace {

TableMachine Machine() {
    TableMachine table;
    table.Frequence = 50000;
    table.PenteAcceleration = 6;
    table.PasParTour = {12800, 12800, 12800, 12800, 0};
    table.MmParTour = {40, 40, 40, 40};
    table.VmaxSansAccXY = 6;
    table.VitesseRapide = 8;
    return table;
}

void UneSalve(benchmark::State& etat, float depart, float cible, float fin, std::int32_t pas) {
    const ParametresSalve parametres = ParametresDeSalve(Machine());
    std::int32_t tour = 0;
    for ([[maybe_unused]] auto t : etat) {
        tour = (tour + 1) & 63;
        benchmark::DoNotOptimize(
            ConstruireSalve(parametres, depart, cible, fin, {pas + tour, -pas, pas, pas - tour}));
    }
}

void SansRampe(benchmark::State& etat) {
    UneSalve(etat, 4, 4, 4, 400);
}
BENCHMARK(SansRampe);

void DeuxRampesEntieres(benchmark::State& etat) {
    UneSalve(etat, 6, 8, 6, 12800);
}
BENCHMARK(DeuxRampesEntieres);

// From the lowest level, which has the most to sum.
void RampesDepuisLeBas(benchmark::State& etat) {
    UneSalve(etat, 0.01F, 80, 0.01F, 128000);
}
BENCHMARK(RampesDepuisLeBas);

void RampesPlusLonguesQueLeSegment(benchmark::State& etat) {
    UneSalve(etat, 0.5F, 80, 0.5F, 400);
}
BENCHMARK(RampesPlusLonguesQueLeSegment);

void ChercherNiveau(benchmark::State& etat) {
    const Rampe& rampe = RampeDeFrequence(5);
    double periode = 120;
    for ([[maybe_unused]] auto t : etat) {
        periode = periode > 20000 ? 120.3 : periode * 1.37;
        benchmark::DoNotOptimize(NiveauLePlusProche(rampe, periode));
    }
}
BENCHMARK(ChercherNiveau);

void ParcourirNiveaux(benchmark::State& etat) {
    const Rampe& rampe = RampeDeFrequence(5);
    double periode = 120;
    for ([[maybe_unused]] auto t : etat) {
        periode = periode > 20000 ? 120.3 : periode * 1.37;
        std::size_t meilleur = 0;
        for (std::size_t k = 1; k < rampe.periodes.size(); ++k)
            if (std::abs(rampe.periodes[k] - periode) < std::abs(rampe.periodes[meilleur] - periode))
                meilleur = k;
        benchmark::DoNotOptimize(meilleur);
    }
}
BENCHMARK(ParcourirNiveaux);

// A path of small moves; of every `tousLes` segments one is rapid, with its ramps.
std::vector<PointProfil> Chemin(std::size_t points, std::size_t tousLes) {
    std::vector<PointProfil> chemin(points);
    for (std::size_t i = 0; i < points; ++i) {
        const double angle = 0.001 * static_cast<double>(i);
        chemin[i].X = 400 + 200 * std::cos(angle);
        chemin[i].Y = 250 + 200 * std::sin(angle);
        chemin[i].Rapide = tousLes != 0 && i % tousLes == 0;
        chemin[i].Vitesse = i > 0 && chemin[i - 1].Rapide ? 8 : 4;
    }
    return chemin;
}

void ListeEntiere(benchmark::State& etat) {
    const auto chemin =
        Chemin(static_cast<std::size_t>(etat.range(0)), static_cast<std::size_t>(etat.range(1)));
    const TableMachine table = Machine();
    for ([[maybe_unused]] auto t : etat) benchmark::DoNotOptimize(PreparerSalves(chemin, 2, 65, table));
    etat.SetItemsProcessed(etat.iterations() * etat.range(0));
}
BENCHMARK(ListeEntiere)
    ->ArgNames({"points", "rapides"})
    ->Args({30000, 1000})
    ->Args({100000, 1000})
    ->Args({100000, 2})
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
