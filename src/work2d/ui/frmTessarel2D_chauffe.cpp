// The wire's heat by hand: lit from the page of the moves, watched while it is on, and put out whenever that
// page is left, whatever the way.
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "link/liste_salves.h"
#include "machine/table_machine.h"
#include "platform/dialogue.h"
#include "platform/drapeau.h"
#include "ui/alerte.h"
#include "ui/boites_qt.h"
#include "ui/garde_entrees.h"
#include "work2d/mouvements_2d.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_chauffe.h"
#include "work2d/ui/panneau_manuel.h"

#include <QEvent>
#include <QMessageBox>
#include <QStackedWidget>

namespace tessarel {

namespace {

constexpr int PeriodeRattrapage = 5000; // ms: a box that is mute keeps the window waiting for each try

} // namespace

void frmTessarel2D::RelierChauffe() {
    TimerRattrapage.setObjectName(QStringLiteral("TimerRattrapage"));
    connect(&TimerRattrapage, &QTimer::timeout, this, &frmTessarel2D::RattraperCoupure);
    TimerRattrapage.start(PeriodeRattrapage);
    PanneauChauffe* chauffe = &m_panneauManuel->Chauffe();
    connect(chauffe, &PanneauChauffe::AllumageDemande, this, &frmTessarel2D::AllumerFilManuel);
    connect(chauffe, &PanneauChauffe::CoupureDemandee, this, [this] { EteindreFilManuel(); });
    connect(chauffe, &PanneauChauffe::ChauffeVoulue, this, [this](double pourcent) {
        const auto garde = GarderFil();
        EnvoyerChauffeVoulue(pourcent);
        FermerSiDemande();
    });
    // Queued: a loop that asks for the heat-off from within the timer would hold the sign still.
    connect(chauffe, &PanneauChauffe::Battement, this, &frmTessarel2D::VeillerSurFilManuel,
            Qt::QueuedConnection);
    connect(m_pages, &QStackedWidget::currentChanged, this, [this](int page) {
        if (page != PageManuel) EteindreFilManuel();
    });
}

SuiviChauffeManuelle frmTessarel2D::SuiviFil() {
    SuiviChauffeManuelle suivi;
    suivi.Permise = ChauffeManuellePermise;
    suivi.Prevenir = [this](std::function<void()> abandonner) {
        delete m_alerteInterface;
        m_alerteInterface =
            OuvrirAlerte(this, Texte(TexteProgramme::ChauffeEssaiCoupure), std::move(abandonner));
    };
    suivi.FinPrevenir = [this] { delete m_alerteInterface; };
    suivi.Garder = [this] { return GarderFil(); };
    suivi.Changee = [this](bool) { MontrerFil(); };
    return suivi;
}

// While the heat is asked for or put out: nothing where another command keeps the input shut already, or
// where there is nothing to ask.
std::unique_ptr<GardeEntrees> frmTessarel2D::GarderFil() {
    if (Occupee() || (!m_fil.chaude && !m_fil.incertaine && !ManuelOuvert())) return nullptr;
    return std::make_unique<GardeEntrees>(std::vector<const QWidget*>{m_panneauManuel}, [this] {
        if (m_fil.occupee) EteindreFil(m_fil, SuiviFil());
    });
}

void frmTessarel2D::MontrerFil() {
    using Fil = PanneauChauffe::Fil;
    const Fil fil = m_fil.chaude ? Fil::Chaud : m_fil.incertaine ? Fil::Incertain : Fil::Froid;
    m_panneauManuel->Chauffe().MontrerFil(
        fil, TempoChauffePourChauffe(static_cast<float>(m_fil.voulue), TableINI));
    m_panneauManuel->MontrerStop(m_fil.occupee);
}

void frmTessarel2D::AllumerFilManuel() {
    // In a move of the arrows it can be taken back that the wire is to be put out; in a procedure nothing
    // can.
    const bool libre = !m_course.enCours || m_fil.enMarche != nullptr;
    const bool permis = libre && (m_course.enCours || m_fil.occupee || LiaisonPermet());
    if (permis) {
        m_panneauManuel->MontrerEtat({});
        const auto garde = GarderFil();
        m_panneauManuel->MontrerStop(true);
        AllumerFil(m_fil, m_panneauManuel->Chauffe().Pourcent(), SuiviFil());
        MontrerLiaison();
    }
    MontrerFil(); // the option that was pressed goes back where the wire stayed cold
    FermerSiDemande();
}

bool frmTessarel2D::EteindreFilManuel() {
    const bool froid = EteindreFilSiChaud(m_fil, SuiviFil());
    MontrerFil();
    if (!m_course.enCours) FermerSiDemande();
    return froid;
}

void frmTessarel2D::VeillerSurFilManuel() {
    if (m_course.enCours || m_ailleurs) return;
    const bool etaitIncertain = m_fil.incertaine;
    switch (VeillerSurFil(m_fil, SuiviFil())) {
    case VeilleFil::Calme:
        return;
    case VeilleFil::Coupee:
        m_panneauManuel->MontrerEtat(
            TexteAffiche(Texte(etaitIncertain ? TexteProgramme::ChauffeManuelleCoupeeEnfin
                                              : TexteProgramme::ChauffeManuelleCoupeeParMachine)));
        break;
    case VeilleFil::Perdue:
        MontrerLiaison();
        break;
    }
    MontrerFil();
    FermerSiDemande();
}

void frmTessarel2D::RattraperCoupure() {
    // The watch over a wire that was lit by hand tries by itself.
    if (!CoupureEnSuspens || Occupee() || m_ailleurs || m_fil.chaude || m_fil.incertaine) return;
    ChauffeManuelle abandonnee;
    abandonnee.incertaine = true;
    if (VeillerSurFil(abandonnee, {}) != VeilleFil::Coupee) return;
    RevoirChauffeALArret();
    AfficherInformation(Texte(TexteProgramme::ChauffeRattrapee),
                        Texte(TexteProgramme::ChauffeRattrapeeTitre));
}

// Behind a box or a dialog nobody could put the wire out.
bool frmTessarel2D::event(QEvent* evenement) {
    if (evenement->type() == QEvent::WindowBlocked && m_fil.chaude && !Occupee()) EteindreFilManuel();
    return QMainWindow::event(evenement);
}

bool frmTessarel2D::LiaisonPermet() {
    if (MouvementsActifs) return true;
    const TableMachine machine = TableINI;
    const AvantDecoupe liaison = VerifierLiaison();
    MontrerLiaison();
    if (!MemesValeurs(TableINI, machine)) ActualiserMachine();
    if (liaison == AvantDecoupe::OuvrirParametrage) OuvrirReglages(&frmTessarel2D::ParametrerMachine);
    return liaison == AvantDecoupe::Permise;
}

void frmTessarel2D::OuvrirReglages(void (frmTessarel2D::*fenetre)()) {
    if (Occupee() || m_ailleurs) return;
    EteindreFilManuel(); // that window heats and moves by itself, and shows a cold wire
    const Drapeau ailleurs(m_ailleurs);
    emit(this->*fenetre)();
}

bool frmTessarel2D::Occupee() const {
    return m_course.enCours || m_fil.occupee;
}

} // namespace tessarel
