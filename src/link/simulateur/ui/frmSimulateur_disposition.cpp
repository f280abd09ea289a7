// The layout of the virtual box's window: front of the box on the left, the machine in the middle, settings
// on the right, the log below.
#include "link/simulateur/ui/frmSimulateur.h"

#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/nommer.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessarel::simulateur {

namespace {

constexpr int LargeurColonne = 244; // pixels
constexpr int HauteurStop = 54;
constexpr int HauteurJournal = 132;
constexpr int LignesJournal = 2000;
constexpr int HauteurPetitesVues = 190;
constexpr int BoutonMax = 255;

template <typename Controle>
Controle* Creer(const char* nom) {
    return Nommer(new Controle, nom);
}

template <typename Controle>
Controle* Creer(const char* nom, std::size_t indice) {
    return Nommer(new Controle, nom, indice);
}

QGroupBox* Groupe(const char* nom, QVBoxLayout* page) {
    auto* groupe = Creer<QGroupBox>(nom);
    page->addWidget(groupe);
    return groupe;
}

QGridLayout* Grille(QGroupBox* groupe) {
    auto* grille = new QGridLayout(groupe);
    grille->setContentsMargins(8, 6, 8, 8);
    grille->setVerticalSpacing(5);
    return grille;
}

QProgressBar* Barre(const char* nom) {
    auto* barre = Creer<QProgressBar>(nom);
    barre->setTextVisible(true);
    barre->setMaximumHeight(18);
    return barre;
}

QScrollArea* Page(QVBoxLayout* contenu) {
    contenu->setContentsMargins(0, 0, 0, 0);
    auto* interieur = new QWidget;
    interieur->setLayout(contenu);
    auto* page = new QScrollArea;
    page->setWidget(interieur);
    page->setWidgetResizable(true);
    page->setFrameShape(QFrame::NoFrame);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page->setFixedWidth(LargeurColonne);
    return page;
}

QFrame* Cadre(QWidget* contenu) {
    auto* cadre = new QFrame;
    cadre->setFrameShape(QFrame::StyledPanel);
    auto* dedans = new QVBoxLayout(cadre);
    dedans->setContentsMargins(1, 1, 1, 1);
    dedans->addWidget(contenu);
    return cadre;
}

QLabel* Discret(QLabel* etiquette) {
    etiquette->setForegroundRole(QPalette::PlaceholderText);
    return etiquette;
}

} // namespace

void frmSimulateur::Disposer() {
    resize(1280, 800);
    setMinimumSize(960, 600);
    auto* haut = new QHBoxLayout;
    haut->addWidget(DisposerMachine());
    haut->addWidget(DisposerVues(), 1);
    haut->addWidget(DisposerReglages());
    auto* tout = new QVBoxLayout(this);
    tout->setContentsMargins(10, 10, 10, 10);
    tout->addLayout(haut, 1);
    tout->addWidget(DisposerJournal());
}

