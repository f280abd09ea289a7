// Settings files: parsing one of 10 000 keys, reading each of them, and writing one.
#include "platform/fichiers.h"
#include "platform/profil_prive.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

using namespace tessarel;

namespace {

constexpr int Sections = 100;
constexpr int ClesParSection = 100;

std::string TexteDeDixMilleCles() {
    std::string texte;
    for (int s = 0; s < Sections; ++s) {
        texte += "[Machine_Atelier " + std::to_string(s) + "]\r\n";
        for (int k = 0; k < ClesParSection; ++k)
            texte += "VitesseDecoupeParDefaut" + std::to_string(k) + "=" + std::to_string(k) + ".25\r\n";
    }
    return texte;
}

std::string FichierDeMesure() {
    return (std::filesystem::temp_directory_path() / "tessarel-bench-profil.ini").string();
}

void AnalyserDixMilleCles(benchmark::State& etat) {
    const std::string texte = TexteDeDixMilleCles();
    for (auto _ : etat) {
        Profil profil(texte);
        benchmark::DoNotOptimize(profil);
    }
    etat.SetItemsProcessed(etat.iterations() * Sections * ClesParSection);
}
BENCHMARK(AnalyserDixMilleCles)->Unit(benchmark::kMillisecond);

// Each read looks at the file's time and size, as in the program.
void LireDixMilleCles(benchmark::State& etat) {
    const std::string fichier = FichierDeMesure();
    EcrireFichierAtomique(fichier, TexteDeDixMilleCles());
    std::vector<std::pair<std::string, std::string>> noms;
    for (int s = 0; s < Sections; ++s)
        for (int k = 0; k < ClesParSection; ++k)
            noms.emplace_back("Machine_Atelier " + std::to_string(s),
                              "VitesseDecoupeParDefaut" + std::to_string(k));
    for (auto _ : etat)
        for (const auto& [section, cle] : noms)
            benchmark::DoNotOptimize(LireProfil(fichier, section, cle, ""));
    etat.SetItemsProcessed(etat.iterations() * Sections * ClesParSection);
    std::filesystem::remove(fichier);
}
BENCHMARK(LireDixMilleCles)->Unit(benchmark::kMillisecond);

void EcrireUneCleParmiDixMille(benchmark::State& etat) {
    const std::string fichier = FichierDeMesure();
    EcrireFichierAtomique(fichier, TexteDeDixMilleCles());
    int valeur = 0;
    for (auto _ : etat) EcrireProfil(fichier, "Machine_Atelier 50", "Nouvelle", std::to_string(++valeur));
    std::filesystem::remove(fichier);
}
BENCHMARK(EcrireUneCleParmiDixMille)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
