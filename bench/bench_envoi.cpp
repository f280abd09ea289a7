// The streaming loop against a bare ping-pong: what it adds of its own to an exchange.
#include "link/envoi_salves.h"
#include "link/etat_interface.h"

#include <benchmark/benchmark.h>

using namespace tessarel;

namespace {

// A box that accepts every frame and ends the run with the last one; as cheap as one can be.
struct BoitierImmediat {
    std::uint64_t echanges = 0;
    std::uint32_t numero = 0;
    bool fini = false;

    BoitierImmediat() {
        RemplacerZelkoCom(
            {VersionMinimaleZelko, [] { return ZelkoBranchee; }, [this](Tampon& t) { return Repondre(t); }});
        MouvementsActifs = true;
    }
    ~BoitierImmediat() {
        LibererZelkoCom();
        ReinitialiserEtatInterface();
    }
    BoitierImmediat(const BoitierImmediat&) = delete;
    BoitierImmediat& operator=(const BoitierImmediat&) = delete;

    std::int32_t Repondre(Tampon& t) {
        ++echanges;
        const std::uint8_t code = t[1];
        if (code == 'B') {
            numero = 0;
            fini = false;
        } else if (code == 'D') {
            // Every eighth is refused: the queue is full now and then.
            const bool prise = (echanges & 7U) != 0;
            if (prise) ++numero;
            fini = fini || (prise && t[2] == SalveFin);
            t.fill(0);
            t[2] = prise ? 1 : 0;
        } else {
            t.fill(0);
        }
        EcrireOctets32(t, 4, numero);
        t[7] = 0;
        t[8] = 0;
        t[12] = fini ? 130 : 0;
        if (code == 'P') t[2] = t[4] = 0;
        return ResultatZelkoSucces;
    }
};

TableauSalves Liste(std::size_t segments) {
    TableMachine table;
    table.Frequence = 50000;
    table.PasParTour = {12800, 12800, 12800, 12800, 0};
    table.MmParTour = {40, 40, 40, 40};
    std::vector<PointProfil> chemin(segments + 1);
    for (std::size_t i = 0; i < chemin.size(); ++i) {
        chemin[i].X = 0.1 * static_cast<double>(i % 100);
        chemin[i].Y = 0.01 * static_cast<double>(i);
        chemin[i].Vitesse = 4;
    }
    return PreparerSalves(chemin, 2, 50, table).salves;
}

void ParEchange(benchmark::State& etat, std::uint64_t echanges) {
    etat.counters["par echange"] = benchmark::Counter(
        static_cast<double>(echanges), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void PingPongNu(benchmark::State& etat) {
    BoitierImmediat boitier;
    Tampon t{};
    for ([[maybe_unused]] auto tour : etat) {
        t.fill(0);
        t[1] = 'I';
        benchmark::DoNotOptimize(Zelko_Send(t));
    }
    ParEchange(etat, boitier.echanges);
}
BENCHMARK(PingPongNu);

void EnvoiDUneListe(benchmark::State& etat) {
    BoitierImmediat boitier;
    const TableauSalves salves = Liste(30000);
    DemandesMarche demandes;
    SuiviMarche suivi;
    suivi.demandes = &demandes;
    double somme = 0;
    suivi.Avancer = [&somme](const AvanceeMarche& a) { somme += a.Fraction; };
    for ([[maybe_unused]] auto tour : etat) benchmark::DoNotOptimize(EnvoyerSalves(salves, suivi));
    benchmark::DoNotOptimize(somme);
    ParEchange(etat, boitier.echanges);
}
BENCHMARK(EnvoiDUneListe)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
