// What the virtual box's window does: it serves the box, shows it, and lends a hand to its switches.
#include "link/simulateur/ui/frmSimulateur.h"

#include "link/simulateur/memoires_machine.h"
#include "link/simulateur/ui/libelles_simulateur.h"
#include "platform/raisons.h"
#include "platform/signaux_fin.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/icones.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QSocketNotifier>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace tessarel::simulateur {

namespace {

constexpr int PeriodeImage = 33; // ms
// While exchanges follow one another they are served without going back to the event loop, this long at most.
constexpr qint64 DureeService = 12; // ms
constexpr std::chrono::milliseconds AttenteSuivant{1};
constexpr std::size_t NotesGardees = 400; // waiting for the next picture
constexpr double PleinPwm = 255;
constexpr double Facteurs[] = {0.1, 0.5, 1, 2, 5, 10, 20, 50, 100, 1000};
// While the wire moves, the picture of a long path is made anew only after this many times what it took:
// exchanges come first.
constexpr qint64 ReposTrace = 12;
constexpr std::size_t CoinsParTour = 8000;
enum Quand { ToutDeSuite, ALEchange, ALaSalve };

QString Dire(const char* francais, const char* english) {
    return QString::fromUtf8(SelonLangue(francais, english));
}

int PourCent(double part) {
    return static_cast<int>(std::lround(100 * std::clamp(part, 0.0, 1.0)));
}

} // namespace

frmSimulateur::frmSimulateur(PosteVirtuel& poste, QWidget* parent) : QWidget(parent), m_poste(poste) {
    Disposer();
    AppliquerLibelles(*this, LibellesSimulateur(), LangueCourante());
    setWindowIcon(IconeProgramme());
    for (const double f : Facteurs) combFacteur->addItem(QStringLiteral("× %1").arg(f), f);
    const double facteur = m_poste.Boite().Facteur();
    if (combFacteur->findData(facteur) < 0)
        combFacteur->addItem(QStringLiteral("× %1").arg(facteur), facteur);
    combFacteur->setCurrentIndex(combFacteur->findData(facteur));
    hscBouton->setValue(m_poste.Boite().BoutonChauffe());
    for (QProgressBar* barre : {progrChauffe, progrTemperature, progrSalve}) barre->setRange(0, 100);
    for (QProgressBar* barre : {progrChauffe, progrTemperature}) {
        QPalette palette = barre->palette();
        palette.setColor(QPalette::Highlight, CouleurFil());
        barre->setPalette(palette);
    }
    txtQuand->setEnabled(false);
    FixerBloc(m_scene.bloc);
    RefaireScene();
    Brancher();
    MontrerEtat();
    MontrerVues(true);
}

frmSimulateur::~frmSimulateur() {
    m_poste.SurNote = {};
}

void frmSimulateur::Brancher() {
    m_poste.SurNote = [this](const NoteJournal& note) { NoterJournal(note); };
    m_notifieur = new QSocketNotifier(m_poste.Prise().Descripteur(), QSocketNotifier::Read, this);
    connect(m_notifieur, &QSocketNotifier::activated, this, &frmSimulateur::ServirEchanges);
    m_minuterie = new QTimer(this);
    m_minuterie->setInterval(PeriodeImage);
    connect(m_minuterie, &QTimer::timeout, this, &frmSimulateur::Tourner);
    m_minuterie->start();

    BrancherFacade();
    connect(combFacteur, &QComboBox::activated, this,
            [this] { m_poste.Boite().FixerFacteur(combFacteur->currentData().toDouble()); });
    connect(cmdPoserOrigine, &QPushButton::clicked, this, [this] {
        m_poste.Boite().PoserChariots(m_poste.Boite().PositionOrigine());
        MontrerEtat();
        MontrerVues(false);
    });
    for (ChampNombre* champ : txtBloc)
        connect(champ, &ChampNombre::ValeurSaisie, this, &frmSimulateur::LireBloc);
    connect(cmdEffacerTrace, &QPushButton::clicked, this, [this] {
        m_premierCoin = m_poste.Boite().TrajetOublies() + m_poste.Boite().Trajet().size();
        MontrerVues(true);
    });
    connect(combQuand, &QComboBox::currentIndexChanged, this,
            [this](int quand) { txtQuand->setEnabled(quand != ToutDeSuite); });
    connect(cmdProgrammer, &QPushButton::clicked, this, &frmSimulateur::ProvoquerPanne);
    connect(cmdOublier, &QPushButton::clicked, this, [this] {
        BoiteZelko& boite = m_poste.Boite();
        boite.OublierPannes();
        boite.FixerCommutateurs({});
        boite.MettreSousTension(true);
        boite.Brancher(true);
        Tourner();
    });
    connect(cmdEffacerJournal, &QToolButton::clicked, txtJournal, &QPlainTextEdit::clear);
    connect(pctCote, &Canevas::FondChange, this, [this] {
        RefaireScene();
        MontrerVues(true);
    });
}

