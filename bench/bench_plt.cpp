// Reading of plotter files and of profile tables, in megabytes a second of the file.
//
// `genre` of a plotter file: 0 strokes of whole numbers in long instructions, 1 an instruction for each
// point, 2 strokes with decimals. `lecture` is the bare read of the same file.
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

using namespace tessarel;

namespace {

constexpr int Points = 3'000'000;
constexpr int PointsParTrait = 200;

std::string TexteTraits(int genre) {
    std::mt19937 alea(1);
    std::uniform_int_distribution<int> place(0, 39999);
    std::string texte = "IN;SP1;\n";
    for (int i = 0; i < Points; ++i) {
        const bool debut = i % PointsParTrait == 0;
        const int x = place(alea);
        const int y = place(alea);
        if (genre == 1) {
            texte += fmt::format("{}{},{};\n", debut ? "PU" : "PD", x, y);
        } else if (debut) {
            texte += fmt::format("{}PU{},{};PD", i == 0 ? "" : ";\n", x, y);
        } else if (genre == 0) {
            texte += fmt::format("{}{},{}", i % PointsParTrait == 1 ? "" : ",", x, y);
        } else {
            texte +=
                fmt::format("{}{}.{:02},{}.{:02}", i % PointsParTrait == 1 ? "" : ",", x, i % 100, y, i % 97);
        }
    }
    return texte + ";PU;SP0;\n";
}

std::string TexteTable() {
    std::mt19937 alea(2);
    std::uniform_real_distribution<double> hauteur(-0.1, 0.1);
    std::string texte = "PROFIL\n";
    for (int i = 0; i < Points; ++i)
        texte += fmt::format("{:.6f} {:.6f}\n", 200.0 * std::abs(1 - 2.0 * i / Points), hauteur(alea));
    return texte;
}

// The file of this kind (3: a profile table), made once.
std::string Fichier(int genre) {
    static std::string chemins[4];
    if (chemins[genre].empty()) {
        chemins[genre] = (std::filesystem::temp_directory_path() /
                          fmt::format("tessarel-bench-{}.{}", genre, genre == 3 ? "dat" : "plt"))
                             .string();
        EcrireFichierAtomique(chemins[genre], genre == 3 ? TexteTable() : TexteTraits(genre));
        std::atexit([] {
            for (const std::string& chemin : chemins)
                if (!chemin.empty()) std::filesystem::remove(chemin);
        });
    }
    return chemins[genre];
}

void Compter(benchmark::State& etat, const std::string& chemin) {
    const double octets = static_cast<double>(std::filesystem::file_size(chemin));
    etat.counters["Mo"] = octets / 1e6;
    etat.counters["Mo_s"] = benchmark::Counter(octets * static_cast<double>(etat.iterations()) / 1e6,
                                               benchmark::Counter::kIsRate);
}

void Lire(benchmark::State& etat, int genre, const char* extension) {
    const std::string chemin = Fichier(genre);
    for (auto _ : etat) {
        std::vector<PointSimple> points;
        Etendue etendue;
        LireFichier(points, chemin, etendue, extension);
        benchmark::DoNotOptimize(points.data());
    }
    Compter(etat, chemin);
}

void LecteurPlt(benchmark::State& etat) {
    Lire(etat, static_cast<int>(etat.range(0)), "plt");
}

void LecteurDat(benchmark::State& etat) {
    Lire(etat, 3, "dat");
}

void LectureNue(benchmark::State& etat) {
    const std::string chemin = Fichier(static_cast<int>(etat.range(0)));
    for (auto _ : etat) benchmark::DoNotOptimize(LireFichierEntier(chemin).data());
    Compter(etat, chemin);
}

} // namespace

BENCHMARK(LecteurPlt)->ArgName("genre")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(LecteurDat)->Unit(benchmark::kMillisecond);
BENCHMARK(LectureNue)->ArgName("genre")->Arg(0)->Arg(3)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
