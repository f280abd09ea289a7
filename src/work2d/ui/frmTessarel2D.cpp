// The 2D window: how its controls are tied to its commands, what it shows of its state, and its end.
#include "work2d/ui/frmTessarel2D.h"

#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "paths/projets.h"
#include "platform/dialogue.h"
#include "platform/fichiers.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/icones.h"
#include "ui/place_fenetre.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/libelles_2d.h"
#include "work2d/ui/panneau_bibliotheque.h"
#include "work2d/ui/panneau_simulation.h"
#include "work2d/ui/trace_course.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>

namespace tessarel {

namespace {

// "Sauvegarder avant de quitter?"
constexpr int MessagesSauverAvantDeQuitter = 5;
constexpr double FacteurLoupe = 1.5;

std::string EnMmAffiches(double valeur) {
    return FormaterNombre(valeur, "##0.00");
}

} // namespace

frmTessarel2D::frmTessarel2D(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmTessarel2D"));
    setWindowIcon(IconeProgramme());
    m_espace = NouvelEspace2D(TableINI);
    Disposer();
    AppliquerLibelles(*this, LibellesTessarel2D(), LangueCourante());
    RemplirMatieres();
    Relier();
    RendreLargeurs();
    CalculAffichageInitialTS2D();
    pctDecoupe->FixerCadreComplet(CadreTable(TableINI, false));
    FermerDecoupe();
    MontrerTout();
    m_bibliotheque->RemplirArbreBibliotheque("");
    statusBar()->showMessage(TexteAffiche(Texte(TexteProgramme::Fenetre2DEtatVide)));
    PlacerFenetre(*this);
}

frmTessarel2D::~frmTessarel2D() = default;

void frmTessarel2D::Relier() {
    RelierFichiers();
    RelierProjet();
    RelierDecoupe();
    RelierBibliotheque();
    RelierAtelier();
    RelierSource();
    RelierCourse();
    RelierManuel();
    for (Canevas* canevas : {pctSequTS2D, pctDecoupe}) {
        connect(canevas, &Canevas::PointeurDeplace, this, [this](double x, double y) {
            lblCoordonnees->setText(TexteAffiche(
                TexteRempli(TexteProgramme::Fenetre2DCoordonnees, {EnMmAffiches(x), EnMmAffiches(y)})));
        });
        connect(canevas, &Canevas::PointeurSorti, lblCoordonnees, &QLabel::clear);
    }
    connect(pctSequTS2D, &Canevas::FondChange, this, &frmTessarel2D::TraceSequTS2D);
    connect(pctDecoupe, &Canevas::FondChange, this, &frmTessarel2D::TraceDecoupe);
    const auto vue = [this] { return DecoupeOuverte() ? pctDecoupe : pctSequTS2D; };
    connect(cmdZoomTout, &QToolButton::clicked, this, [vue] { vue()->ZoomTout(); });
    connect(cmdZoomPlus, &QToolButton::clicked, this, [vue] { vue()->Zoomer(FacteurLoupe); });
    connect(cmdZoomMoins, &QToolButton::clicked, this, [vue] { vue()->Zoomer(1 / FacteurLoupe); });
    connect(cmdParametresMachine, &QToolButton::clicked, this,
            [this] { OuvrirReglages(&frmTessarel2D::ParametrerMachine); });
    connect(cmdMatieres, &QToolButton::clicked, this,
            [this] { OuvrirReglages(&frmTessarel2D::GererMatieres); });
    connect(cmdAide, &QToolButton::clicked, this, [] {
        AfficherInformation(Texte(TexteProgramme::Fenetre2DAide), Texte(TexteProgramme::Fenetre2DAideTitre));
    });
}

void frmTessarel2D::RelierFichiers() {
    TimerAffichageTypeFichier.setObjectName(QStringLiteral("TimerAffichageTypeFichier"));
    TimerAffichageTypeFichier.setSingleShot(true);
    connect(&TimerAffichageTypeFichier, &QTimer::timeout, this, &frmTessarel2D::EffacerResume);
    connect(cmdNouveauProjetTS2D, &QToolButton::clicked, this, &frmTessarel2D::NouveauProjet);
    connect(cmdOuvrirFichierTS2D, &QToolButton::clicked, this, &frmTessarel2D::DemanderOuverture);
    connect(menuRecents, &QMenu::aboutToShow, this, &frmTessarel2D::PreparerMenuRecents);
    connect(cmdSauverTS2D, &QToolButton::clicked, this, &frmTessarel2D::SauverSous);
    connect(cmdActualiserSauvegarde, &QToolButton::clicked, this, &frmTessarel2D::ActualiserSauvegarde);
    connect(cmdExporterDXF, &QToolButton::clicked, this, &frmTessarel2D::ExporterDxf);
    raccourciEnregistrer = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this);
    connect(raccourciEnregistrer, &QShortcut::activated, this, &frmTessarel2D::Enregistrer);
}

