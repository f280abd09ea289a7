// The 4-axis cut on two profiles of up to a million points: the whole computation, what follows it, and one
// bare pass over the same memory to hold it against.
#include "allocations.h"

#include "cut4x/controle4x.h"
#include "cut4x/decoupe4x.h"
#include "cut4x/export_gcode4x.h"
#include "cut4x/passage.h"
#include "cut4x/position_bloc4x.h"

#include "platform/dialogue.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace tessarel;

namespace {

TableMachine Machine() {
    TableMachine table;
    table.CourseX = 1000;
    table.CourseY = 800;
    table.MargeFilPlateau = 1;
    table.MargeFilBloc = 15;
    table.VitesseRapide = 20;
    table.VmaxSansAccXY = 40;
    table.VmaxAvecAccXY = 80;
    table.EcartementY1Y2 = 1000;
    table.EcartementY1Plateau = table.EcartementPlateauY2 = 50;
    table.LongueurMaxiFil = 1500;
    table.TempoChauffe = 2;
    table.Frequence = 50000;
    table.PenteAcceleration = 6;
    table.PasParTourMoteur = {200, 200, 200, 200, 200};
    table.MicroPas = {64, 64, 64, 64, 64};
    table.MmParTour = {40, 40, 40, 40};
    CalculerChampsDerives(table);
    return table;
}

// A turn of `points` points around an ellipse with a ripple that no two neighbours share: every corner is
// one.
void Profil(std::vector<PointProfil>& profil, std::size_t points, double demiCorde) {
    profil.resize(points);
    for (std::size_t i = 0; i < points; ++i) {
        const double a = 2 * 3.14159265358979 * static_cast<double>(i) / static_cast<double>(points);
        const double pas = demiCorde * 6 / static_cast<double>(points);
        const double r = 1 + 0.2 * pas * std::sin(static_cast<double>(i) * 1.7) / demiCorde;
        profil[i].X = demiCorde * (1 - r * std::cos(a));
        profil[i].Y = 220 * r * std::sin(a);
    }
}

// Big enough that even of a million points no two stand 0.001 mm apart.
struct Poste {
    ProjetCPX projet;
    ParametresDecoupe4axes parametres;
    ValeursDecoupe matiere = {65, 4, 1, 2};
    TableMachine table = Machine();
    DecoupeD4X decoupe;

    Poste(std::size_t points, AlgorithmeDecalageD4X algorithme) {
        InstallerAfficheurBoite([](const Boite&) { return ReponseBoite::Ok; });
        Profil(projet.E.Points, points, 400);
        Profil(projet.S.Points, points, 380);
        projet.Ecartement = 600;
        projet.Epaisseur = 500;
        CalculerExtremesCPX(projet);
        parametres = ParametresDecoupe4axesInitiaux(table);
        parametres.OffsetBlocX = 60;
        parametres.TypePositionZ = AlignementZ::Centre;
        parametres.TypeAlgorithmeDecalage = algorithme;
        AppliquerAlignementZ(projet.Ecartement, table, parametres);
        Calculer();
    }
    [[nodiscard]] ContexteD4X Contexte() const { return {projet, parametres, matiere, table}; }
    void Calculer() {
        decoupe.DecoupePossible = PasserEnDecoupe(projet, true, table).DecoupePossible;
        CalculerDecoupeD4X(Contexte(), decoupe);
    }
};

void Compter(benchmark::State& etat, std::size_t points) {
    etat.counters["par point"] =
        benchmark::Counter(static_cast<double>(points) * static_cast<double>(etat.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void Calculer(benchmark::State& etat, AlgorithmeDecalageD4X algorithme) {
    const auto points = static_cast<std::size_t>(etat.range(0));
    Poste poste(points, algorithme);
    for (int i = 0; i < 3; ++i) poste.Calculer(); // buffers find their size
    if (!poste.decoupe.DecoupePossible) etat.SkipWithError("no cut");
    const std::size_t avant = allocations;
    for ([[maybe_unused]] auto tour : etat) poste.Calculer();
    etat.counters["allocations/calcul"] =
        static_cast<double>(allocations - avant) / static_cast<double>(etat.iterations());
    etat.counters["points du trajet"] = static_cast<double>(poste.decoupe.PaireChariots.E.size());
    Compter(etat, 2 * points);
}
void DecalageVariableEntier(benchmark::State& etat) {
    Calculer(etat, AlgorithmeDecalageD4X::Variable);
}
BENCHMARK(DecalageVariableEntier)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
void DecalageSimpleEntier(benchmark::State& etat) {
    Calculer(etat, AlgorithmeDecalageD4X::Simple);
}
BENCHMARK(DecalageSimpleEntier)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

// Writes one field of every point of the pairs that a computation with the variable offset fills, once.
void PasseSurLaMemeMemoire(benchmark::State& etat) {
    const auto points = static_cast<std::size_t>(etat.range(0));
    Poste poste(points, AlgorithmeDecalageD4X::Variable);
    DecoupeD4X& d = poste.decoupe;
    for ([[maybe_unused]] auto tour : etat) {
        for (auto* liste : {&d.PairePositionnee.E.Points, &d.PairePositionnee.S.Points, &d.PaireBloc.E,
                            &d.PaireBloc.S, &d.PaireChariots.E, &d.PaireChariots.S})
            for (PointProfil& p : *liste) p.X += 1e-9;
        benchmark::ClobberMemory();
    }
    Compter(etat, 2 * points);
}
BENCHMARK(PasseSurLaMemeMemoire)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void Constater(benchmark::State& etat) {
    const Poste poste(10000, AlgorithmeDecalageD4X::Variable);
    for ([[maybe_unused]] auto tour : etat)
        benchmark::DoNotOptimize(ConstaterDecoupeD4X(poste.Contexte(), poste.decoupe));
    Compter(etat, 20000);
}
BENCHMARK(Constater)->Unit(benchmark::kMillisecond);

void PlacementAutoEnZ(benchmark::State& etat) {
    const Poste poste(10000, AlgorithmeDecalageD4X::Variable);
    for ([[maybe_unused]] auto tour : etat)
        benchmark::DoNotOptimize(PlacementAutoBlocZ(poste.Contexte(), poste.decoupe));
}
BENCHMARK(PlacementAutoEnZ)->Unit(benchmark::kMillisecond);

void PreparerLesSalves(benchmark::State& etat) {
    const Poste poste(10000, AlgorithmeDecalageD4X::Variable);
    std::size_t salves = 0;
    for ([[maybe_unused]] auto tour : etat) {
        const PreparationD4X preparation = PreparerSalvesD4X(poste.Contexte(), poste.decoupe, true);
        if (preparation.Resultat != PreparationBonne) etat.SkipWithError("refused");
        salves = preparation.TronconsD4X.empty() ? 0 : preparation.TronconsD4X[0].TableauSalves.size();
    }
    etat.counters["salves"] = static_cast<double>(salves);
    Compter(etat, 20000);
}
BENCHMARK(PreparerLesSalves)->Unit(benchmark::kMillisecond);

void FichierGcodeEntier(benchmark::State& etat) {
    const Poste poste(10000, AlgorithmeDecalageD4X::Variable);
    std::size_t octets = 0;
    for ([[maybe_unused]] auto tour : etat)
        octets = ConstruireGcode4axes(poste.Contexte(), poste.decoupe, "").contenu.size();
    etat.counters["octets"] = static_cast<double>(octets);
}
BENCHMARK(FichierGcodeEntier)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