void frmSimulateur::BrancherFacade() {
    connect(cmdStopMachine, &QPushButton::pressed, this, [this] {
        m_poste.Boite().AppuyerStop();
        Tourner();
    });
    connect(chkBranchee, &QCheckBox::clicked, this, [this](bool oui) { m_poste.Boite().Brancher(oui); });
    connect(chkTension, &QCheckBox::clicked, this,
            [this](bool oui) { m_poste.Boite().MettreSousTension(oui); });
    connect(chkOrigine, &QCheckBox::clicked, this, &frmSimulateur::EcrireCommutateurs);
    connect(chkFinCourse, &QCheckBox::clicked, this, &frmSimulateur::EcrireCommutateurs);
    connect(combManu, &QComboBox::activated, this, &frmSimulateur::EcrireCommutateurs);
    connect(combMarche, &QComboBox::activated, this, &frmSimulateur::EcrireCommutateurs);
    connect(hscBouton, &QSlider::valueChanged, this,
            [this](int pwm) { m_poste.Boite().FixerBoutonChauffe(static_cast<std::uint8_t>(pwm)); });
}

void frmSimulateur::EcrireCommutateurs() {
    Commutateurs c;
    c.chauffeManu = combManu->currentIndex() == 1;
    c.chauffeEteinte = combMarche->currentIndex() == 1;
    c.origineForcee = chkOrigine->isChecked();
    c.finCourseForcee = chkFinCourse->isChecked();
    m_poste.Boite().FixerCommutateurs(c);
    MontrerEtat();
}

void frmSimulateur::ServirEchanges() {
    QElapsedTimer temps;
    temps.start();
    while (m_poste.Servir(AttenteSuivant) && temps.elapsed() < DureeService) {
    }
}

void frmSimulateur::Tourner() {
    if (FinDemandee()) {
        close();
        return;
    }
    m_poste.Servir(std::chrono::milliseconds(0));
    MontrerEtat();
    MontrerJournal();
    // The views are painted whole: the longer the path in them, the more seldom while the wire moves.
    const std::size_t coins = std::min(m_poste.Boite().Trajet().size(), CoinsDessines);
    const bool immobile = m_poste.Boite().Etat().file != EtatFile::EnMarche;
    if (immobile || ++m_tours > coins / CoinsParTour) {
        m_tours = 0;
        MontrerVues(false);
    }
}

void frmSimulateur::ProvoquerPanne() {
    if (txtQuand->isEnabled() && !txtQuand->Valider()) return;
    BoiteZelko& boite = m_poste.Boite();
    PanneProgrammee panne;
    panne.panne = static_cast<Panne>(combPanne->currentIndex());
    const auto numero = static_cast<std::uint32_t>(std::clamp(txtQuand->Valeur(), 1.0, 1e9));
    if (combQuand->currentIndex() == ALEchange) panne.echange = boite.Comptes().echanges + numero;
    if (combQuand->currentIndex() == ALaSalve) panne.salve = numero;
    boite.Programmer(panne);
    Tourner();
}

void frmSimulateur::NoterJournal(const NoteJournal& note) {
    if (note.estEchange ? !chkEchanges->isChecked() : note.evenement == Evenement::DebutSalve) return;
    if (m_notes.size() == NotesGardees) {
        m_notes.pop_front();
        ++m_notesPassees;
    }
    m_notes.push_back(note);
}

void frmSimulateur::Avertir(const std::string& texte) {
    txtJournal->appendPlainText(QString::fromStdString(texte));
}

