// Project files of a million points: reading beside a bare read-and-split of the same file, writing beside a
// copy of the same bytes to the page cache through a buffer of the same size.
#include "paths/fichier_projet.h"
#include "platform/fichiers.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

using namespace tessarel;

namespace {

constexpr std::size_t TailleTampon = std::size_t{1} << 18U;

Projet2D ProjetDe(std::size_t points) {
    Projet2D projet;
    Sequence s;
    s.Points.resize(points);
    for (std::size_t i = 0; i < points; ++i) {
        const double t = static_cast<double>(i) * 0.001;
        s.Points[i].X = 500 + 400 * std::cos(t) + 0.3 * std::sin(37 * t);
        s.Points[i].Y = 300 + 250 * std::sin(t);
    }
    projet.TableauSequences = {s};
    projet.BlocX = 1000;
    projet.BlocY = 600;
    return projet;
}

// A project on disk for the time of a run.
struct FichierDEssai {
    explicit FichierDEssai(std::size_t points)
        : chemin((std::filesystem::temp_directory_path() / "tessarel-bench-projet.tsr").string()) {
        EcrireProjet2D(chemin, ProjetDe(points));
    }
    ~FichierDEssai() { std::filesystem::remove(chemin); }
    FichierDEssai(const FichierDEssai&) = delete;
    FichierDEssai& operator=(const FichierDEssai&) = delete;
    std::string chemin;
};

void LireEtCouper(benchmark::State& etat) {
    const FichierDEssai fichier(static_cast<std::size_t>(etat.range(0)));
    for (auto _ : etat) {
        const std::string octets = LireFichierEntier(fichier.chemin);
        benchmark::DoNotOptimize(Decouper(octets, "\r\n").size());
    }
}
BENCHMARK(LireEtCouper)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void LireLeProjet(benchmark::State& etat) {
    const FichierDEssai fichier(static_cast<std::size_t>(etat.range(0)));
    for (auto _ : etat) benchmark::DoNotOptimize(LireProjet2D(fichier.chemin, false).TableauSequences.data());
    etat.counters["per point"] =
        benchmark::Counter(static_cast<double>(etat.iterations() * etat.range(0)),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(LireLeProjet)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// The bytes of the file through a buffer to a file that is not flushed to the disk.
void CopierAuCache(benchmark::State& etat) {
    const FichierDEssai fichier(static_cast<std::size_t>(etat.range(0)));
    const std::string octets = LireFichierEntier(fichier.chemin);
    const std::string cible = fichier.chemin + ".copie";
    std::vector<char> tampon(TailleTampon);
    for (auto _ : etat) {
        std::FILE* copie = std::fopen(cible.c_str(), "wb");
        std::setvbuf(copie, nullptr, _IONBF, 0);
        for (std::size_t i = 0; i < octets.size(); i += TailleTampon) {
            const std::size_t n = std::min(TailleTampon, octets.size() - i);
            std::memcpy(tampon.data(), octets.data() + i, n);
            if (std::fwrite(tampon.data(), 1, n, copie) != n) etat.SkipWithError("write");
        }
        std::fclose(copie);
    }
    std::filesystem::remove(cible);
    etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(octets.size()));
}
BENCHMARK(CopierAuCache)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

// The same bytes with what makes the write safe: a file beside, flushed, moved into place.
void CopierEnUneFois(benchmark::State& etat) {
    const FichierDEssai fichier(static_cast<std::size_t>(etat.range(0)));
    const std::string octets = LireFichierEntier(fichier.chemin);
    for (auto _ : etat) EcrireFichierAtomique(fichier.chemin, octets);
    etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(octets.size()));
}
BENCHMARK(CopierEnUneFois)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void EcrireLeProjet(benchmark::State& etat) {
    const FichierDEssai fichier(static_cast<std::size_t>(etat.range(0)));
    const Projet2D projet = ProjetDe(static_cast<std::size_t>(etat.range(0)));
    for (auto _ : etat) EcrireProjet2D(fichier.chemin, projet);
    etat.SetBytesProcessed(etat.iterations() *
                           static_cast<std::int64_t>(std::filesystem::file_size(fichier.chemin)));
}
BENCHMARK(EcrireLeProjet)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
