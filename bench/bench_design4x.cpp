// The design engine: measures, tools with their refresh and undo snapshot, and the projection, beside one
// pass over the same memory.
#include "design4x/conception_cpx.h"
#include "design4x/vue_cpx.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

using namespace tessarel;

namespace {

// A wing of `points` points on each side, with a tenth of them selected.
ProjetCPX Aile(std::size_t points) {
    ProjetCPX projet;
    for (ProfilCPX* profil : {&projet.E, &projet.S}) {
        profil->Points.resize(points);
        for (std::size_t k = 0; k < points; ++k) {
            const double t = 2 * 3.14159265358979 * static_cast<double>(k) / static_cast<double>(points);
            profil->Points[k].X = 1000 - 1000 * std::cos(t);
            profil->Points[k].Y = 120 * std::sin(t);
            profil->Points[k].Drapeaux = k % 100 < 10 ? DrapeauOutil : 0;
        }
    }
    projet.Ecartement = 500;
    EcrireZ(projet);
    CalculerExtremesCPX(projet);
    return projet;
}

void ParPoint(benchmark::State& etat) {
    etat.counters["par point"] =
        benchmark::Counter(static_cast<double>(etat.iterations()) * 2 * static_cast<double>(etat.range(0)),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

// The floor: both coordinates of every point read once.
void UnePasse(benchmark::State& etat) {
    const ProjetCPX projet = Aile(static_cast<std::size_t>(etat.range(0)));
    for (auto _ : etat) {
        double somme = 0;
        for (const ProfilCPX* profil : {&projet.E, &projet.S})
            for (const PointProfil& p : profil->Points) somme += p.X + p.Y;
        benchmark::DoNotOptimize(somme);
    }
    ParPoint(etat);
}
BENCHMARK(UnePasse)->Arg(10'000)->Arg(1'000'000);

void Extremes(benchmark::State& etat) {
    ProjetCPX projet = Aile(static_cast<std::size_t>(etat.range(0)));
    for (auto _ : etat) {
        CalculerExtremesCPX(projet);
        benchmark::DoNotOptimize(projet.Fleche);
    }
    ParPoint(etat);
}
BENCHMARK(Extremes)->Arg(10'000)->Arg(1'000'000);

void Projeter(benchmark::State& etat) {
    const ProjetCPX projet = Aile(static_cast<std::size_t>(etat.range(0)));
    VueCPX vue;
    DimensionnerVue(vue, 1280, 800);
    for (auto _ : etat) {
        CalculerCoordonneesPerspectiveCPX(vue, projet, true);
        benchmark::DoNotOptimize(vue.E.Ecran.data());
    }
    ParPoint(etat);
}
BENCHMARK(Projeter)->Arg(10'000)->Arg(1'000'000);

// A tool as its button runs it, refresh and undo snapshot included; the project is put back outside the
// clock.
void Outil(benchmark::State& etat, const char* controle, int index, double valeur) {
    const ProjetCPX depart = Aile(static_cast<std::size_t>(etat.range(0)));
    const OutilCPX& outil = *TrouverOutilCPX(controle);
    ConceptionCPX conception;
    for (auto _ : etat) {
        etat.PauseTiming();
        ChargerProjetCPX(conception, depart);
        conception.projet.E.PointCourant = conception.projet.S.PointCourant = 5;
        etat.ResumeTiming();
        benchmark::DoNotOptimize(AppliquerOutilCPX(conception, outil, index, valeur));
    }
    ParPoint(etat);
}

int Inscrire() {
    struct Cas {
        const char* controle;
        int index;
        double valeur;
    };
    for (const Cas& cas : std::vector<Cas>{{"cmdSelectAll", 0, 0},
                                           {"cmdSelectionAngle", 1, 0},
                                           {"txtDeplacer", 0, 5},
                                           {"txtEtirer", 0, 90},
                                           {"txtTourner", 0, 12.5},
                                           {"cmdSymetrie", 0, 0},
                                           {"cmdSupprimer", 0, 0},
                                           {"cmdInsererPoint", 0, 0},
                                           {"txtCorde", 0, 180},
                                           {"txtEcartementZ", 0, 400},
                                           {"txtFleche", 0, 30},
                                           {"txtDiedreMm", 0, 10},
                                           {"txtDecaler", 0, 0.5},
                                           {"cmdInverserSelection", 0, 0},
                                           {"cmdRenumeroter", 0, 0},
                                           {"cmdInverserProfilsES", 0, 0},
                                           {"cmdCopier", 0, 0},
                                           {"cmdDupliquer", 1, 10},
                                           {"cmdBlocAuto", 4, 0}})
        benchmark::RegisterBenchmark(
            ("Outil/" + std::string(cas.controle)).c_str(),
            [cas](benchmark::State& etat) { Outil(etat, cas.controle, cas.index, cas.valeur); })
            ->Arg(10'000)
            ->Unit(benchmark::kMicrosecond);
    return 0;
}
const int inscrits = Inscrire();

void AnnulerRefaire(benchmark::State& etat) {
    ConceptionCPX conception;
    ChargerProjetCPX(conception, Aile(static_cast<std::size_t>(etat.range(0))));
    AppliquerOutilCPX(conception, *TrouverOutilCPX("txtDeplacer"), 0, 5);
    for (auto _ : etat) {
        cmdUndoCPX(conception.historique, conception.projet, 0);
        cmdUndoCPX(conception.historique, conception.projet, 1);
    }
}
BENCHMARK(AnnulerRefaire)->Arg(10'000)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
