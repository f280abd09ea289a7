// The desktop program: one instance, the start-up, the splash, and the window of the mode chosen there.
#include "app/demarrage/demarrage.h"
#include "app/settings/parametres.h"
#include "app/texts/textes_programme.h"
#include "app/ui/application.h"
#include "app/ui/frmSplashScreen.h"
#include "link/commandes.h"
#include "link/sortie.h"
#include "machine/table_machine.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/frmParametresTables.h"
#include "platform/dialogue.h"
#include "platform/instance.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/fin_demandee.h"
#include "ui/pompe_qt.h"
#include "ui/theme.h"
#include "work2d/ui/frmTessarel2D.h"

#include <memory>

namespace {

using namespace tessarel;

// The windows of the run, owned here until the program ends.
struct Fenetres {
    std::unique_ptr<frmSplashScreen> splash;
    std::unique_ptr<frmTessarel2D> travail2D;
};

// Opens a window of the machine over the 2D window, which follows what is changed there.
template <typename Fenetre>
void OuvrirReglages(frmTessarel2D& travail) {
    Fenetre(&travail).exec();
    travail.ActualiserMachine();
}

// The splash is a one-way door: it isn't shown again in this run.
void Entrer2D(Fenetres& fenetres) {
    Parametres.OngletActif = "TS2D";
    fenetres.travail2D = std::make_unique<frmTessarel2D>();
    frmTessarel2D& travail = *fenetres.travail2D;
    QObject::connect(&travail, &frmTessarel2D::ParametrerMachine, &travail,
                     [&travail] { OuvrirReglages<frmParametresTables>(travail); });
    QObject::connect(&travail, &frmTessarel2D::GererMatieres, &travail,
                     [&travail] { OuvrirReglages<frmD4X_matieres>(travail); });
    travail.show();
    travail.RafraichirInterface(QuestionMachine::PoseeUneFois); // the start has asked
    fenetres.splash->hide();
}

// Everything up to the splash; false when the start-up ends the program, which has then told why.
bool MontrerSplash(ApplicationTessarel& application, Fenetres& fenetres) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    OptionsDemarrage options;
    options.Memoires = MemoiresDuLien();
    const EtatDemarrage etat = Demarrer(options);
    QGuiApplication::restoreOverrideCursor();
    if (etat.Termine()) return false;
    application.ParlerLangue(LangueCourante());
    fenetres.splash = std::make_unique<frmSplashScreen>();
    fenetres.splash->MontrerCourses(TableINI.CourseX, TableINI.CourseY);
    fenetres.splash->Montrer(etat);
    QObject::connect(fenetres.splash.get(), &frmSplashScreen::Continuer, fenetres.splash.get(),
                     [&fenetres](ModeChoisi mode) {
                         if (mode == ModeChoisi::Mode2D) Entrer2D(fenetres);
                     });
    fenetres.splash->show();
    return true;
}

} // namespace

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EcouterSignauxDeFin(SecondSigint::Compte, Suspension::Ignoree); // a wire may have to be put out first
    EcouterPlantages([] { EteindreEnSortant(); });
    AppliquerTheme(Theme::Systeme);
    InstallerBoitesQt();
    InstallerPompeQt();
    int statut = 1;
    try {
        const VerrouInstance instance;
        if (!instance.Seule()) {
            AfficherExclamation(Texte(TexteProgramme::InstanceUnique),
                                Texte(TexteProgramme::InstanceUniqueTitre));
            return 0;
        }
        Fenetres fenetres;
        const GardienDeFin gardien;
        statut = MontrerSplash(application, fenetres) ? ApplicationTessarel::exec() : 0;
    } catch (const std::exception& faute) {
        AnnoncerFaute(faute, "Form_Load", "frmSplashScreen");
    }
    CouperChauffeAvantDeQuitter();
    return statut;
}
