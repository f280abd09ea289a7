// One exchange with the box: what the program spends of its own, against a bare ping-pong on the same socket.
#include "link/commandes.h"
#include "link/echange.h"
#include "platform/adresse_zelko.h"

#include <benchmark/benchmark.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

using namespace tessarel;

namespace {

sockaddr_un Adresse() {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::strncpy(adresse.sun_path, AdresseZelko().c_str(), sizeof adresse.sun_path - 1);
    return adresse;
}

// A listener of this program's own, in a folder of its own, that sends every packet back.
class Echo {
public:
    Echo() {
        std::string modele = std::filesystem::temp_directory_path().string() + "/tessarel-bench-XXXXXX";
        m_dossier = ::mkdtemp(modele.data());
        ::setenv("XDG_RUNTIME_DIR", m_dossier.c_str(), 1);
        m_ecoute = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
        const sockaddr_un adresse = Adresse();
        if (::bind(m_ecoute, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) != 0 ||
            ::listen(m_ecoute, 4) != 0)
            std::abort();
        m_fil = std::thread([this] { Servir(); });
    }
    ~Echo() {
        ::shutdown(m_ecoute, SHUT_RDWR);
        m_fil.join();
        ::close(m_ecoute);
        std::filesystem::remove_all(m_dossier);
    }
    Echo(const Echo&) = delete;
    Echo& operator=(const Echo&) = delete;

private:
    void Servir() const {
        Tampon tampon;
        for (;;) {
            const int client = ::accept(m_ecoute, nullptr, nullptr);
            if (client < 0) return;
            while (::recv(client, tampon.data(), tampon.size(), 0) > 0)
                ::send(client, tampon.data(), tampon.size(), MSG_NOSIGNAL);
            ::close(client);
        }
    }
    std::string m_dossier;
    int m_ecoute = -1;
    std::thread m_fil;
};

void PingPongNu(benchmark::State& etat) {
    const Echo echo;
    const int prise = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
    const sockaddr_un adresse = Adresse();
    if (::connect(prise, reinterpret_cast<const sockaddr*>(&adresse), sizeof adresse) != 0)
        etat.SkipWithError("no connection");
    Tampon tampon{};
    for (auto _ : etat) {
        ::send(prise, tampon.data(), tampon.size(), MSG_NOSIGNAL);
        benchmark::DoNotOptimize(::recv(prise, tampon.data(), tampon.size(), 0));
    }
    ::close(prise);
}

void ParLaBibliotheque(benchmark::State& etat) {
    const Echo echo;
    if (ChargerZelkoCom(DossiersZelkoCom()) != EtatBibliotheque::Presente) etat.SkipWithError("no library");
    MouvementsActifs = true;
    for (auto _ : etat) {
        const StatutZelko statut = DemanderStatut();
        if (!statut.Recu) {
            etat.SkipWithError("no reply");
            break;
        }
    }
    LibererZelkoCom();
}

// Buffer, guard, failure handling and decoding, with a box that answers at once.
void SansPrise(benchmark::State& etat) {
    RemplacerZelkoCom(
        {VersionMinimaleZelko, [] { return ZelkoBranchee; }, [](Tampon&) { return ResultatZelkoSucces; }});
    MouvementsActifs = true;
    for (auto _ : etat) benchmark::DoNotOptimize(DemanderStatut());
    LibererZelkoCom();
}

} // namespace

BENCHMARK(PingPongNu)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly();
BENCHMARK(ParLaBibliotheque)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly();
BENCHMARK(SansPrise);

BENCHMARK_MAIN();
