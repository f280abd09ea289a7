// The loop of the virtual box without a window, and what it says.
#include "service.h"

#include "platform/flux_standards.h"
#include "platform/signaux_fin.h"

#include <chrono>
#include <cstdio>

namespace tessarel::simulateur {

void DirePret(const std::string& phrase) {
    EcrireSortie("zelko-simulateur: " + phrase + "\n");
}

void Avertir(const std::string& texte) {
    std::fputs(("zelko-simulateur: " + texte + "\n").c_str(), stderr);
}

int ServirSansFenetre(const Arguments& arguments) {
    // A signal that falls between the question and the wait is heard this late.
    constexpr std::chrono::milliseconds attente{100};
    OptionsPoste options = arguments.poste;
    options.avertir = Avertir;
    PosteVirtuel poste(options);
    DirePret(poste.PhrasePrete());
    while (!FinDemandee()) poste.Servir(attente);
    return StatutFait;
}

} // namespace tessarel::simulateur
