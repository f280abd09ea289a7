// The virtual box: the cost of an exchange, of a frame that runs, of machine time that passes, of a line of
// the log.
#include "link/simulateur/boite.h"
#include "link/simulateur/journal.h"
#include "link/simulateur/memoires_machine.h"
#include "link/simulateur/poste_virtuel.h"
#include "link/simulateur/vues_machine.h"
#include "platform/horloge.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace tessarel;
using namespace tessarel::simulateur;

namespace {

Tampon Commande(std::uint8_t a, std::uint8_t b) {
    Tampon t = {};
    t[1] = a;
    t[2] = b;
    return t;
}

Tampon Salve(std::uint32_t ticks, std::uint32_t pas, bool rampe) {
    Tampon t = Commande('D', rampe ? 15 + 32 : 15);
    const auto mot = [&](std::size_t place, std::uint32_t v) {
        for (std::size_t i = 0; i < 4; ++i) t[place + i] = static_cast<std::uint8_t>(v >> (8 * i));
    };
    mot(3, ticks);
    for (std::size_t a = 0; a < 4; ++a) mot(7 + 4 * a, 2 * pas);
    t[27] = 150;
    t[28] = 150;
    mot(29, ticks / 2);
    return t;
}

// A box with the default machine under a clock of the benchmark's own.
struct Poste {
    Poste() : ancienne(InstallerHorloge([this] { return temps; })) {
        TableMachine machine;
        LireMachine("(Defaut)", machine);
        MemoiresBoite memoires;
        memoires[0] = MemoireDeMachine(machine);
        boite.EcrireMemoires(memoires);
        boite.ChargerEnRam(0);
    }
    ~Poste() { InstallerHorloge(ancienne); }
    Poste(const Poste&) = delete;
    Poste& operator=(const Poste&) = delete;

    std::uint8_t Envoyer(const Tampon& commande) {
        Tampon t = commande;
        boite.Echanger(t);
        return t[2];
    }

    Instant temps{0};
    SourceTemps ancienne;
    BoiteZelko boite;
};

void StatutAuRepos(benchmark::State& etat) {
    Poste p;
    const Tampon statut = Commande('I', 0);
    for (auto _ : etat) {
        p.temps += std::chrono::microseconds(20);
        benchmark::DoNotOptimize(p.Envoyer(statut));
    }
}
BENCHMARK(StatutAuRepos);

void StatutEnMarche(benchmark::State& etat) {
    Poste p;
    p.Envoyer(Commande('B', 1));
    p.Envoyer(Salve(0xFFFFFFFF, 0x7FFFFFFF, false));
    p.Envoyer(Commande('B', 128));
    const Tampon statut = Commande('I', 0);
    for (auto _ : etat) {
        p.temps += std::chrono::microseconds(20);
        benchmark::DoNotOptimize(p.Envoyer(statut));
    }
}
BENCHMARK(StatutEnMarche);

// A full queue that a program keeps full: each exchange sends a frame and one frame runs meanwhile.
void SalveEnvoyeeEtDeroulee(benchmark::State& etat) {
    Poste p;
    const Tampon salve = Salve(1000, 400, etat.range(0) != 0);
    p.Envoyer(Commande('B', 1));
    while (p.Envoyer(salve) == 1) {
    }
    p.Envoyer(Commande('B', 128));
    std::uint64_t acceptees = 0;
    for (auto _ : etat) {
        p.temps += std::chrono::milliseconds(40);
        acceptees += p.Envoyer(salve);
    }
    etat.counters["accepted"] =
        benchmark::Counter(static_cast<double>(acceptees), benchmark::Counter::kAvgIterations);
}
BENCHMARK(SalveEnvoyeeEtDeroulee)->ArgName("rampe")->Arg(0)->Arg(1);

// Machine time that passes between two looks, in ticks: the cost must not depend on them.
void TempsQuiPasse(benchmark::State& etat) {
    Poste p;
    p.Envoyer(Commande('B', 1));
    p.Envoyer(Salve(0xFFFFFFFF, 0x7FFFFFFF, false));
    p.Envoyer(Commande('B', 128));
    const auto ticks = etat.range(0);
    for (auto _ : etat) {
        p.temps += std::chrono::microseconds(20) * ticks; // 50 kHz
        p.boite.Actualiser();
        benchmark::DoNotOptimize(p.boite.Position());
        if (p.boite.Etat().file != EtatFile::EnMarche) {
            etat.PauseTiming();
            p.Envoyer(Commande('B', 1));
            p.Envoyer(Salve(0xFFFFFFFF, 0x7FFFFFFF, false));
            p.Envoyer(Commande('B', 128));
            etat.ResumeTiming();
        }
    }
}
BENCHMARK(TempsQuiPasse)->ArgName("ticks")->Arg(1)->Arg(1000)->Arg(1000000);

void LigneDuJournal(benchmark::State& etat) {
    Poste p;
    NoteJournal note;
    note.estEchange = true;
    note.numero = 12345;
    note.resultat = 1;
    note.commande = Salve(1000, 400, true);
    note.reponse = Commande('D', 1);
    std::string texte;
    for (auto _ : etat) {
        texte.clear();
        AjouterLigneJournal(texte, note);
        benchmark::DoNotOptimize(texte.data());
    }
}
BENCHMARK(LigneDuJournal);

// One exchange there and back over a connected socket, from the program's side.
void Echanger(benchmark::State& etat, int fd) {
    Tampon t = Commande('I', 0);
    for (auto _ : etat) {
        if (::send(fd, t.data(), t.size(), MSG_NOSIGNAL) != 65 || ::recv(fd, t.data(), t.size(), 0) != 65) {
            etat.SkipWithError("the socket failed");
            break;
        }
        t[1] = 'I';
    }
    ::close(fd);
}

// The peer: a thread that sends each packet back as it came.
void PingPongNu(benchmark::State& etat) {
    int paire[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, paire) != 0) return etat.SkipWithError("no socket");
    std::jthread echo([fd = paire[1]] {
        Tampon t;
        while (::recv(fd, t.data(), t.size(), 0) == 65) (void)::send(fd, t.data(), t.size(), MSG_NOSIGNAL);
        ::close(fd);
    });
    Echanger(etat, paire[0]);
}
BENCHMARK(PingPongNu)->UseRealTime();

