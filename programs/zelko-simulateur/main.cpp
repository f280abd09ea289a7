// The virtual box as a program: on its socket, with a window or without.
#include "arguments.h"
#include "reglages_utilisateur.h"
#include "service.h"

#include "platform/flux_standards.h"
#include "platform/signaux_fin.h"

#include <exception>

int main(int argc, char** argv) {
    using namespace tessarel;
    using namespace tessarel::simulateur;
    PreparerFlux();
    Arguments arguments = LireArguments(argc, argv);
    if (!arguments.lancer) return arguments.statut;
    OuvrirReglages(arguments.documents);
    arguments.poste.chercherMachine = MachineConnue;
    EcouterSignauxDeFin();
    try {
        return arguments.sansFenetre ? ServirSansFenetre(arguments)
                                     : ServirAvecFenetre(arguments, argc, argv);
    } catch (const std::exception& erreur) {
        Avertir(erreur.what());
        return StatutRefuse;
    }
}
