// Golden cases: each folder of cas/ is one, made of files alone.
//   commande          shell text, run in a working folder of its own
//   entrees/          files that lie in that folder before
//   attendu/sortie    standard output, to the byte; likewise `erreurs`; absent: empty
//   attendu/statut    exit status; absent: 0
//   attendu/fichiers/ files that must be there afterwards, to the byte
// Nothing else may be there but the inputs as they were, and the user's folder doc/, of which only the files
// that are told are compared. In expected texts @VERSION@ and @SITE_SUPPORT@ stand for those of the build.
#include "bout_en_bout/executer.h"
#include "outils/dossiers.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace tessarel::essais {
namespace {

const fs::path RACINE_CAS = fs::path(TESSAREL_RACINE) / "tests" / "bout_en_bout" / "cas";

std::vector<std::string> NomsDesCas() {
    std::vector<std::string> noms;
    if (fs::is_directory(RACINE_CAS))
        for (const auto& entree : fs::directory_iterator(RACINE_CAS))
            if (entree.is_directory()) noms.push_back(entree.path().filename().string());
    std::sort(noms.begin(), noms.end());
    return noms;
}

std::string Remplir(std::string texte) {
    const std::map<std::string, std::string> valeurs = {
        {"@VERSION@", std::to_string(TESSAREL_VERSION_MAJEURE) + "." +
                          std::to_string(TESSAREL_VERSION_MINEURE) + "." +
                          std::to_string(TESSAREL_VERSION_REVISION)},
        {"@SITE_SUPPORT@", TESSAREL_SITE_SUPPORT},
    };
    for (const auto& [marque, valeur] : valeurs)
        for (auto i = texte.find(marque); i != std::string::npos; i = texte.find(marque, i + valeur.size()))
            texte.replace(i, marque.size(), valeur);
    return texte;
}

std::string LireSiPresent(const fs::path& chemin) {
    return fs::exists(chemin) ? LireTout(chemin.string()) : std::string();
}

// Content of every file below a folder, by its path there.
std::map<std::string, std::string> Contenus(const fs::path& dossier) {
    std::map<std::string, std::string> contenus;
    if (!fs::is_directory(dossier)) return contenus;
    for (const auto& entree : fs::recursive_directory_iterator(dossier))
        if (entree.is_regular_file())
            contenus[fs::relative(entree.path(), dossier).string()] = LireTout(entree.path().string());
    return contenus;
}

bool DansDossierUtilisateur(const std::string& chemin) {
    return chemin.starts_with("doc/");
}

void ComparerFichiers(const fs::path& cas, const std::string& travail) {
    std::map<std::string, std::string> attendus = Contenus(cas / "entrees");
    std::erase_if(attendus, [](const auto& fichier) { return DansDossierUtilisateur(fichier.first); });
    for (const auto& [nom, contenu] : Contenus(cas / "attendu" / "fichiers"))
        attendus[nom] = Remplir(contenu);
    const auto presents = Contenus(travail);
    for (const auto& [nom, contenu] : attendus) {
        const auto present = presents.find(nom);
        ASSERT_NE(present, presents.end()) << "missing: " << nom;
        EXPECT_EQ(present->second, contenu) << "content of " << nom;
    }
    for (const auto& [nom, contenu] : presents) {
        if (DansDossierUtilisateur(nom)) continue;
        EXPECT_TRUE(attendus.contains(nom)) << "left behind: " << nom;
    }
}

class CasDeBoutEnBout : public testing::TestWithParam<std::string> {};

TEST_P(CasDeBoutEnBout, DonneLesFichiersLaSortieEtLeStatutAttendus) {
    const fs::path cas = RACINE_CAS / GetParam();
    const DossierProvisoire travail;
    if (fs::is_directory(cas / "entrees"))
        fs::copy(cas / "entrees", travail.Chemin(), fs::copy_options::recursive);
    fs::create_directories(travail.Fichier("doc"));

    const Execution execution = Executer(LireTout((cas / "commande").string()), travail.Chemin());

    const std::string statut = LireSiPresent(cas / "attendu" / "statut");
    EXPECT_EQ(execution.statut, statut.empty() ? 0 : std::stoi(statut));
    EXPECT_EQ(execution.sortie, Remplir(LireSiPresent(cas / "attendu" / "sortie")));
    EXPECT_EQ(execution.erreurs, Remplir(LireSiPresent(cas / "attendu" / "erreurs")));
    ComparerFichiers(cas, travail.Chemin());
}

INSTANTIATE_TEST_SUITE_P(Cas, CasDeBoutEnBout, testing::ValuesIn(NomsDesCas()),
                         [](const auto& information) { return information.param; });

TEST(BoutEnBout, LesCasSontLa) {
    EXPECT_GE(NomsDesCas().size(), 20U);
}

} // namespace
} // namespace tessarel::essais
