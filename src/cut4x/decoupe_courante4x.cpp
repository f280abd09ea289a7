// The shell of the computation over the program's own records.
#include "cut4x/decoupe_courante4x.h"
#include "cut4x/passage.h"
#include "cut4x/position_bloc4x.h"

#include "app/settings/parametres.h"

namespace tessarel {

DecoupeD4X DecoupeCouranteD4X;

std::string ArriverEnDecoupe(const ProjetCPX& projet, bool projetOuvert) {
    const PassageD4X passage = PasserEnDecoupe(projet, projetOuvert, TableINI);
    DecoupeCouranteD4X.DecoupePossible = passage.DecoupePossible;
    if (passage.DecoupePossible) VerifierPositionZ(projet, TableINI, ParametresD4X);
    return passage.raison;
}

void CalculerDecoupeD4X(const ProjetCPX& projet) {
    if (Parametres.OngletActif != D4X) return;
    CalculerDecoupeD4X({projet, ParametresD4X, DecoupeCourante, TableINI}, DecoupeCouranteD4X);
}

} // namespace tessarel
