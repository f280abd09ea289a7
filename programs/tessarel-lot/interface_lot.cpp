// The search for the interface box, on the engine of the start-up.
#include "interface_lot.h"

#include "link/etat_interface.h"
#include "platform/fichiers.h"

namespace tessarel::lot {

EtatSplash ChercherInterface() {
    EtatSplash etat;
    etat.NomMachine = TableINI.Nom;
    if (TesterBibliothequeZelko() != EtatBibliotheque::Presente) return etat;
    etat = AffichageSplashEtTestsZelko(MemoiresDuLien());
    MouvementsActifs = etat.Mouvements;
    return etat;
}

bool MemoiresLues() {
    return InterfaceConnectee && !MachineLaissee;
}

std::vector<std::string> DifferencesAvecMemoire(const TableMachine& table, const TableMachine& memoire) {
    std::string rapport;
    ComparerMachineEtZelko(table, memoire, &rapport);
    std::vector<std::string> differences;
    for (const std::string_view ligne : Decouper(rapport, "\r\n"))
        if (ligne.ends_with("NOK")) differences.emplace_back(ligne);
    return differences;
}

} // namespace tessarel::lot
