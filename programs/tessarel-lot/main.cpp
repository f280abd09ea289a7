// The batch program: what the windows do, from a shell.
#include "arguments.h"
#include "flux.h"
#include "session.h"

int main(int argc, char** argv) {
    using namespace tessarel::lot;
    PreparerFlux();
    const Commande commande = LireCommande(argc, argv);
    if (!commande.action) return commande.statut;
    return Executer(commande);
}
