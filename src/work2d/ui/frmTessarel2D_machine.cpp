// The cut on the machine: the link, the run with its page and its drawing, what may follow a stop, and a
// window that is closed meanwhile.
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "link/echange.h"
#include "link/etat_interface.h"
#include "link/marche.h"
#include "link/rafraichir.h"
#include "platform/dialogue.h"
#include "platform/drapeau.h"
#include "ui/alerte.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/fautes_retenues.h"
#include "ui/garde_entrees.h"
#include "ui/icones.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_bibliotheque.h"
#include "work2d/ui/panneau_course.h"
#include "work2d/ui/panneau_simulation.h"
#include "work2d/ui/trace_course.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace tessarel {

namespace {

constexpr int MessagesEtatLiaison = 247; // the text: no interface, the title: moves disabled

} // namespace

void frmTessarel2D::RelierCourse() {
    connect(cmdRafraichirUsbTS2D, &QToolButton::clicked, this, [this] { RafraichirInterface(); });
    connect(m_panneauCourse, &PanneauCourse::StopDemande, this,
            [this] { m_course.demandes.StopDemande = true; });
    connect(m_panneauCourse, &PanneauCourse::ChauffeVoulue, this, &frmTessarel2D::ChangerChauffeCourse);
    connect(m_panneauCourse, &PanneauCourse::RepriseDemandee, this, &frmTessarel2D::ReprendreDecoupe);
    connect(m_panneauCourse, &PanneauCourse::RetourDemande, this, &frmTessarel2D::LancerRetour);
    connect(m_panneauCourse, &PanneauCourse::AbandonDemande, this, &frmTessarel2D::AbandonnerDecoupe);
    MontrerLiaison();
}

void frmTessarel2D::RafraichirInterface(QuestionMachine question) {
    if (Occupee()) return;
    EteindreFilManuel(); // another table may come to run
    const TableMachine machine = TableINI;
    EtatLiaison liaison;
    {
        const Drapeau occupee(m_course.enCours); // its boxes let events run
        liaison = RafraichirUsb(TS2D, question);
        RevoirChauffeALArret();
    }
    if (liaison.Arretee || liaison.Liaison == LiaisonZelko::LaisseeEnMarche) OublierArret();
    if (MemesValeurs(TableINI, machine)) {
        MontrerLiaison();
    } else {
        AbandonnerPourAutreMachine();
        ActualiserMachine();
    }
    FermerSiDemande();
}

void frmTessarel2D::MontrerLiaison() {
    std::string etat = Texte(TexteProgramme::Fenetre2DMouvementsActifs);
    if (!InterfaceConnectee)
        etat = TextesMessages(MessagesEtatLiaison);
    else if (MachineLaissee)
        etat = Texte(TexteProgramme::LaisseeEnMarche);
    else if (!MouvementsActifs)
        etat = TitresMessages(MessagesEtatLiaison);
    const QKeySequence touches = cmdRafraichirUsbTS2D->shortcut();
    cmdRafraichirUsbTS2D->setText(TexteAffiche(etat));
    cmdRafraichirUsbTS2D->setShortcut(touches); // other words take the keys away
    cmdRafraichirUsbTS2D->setIcon(
        Icone(InterfaceConnectee ? QStringLiteral("interface") : QStringLiteral("interface-absente")));
    lblMachine->setText(TexteAffiche(TexteRempli(TexteProgramme::Fenetre2DEtatMachine, {TableINI.Nom})));
}

void frmTessarel2D::DecouperSurMachine() {
    if (Occupee() || m_course.arretee) return;
    // A wire that a hand has lit is put out when the cut tab opens; where that was not confirmed, homing
    // would drag a hot wire along.
    if (!EteindreFilManuel()) return;
    const TableMachine machine = TableINI;
    AvantDecoupe avant = AvantDecoupe::SansInterface;
    m_course.fermerEnsuite = false;
    {
        const Drapeau occupee(m_course.enCours); // its boxes let events run
        avant = VerifierAvantDecoupe();
    }
    if (m_course.fermerEnsuite) return FermerSiDemande();
    // The settings gave another machine, or other values of it, than the cut was made for: it is shown before
    // anything moves.
    const bool autre = !MemesValeurs(TableINI, machine);
    if (autre) {
        ActualiserMachine();
        AfficherExclamation(TexteRempli(TexteProgramme::MachineModifiee, {TableINI.Nom}),
                            Texte(TexteProgramme::MachineModifieeTitre));
    } else {
        MontrerLiaison();
    }
    if (avant == AvantDecoupe::OuvrirParametrage) OuvrirReglages(&frmTessarel2D::ParametrerMachine);
    if (autre || avant != AvantDecoupe::Permise) return;
    m_course.genre = GenreDecoupe::Decoupe;
    m_course.decoupe = m_decoupe;
    LancerCourse(TableINI.OrigineAutomatique, false);
}