QWidget* frmSimulateur::DisposerMachine() {
    auto* page = new QVBoxLayout;
    auto* boite = Grille(Groupe("frameBoite", page));
    lblEtatBoite = Creer<QLabel>("lblEtatBoite");
    QFont gras = lblEtatBoite->font();
    gras.setBold(true);
    lblEtatBoite->setFont(gras);
    lblEtatBoite->setWordWrap(true);
    boite->addWidget(lblEtatBoite, 0, 0);
    boite->addWidget(lblTable = Creer<QLabel>("lblTable"), 1, 0);
    boite->addWidget(lblClient = Discret(Creer<QLabel>("lblClient")), 2, 0);
    cmdStopMachine = Creer<QPushButton>("cmdStopMachine");
    cmdStopMachine->setMinimumHeight(HauteurStop);
    // Red in both themes, as on the machine.
    cmdStopMachine->setStyleSheet(QStringLiteral(
        "QPushButton { background: #c01c28; color: white; font-weight: bold; font-size: 20px; border: 3px "
        "solid "
        "#7d1019; border-radius: 8px; }"
        "QPushButton:pressed { background: #8f121c; } QPushButton:focus { border-color: #ffb3b8; }"));
    boite->addWidget(cmdStopMachine, 3, 0);
    boite->addWidget(chkBranchee = Creer<QCheckBox>("chkBranchee"), 4, 0);
    boite->addWidget(chkTension = Creer<QCheckBox>("chkTension"), 5, 0);
    chkBranchee->setChecked(true);
    chkTension->setChecked(true);

    auto* chauffe = Grille(Groupe("frameChauffe", page));
    chauffe->addWidget(Creer<QLabel>("lblChauffe"), 0, 0);
    chauffe->addWidget(progrChauffe = Barre("progrChauffe"), 0, 1);
    chauffe->addWidget(Creer<QLabel>("lblTemperature"), 1, 0);
    chauffe->addWidget(progrTemperature = Barre("progrTemperature"), 1, 1);
    chauffe->addWidget(Creer<QLabel>("lblManu"), 2, 0);
    chauffe->addWidget(combManu = Creer<QComboBox>("combManu"), 2, 1);
    chauffe->addWidget(Creer<QLabel>("lblMarche"), 3, 0);
    chauffe->addWidget(combMarche = Creer<QComboBox>("combMarche"), 3, 1);
    chauffe->addWidget(Creer<QLabel>("lblBouton"), 4, 0);
    hscBouton = Creer<QSlider>("hscBouton");
    hscBouton->setOrientation(Qt::Horizontal);
    hscBouton->setRange(0, BoutonMax);
    chauffe->addWidget(hscBouton, 4, 1);

    auto* file = Grille(Groupe("frameFile", page));
    file->addWidget(Creer<QLabel>("lblFile"), 0, 0);
    file->addWidget(progrFile = Barre("progrFile"), 0, 1);
    progrFile->setFormat(QStringLiteral("%v / %m"));
    file->addWidget(lblSalve = Creer<QLabel>("lblSalve"), 1, 0, 1, 2);
    file->addWidget(progrSalve = Barre("progrSalve"), 2, 0, 1, 2);
    file->setColumnStretch(1, 1);

    auto* interrupteurs = Grille(Groupe("frameInterrupteurs", page));
    interrupteurs->addWidget(lblOrigine = Creer<QLabel>("lblOrigine"), 0, 0);
    interrupteurs->addWidget(chkOrigine = Creer<QCheckBox>("chkOrigine"), 1, 0);
    interrupteurs->addWidget(lblFinCourse = Creer<QLabel>("lblFinCourse"), 2, 0);
    interrupteurs->addWidget(chkFinCourse = Creer<QCheckBox>("chkFinCourse"), 3, 0);
    page->addStretch(1);
    return Page(page);
}

QWidget* frmSimulateur::DisposerVues() {
    auto* centre = new QWidget;
    auto* grille = new QGridLayout(centre);
    grille->setContentsMargins(0, 0, 0, 0);
    pctCote = Creer<Canevas>("pctCote");
    pctFace = Creer<Canevas>("pctFace");
    pctDessus = Creer<Canevas>("pctDessus");
    for (Canevas* petit : {pctFace, pctDessus}) {
        petit->AvecRegles(false);
        petit->setMinimumHeight(HauteurPetitesVues);
    }
    grille->addWidget(Discret(Creer<QLabel>("lblCote")), 0, 0, 1, 2);
    grille->addWidget(Cadre(pctCote), 1, 0, 1, 2);
    grille->addWidget(Discret(Creer<QLabel>("lblFace")), 2, 0);
    grille->addWidget(Discret(Creer<QLabel>("lblDessus")), 2, 1);
    grille->addWidget(Cadre(pctFace), 3, 0);
    grille->addWidget(Cadre(pctDessus), 3, 1);
    grille->setRowStretch(1, 5);
    grille->setRowStretch(3, 2);
    return centre;
}

