// The library in the 2D window: files looked at before they are opened, and the report of what was opened.
#include "app/settings/parametres.h"
#include "app/texts/textes_programme.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"
#include "work2d/apercu.h"
#include "work2d/rapport_ouverture.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_bibliotheque.h"
#include "work2d/ui/rapport_2d.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace tessarel {

namespace {

constexpr int DureeTypeFichier = 30000; // ms: a report of several lines takes that long to read
constexpr int DureeMessageEtat = 12000; // ms
constexpr int HauteurRegle = 34;        // pixels, what the rulers take of the canvas, with a margin

QToolButton* BoutonBandeau(const char* nom, QHBoxLayout* rangee) {
    auto* bouton = new QToolButton;
    bouton->setObjectName(QString::fromLatin1(nom));
    bouton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bouton->setAutoRaise(true);
    rangee->addWidget(bouton);
    return bouton;
}

} // namespace

// A band over the canvas says that what is seen there is no part of the project.
void frmTessarel2D::DisposerApercu() {
    bandeauApercu = new QFrame;
    bandeauApercu->setObjectName(QStringLiteral("bandeauApercu"));
    bandeauApercu->setFrameShape(QFrame::StyledPanel);
    bandeauApercu->setAutoFillBackground(true);
    auto* rangee = new QHBoxLayout(bandeauApercu);
    rangee->setContentsMargins(10, 3, 4, 3);
    lblApercu = new QLabel;
    lblApercu->setObjectName(QStringLiteral("lblApercu"));
    rangee->addWidget(lblApercu);
    cmdMiroirFichierSource = BoutonBandeau("cmdMiroirFichierSource", rangee);
    cmdInverserSensSequ = BoutonBandeau("cmdInverserSensSequ", rangee);
    cmdAfficherSensSequ = BoutonBandeau("cmdAfficherSensSequ", rangee);
    cmdAfficherSensSequ->setCheckable(true);
    cmdOuvrirApercu = BoutonBandeau("cmdOuvrirApercu", rangee);
    cmdFermerApercu = BoutonBandeau("cmdFermerApercu", rangee);
    auto* dessus = new QVBoxLayout(pctSequTS2D);
    dessus->setSizeConstraint(QLayout::SetNoConstraint);
    dessus->setContentsMargins(HauteurRegle, HauteurRegle, HauteurRegle, 0);
    dessus->addWidget(bandeauApercu, 0, Qt::AlignHCenter | Qt::AlignTop);
    dessus->addStretch(1);
    bandeauApercu->hide();
}

void frmTessarel2D::RelierBibliotheque() {
    raccourciFermerApercu = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    raccourciFermerApercu->setEnabled(false);
    connect(raccourciFermerApercu, &QShortcut::activated, this, &frmTessarel2D::FermerApercu);
    connect(cmdFermerApercu, &QToolButton::clicked, this, &frmTessarel2D::FermerApercu);
    connect(cmdOuvrirApercu, &QToolButton::clicked, this, [this] {
        if (m_apercu) OuvrirFichier(std::string(m_apercu->chemin));
    });
    connect(m_bibliotheque, &PanneauBibliotheque::FichierRegarde, this,
            [this](const QByteArray& chemin) { MontrerApercu(chemin.toStdString()); });
    connect(m_bibliotheque, &PanneauBibliotheque::FichierChoisi, this,
            [this](const QByteArray& chemin) { OuvrirFichier(chemin.toStdString()); });
    connect(m_bibliotheque, &PanneauBibliotheque::FichierJete, this, [this](const QByteArray& octets) {
        const std::string chemin = octets.toStdString();
        if (m_apercu && m_apercu->chemin == chemin) FermerApercu();
        // The work is now nowhere but here.
        if (m_espace.cheminProjet == chemin) MarquerModifie();
    });
    const auto montrer = [this] {
        m_bibliotheque->setVisible(cmdBibliotheque->isChecked() && !DecoupeOuverte());
        cmdBibliotheque->setEnabled(!DecoupeOuverte());
        if (DecoupeOuverte()) FermerApercu();
        ChangerAcces();
    };
    connect(cmdBibliotheque, &QToolButton::toggled, this, montrer);
    connect(m_vues, &QStackedWidget::currentChanged, this, montrer);
    connect(cmdRapportOuverture, &QToolButton::clicked, this,
            [this] { MontrerRapport(*this, RapportOuverture(m_cheminOuvert, m_ouverture)); });
    cmdRapportOuverture->setEnabled(false);
}