SuiviDecoupe frmTessarel2D::SuiviCourse() {
    SuiviDecoupe suivi;
    suivi.demandes = &m_course.demandes;
    suivi.ChangerPhase = [this](PhaseDecoupe phase) { m_panneauCourse->MontrerPhase(phase); };
    suivi.Avancer = [this](const AvanceeDecoupe& avancee) {
        delete m_alerteInterface; // it answers
        m_course.salve = avancee.NumSalveCourante;
        if (m_trace->Avancer(avancee)) m_panneauCourse->MontrerAvancee(avancee);
    };
    suivi.Prevenir = [this] { PrevenirSilence(); };
    suivi.Immobile = [this](bool chauffeCoupee) {
        if (const auto avancee = m_trace->Rattraper()) m_panneauCourse->MontrerAvancee(*avancee);
        m_panneauCourse->MontrerImmobile();
        if (m_course.arretee) m_panneauCourse->MontrerChauffeCoupee(chauffeCoupee);
    };
    return suivi;
}

// Beside the loop, not instead of it: it goes on trying while the user reads.
void frmTessarel2D::PrevenirSilence() {
    if (m_alerteInterface) return;
    m_alerteInterface = OuvrirAlerte(this, Texte(TexteProgramme::BoitierMuet), [this] {
        m_course.demandes.StopDemande = true;
        m_alerteInterface->deleteLater();
        m_alerteInterface.clear(); // the next silence is told anew
    });
}

// `suite`: the rest of a stopped cut, or the way back from it. False when the wire stands where it stood.
bool frmTessarel2D::LancerCourse(bool origineAuto, bool suite) {
    OptionsDecoupe2D options = m_options;
    // A heat that was pulled to nothing in a fright is none to pull a wire through foam with.
    if (suite && m_course.chauffe > 0) options.chauffe = m_course.chauffe;
    std::optional<PasAxes> depart;
    if (suite) depart = m_course.arret.PositionStop.pas;
    m_course.preparee = PreparerDecoupeTS2D(m_course.decoupe, options, TableINI,
                                            comboMatieres->currentText().toStdString(), depart);
    if (!m_course.preparee.possible) {
        m_course.preparee = {};
        return false;
    }
    m_course.arretee = false;
    m_course.fermerEnsuite = false;
    m_course.salve = 0;
    m_course.demandes = {};
    m_course.chauffe = options.chauffe;
    const GardeEntrees garde = GarderCourse();
    InitialiserBoutonsDecoupe(1);
    m_panneauCourse->Commencer({m_course.genre, static_cast<double>(options.chauffe),
                                static_cast<double>(TableINI.ChauffeMaxiSur100), ResumeDeLaCourse()});
    m_trace->Commencer(m_course.decoupe.SequenceDecoupe, m_course.genre, suite);
    ResultatDecoupe resultat;
    try {
        const Drapeau enCours(m_course.enCours);
        const FinAlerte alerte(m_alerteInterface);
        resultat = LancerDecoupeTS2D(m_course.preparee, TableINI, origineAuto, SuiviCourse(), m_course.genre);
    } catch (...) {
        // Homing has nobody else to stop it. The fault itself is told further up.
        SecourirMarche();
        if (suite || FilHorsRepos()) DireApresLaFaute(AnnoncerHorsRepos);
        RetourAuRepos();
        MontrerLiaison();
        FermerSiDemande();
        throw;
    }
    const bool partie = resultat.fin != FinDecoupe::StopAvantDecoupe && resultat.fin != FinDecoupe::Refusee;
    FinirCourse(resultat, suite && !partie);
    return partie;
}

// After a fault. The box may have gone on to the first segment unseen.
bool frmTessarel2D::FilHorsRepos() {
    constexpr std::int32_t pause = 1;
    if (m_course.salve == pause) m_course.salve = std::max(pause, DemanderStatut().NumeroSalve);
    return m_course.salve > pause;
}

PanneauCourse::Arret frmTessarel2D::ArretMontre() const {
    return {m_course.genre, m_course.arret.NumSalveCourante, m_course.arret.chauffeCoupee,
            m_course.preparee.resume.texte};
}

// At a stop, after a look at the link: a heat-off that the box had not confirmed may be by now.
void frmTessarel2D::RevoirChauffeALArret() {
    if (!m_course.arretee || m_course.arret.chauffeCoupee || !InterfaceConnectee || ChauffePeutEtreActive())
        return;
    m_course.arret.chauffeCoupee = !BoutonChauffeLeFil().value_or(true);
    m_panneauCourse->MontrerChauffeCoupee(m_course.arret.chauffeCoupee);
}

