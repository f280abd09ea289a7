// `lisser`: the selected stretches of the profiles of a project rounded.
#include "langue_lot.h"
#include "transformer4x_lot.h"

#include "app/settings/parametres.h"
#include "design4x/lissage.h"

namespace tessarel::lot {

void DeclarerLisser(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "lisser",
                                   Dire("Arrondit les segments sélectionnés d'un projet 4 axes",
                                        "Rounds the selected segments of a 4-axis project"));
    const auto fichiers = AjouterFichiers4x(*verbe);
    verbe->callback([fichiers, choisir] {
        choisir([fichiers] {
            return TransformerProjet4axes(*fichiers, [](ProjetCPX& projet) {
                cmdLisser(projet, Parametres.DistNettoyage);
                return true;
            });
        });
    });
}

} // namespace tessarel::lot
