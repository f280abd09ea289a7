// The library read from the disk, and copies into it.
#include "bibliotheque.h"

#include "import.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

namespace tessarel {

namespace {

namespace fs = std::filesystem;

// Where the reading stands, for all folders.
struct Parcours {
    std::string racineReelle;
    std::set<std::string> liens; // real paths of the linked folders entered
    ContenuBibliotheque& contenu;

    [[nodiscard]] bool Plein() const { return contenu.fichiers + contenu.dossiers >= EntreesMaxBibliotheque; }
};

bool EstDessous(const std::string& chemin, const std::string& dossier) {
    return chemin == dossier || chemin.starts_with(JoindreChemin(dossier, ""));
}

bool VientAvant(const std::string& a, const std::string& b) {
    const std::string petitA = EnMinuscules(a);
    const std::string petitB = EnMinuscules(b);
    return petitA != petitB ? petitA < petitB : a < b;
}

// A folder that a link leads to: entered once, and not where it stands in the library anyway.
bool PeutSuivreLien(Parcours& parcours, const fs::path& lien) {
    std::error_code ec;
    const std::string reel = fs::canonical(lien, ec).string();
    if (ec || EstDessous(reel, parcours.racineReelle) || EstDessous(parcours.racineReelle, reel))
        return false;
    return parcours.liens.insert(reel).second;
}

void PrendreEntree(Parcours& parcours, DossierBibliotheque& dossier, const fs::directory_entry& entree) {
    std::string nom = entree.path().filename().string();
    if (nom.starts_with(".")) return;
    std::error_code ec;
    if (entree.is_directory(ec)) {
        if (entree.is_symlink(ec) && !PeutSuivreLien(parcours, entree.path())) return;
        std::string chemin = JoindreChemin(dossier.chemin, nom);
        dossier.dossiers.push_back({std::move(nom), std::move(chemin), {}, {}});
        ++parcours.contenu.dossiers;
    } else if (EstFichierBibliotheque(nom) && entree.is_regular_file(ec)) {
        dossier.fichiers.push_back(std::move(nom));
        ++parcours.contenu.fichiers;
    }
}

void LireDossier(Parcours& parcours, DossierBibliotheque& dossier, int profondeur) {
    std::error_code ec;
    fs::directory_iterator entree(dossier.chemin, fs::directory_options::skip_permission_denied, ec);
    for (; !ec && entree != fs::directory_iterator(); entree.increment(ec)) {
        if (parcours.Plein()) {
            parcours.contenu.complet = false;
            break;
        }
        PrendreEntree(parcours, dossier, *entree);
    }
    std::sort(dossier.fichiers.begin(), dossier.fichiers.end(), VientAvant);
    std::sort(
        dossier.dossiers.begin(), dossier.dossiers.end(),
        [](const DossierBibliotheque& a, const DossierBibliotheque& b) { return VientAvant(a.nom, b.nom); });
    if (dossier.dossiers.empty()) return;
    if (profondeur == ProfondeurMaxBibliotheque) {
        parcours.contenu.complet = false;
        return;
    }
    for (DossierBibliotheque& suivant : dossier.dossiers) LireDossier(parcours, suivant, profondeur + 1);
}

} // namespace

bool EstFichierBibliotheque(const std::string& nom) {
    const auto& connues = ExtensionsConnues();
    return std::find(connues.begin(), connues.end(), ExtensionMinuscule(nom)) != connues.end();
}

ContenuBibliotheque LireBibliotheque(const std::string& racine) {
    ContenuBibliotheque contenu;
    contenu.racine.chemin = racine;
    while (contenu.racine.chemin.size() > 1 && contenu.racine.chemin.back() == SeparateurChemin)
        contenu.racine.chemin.pop_back();
    contenu.racine.nom = NomDuChemin(contenu.racine.chemin);
    std::error_code ec;
    Parcours parcours{fs::weakly_canonical(contenu.racine.chemin, ec).string(), {}, contenu};
    LireDossier(parcours, contenu.racine, 0);
    return contenu;
}

std::vector<std::string> CopierDansBibliotheque(const std::vector<std::string>& chemins,
                                                const std::string& dossier) {
    std::vector<std::string> echecs;
    for (const std::string& chemin : chemins) {
        const std::string cible = JoindreChemin(dossier, NomDuChemin(chemin));
        try {
            if (!MemeFichier(chemin, cible)) EcrireFichierAtomique(cible, LireFichierEntier(chemin));
        } catch (const Faute& faute) {
            echecs.emplace_back(faute.what());
        }
    }
    return echecs;
}

} // namespace tessarel
