// The batch program: what the windows do, from a shell.
#include "arguments.h"
#include "session.h"

#include "platform/flux_standards.h"

int main(int argc, char** argv) {
    using namespace tessarel::lot;
    tessarel::PreparerFlux();
    const Commande commande = LireCommande(argc, argv);
    if (!commande.action) return commande.statut;
    return Executer(commande);
}
