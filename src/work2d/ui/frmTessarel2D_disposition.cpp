// The layout of the 2D window: tools on the left, canvases in the middle, pages of values on the right.
#include "ui/ascenseurs.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/nommer.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/bandeau_atelier.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/legende_decoupe.h"
#include "work2d/ui/panneau_bibliotheque.h"
#include "work2d/ui/panneau_course.h"
#include "work2d/ui/panneau_manuel.h"
#include "work2d/ui/panneau_saisie.h"
#include "work2d/ui/panneau_simulation.h"
#include "work2d/ui/style_2d.h"
#include "work2d/ui/trace_course.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessarel {

namespace {

constexpr int LargeurOutils = 104; // pixels
constexpr int LargeurBibliotheque = 210;
constexpr int LargeurPage = 324;
constexpr int CoteIconeOutil = 26;
constexpr int CoteIconeOption = 30;
constexpr int HauteurBoutonPrincipal = 40;

QToolButton* Outil(const QString& nom) {
    auto* bouton = Nommer(new QToolButton, nom);
    bouton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bouton->setIconSize({CoteIconeOutil, CoteIconeOutil});
    bouton->setAutoRaise(true);
    bouton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return bouton;
}

QFrame* Filet() {
    auto* filet = new QFrame;
    filet->setFrameShape(QFrame::HLine);
    filet->setFrameShadow(QFrame::Sunken);
    return filet;
}

QGroupBox* Groupe(const QString& nom, QVBoxLayout* page) {
    auto* groupe = Nommer(new QGroupBox, nom);
    page->addWidget(groupe);
    return groupe;
}

// Room that a text of changing length keeps, so that what stands below it stays in its place.
void ReserverLignes(QLabel* etiquette, int lignes) {
    etiquette->setMinimumHeight(lignes * etiquette->fontMetrics().lineSpacing());
    etiquette->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

// A row of options of which one is set: pictures with a word under each.
template <std::size_t N>
void Options(QGroupBox* groupe, const QString& nom, std::array<QToolButton*, N>& boutons) {
    auto* rangee = new QHBoxLayout(groupe);
    rangee->setSpacing(4);
    auto* exclusifs = new QButtonGroup(groupe);
    groupe->setStyleSheet(QString::fromLatin1(StyleOptions));
    for (std::size_t i = 0; i < N; ++i) {
        QToolButton* bouton = boutons[i] = Nommer(new QToolButton, nom, i);
        bouton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bouton->setIconSize({CoteIconeOption, CoteIconeOption});
        bouton->setCheckable(true);
        bouton->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        exclusifs->addButton(bouton, static_cast<int>(i));
        rangee->addWidget(bouton);
    }
    boutons[0]->setChecked(true);
}

QPushButton* BoutonPrincipal(const QString& nom) {
    auto* bouton = Nommer(new QPushButton, nom);
    bouton->setMinimumHeight(HauteurBoutonPrincipal);
    bouton->setIconSize({24, 24});
    QFont police = bouton->font();
    police.setBold(true);
    bouton->setFont(police);
    return bouton;
}

// A page that scrolls where the screen is too low for it.
QScrollArea* Page(QVBoxLayout* contenu) {
    auto* interieur = new QWidget;
    interieur->setLayout(contenu);
    auto* page = new QScrollArea;
    page->setWidget(interieur);
    page->setWidgetResizable(true);
    page->setFrameShape(QFrame::NoFrame);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return page;
}

} // namespace

void frmTessarel2D::Disposer() {
    resize(1280, 800);
    setMinimumSize(900, 560);
    setAcceptDrops(true);

    m_vues = new QStackedWidget;
    m_vues->addWidget(DisposerVueProjet());
    m_vues->addWidget(DisposerVueDecoupe());
    m_pages = new QStackedWidget;
    m_pages->setFixedWidth(LargeurPage);
    m_pages->addWidget(DisposerPageProjet());
    m_pages->addWidget(DisposerPageDecoupe());
    m_panneauCourse = new PanneauCourse;
    m_pages->addWidget(m_panneauCourse);
    m_panneauManuel = new PanneauManuel;
    m_pages->addWidget(m_panneauManuel);

    auto* centre = new QWidget;
    auto* rangee = new QHBoxLayout(centre);
    rangee->setContentsMargins(0, 0, 0, 0);
    rangee->setSpacing(0);
    rangee->addWidget(DisposerOutils());
    m_bibliotheque = new PanneauBibliotheque;
    m_milieu = new QSplitter;
    m_milieu->addWidget(m_bibliotheque);
    m_milieu->addWidget(m_vues);
    m_milieu->setStretchFactor(1, 1);
    m_milieu->setChildrenCollapsible(false);
    m_milieu->setSizes({LargeurBibliotheque, width() - LargeurBibliotheque});
    rangee->addWidget(m_milieu, 1);
    rangee->addWidget(m_pages);
    setCentralWidget(centre);
    DisposerApercu();
    DisposerAjoutPoint();
    DisposerBarreEtat();
}

// The table under its row of tools.
QWidget* frmTessarel2D::DisposerVueProjet() {
    pctSequTS2D = Nommer(new Canevas, QStringLiteral("pctSequTS2D"));
    m_atelier = new Atelier2D(*pctSequTS2D, m_espace, this);
    m_bandeau = new BandeauAtelier;
    auto* vue = new QWidget;
    auto* colonne = new QVBoxLayout(vue);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(m_bandeau);
    colonne->addWidget(new Ascenseurs(pctSequTS2D, QStringLiteral("SequTS2D")), 1);
    return vue;
}

// The cut over its film.
QWidget* frmTessarel2D::DisposerVueDecoupe() {
    pctDecoupe = Nommer(new Canevas, QStringLiteral("pctDecoupe"));
    m_simulation = new PanneauSimulation(*pctDecoupe);
    m_trace = std::make_unique<TraceCourse>(*pctDecoupe);
    imgCroixFermeDecoupe = Nommer(new QToolButton, QStringLiteral("imgCroixFermeDecoupe"));
    imgCroixFermeDecoupe->setAutoFillBackground(true); // the drawing goes on below it
    auto* dessus = new QVBoxLayout(pctDecoupe);
    dessus->addWidget(imgCroixFermeDecoupe, 0, Qt::AlignRight | Qt::AlignTop);
    auto* vue = new QWidget;
    auto* colonne = new QVBoxLayout(vue);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    colonne->addWidget(new Ascenseurs(pctDecoupe, QStringLiteral("Decoupe")), 1);
    colonne->addWidget(m_simulation);
    return vue;
}

QWidget* frmTessarel2D::DisposerOutils() {
    auto* colonne = new QVBoxLayout;
    colonne->setContentsMargins(4, 6, 4, 6);
    colonne->setSpacing(2);
    const auto ajouter = [&](QToolButton*& membre, const char* nom) {
        membre = Outil(QString::fromLatin1(nom));
        colonne->addWidget(membre);
    };
    ajouter(cmdNouveauProjetTS2D, "cmdNouveauProjetTS2D");
    ajouter(cmdOuvrirFichierTS2D, "cmdOuvrirFichierTS2D");
    ajouter(cmdRecents, "cmdRecents");
    menuRecents = Nommer(new QMenu(cmdRecents), QStringLiteral("menuRecents"));
    cmdRecents->setMenu(menuRecents);
    cmdRecents->setPopupMode(QToolButton::InstantPopup);
    ajouter(cmdActualiserSauvegarde, "cmdActualiserSauvegarde");
    ajouter(cmdSauverTS2D, "cmdSauverTS2D");
    ajouter(cmdExporterDXF, "cmdExporterDXF");
    colonne->addWidget(Filet());
    ajouter(cmdBibliotheque, "cmdBibliotheque");
    cmdBibliotheque->setCheckable(true);
    cmdBibliotheque->setChecked(true);
    ajouter(cmdMatieres, "cmdMatieres");
    ajouter(cmdParametresMachine, "cmdParametresMachine");
    ajouter(cmdDeplacementsManuels, "cmdDeplacementsManuels");
    colonne->addStretch(1);
    ajouter(cmdZoomTout, "cmdZoomTout");
    auto* loupes = new QHBoxLayout;
    loupes->setSpacing(2);
    cmdZoomPlus = Outil(QStringLiteral("cmdZoomPlus"));
    cmdZoomMoins = Outil(QStringLiteral("cmdZoomMoins"));
    for (QToolButton* loupe : {cmdZoomPlus, cmdZoomMoins}) {
        loupe->setToolButtonStyle(Qt::ToolButtonIconOnly);
        loupes->addWidget(loupe);
    }
    colonne->addLayout(loupes);
    colonne->addWidget(Filet());
    ajouter(cmdAide, "cmdAide");

    auto* outils = Nommer(new QWidget, QStringLiteral("frameOutils"));
    outils->setLayout(colonne);
    outils->setFixedWidth(LargeurOutils);
    return outils;
}

QWidget* frmTessarel2D::DisposerPageProjet() {
    auto* page = new QVBoxLayout;
    page->setSpacing(6);

    auto* fichier = new QVBoxLayout(Groupe(QStringLiteral("frameFichier"), page));
    lblTypeFichierTS2D = Nommer(new QLabel, QStringLiteral("lblTypeFichierTS2D"));
    lblTypeFichierTS2D->setWordWrap(true);
    lblTypeFichierTS2D->setTextFormat(Qt::PlainText);
    ReserverLignes(lblTypeFichierTS2D, 3);
    fichier->addWidget(lblTypeFichierTS2D);
    lblCoeffNettoyage = Nommer(new QLabel, QStringLiteral("lblCoeffNettoyage"));
    fichier->addWidget(lblCoeffNettoyage);

    auto* bloc = new QGridLayout(Groupe(QStringLiteral("frameBloc"), page));
    for (std::size_t i = 0; i < txtBloc.size(); ++i) {
        const int rang = static_cast<int>(i);
        auto* nom = Nommer(new QLabel, QStringLiteral("lblBloc"), i);
        txtBloc[i] = Nommer(new ChampNombre, QStringLiteral("txtBloc"), i);
        txtBloc[i]->FixerMasque("#####0");
        nom->setBuddy(txtBloc[i]);
        bloc->addWidget(nom, rang, 0);
        bloc->addWidget(txtBloc[i], rang, 1);
        bloc->addWidget(Nommer(new QLabel, QStringLiteral("lblUniteBloc"), i), rang, 2);
    }
    cmdBlocAuto = Outil(QStringLiteral("cmdBlocAuto"));
    cmdBlocAuto->setAutoRaise(false);
    cmdBlocAuto->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    bloc->addWidget(cmdBlocAuto, 0, 3, 2, 1);
    lblDimensionsBloc = Nommer(new QLabel, QStringLiteral("lblDimensionsBloc"));
    bloc->addWidget(lblDimensionsBloc, 2, 0, 1, 4);
    bloc->setColumnStretch(1, 1);

    m_saisie = new PanneauSaisie;
    page->addWidget(m_saisie);

    auto* placement = new QVBoxLayout(Groupe(QStringLiteral("framePlacement"), page));
    for (std::size_t i = 0; i < chkCentrer.size(); ++i) {
        chkCentrer[i] = Nommer(new QCheckBox, QStringLiteral("chkCentrer"), i);
        placement->addWidget(chkCentrer[i]);
    }

    auto* affichage = new QVBoxLayout(Groupe(QStringLiteral("frameAffichage"), page));
    chkZoomProjet = Nommer(new QCheckBox, QStringLiteral("chkZoomProjet"));
    chkVoirPoints = Nommer(new QCheckBox, QStringLiteral("chkVoirPoints"));
    chkCouleurProfils = Nommer(new QCheckBox, QStringLiteral("chkCouleurProfils"));
    chkCouleurProfils->setChecked(true);
    for (QCheckBox* case_ : {chkZoomProjet, chkVoirPoints, chkCouleurProfils}) affichage->addWidget(case_);

    page->addStretch(1);
    cmdDecouper = BoutonPrincipal(QStringLiteral("cmdDecouper"));
    page->addWidget(cmdDecouper);
    return Page(page);
}

QWidget* frmTessarel2D::DisposerPageDecoupe() {
    auto* page = new QVBoxLayout;
    page->setSpacing(6);

    auto* matiere = new QVBoxLayout(Groupe(QStringLiteral("frameMatiere"), page));
    comboMatieres = Nommer(new QComboBox, QStringLiteral("comboMatieres"));
    matiere->addWidget(comboMatieres);

    Options(Groupe(QStringLiteral("frameEntree"), page), QStringLiteral("optEntrerBloc"), optEntrerBloc);
    Options(Groupe(QStringLiteral("frameSortie"), page), QStringLiteral("optSortirBloc"), optSortirBloc);
    auto* vitesses = new QHBoxLayout;
    auto* approche = Nommer(new QGroupBox, QStringLiteral("frameApproche"));
    auto* retour = Nommer(new QGroupBox, QStringLiteral("frameRetour"));
    vitesses->addWidget(approche);
    vitesses->addWidget(retour);
    page->addLayout(vitesses);
    Options(approche, QStringLiteral("optApproche"), optApproche);
    Options(retour, QStringLiteral("optRetour"), optRetour);
    Options(Groupe(QStringLiteral("frameDecalage"), page), QStringLiteral("optDecalage"), optDecalage);

    lblInformationDecoupe = Nommer(new QLabel, QStringLiteral("lblInformationDecoupe"));
    lblInformationDecoupe->setWordWrap(true);
    lblInformationDecoupe->setTextFormat(Qt::PlainText);
    lblInformationDecoupe->setTextInteractionFlags(Qt::TextSelectableByMouse);
    ReserverLignes(lblInformationDecoupe, 4);
    page->addWidget(lblInformationDecoupe);
    page->addWidget(new LegendeDecoupe);
    page->addStretch(1);

    chkZoomDecoupe = Nommer(new QCheckBox, QStringLiteral("chkZoomDecoupe"));
    chkExportGcode2D = Nommer(new QCheckBox, QStringLiteral("chkExportGcode2D"));
    auto* action = Nommer(new QWidget, QStringLiteral("frameAction"));
    auto* colonne = new QVBoxLayout(action);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(page->spacing());
    page->addWidget(action);
    colonne->addWidget(chkZoomDecoupe);
    colonne->addWidget(chkExportGcode2D);
    auto* boutons = new QHBoxLayout;
    cmdAnnulerDecoupe = Nommer(new QPushButton, QStringLiteral("cmdAnnulerDecoupe"));
    cmdAnnulerDecoupe->setMinimumHeight(HauteurBoutonPrincipal);
    cmdLancerLaDecoupeTS2D = BoutonPrincipal(QStringLiteral("cmdLancerLaDecoupeTS2D"));
    boutons->addWidget(cmdAnnulerDecoupe);
    boutons->addWidget(cmdLancerLaDecoupeTS2D, 1);
    colonne->addLayout(boutons);
    return Page(page);
}

void frmTessarel2D::DisposerBarreEtat() {
    lblCoordonnees = Nommer(new QLabel, QStringLiteral("lblCoordonnees"));
    lblProjet = Nommer(new QLabel, QStringLiteral("lblProjet"));
    lblMachine = Nommer(new QLabel, QStringLiteral("lblMachine"));
    // Wide enough from the start, so that the bar does not dance under the pointer.
    lblCoordonnees->setMinimumWidth(
        lblCoordonnees->fontMetrics().horizontalAdvance(QStringLiteral("X -00000.00   Y -00000.00 mm")));
    cmdRapportOuverture = Nommer(new QToolButton, QStringLiteral("cmdRapportOuverture"));
    cmdRapportOuverture->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    cmdRapportOuverture->setAutoRaise(true);
    statusBar()->addPermanentWidget(cmdRapportOuverture);
    cmdRafraichirUsbTS2D = Nommer(new QToolButton, QStringLiteral("cmdRafraichirUsbTS2D"));
    cmdRafraichirUsbTS2D->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    cmdRafraichirUsbTS2D->setAutoRaise(true);
    statusBar()->addPermanentWidget(cmdRafraichirUsbTS2D);
    for (QLabel* etiquette : {lblProjet, lblMachine, lblCoordonnees}) {
        etiquette->setContentsMargins(8, 0, 8, 0);
        statusBar()->addPermanentWidget(etiquette);
    }
}

} // namespace tessarel
