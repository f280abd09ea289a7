// The records of the link's state, and the test of the library with its two boxes.
#include "etat_interface.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"

namespace tessarel {

std::int32_t DernierResultatZelko = ResultatZelkoSucces;
bool InterfaceConnectee = false;
bool MouvementsActifs = false;
bool CoupureEnSuspens = false;
bool MachineLaissee = false;

void ReinitialiserEtatInterface() {
    DernierResultatZelko = ResultatZelkoSucces;
    InterfaceConnectee = false;
    MouvementsActifs = false;
    CoupureEnSuspens = false;
    MachineLaissee = false;
}

EtatBibliotheque TesterBibliothequeZelko(const std::vector<std::string>& dossiers) {
    constexpr int rangeeTropVieille = 5;
    constexpr int rangeeAbsente = 7;
    const EtatBibliotheque etat = ChargerZelkoCom(dossiers);
    if (etat == EtatBibliotheque::TropVieille)
        AfficherCritique(TextesDoubles(rangeeTropVieille, 1), TextesDoubles(rangeeTropVieille, 2));
    if (etat == EtatBibliotheque::Absente)
        AfficherExclamation(TextesDoubles(rangeeAbsente, 1), TextesDoubles(rangeeAbsente, 2));
    return etat;
}

bool TesterInterface() {
    InterfaceConnectee = Zelko_IsConnected() == ZelkoBranchee;
    if (!InterfaceConnectee) MachineLaissee = false;
    return InterfaceConnectee;
}

} // namespace tessarel