void frmTessarel2D::RelierProjet() {
    for (std::size_t i = 0; i < txtBloc.size(); ++i) {
        connect(txtBloc[i], &ChampNombre::ValeurSaisie, this,
                [this, i](double valeur) { ChangerBloc(i, valeur); });
    }
    connect(cmdBlocAuto, &QToolButton::clicked, this, &frmTessarel2D::AjusterBlocAuto);
    for (QCheckBox* regle : chkCentrer)
        connect(regle, &QCheckBox::toggled, this, &frmTessarel2D::ChangerRegle);
    connect(chkZoomProjet, &QCheckBox::toggled, this, [this](bool zoom) {
        if (zoom) {
            ZoomAutoToutVoir();
        } else {
            pctSequTS2D->ZoomTout();
        }
    });
    for (QCheckBox* option : {chkVoirPoints, chkCouleurProfils}) {
        connect(option, &QCheckBox::toggled, this, [this] {
            TraceSequTS2D();
            if (DecoupeOuverte()) TraceDecoupe();
        });
    }
    connect(cmdDecouper, &QPushButton::clicked, this, &frmTessarel2D::OuvrirDecoupe);
}

void frmTessarel2D::RelierDecoupe() {
    const auto relier = [this](const auto& options) {
        for (QToolButton* option : options) {
            connect(option, &QToolButton::clicked, this, &frmTessarel2D::ChangerOptionsDecoupe);
        }
    };
    relier(optEntrerBloc);
    relier(optSortirBloc);
    relier(optApproche);
    relier(optRetour);
    relier(optDecalage);
    connect(comboMatieres, &QComboBox::activated, this, [this](int rang) {
        PrendreMatiere(rang);
        CalculerDecoupe();
    });
    connect(chkZoomDecoupe, &QCheckBox::toggled, this, [this](bool zoom) {
        TraceDecoupe();
        if (!zoom) pctDecoupe->ZoomTout();
    });
    connect(chkExportGcode2D, &QCheckBox::toggled, this, &frmTessarel2D::MontrerOptionsDecoupe);
    connect(cmdLancerLaDecoupeTS2D, &QPushButton::clicked, this, &frmTessarel2D::LancerDecoupe);
    for (QAbstractButton* fermer : {static_cast<QAbstractButton*>(cmdAnnulerDecoupe),
                                    static_cast<QAbstractButton*>(imgCroixFermeDecoupe)})
        connect(fermer, &QAbstractButton::clicked, this, [this] {
            if (!CourseOuverte()) FermerDecoupe();
        });
}

void frmTessarel2D::ActualiserMachine() {
    MontrerLiaison();
    RemplirMatieres();
    for (Canevas* canevas : {pctSequTS2D, pctDecoupe})
        canevas->FixerCadreComplet(CadreTable(TableINI, false));
    TraceSequTS2D();
    MontrerEtat();
    if (ManuelOuvert()) MontrerMachineManuel();
    if (!DecoupeOuverte()) return;
    m_valeurs = LimiterValeurs(DecoupeCourante, TableINI, static_cast<float>(Parametres.SaigneeMaxiSoft));
    CalculerDecoupe();
}

void frmTessarel2D::MarquerModifie() {
    if (!m_espace.TableauSequences.empty()) m_espace.modifie = true;
    MontrerEtat();
}

void frmTessarel2D::MontrerEtat() {
    const bool nomme = !m_espace.cheminProjet.empty();
    const QString nom = nomme ? QString::fromStdString(NomDuChemin(m_espace.cheminProjet))
                              : TexteAffiche(Texte(TexteProgramme::Fenetre2DTitre));
    setWindowTitle(nom + QStringLiteral("[*]"));
    setWindowModified(m_espace.modifie);
    cmdActualiserSauvegarde->setVisible(nomme);
    // One owner of Ctrl+S at a time: two would silence each other.
    raccourciEnregistrer->setEnabled(!nomme);
    std::size_t points = 0;
    for (const Sequence& sequence : m_espace.TableauSequences) points += sequence.Points.size();
    lblProjet->setText(TexteAffiche(
        TexteRempli(TexteProgramme::Fenetre2DEtatProjet,
                    {std::to_string(m_espace.TableauSequences.size()), std::to_string(points)})));
    lblMachine->setText(TexteAffiche(TexteRempli(TexteProgramme::Fenetre2DEtatMachine, {TableINI.Nom})));
}

void frmTessarel2D::MontrerTout() {
    FermerApercu();
    MontrerBloc();
    m_atelier->Actualiser(); // and so the paths are drawn
    ZoomAutoToutVoir();
    MontrerEtat();
}

void frmTessarel2D::closeEvent(QCloseEvent* evenement) {
    if (ArreterPourFermer()) {
        evenement->ignore();
        return;
    }
    EteindreFilManuel();            // before anything is asked: the question may stand for hours
    m_course.fermerEnsuite = false; // asked again meanwhile: this is it
    if (m_espace.modifie && !m_espace.TableauSequences.empty()) {
        const ReponseBoite reponse = AfficherBoite({TextesMessages(MessagesSauverAvantDeQuitter),
                                                    TitresMessages(MessagesSauverAvantDeQuitter),
                                                    IconeBoite::Question, BoutonsBoite::OuiNonAnnuler});
        const bool reste =
            reponse == ReponseBoite::Annuler || (reponse == ReponseBoite::Oui && !Enregistrer());
        if (reste) {
            evenement->ignore();
            return;
        }
    }
    if (m_course.arretee) AbandonnerDecoupe();
    m_simulation->Arreter();
    Parametres.OngletActif = TS2D;
    EcrireParametre("OngletActif", Parametres);
    MemoriserPlaceFenetre(*this);
    RetenirLargeurs();
    EcrireIni(SectionParametres, "MatiereUtilisee", MatiereCourante.Nom);
    evenement->accept();
}

} // namespace tessarel