void frmSimulateur::MontrerJournal() {
    if (m_notes.empty()) return;
    const QScrollBar* barre = txtJournal->verticalScrollBar();
    const bool enBas = barre->value() >= barre->maximum() - 1;
    QStringList lignes;
    if (m_notesPassees > 0) lignes << Dire("… %1 lignes passées", "… %1 lines left out").arg(m_notesPassees);
    for (const NoteJournal& note : m_notes) lignes << PhraseNote(note);
    m_notes.clear();
    m_notesPassees = 0;
    txtJournal->appendPlainText(lignes.join(u'\n'));
    if (enBas) txtJournal->verticalScrollBar()->setValue(txtJournal->verticalScrollBar()->maximum());
}

void frmSimulateur::MontrerEtat() {
    const EtatBoite e = m_poste.Boite().Etat();
    lblEtatBoite->setText(PhraseEtat(e));
    const std::string& nom = m_poste.Boite().Ram().nom;
    lblTable->setText(m_poste.Boite().Ram().frequence == 0
                          ? Dire("Aucune table active", "No active table")
                          : Dire("Table : %1", "Table: %1").arg(QString::fromStdString(nom)));
    lblClient->setText(m_poste.Prise().AvecClient()
                           ? Dire("Un programme est connecté", "A program is connected")
                           : Dire("Aucun programme connecté", "No program is connected"));
    progrChauffe->setValue(PourCent(e.pwmFil / PleinPwm));
    progrTemperature->setValue(PourCent(e.temperature));
    progrFile->setRange(0, static_cast<int>(e.capaciteFile));
    progrFile->setValue(static_cast<int>(e.salvesEnFile));
    lblSalve->setText(e.salve == 0
                          ? Dire("Aucune salve", "No frame")
                          : Dire("Salve %1, %2 ticks", "Frame %1, %2 ticks").arg(e.salve).arg(e.ticks));
    progrSalve->setValue(e.ticks == 0 ? 0 : PourCent(static_cast<double>(e.ticksFaits) / e.ticks));
    lblOrigine->setText(e.origineOuverte ? Dire("Boucle d'origine : ouverte", "Origin loop: open")
                                         : Dire("Boucle d'origine : fermée", "Origin loop: closed"));
    lblFinCourse->setText(e.finCourseOuverte ? Dire("Fin de course : ouverte", "Limit loop: open")
                                             : Dire("Fin de course : fermée", "Limit loop: closed"));
    const auto teinter = [](QLabel* etiquette, bool alerte) {
        QPalette palette = etiquette->palette();
        if (palette.color(QPalette::WindowText) == (alerte ? CouleurAlerte() : CouleurAccord())) return;
        palette.setColor(QPalette::WindowText, alerte ? CouleurAlerte() : CouleurAccord());
        etiquette->setPalette(palette);
    };
    teinter(lblOrigine, e.origineOuverte);
    teinter(lblFinCourse, e.finCourseOuverte);
    const Commutateurs& c = m_poste.Boite().CommutateursEnPlace();
    chkBranchee->setChecked(e.branchee);
    chkTension->setChecked(e.sousTension);
    chkOrigine->setChecked(c.origineForcee);
    chkFinCourse->setChecked(c.finCourseForcee);
    combManu->setCurrentIndex(c.chauffeManu ? 1 : 0);
    combMarche->setCurrentIndex(c.chauffeEteinte ? 1 : 0);
    lblMoteurs->setText(e.moteurs ? Dire("Moteurs alimentés", "Motors on")
                                  : Dire("Moteurs relâchés", "Motors off"));
    cmdPoserOrigine->setEnabled(e.file != EtatFile::EnMarche);
    lblTemps->setText(Dire("%1 s de la machine", "%1 s of the machine").arg(e.secondes, 0, 'f', 1));
    lblPannes->setText(m_poste.Boite().PannesEnAttente()
                           ? Dire("Une panne attend ou dure", "A fault waits or lasts")
                           : Dire("Tout va bien", "All is well"));
    const PlacesChariots p = PlacesEnMm(e.position, m_poste.Boite().Ram());
    const std::array<double, NombreAxes> mm = {p.bout1.X, p.bout1.Y, p.bout2.X, p.bout2.Y};
    for (std::size_t a = 0; a < NombreAxes; ++a) lblPosition[a]->setText(QString::number(mm[a], 'f', 2));
}

