// `intersection`: the crossing of two selected segments put into the profiles of a project.
#include "langue_lot.h"
#include "transformer4x_lot.h"

#include "design4x/intersection.h"

namespace tessarel::lot {

void DeclarerIntersection(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe =
        AjouterVerbe(programme, "intersection",
                     Dire("Ajoute le point où se croisent deux segments sélectionnés d'un projet 4 axes",
                          "Adds the point where two selected segments of a 4-axis project cross"));
    const auto fichiers = AjouterFichiers4x(*verbe);
    verbe->callback([fichiers, choisir] {
        choisir([fichiers] {
            return TransformerProjet4axes(*fichiers, [](ProjetCPX& projet) {
                return cmdIntersection(projet) != IssueIntersection::Refusee;
            });
        });
    });
}

} // namespace tessarel::lot
