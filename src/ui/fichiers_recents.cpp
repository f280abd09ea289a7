// The list of recent files in the settings.
#include "ui/fichiers_recents.h"

#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"

namespace tessarel {

namespace {

// A value of the settings is cut at this length: a longer path would come back as another file.
constexpr std::size_t LongueurValeur = 255;

std::string Cle(int rang) {
    return "Recent" + std::to_string(rang);
}

void EcrireListe(const std::vector<std::string>& chemins) {
    for (int rang = 1; rang <= NombreRecents; ++rang) {
        const auto i = static_cast<std::size_t>(rang - 1);
        const std::string valeur = i < chemins.size() ? chemins[i] : "";
        if (LireIni(SectionFichiers, Cle(rang), "") != valeur) EcrireIni(SectionFichiers, Cle(rang), valeur);
    }
}

} // namespace

std::vector<std::string> FichiersRecents() {
    std::vector<std::string> chemins;
    for (int rang = 1; rang <= NombreRecents; ++rang) {
        std::string chemin = LireIni(SectionFichiers, Cle(rang), "");
        if (!chemin.empty()) chemins.push_back(std::move(chemin));
    }
    return chemins;
}

void RetenirFichierRecent(const std::string& chemin) {
    if (chemin.size() > LongueurValeur) return;
    std::vector<std::string> chemins = FichiersRecents();
    std::erase(chemins, chemin);
    chemins.insert(chemins.begin(), chemin);
    EcrireListe(chemins);
}

void OublierFichierRecent(const std::string& chemin) {
    std::vector<std::string> chemins = FichiersRecents();
    std::erase(chemins, chemin);
    EcrireListe(chemins);
}

} // namespace tessarel