// Reads the file for viewing; the project stays as it is.
void frmTessarel2D::MontrerApercu(const std::string& chemin) {
    if (DecoupeOuverte()) return;
    if (m_apercu && ApercuValable(*m_apercu, chemin, Parametres.DistNettoyage)) {
        MontrerResume(chemin, m_apercu->contenu.ouverture);
        return;
    }
    ApercuFichier apercu = PreparerApercu(chemin, Parametres.DistNettoyage);
    try {
        std::optional<ContenuFichier> contenu = LireSansBloquer(chemin, Parametres.DistNettoyage);
        if (!contenu) return;
        apercu.contenu = std::move(*contenu);
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return;
    }
    m_apercu = std::move(apercu);
    lblApercu->setText(TexteAffiche(TexteRempli(TexteProgramme::ApercuDe, {NomDuChemin(chemin)})));
    bandeauApercu->show();
    ChangerAcces();
    raccourciFermerApercu->setEnabled(true);
    MontrerResume(chemin, m_apercu->contenu.ouverture);
    statusBar()->showMessage(TexteAffiche(PhraseOuverture(chemin, m_apercu->contenu.ouverture)),
                             DureeMessageEtat);
    TraceSequTS2D();
    CadrerApercu();
}

void frmTessarel2D::CadrerApercu() {
    const CadreDessin cadre = CadreApercu(m_apercu->contenu.sequences);
    pctSequTS2D->FixerCadreComplet(cadre);
    pctSequTS2D->Cadrer(cadre);
}

void frmTessarel2D::TracerApercu() {
    Dessin traces;
    OptionsDessin options = OptionsAffichage(*pctSequTS2D);
    options.voirSens = cmdAfficherSensSequ->isChecked();
    DessinerSequences(traces, m_apercu->contenu.sequences, options);
    pctSequTS2D->Montrer(Canevas::CoucheFond, {});
    pctSequTS2D->Montrer(Canevas::CoucheSelection, {});
    pctSequTS2D->Montrer(Canevas::CoucheTrace, std::move(traces));
}

// The project is seen again.
void frmTessarel2D::FermerApercu() {
    if (bandeauApercu->isHidden()) return;
    m_apercu.reset();
    bandeauApercu->hide();
    ChangerAcces();
    raccourciFermerApercu->setEnabled(false);
    TraceSequTS2D();
    CalculAffichageInitialTS2D();
    ZoomAutoToutVoir();
}

// What was read for viewing need not be read again to be opened.
std::optional<ContenuFichier> frmTessarel2D::PrendreApercu(const std::string& chemin, float tolerance) {
    if (!m_apercu || !ApercuValable(*m_apercu, chemin, tolerance)) return std::nullopt;
    std::optional<ContenuFichier> contenu = std::move(m_apercu->contenu);
    m_apercu.reset();
    return contenu;
}

// The kind of the file, and what was put right or passed over on its way in.
void frmTessarel2D::MontrerResume(const std::string& chemin, const OuvertureFichier& ouverture) {
    const ResumeFichier resume = ResumerFichier(chemin, ouverture);
    lblTypeFichierTS2D->setText(TexteAffiche(resume.texte));
    lblTypeFichierTS2D->setToolTip(TexteAffiche((resume.titre.empty() ? "" : resume.titre + "\n") + chemin));
    lblCoeffNettoyage->setText(TexteAffiche(resume.nettoyage));
    TimerAffichageTypeFichier.start(DureeTypeFichier);
}

void frmTessarel2D::EffacerResume() {
    lblTypeFichierTS2D->clear();
    lblTypeFichierTS2D->setToolTip({});
    lblCoeffNettoyage->clear();
}

// After an opening: the label, the status line, the report at hand, and the file in the tree.
void frmTessarel2D::MontrerOuverture(const std::string& chemin, OuvertureFichier ouverture) {
    MontrerResume(chemin, ouverture);
    statusBar()->showMessage(TexteAffiche(PhraseOuverture(chemin, ouverture)), DureeMessageEtat);
    m_cheminOuvert = chemin;
    m_ouverture = std::move(ouverture);
    cmdRapportOuverture->setEnabled(true);
    m_bibliotheque->RemplirArbreBibliotheque(chemin);
}

} // namespace tessarel
