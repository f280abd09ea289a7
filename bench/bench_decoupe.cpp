// The road of a 2D cut and its G-code, on a path as long as a cut can be.
#include "allocations.h"

#include "paths/gcode.h"
#include "work2d/assemblage.h"
#include "work2d/export_gcode.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace tessarel;

namespace {

constexpr std::size_t PointsTrace = 32000;

TableMachine Machine() {
    TableMachine table;
    table.CourseX = 980;
    table.CourseY = 510;
    table.MargeFilPlateau = 1;
    table.MargeFilBloc = 15;
    table.MargeOrigineBloc = 5;
    table.VitesseDecoupeParDefaut = 4;
    table.VitesseRapide = 8;
    table.SaigneeVDParDefaut = 1;
    table.TempoChauffe = 2;
    return table;
}

OptionsDecoupe2D Options() {
    OptionsDecoupe2D options;
    options.BlocX = 770;
    options.BlocY = 390;
    options.TypeEntree = options.TypeSortie = 2;
    options.approcheRapide = options.retourRapide = true;
    options.decalage = CoteDecalage2D::Droite;
    return options;
}

// A gear-like contour of 32 000 points that thinning keeps and that leaves the zone at the top `sortie` mm
// over.
std::vector<Sequence> Contour(double sortie) {
    Sequence contour;
    for (std::size_t i = 0; i < PointsTrace; ++i) {
        const double angle = 2 * 3.14159265358979 * static_cast<double>(i) / PointsTrace;
        const double rayon = 200 + sortie + (i % 2 == 0 ? 0.0 : 0.4);
        PointProfil p;
        p.X = 490 + rayon * std::cos(angle);
        p.Y = 300 + rayon * std::sin(angle);
        contour.Points.push_back(p);
    }
    CalculerBornesSequence(contour);
    return {contour};
}

void AssemblerDansLaZone(benchmark::State& etat) {
    const std::vector<Sequence> sequences = Contour(0);
    std::size_t points = 0;
    for ([[maybe_unused]] auto tour : etat)
        points = AssemblerDecoupe2D(sequences, Options(), Machine()).SequenceDecoupe.Points.size();
    etat.counters["points"] = static_cast<double>(points);
}
BENCHMARK(AssemblerDansLaZone)->Unit(benchmark::kMillisecond);

void AssemblerEtTronquer(benchmark::State& etat) {
    const std::vector<Sequence> sequences = Contour(60);
    std::size_t points = 0;
    for ([[maybe_unused]] auto tour : etat)
        points = AssemblerDecoupe2D(sequences, Options(), Machine()).SequenceDecoupe.Points.size();
    etat.counters["points"] = static_cast<double>(points);
}
BENCHMARK(AssemblerEtTronquer)->Unit(benchmark::kMillisecond);

void JoindreEtAlleger(benchmark::State& etat) {
    const std::vector<Sequence> sequences = Contour(0);
    for ([[maybe_unused]] auto tour : etat)
        benchmark::DoNotOptimize(AssemblageSequencesTransfPourDecoupe(sequences, 0.02F));
}
BENCHMARK(JoindreEtAlleger)->Unit(benchmark::kMillisecond);

void EcrireLignes(benchmark::State& etat, const std::vector<PointProfil>& points) {
    FichierGcode fichier;
    std::size_t allouees = 0;
    for ([[maybe_unused]] auto tour : etat) {
        etat.PauseTiming();
        fichier.EcrireEntete({});
        fichier.Reserver(points.size());
        const std::size_t avant = allocations;
        etat.ResumeTiming();
        double f = 1200;
        for (const PointProfil& p : points) {
            fichier.AjouterMouvement(p.X, p.Y, p.X, p.Y, f);
            f += 0.0137;
        }
        allouees += allocations - avant;
    }
    const auto lignes = static_cast<std::int64_t>(points.size()) * etat.iterations();
    etat.SetItemsProcessed(lignes);
    etat.counters["par ligne"] = benchmark::Counter(
        static_cast<double>(lignes), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    etat.counters["allocations/ligne"] = static_cast<double>(allouees) / static_cast<double>(lignes);
}

void LignesGcode(benchmark::State& etat) {
    EcrireLignes(etat, AssemblerDecoupe2D(Contour(0), Options(), Machine()).SequenceDecoupe.Points);
}
BENCHMARK(LignesGcode)->Unit(benchmark::kMillisecond);

// Thirty-seconds of a mm: every other coordinate is a half of the last digit, where rounding takes its slow
// road.
void LignesGcodeAuxDemis(benchmark::State& etat) {
    std::vector<PointProfil> points(PointsTrace);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].X = static_cast<double>(i % 30000) / 32;
        points[i].Y = static_cast<double>(i % 16000) / 32;
    }
    EcrireLignes(etat, points);
}
BENCHMARK(LignesGcodeAuxDemis)->Unit(benchmark::kMillisecond);

void FichierGcodeEntier(benchmark::State& etat) {
    const Decoupe2D decoupe = AssemblerDecoupe2D(Contour(0), Options(), Machine());
    std::size_t octets = 0;
    for ([[maybe_unused]] auto tour : etat)
        octets = ConstruireGcode2D(decoupe, Options(), Machine(), "").contenu.size();
    etat.counters["octets"] = static_cast<double>(octets);
}
BENCHMARK(FichierGcodeEntier)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
