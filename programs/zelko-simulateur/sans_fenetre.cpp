// The loop of the virtual box without a window.
#include "sans_fenetre.h"

#include "platform/flux_standards.h"
#include "platform/signaux_fin.h"

#include <chrono>
#include <cstdio>

namespace tessarel::simulateur {

int ServirSansFenetre(const Arguments& arguments) {
    // A signal that falls between the question and the wait is heard this late.
    constexpr std::chrono::milliseconds attente{100};
    OptionsPoste options = arguments.poste;
    options.avertir = [](const std::string& texte) {
        std::fputs(("zelko-simulateur: " + texte + "\n").c_str(), stderr);
    };
    PosteVirtuel poste(options);
    EcrireSortie("zelko-simulateur: " + poste.PhrasePrete() + "\n");
    while (!FinDemandee()) poste.Servir(attente);
    return StatutFait;
}

} // namespace tessarel::simulateur
