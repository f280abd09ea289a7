// The workshop of the 2D window: what its hand, its tools and its typed numbers change in the rest of it.
#include "app/settings/cles_generales.h"
#include "app/settings/gestion_ini.h"
#include "app/texts/textes_programme.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "work2d/edition.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/bandeau_atelier.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_bibliotheque.h"
#include "work2d/ui/panneau_saisie.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tessarel {

namespace {

constexpr const char* CleLargeurBibliotheque = "LargeurBibliotheque"; // pixels
constexpr const char* CleBibliothequeVisible = "BibliothequeVisible"; // 0 or 1
constexpr double LargeurMini = 120;                                   // pixels, of the library
constexpr double LargeurMaxi = 900;

std::string Mm(double valeur) {
    return FormaterNombre(valeur, "##0.00");
}

} // namespace

// A band over the canvas while a point is being put in: where it would stand.
void frmTessarel2D::DisposerAjoutPoint() {
    pctAjoutPoint = new QFrame;
    pctAjoutPoint->setObjectName(QStringLiteral("pctAjoutPoint"));
    pctAjoutPoint->setFrameShape(QFrame::StyledPanel);
    pctAjoutPoint->setAutoFillBackground(true);
    auto* rangee = new QHBoxLayout(pctAjoutPoint);
    rangee->setContentsMargins(10, 3, 4, 3);
    lblAjoutPoint = new QLabel;
    lblAjoutPoint->setObjectName(QStringLiteral("lblAjoutPoint"));
    lblAjoutPoint->setMinimumWidth(lblAjoutPoint->fontMetrics().horizontalAdvance(
        QStringLiteral("Insertion d'un point en X -0000.00   Y -0000.00 mm")));
    rangee->addWidget(lblAjoutPoint);
    cmdFinirAjout = new QToolButton;
    cmdFinirAjout->setObjectName(QStringLiteral("cmdFinirAjout"));
    cmdFinirAjout->setAutoRaise(true);
    rangee->addWidget(cmdFinirAjout);
    auto* dessus = static_cast<QVBoxLayout*>(pctSequTS2D->layout());
    dessus->insertWidget(0, pctAjoutPoint, 0, Qt::AlignHCenter | Qt::AlignTop);
    pctAjoutPoint->hide();
}

void frmTessarel2D::RelierAtelier() {
    // A tool takes no focus, so a number typed before its click counts now; linked first, it is done first.
    for (auto* outil : m_bandeau->findChildren<QToolButton*>()) {
        connect(outil, &QToolButton::clicked, this, [this] {
            if (auto* champ = qobject_cast<ChampNombre*>(focusWidget())) champ->Valider();
        });
    }
    m_bandeau->Relier(*m_atelier);
    connect(m_atelier, &Atelier2D::ProjetChange, this, &frmTessarel2D::ApresAction);
    // A state given back has its own block.
    connect(m_atelier, &Atelier2D::EtatRendu, this, &frmTessarel2D::MontrerBloc);
    connect(m_atelier, &Atelier2D::SelectionChangee, this, &frmTessarel2D::MontrerSelection);
    connect(m_atelier, &Atelier2D::TailleVivante, m_saisie, &PanneauSaisie::MontrerTaille);
    connect(m_atelier, &Atelier2D::DeplacementVivant, m_saisie, &PanneauSaisie::MontrerDeplacement);
    connect(m_atelier, &Atelier2D::AngleVivant, m_saisie, &PanneauSaisie::MontrerAngle);
    connect(m_saisie, &PanneauSaisie::TransformationSaisie, m_atelier, &Atelier2D::Transformer);
    connect(m_atelier, &Atelier2D::Indication, this, [this](const QString& texte) {
        if (texte.isEmpty()) {
            statusBar()->clearMessage();
        } else if (statusBar()->currentMessage() != texte) {
            statusBar()->showMessage(texte);
        }
    });
    // A cut and a preview are there to be looked at.
    const auto direVue = [this] {
        const QString texte = TexteAffiche(Texte(TexteProgramme::AtelierSurDecoupe));
        if (statusBar()->currentMessage() != texte) statusBar()->showMessage(texte);
    };
    connect(pctDecoupe, &Canevas::PointeurDeplace, this, direVue);
    connect(pctDecoupe, &Canevas::PointeurSorti, statusBar(), &QStatusBar::clearMessage);
    connect(pctSequTS2D, &Canevas::PointeurDeplace, this, [this, direVue] {
        if (m_apercu) direVue();
    });
    connect(m_atelier, &Atelier2D::PointVise, this, &frmTessarel2D::MontrerAjoutPoint);
    connect(m_atelier, &Atelier2D::OutilChoisi, this, [this] {
        pctAjoutPoint->setVisible(m_atelier->Outil() == OutilAtelier::InsererPoint);
        MontrerAjoutPoint(false, 0, 0);
        pctSequTS2D->setFocus();
    });
    connect(cmdFinirAjout, &QToolButton::clicked, this,
            [this] { m_atelier->ChoisirOutil(OutilAtelier::Selection); });
}