// The table in RAM, the mechanics or the ground has changed: what stands still is drawn anew.
void frmSimulateur::RefaireScene() {
    const BoiteZelko& boite = m_poste.Boite();
    const bool autre = m_scene.mecanique != boite.MecaniqueEnPlace() || !m_dejaMontre;
    m_scene.mecanique = boite.MecaniqueEnPlace();
    m_scene.ram = boite.Ram();
    m_scene.sombre = pctCote->FondSombre();
    pctCote->Montrer(Canevas::CoucheFond, DessinerFondCote(m_scene));
    pctFace->Montrer(Canevas::CoucheFond, DessinerFondVue(m_scene, VueMachine::Face));
    pctDessus->Montrer(Canevas::CoucheFond, DessinerFondVue(m_scene, VueMachine::Dessus));
    if (!autre) return;
    pctCote->FixerCadreComplet(CadreCote(m_scene));
    pctFace->FixerCadreComplet(CadreVue(m_scene, VueMachine::Face));
    pctDessus->FixerCadreComplet(CadreVue(m_scene, VueMachine::Dessus));
    for (Canevas* vue : {pctCote, pctFace, pctDessus}) vue->ZoomTout();
}

void frmSimulateur::MontrerVues(bool tout) {
    BoiteZelko& boite = m_poste.Boite();
    if (boite.MecaniqueEnPlace() != m_scene.mecanique || boite.Ram() != m_scene.ram) {
        RefaireScene();
        tout = true;
    }
    const EtatBoite e = boite.Etat();
    const std::size_t coins = boite.TrajetOublies() + boite.Trajet().size();
    const bool nouveaux = coins != m_coinsTraces;
    const bool aTemps = e.file != EtatFile::EnMarche || m_depuisTrace.nsecsElapsed() >= m_reposTrace;
    if (tout || (nouveaux && aTemps)) {
        QElapsedTimer temps;
        temps.start();
        const std::size_t debut =
            std::min(boite.Trajet().size(),
                     m_premierCoin > boite.TrajetOublies() ? m_premierCoin - boite.TrajetOublies() : 0);
        pctCote->Montrer(Canevas::CoucheTrace,
                         DessinerTrace(m_scene, std::span(boite.Trajet()).subspan(debut)));
        m_coinsTraces = coins;
        m_reposTrace = ReposTrace * temps.nsecsElapsed();
        m_depuisTrace.start();
    }
    const bool bouge = e.position != m_montre.position ||
                       std::abs(e.temperature - m_montre.temperature) > 0.002 || e.file != m_montre.file;
    if (!tout && !nouveaux && !bouge) return;
    m_montre = e;
    m_dejaMontre = true;
    const PointTrajet* coin = boite.Trajet().empty() ? nullptr : &boite.Trajet().back();
    pctCote->Montrer(Canevas::CoucheOutil, DessinerFilCote(m_scene, e, coin));
    pctFace->Montrer(Canevas::CoucheOutil, DessinerFilVue(m_scene, VueMachine::Face, e));
    pctDessus->Montrer(Canevas::CoucheOutil, DessinerFilVue(m_scene, VueMachine::Dessus, e));
}

void frmSimulateur::FixerBloc(const BlocMousse& bloc) {
    m_scene.bloc = bloc;
    const std::array<double, ChampsBloc> valeurs = {bloc.x,       bloc.y, bloc.largeur,
                                                    bloc.hauteur, bloc.z, bloc.profondeur};
    for (std::size_t i = 0; i < ChampsBloc; ++i) txtBloc[i]->FixerValeur(valeurs[i]);
    RefaireScene();
    MontrerVues(true);
}

void frmSimulateur::LireBloc() {
    BlocMousse b;
    const std::array<double*, ChampsBloc> champs = {&b.x, &b.y, &b.largeur, &b.hauteur, &b.z, &b.profondeur};
    for (std::size_t i = 0; i < ChampsBloc; ++i) *champs[i] = txtBloc[i]->Valeur();
    constexpr double minimum = 1; // mm
    for (double* taille : {&b.largeur, &b.hauteur, &b.profondeur}) *taille = std::max(*taille, minimum);
    FixerBloc(b);
}

} // namespace tessarel::simulateur
