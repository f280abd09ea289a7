// `nettoyer`: double and aligned points taken off the profiles of a project.
#include "langue_lot.h"
#include "transformer4x_lot.h"

#include "app/settings/parametres.h"
#include "design4x/nettoyage.h"

namespace tessarel::lot {

namespace {

struct GenreNettoyage {
    bool total = false;
    bool synchrone = false;
};

// Without a kind the command asks, as the window does.
bool Nettoyer(ProjetCPX& projet, const GenreNettoyage& genre) {
    if (genre.synchrone) return NettoyageSynchrone(projet);
    if (genre.total)
        NettoyageTotal(projet, Parametres.DistNettoyage);
    else
        cmdNettoyage(projet, Parametres.DistNettoyage);
    return true;
}

} // namespace

void DeclarerNettoyer(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "nettoyer",
                                   Dire("Supprime les points doubles et alignés d'un projet 4 axes",
                                        "Removes double and aligned points of a 4-axis project"));
    const auto fichiers = AjouterFichiers4x(*verbe);
    const auto genre = std::make_shared<GenreNettoyage>();
    CLI::Option* total = verbe->add_flag(
        "--total", genre->total,
        Dire("Chaque profil pour lui-même, sans question", "Each profile by itself, unasked"));
    verbe
        ->add_flag("--synchrone", genre->synchrone,
                   Dire("Par paires de points, sans question", "In pairs of points, unasked"))
        ->excludes(total);
    verbe->callback([fichiers, genre, choisir] {
        choisir([fichiers, genre] {
            return TransformerProjet4axes(*fichiers,
                                          [&](ProjetCPX& projet) { return Nettoyer(projet, *genre); });
        });
    });
}

} // namespace tessarel::lot