void frmTessarel2D::MontrerAjoutPoint(bool vise, double xMm, double yMm) {
    lblAjoutPoint->setText(
        vise ? TexteAffiche(TexteRempli(TexteProgramme::AtelierInsertionIci, {Mm(xMm), Mm(yMm)}))
             : TexteAffiche(Texte(TexteProgramme::AtelierInsertion)));
}

// The selection has another colour, another layer, another box.
void frmTessarel2D::MontrerSelection() {
    m_saisie->Montrer(m_atelier->BoiteSelection(), m_atelier->NombreSelections());
    if (!m_atelier->GesteEnCours()) TraceSequTS2D();
}

void frmTessarel2D::ApresAction() {
    ZoomAutoToutVoir();
    MarquerModifie();
    m_bandeau->MontrerEtat();
}

// The hand works on the project only, while that is what the canvas shows.
void frmTessarel2D::ChangerAcces() {
    const bool projet = !DecoupeOuverte() && !m_apercu;
    m_atelier->Activer(projet);
    m_bandeau->setEnabled(projet);
    m_saisie->setEnabled(projet);
}

// What is looked at can be turned over and reversed before it is taken in.
void frmTessarel2D::RelierSource() {
    const auto relier = [this](QToolButton* bouton, void (*agir)(std::span<Sequence>)) {
        connect(bouton, &QToolButton::clicked, this, [this, agir] {
            if (!m_apercu) return;
            agir(m_apercu->contenu.sequences);
            m_apercu->retouche = true;
            TracerApercu();
        });
    };
    relier(cmdMiroirFichierSource, MiroirFichierSource);
    relier(cmdInverserSensSequ, InverserSensSequences);
    connect(cmdAfficherSensSequ, &QToolButton::toggled, this, [this] {
        if (m_apercu) TracerApercu();
    });
}

// The library is as wide as it was left, or as hidden.
void frmTessarel2D::RendreLargeurs() {
    const double largeur = LireNombreIni(SectionParametres, CleLargeurBibliotheque, "0");
    if (largeur >= LargeurMini && largeur <= LargeurMaxi) {
        const int pixels = static_cast<int>(largeur);
        m_milieu->setSizes({pixels, std::max(width() - pixels, 1)});
    }
    cmdBibliotheque->setChecked(LireNombreIni(SectionParametres, CleBibliothequeVisible, "1") != 0);
}

void frmTessarel2D::RetenirLargeurs() const {
    const int largeur = m_bibliotheque->isVisible() ? m_milieu->sizes().value(0) : 0;
    if (largeur >= LargeurMini) EcrireIni(SectionParametres, CleLargeurBibliotheque, std::to_string(largeur));
    EcrireIni(SectionParametres, CleBibliothequeVisible, cmdBibliotheque->isChecked() ? "1" : "0");
}

} // namespace tessarel