std::string frmTessarel2D::ResumeDeLaCourse() const {
    const std::string& resume = m_course.preparee.resume.texte;
    return m_course.genre == GenreDecoupe::Retour ? TextesEtats(EtatRetour) + "\r\n" + resume : resume;
}

// By the slider. The summary follows: two heats on one page would leave the user to guess.
void frmTessarel2D::ChangerChauffeCourse(double pourcent) {
    m_course.chauffe = m_course.demandes.ChauffeVoulue = static_cast<float>(pourcent);
    m_course.demandes.ChauffeModifiee = true;
    ChangerChauffe(m_course.preparee.resume, m_course.chauffe, m_options,
                   comboMatieres->currentText().toStdString());
    m_panneauCourse->MontrerResume(ResumeDeLaCourse());
}

// `memeArret`: the rest of a cut did not begin to move, and the operator decides again.
void frmTessarel2D::FinirCourse(const ResultatDecoupe& resultat, bool memeArret) {
    if (memeArret) {
        ResultatDecoupe arret = m_course.arret;
        if (resultat.fin == FinDecoupe::StopAvantDecoupe)
            arret.chauffeCoupee = resultat.chauffeCoupee;
        else if (ChauffePeutEtreActive()) // refused, the wire is as it was; but the box may not have heard P
                                          // 0
            arret.chauffeCoupee = false;
        AttendreOperateur(arret);
    } else if (resultat.fin == FinDecoupe::Arretee) {
        const PasAxes& pas = resultat.PositionStop.pas;
        m_trace->Arreter(resultat.NumSalveCourante, {MillimetresDePas(TableINI, AxeX1, pas[AxeX1]),
                                                     MillimetresDePas(TableINI, AxeY1, pas[AxeY1])});
        AttendreOperateur(resultat);
    } else {
        RetourAuRepos();
    }
    MontrerLiaison();
    if (m_course.fermerEnsuite && m_course.arretee)
        AbandonnerDecoupe();
    else
        FermerSiDemande();
}

void frmTessarel2D::FermerSiDemande() {
    if (!m_course.fermerEnsuite) return;
    m_course.fermerEnsuite = false;
    // Not from here: whoever pressed the button that started the run is still in it.
    QTimer::singleShot(0, this, &QWidget::close);
}

void frmTessarel2D::AttendreOperateur(const ResultatDecoupe& resultat) {
    m_course.arretee = true;
    m_course.arret = resultat;
    cmdRafraichirUsbTS2D->setEnabled(true); // a box that was unplugged is found again
    m_panneauCourse->MontrerArret(ArretMontre());
    pctDecoupe->setFocus(); // whoever still presses the key of Stop presses nothing
}

// A box that was without power at the stop runs another table since: it is asked, and given this one, before
// the wire moves on.
bool frmTessarel2D::LiaisonPermetLaSuite() {
    const TableMachine machine = TableINI;
    AvantDecoupe liaison = AvantDecoupe::SansInterface;
    m_course.fermerEnsuite = false;
    {
        const Drapeau occupee(m_course.enCours);
        liaison = VerifierLiaison();
        RevoirChauffeALArret();
    }
    MontrerLiaison();
    if (liaison == AvantDecoupe::LaisseeEnMarche || liaison == AvantDecoupe::MachineArretee) OublierArret();
    const bool autre = !MemesValeurs(TableINI, machine);
    if (!autre && !m_course.fermerEnsuite && liaison != AvantDecoupe::OuvrirParametrage)
        return liaison == AvantDecoupe::Permise;
    if (autre) {
        AbandonnerPourAutreMachine();
        ActualiserMachine();
    } else {
        AbandonnerDecoupe();
    }
    if (liaison == AvantDecoupe::OuvrirParametrage && !m_course.fermerEnsuite)
        OuvrirReglages(&frmTessarel2D::ParametrerMachine);
    return false;
}

void frmTessarel2D::ReprendreDecoupe() {
    if (Occupee() || !m_course.arretee || !LiaisonPermetLaSuite()) return;
    LancerSuite(m_course.genre,
                SequenceDeReprise(m_course.decoupe.SequenceDecoupe, m_course.arret.NumSalveCourante,
                                  m_course.arret.PositionStop.pas, VitesseEnVigueur(m_options, TableINI),
                                  TableINI));
}

void frmTessarel2D::LancerRetour(TrajetRetour trajet) {
    if (Occupee() || !m_course.arretee || !LiaisonPermetLaSuite()) return;
    LancerSuite(GenreDecoupe::Retour,
                SequenceDeRetour(m_course.arret.NumSalveCourante, m_course.arret.PositionStop.pas, trajet,
                                 VitesseEnVigueur(m_options, TableINI), TableINI));
}

