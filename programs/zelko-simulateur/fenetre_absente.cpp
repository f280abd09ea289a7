// In place of the window, in a build that has none.
#include "service.h"

#include "platform/raisons.h"

namespace tessarel::simulateur {

int ServirAvecFenetre(const Arguments&, int&, char**) {
    Avertir(SelonLangue("construit sans fenêtres : lancez-le avec --sans-fenetre",
                        "built without windows: start it with --sans-fenetre"));
    return StatutRefuse;
}

} // namespace tessarel::simulateur