// The same with the box at the other end, without its log and with it.
void EchangeSurLaPrise(benchmark::State& etat) {
    char modele[] = "/tmp/bench-zelko-XXXXXX";
    const std::string dossier = ::mkdtemp(modele);
    OptionsPoste options;
    options.prise = dossier + "/zelko.sock";
    if (etat.range(0) != 0) options.fichierJournal = dossier + "/journal";
    options.chercherMachine = [](const std::string& nom, TableMachine& t) {
        return LireMachine(nom, t) == StatutSucces;
    };
    std::atomic<bool> pret = false;
    std::atomic<bool> fini = false;
    std::thread serveur([&] {
        PosteVirtuel poste(options);
        pret = true;
        while (!fini) poste.Servir(std::chrono::milliseconds(20));
    });
    while (!pret) std::this_thread::yield();
    const int fd = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::memcpy(adresse.sun_path, options.prise.c_str(), options.prise.size() + 1);
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) == 0) {
        Echanger(etat, fd);
    } else {
        etat.SkipWithError("no connection");
    }
    fini = true;
    serveur.join();
    ::unlink((dossier + "/journal").c_str());
    ::rmdir(dossier.c_str());
}
BENCHMARK(EchangeSurLaPrise)->ArgName("journal")->Arg(0)->Arg(1)->UseRealTime();

// The picture of a cut of 30000 frames in the block.
void TraceDUneDecoupe(benchmark::State& etat) {
    Poste p;
    SceneMachine scene;
    scene.ram = p.boite.Ram();
    std::mt19937 alea(1);
    std::vector<PointTrajet> trajet(30000);
    for (PointTrajet& c : trajet) {
        c.genre = PointTrajet::Genre::FinSalve;
        c.pwm = 200;
        const auto x = static_cast<std::int64_t>(alea() % 100000);
        const auto y = static_cast<std::int64_t>(alea() % 40000);
        c.pas = {x, y, x, y};
    }
    for (auto _ : etat) benchmark::DoNotOptimize(DessinerTrace(scene, trajet));
}
BENCHMARK(TraceDUneDecoupe)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