// The rest of a stopped cut, or the way back. Where it does not begin to move, all is as it was at the stop.
void frmTessarel2D::LancerSuite(GenreDecoupe genre, Sequence chemin) {
    const GenreDecoupe genreArrete = std::exchange(m_course.genre, genre);
    Sequence cheminArrete = std::exchange(m_course.decoupe.SequenceDecoupe, std::move(chemin));
    DecoupePreparee arretee = std::move(m_course.preparee);
    if (LancerCourse(false, true) || !m_course.arretee) return;
    m_course.genre = genreArrete;
    m_course.decoupe.SequenceDecoupe = std::move(cheminArrete);
    m_course.preparee = std::move(arretee);
    m_trace->Commencer(m_course.decoupe.SequenceDecoupe, m_course.genre, true);
    m_panneauCourse->RevenirALArret(ArretMontre());
}

void frmTessarel2D::AbandonnerDecoupe() {
    if (m_course.enCours || !m_course.arretee) return;
    m_course.demandes = {};
    try {
        const GardeEntrees garde = GarderCourse();
        const Drapeau occupee(m_course.enCours);
        const FinAlerte alerte(m_alerteInterface);
        AnnulerReprise(SuiviCourse());
    } catch (...) {
        SecourirMarche();
        throw; // the operator may give up again
    }
    RetourAuRepos();
    FermerDecoupe();
    FermerSiDemande();
}

// Somebody else has moved the wire since the stop: the place of the stop says nothing any more. Nothing is
// sent, for the other one may go on.
void frmTessarel2D::OublierArret() {
    if (!m_course.arretee) return;
    {
        const Drapeau occupee(m_course.enCours);
        AfficherExclamation(Texte(TexteProgramme::ArretPerime), Texte(TexteProgramme::ArretPerimeTitre));
    }
    RetourAuRepos();
    FermerDecoupe();
    FermerSiDemande();
}

// The steps of a stop say nothing to another machine.
void frmTessarel2D::AbandonnerPourAutreMachine() {
    if (!m_course.arretee) return;
    AfficherExclamation(TexteRempli(TexteProgramme::MachineModifieeALArret, {TableINI.Nom}),
                        Texte(TexteProgramme::MachineModifieeTitre));
    AbandonnerDecoupe();
}

void frmTessarel2D::RetourAuRepos() {
    m_course.arretee = false;
    m_course.decoupe = {};
    m_course.preparee = {};
    m_course.arret = {};
    m_panneauCourse->Finir();
    m_trace->Effacer();
    InitialiserBoutonsDecoupe(0);
    TraceDecoupe();
    pctDecoupe->setFocus();
}

// While the machine is driven: the page of the run, and the view of the drawing.
GardeEntrees frmTessarel2D::GarderCourse() {
    return GardeEntrees({m_panneauCourse, pctDecoupe->parentWidget(), cmdZoomTout, cmdZoomPlus, cmdZoomMoins},
                        [this] { m_course.demandes.StopDemande = true; });
}

bool frmTessarel2D::CourseOuverte() const {
    return Occupee() || m_course.arretee;
}

// 1: a cut runs, and nothing is at hand that could touch it; 0: idle.
void frmTessarel2D::InitialiserBoutonsDecoupe(int enMarche) {
    const bool libre = enMarche == 0;
    m_simulation->Arreter();
    m_simulation->setEnabled(libre);
    m_pages->setCurrentIndex(libre ? PageDecoupe : PageCourse);
    cmdAnnulerDecoupe->setEnabled(libre);
    imgCroixFermeDecoupe->setEnabled(libre);
    PermettreCommandes(libre);
}

void frmTessarel2D::PermettreCommandes(bool libre) {
    m_bibliotheque->setEnabled(libre);
    for (QToolButton* commande :
         {cmdNouveauProjetTS2D, cmdOuvrirFichierTS2D, cmdRecents, cmdActualiserSauvegarde, cmdSauverTS2D,
          cmdExporterDXF, cmdMatieres, cmdParametresMachine, cmdDeplacementsManuels, cmdAide,
          cmdRafraichirUsbTS2D})
        commande->setEnabled(libre);
    cmdBibliotheque->setEnabled(libre && !DecoupeOuverte());
    cmdRapportOuverture->setEnabled(libre && !m_cheminOuvert.empty());
    raccourciEnregistrer->setEnabled(libre && m_espace.cheminProjet.empty());
}

bool frmTessarel2D::ArreterPourFermer() {
    if (!Occupee()) return false;
    m_course.fermerEnsuite = true;
    if (m_course.enCours)
        m_course.demandes.StopDemande = true;
    else
        EteindreFilManuel(); // a heat that is being asked for ends in a heat-off
    return true;
}

} // namespace tessarel
