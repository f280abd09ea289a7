// `synchroniser`: the two profiles of a project made to correspond point for point.
#include "langue_lot.h"
#include "transformer4x_lot.h"

#include "design4x/synchronisation.h"

namespace tessarel::lot {

void DeclarerSynchroniser(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "synchroniser",
                                   Dire("Synchronise les deux profils d'un projet 4 axes",
                                        "Synchronizes the two profiles of a 4-axis project"));
    const auto fichiers = AjouterFichiers4x(*verbe);
    verbe->callback([fichiers, choisir] {
        choisir([fichiers] { return TransformerProjet4axes(*fichiers, cmdSynchroOptimale); });
    });
}

} // namespace tessarel::lot