QWidget* frmSimulateur::DisposerReglages() {
    auto* page = new QVBoxLayout;
    auto* temps = Grille(Groupe("frameTemps", page));
    temps->addWidget(Creer<QLabel>("lblFacteur"), 0, 0);
    temps->addWidget(combFacteur = Creer<QComboBox>("combFacteur"), 0, 1);
    temps->addWidget(lblTemps = Creer<QLabel>("lblTemps"), 1, 0, 1, 2);
    temps->setColumnStretch(1, 1);

    auto* chariots = Grille(Groupe("frameChariots", page));
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const int rangee = static_cast<int>(a % 2);
        const int colonne = static_cast<int>(a / 2) * 2;
        chariots->addWidget(Discret(Creer<QLabel>("lblAxe", a)), rangee, colonne);
        lblPosition[a] = Creer<QLabel>("lblPosition", a);
        lblPosition[a]->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        lblPosition[a]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        chariots->addWidget(lblPosition[a], rangee, colonne + 1);
        chariots->setColumnStretch(colonne + 1, 1);
    }
    chariots->addWidget(lblMoteurs = Discret(Creer<QLabel>("lblMoteurs")), 2, 0, 1, 4);
    chariots->addWidget(cmdPoserOrigine = Creer<QPushButton>("cmdPoserOrigine"), 3, 0, 1, 4);

    auto* bloc = Grille(Groupe("frameBloc", page));
    for (std::size_t i = 0; i < ChampsBloc; ++i) {
        const int rangee = static_cast<int>(i / 2);
        const int colonne = static_cast<int>(i % 2) * 2;
        bloc->addWidget(Creer<QLabel>("lblBloc", i), rangee, colonne);
        txtBloc[i] = Creer<ChampNombre>("txtBloc", i);
        txtBloc[i]->FixerMasque("##0.#");
        bloc->addWidget(txtBloc[i], rangee, colonne + 1);
    }
    bloc->addWidget(cmdEffacerTrace = Creer<QPushButton>("cmdEffacerTrace"), 3, 0, 1, 4);
    DisposerPannes(page);
    page->addStretch(1);
    return Page(page);
}

void frmSimulateur::DisposerPannes(QVBoxLayout* page) {
    auto* pannes = Grille(Groupe("framePannes", page));
    pannes->addWidget(combPanne = Creer<QComboBox>("combPanne"), 0, 0, 1, 2);
    pannes->addWidget(combQuand = Creer<QComboBox>("combQuand"), 1, 0);
    txtQuand = Creer<ChampNombre>("txtQuand");
    txtQuand->FixerMasque("##0");
    txtQuand->FixerValeur(1);
    txtQuand->setMaximumWidth(56);
    pannes->addWidget(txtQuand, 1, 1);
    for (QComboBox* liste : {combPanne, combQuand}) {
        liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        liste->setMinimumContentsLength(8);
    }
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(cmdProgrammer = Creer<QPushButton>("cmdProgrammer"));
    boutons->addWidget(cmdOublier = Creer<QPushButton>("cmdOublier"));
    pannes->addLayout(boutons, 2, 0, 1, 2);
    lblPannes = Discret(Creer<QLabel>("lblPannes"));
    lblPannes->setWordWrap(true);
    pannes->addWidget(lblPannes, 3, 0, 1, 2);
    pannes->setColumnStretch(0, 1);
}

QWidget* frmSimulateur::DisposerJournal() {
    auto* bas = new QWidget;
    auto* pile = new QVBoxLayout(bas);
    pile->setContentsMargins(0, 0, 0, 0);
    auto* titre = new QHBoxLayout;
    titre->addWidget(Discret(Creer<QLabel>("lblJournal")));
    titre->addStretch(1);
    titre->addWidget(chkEchanges = Creer<QCheckBox>("chkEchanges"));
    titre->addWidget(cmdEffacerJournal = Creer<QToolButton>("cmdEffacerJournal"));
    cmdEffacerJournal->setAutoRaise(true);
    txtJournal = Creer<QPlainTextEdit>("txtJournal");
    txtJournal->setReadOnly(true);
    txtJournal->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtJournal->setMaximumBlockCount(LignesJournal);
    txtJournal->setUndoRedoEnabled(false);
    txtJournal->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtJournal->setFixedHeight(HauteurJournal);
    pile->addLayout(titre);
    pile->addWidget(txtJournal);
    return bas;
}

} // namespace tessarel::simulateur
