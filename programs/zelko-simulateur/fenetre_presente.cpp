// The window of the virtual box, in a build that has windows.
#include "service.h"

#include "link/simulateur/ui/application_simulateur.h"
#include "platform/raisons.h"

namespace tessarel::simulateur {

int ServirAvecFenetre(const Arguments& arguments, int& argc, char** argv) {
    if (EcranPresent()) return MontrerSimulateur(arguments.poste, argc, argv, DirePret);
    Avertir(SelonLangue("pas d'écran : lancez-le avec --sans-fenetre",
                        "no display: start it with --sans-fenetre"));
    return StatutRefuse;
}

} // namespace tessarel::simulateur
