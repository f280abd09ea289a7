// The window of the virtual box, in a build that has windows.
#include "reglages_utilisateur.h"
#include "service.h"

#include "link/simulateur/ui/application_simulateur.h"
#include "platform/raisons.h"
#include "work2d/placement.h"

namespace tessarel::simulateur {

namespace {

// The block that the 2D window starts with, where it puts it, in the middle of the plate.
BlocMousse MousseDeMachine(const std::string& nom) {
    constexpr double part = 0.8; // of the plate's width
    BlocMousse mousse;
    TableMachine table;
    if (!MachineConnue(nom, table)) return mousse;
    const Bloc bloc = BlocParDefaut(table);
    const double plateau =
        static_cast<double>(table.EcartementY1Y2) - table.EcartementY1Plateau - table.EcartementPlateauY2;
    if (!(bloc.BlocX > 0 && bloc.BlocY > 0 && plateau > 0)) return mousse;
    mousse.x = table.MargeOrigineBloc;
    mousse.y = 0;
    mousse.largeur = bloc.BlocX;
    mousse.hauteur = bloc.BlocY;
    mousse.profondeur = part * plateau;
    mousse.z = table.EcartementY1Plateau + (plateau - mousse.profondeur) / 2;
    return mousse;
}

} // namespace

int ServirAvecFenetre(const Arguments& arguments, int& argc, char** argv) {
    if (EcranPresent()) return MontrerSimulateur(arguments.poste, argc, argv, DirePret, MousseDeMachine);
    Avertir(SelonLangue("pas d'écran : lancez-le avec --sans-fenetre",
                        "no display: start it with --sans-fenetre"));
    return StatutRefuse;
}

} // namespace tessarel::simulateur
