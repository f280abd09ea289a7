// The streaming loop against a bare ping-pong: what it adds of its own to an exchange, in one process and on
// the socket of a virtual box.
#include "link/envoi_salves.h"
#include "link/etat_interface.h"
#include "platform/prise_zelko.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <thread>

using namespace tessarel;

namespace {

// A box that accepts every frame but each eighth, and ends the run with the last one; as cheap as one can be.
struct BoitierImmediat {
    std::atomic<std::uint64_t> echanges = 0;
    std::uint32_t numero = 0;
    bool fini = false;

    std::int32_t Repondre(Tampon& t) {
        const std::uint64_t rang = ++echanges;
        const std::uint8_t code = t[1];
        bool prise = false;
        if (code == 'B') {
            numero = 0;
            fini = false;
        } else if (code == 'D') {
            prise = (rang & 7U) != 0; // the queue is full now and then
            if (prise) ++numero;
            fini = fini || (prise && t[2] == SalveFin);
        }
        t.fill(0);
        t[1] = code;
        t[2] = prise ? 1 : 0;
        t[12] = fini ? 130 : 0;
        if (code != 'P') EcrireOctets32(t, 4, numero);
        return ResultatZelkoSucces;
    }
};

// The box inside this process.
struct SurPlace {
    BoitierImmediat boitier;
    SurPlace() {
        RemplacerZelkoCom({VersionMinimaleZelko, [] { return ZelkoBranchee; },
                           [this](Tampon& t) { return boitier.Repondre(t); }});
        MouvementsActifs = true;
    }
    ~SurPlace() {
        LibererZelkoCom();
        ReinitialiserEtatInterface();
    }
    SurPlace(const SurPlace&) = delete;
    SurPlace& operator=(const SurPlace&) = delete;
};

// The box behind the socket, in a thread, reached through the link library beside this program.
struct SurPrise {
    BoitierImmediat boitier;
    std::filesystem::path dossier;
    std::atomic<bool> fin = false;
    std::thread serveur;
    SurPrise() : dossier(std::filesystem::temp_directory_path() / "tessarel-bench-envoi") {
        std::filesystem::create_directories(dossier);
        ::setenv("XDG_RUNTIME_DIR", dossier.c_str(), 1);
        auto prise = std::make_unique<PriseZelko>((dossier / "zelko.sock").string(), [this](const Tampon& t) {
            ReponsePrise reponse;
            reponse.octets = t;
            boitier.Repondre(reponse.octets);
            return reponse;
        });
        serveur = std::thread([this, prise = std::move(prise)] {
            while (!fin) prise->Servir(std::chrono::milliseconds(20));
        });
        if (ChargerZelkoCom(DossiersZelkoCom()) != EtatBibliotheque::Presente || !TesterInterface())
            throw std::runtime_error("no link library beside the program, or no box on its socket");
        MouvementsActifs = true;
    }
    ~SurPrise() {
        fin = true;
        serveur.join();
        LibererZelkoCom();
        ReinitialiserEtatInterface();
        std::filesystem::remove_all(dossier);
    }
    SurPrise(const SurPrise&) = delete;
    SurPrise& operator=(const SurPrise&) = delete;
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

template <typename Lieu>
void PingPongNu(benchmark::State& etat) {
    Lieu lieu;
    Tampon t{};
    for ([[maybe_unused]] auto tour : etat) {
        t.fill(0);
        t[1] = 'I';
        benchmark::DoNotOptimize(Zelko_Send(t));
    }
    ParEchange(etat, lieu.boitier.echanges);
}
BENCHMARK_TEMPLATE(PingPongNu, SurPlace);
BENCHMARK_TEMPLATE(PingPongNu, SurPrise)->UseRealTime();

template <typename Lieu>
void EnvoiDUneListe(benchmark::State& etat) {
    Lieu lieu;
    const TableauSalves salves = Liste(static_cast<std::size_t>(etat.range(0)));
    DemandesMarche demandes;
    SuiviMarche suivi;
    suivi.demandes = &demandes;
    double somme = 0;
    suivi.Avancer = [&somme](const AvanceeMarche& a) { somme += a.Fraction; };
    for ([[maybe_unused]] auto tour : etat) benchmark::DoNotOptimize(EnvoyerSalves(salves, suivi));
    benchmark::DoNotOptimize(somme);
    ParEchange(etat, lieu.boitier.echanges);
}
BENCHMARK_TEMPLATE(EnvoiDUneListe, SurPlace)->Arg(30000)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(EnvoiDUneListe, SurPrise)->Arg(30000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
