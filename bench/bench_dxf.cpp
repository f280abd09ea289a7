// Reading of a DXF of a million vertices, beside a bare pass of dxflib with empty callbacks over the same
// file.
//
// `sommets` is the number of points that the reading makes, `octets_sommet` the peak of memory above what the
// program held before, by point; both are told for our reader only.
#include "platform/fichiers.h"
#include "platform/gabar/gabar.h"

#include <benchmark/benchmark.h>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <fmt/format.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

using namespace tessarel;

namespace {

constexpr int Sommets = 1'000'000;

std::string EntitesPolylignes() {
    std::mt19937 alea(1);
    std::uniform_real_distribution<double> pas(-1, 1);
    std::string texte;
    for (int p = 0; p < Sommets / 1000; ++p) {
        texte += "  0\nLWPOLYLINE\n  5\n1A\n100\nAcDbEntity\n  8\n0\n100\nAcDbPolyline\n 90\n1000\n 70\n0\n";
        double x = 100 + p % 30;
        double y = 100 + p / 30;
        for (int i = 0; i < 1000; ++i) {
            x += pas(alea);
            y += pas(alea);
            texte += fmt::format(" 10\n{:.6f}\n 20\n{:.6f}\n", x, y);
        }
    }
    return texte;
}

std::string EntitesLignes() {
    std::mt19937 alea(2);
    std::uniform_real_distribution<double> place(0, 1000);
    std::string texte;
    for (int i = 0; i < Sommets / 2; ++i)
        texte += fmt::format(
            "  0\nLINE\n  8\n0\n 10\n{:.6f}\n 20\n{:.6f}\n 30\n0.0\n 11\n{:.6f}\n 21\n{:.6f}\n 31\n0.0\n",
            place(alea), place(alea), place(alea), place(alea));
    return texte;
}

// Quarters of a circle of radius 50: 41 points each.
std::string EntitesArcs() {
    std::mt19937 alea(3);
    std::uniform_real_distribution<double> place(0, 1000);
    std::string texte;
    for (int i = 0; i < Sommets / 41; ++i)
        texte += fmt::format(
            "  0\nARC\n  8\n0\n 10\n{:.6f}\n 20\n{:.6f}\n 30\n0.0\n 40\n50.0\n 50\n0.0\n 51\n90.0\n",
            place(alea), place(alea));
    return texte;
}

// The file of this kind, made once.
std::string Fichier(int genre) {
    static std::string chemins[3];
    if (chemins[genre].empty()) {
        chemins[genre] =
            (std::filesystem::temp_directory_path() / fmt::format("tessarel-bench-{}.dxf", genre)).string();
        const std::string entites = genre == 0   ? EntitesPolylignes()
                                    : genre == 1 ? EntitesLignes()
                                                 : EntitesArcs();
        EcrireFichierAtomique(chemins[genre],
                              "  0\nSECTION\n  2\nENTITIES\n" + entites + "  0\nENDSEC\n  0\nEOF\n");
        std::atexit([] {
            for (const std::string& chemin : chemins)
                if (!chemin.empty()) std::filesystem::remove(chemin);
        });
    }
    return chemins[genre];
}

// A figure of the process in kilobytes, such as "VmHWM".
double Memoire(const std::string& nom) {
    std::ifstream etat("/proc/self/status");
    for (std::string ligne; std::getline(etat, ligne);)
        if (ligne.starts_with(nom + ":")) return std::strtod(ligne.c_str() + nom.size() + 1, nullptr);
    return 0;
}

void LecteurMaison(benchmark::State& etat) {
    const auto genre = static_cast<int>(etat.range(0));
    const std::string chemin = Fichier(genre);
    // Taken on the first reading of the run only: later ones find memory that the process has kept.
    static double octets[3] = {0, 0, 0};
    std::size_t sommets = 0;
    for (auto _ : etat) {
        const double avant = Memoire("VmRSS");
        if (octets[genre] == 0) std::ofstream("/proc/self/clear_refs") << "5"; // sets the peak back
        std::vector<PointSimple> points;
        Etendue etendue;
        LireFichier(points, chemin, etendue, "dxf");
        benchmark::DoNotOptimize(points.data());
        sommets = points.size();
        if (octets[genre] == 0) octets[genre] = (Memoire("VmHWM") - avant) * 1024;
    }
    etat.counters["sommets"] = static_cast<double>(sommets);
    etat.counters["octets_sommet"] = octets[genre] / static_cast<double>(sommets);
    etat.counters["octets_fichier_sommet"] =
        static_cast<double>(std::filesystem::file_size(chemin)) / static_cast<double>(sommets);
}

void PasseDxflib(benchmark::State& etat) {
    const std::string chemin = Fichier(static_cast<int>(etat.range(0)));
    for (auto _ : etat) {
        DL_CreationAdapter rien;
        DL_Dxf dxf;
        if (!dxf.in(chemin, &rien)) etat.SkipWithError("dxflib could not read the file");
    }
}

} // namespace

BENCHMARK(LecteurMaison)->ArgName("genre")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK(PasseDxflib)->ArgName("genre")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
