// The application around the virtual box's window.
#include "link/simulateur/ui/application_simulateur.h"

#include "link/simulateur/ui/frmSimulateur.h"
#include "ui/theme.h"

#include <QApplication>

#include <cstdio>
#include <memory>

namespace tessarel::simulateur {

bool EcranPresent() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int MontrerSimulateur(OptionsPoste options, int& argc, char** argv,
                      const std::function<void(const std::string& phrase)>& pret,
                      const std::function<BlocMousse(const std::string& machine)>& mousse) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zelko-simulateur"));
    QApplication::setDesktopFileName(QStringLiteral("zelko-simulateur"));
    AppliquerTheme(Theme::Systeme);
    std::unique_ptr<frmSimulateur> fenetre;
    options.avertir = [&fenetre](const std::string& texte) {
        std::fputs(("zelko-simulateur: " + texte + "\n").c_str(), stderr);
        if (fenetre) fenetre->Avertir(texte);
    };
    const std::string machine = options.machine;
    PosteVirtuel poste(std::move(options));
    pret(poste.PhrasePrete());
    fenetre = std::make_unique<frmSimulateur>(poste);
    fenetre->FixerBloc(mousse(machine.empty() ? poste.Boite().Ram().nom : machine));
    fenetre->show();
    const int statut = QApplication::exec();
    fenetre.reset();
    return statut;
}

} // namespace tessarel::simulateur
