// The slice test of the material window: its moves, its picture, and what the measurement gives.
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "machine/dessin_tranches.h"
#include "machine/ui/conduite_manuelle.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/vue_dessin.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <limits>

namespace tessarel {

namespace {

// Row of TextesMessages: its title says that moves are disabled.
constexpr int RangeePasDInterface = 247;
constexpr int PeriodeAnimation = 40; // ms
constexpr double PartParPeriode = 0.05;

} // namespace

void frmD4X_matieres::RelierTest() {
    for (std::size_t i = 0; i < cmdMvtTranches.size(); ++i)
        connect(cmdMvtTranches[i], &QPushButton::clicked, this, [this, i] { Mouvoir(i); });
    m_conduite->PermettreToujours({cmdStopTranches, m_controlesChauffe.options[0],
                                   m_controlesChauffe.options[1], m_controlesChauffe.hscChauffeParam});
    connect(cmdStopTranches, &QPushButton::pressed, m_conduite, &ConduiteManuelle::DemanderArret);
    connect(m_conduite, &ConduiteManuelle::DebutMouvement, this,
            &frmD4X_matieres::MontrerMouvementsPossibles);
    connect(m_conduite, &ConduiteManuelle::FinMouvement, this, &frmD4X_matieres::MontrerMouvementsPossibles);
    connect(m_conduite, &ConduiteManuelle::Avance, this, [this](double part) {
        m_fraction = part;
        lblEtatTranches->setText(
            TexteAffiche(TexteRempli(TexteProgramme::EssaiEnCours, {FormaterNombre(100 * part, "##0")})));
        MontrerTranches();
    });
    for (ChampNombre* dimension : txtDimensionsTranches) {
        connect(dimension, &ChampNombre::ValeurSaisie, this, [this] {
            MontrerTranches();
            MontrerSaignee();
        });
    }
    connect(txtEpaisseurObtenue, &ChampNombre::ValeurSaisie, this, &frmD4X_matieres::MontrerSaignee);
    for (QRadioButton* vitesse : optVitesseManuMatieres)
        connect(vitesse, &QRadioButton::toggled, this, &frmD4X_matieres::MontrerSaignee);
    connect(cmdEnvoyerSaignee, &QPushButton::clicked, this, &frmD4X_matieres::EnvoyerSaignee);
    connect(cmdAnimer, &QToolButton::toggled, this, &frmD4X_matieres::AnimerTranches);
    connect(cmdEffacerImage, &QToolButton::clicked, this, [this] {
        m_faits.clear();
        MontrerTranches();
    });
    connect(m_imageTranches, &VueDessinFixe::FondChange, this, &frmD4X_matieres::MontrerTranches);
    TimerAnimation.setObjectName(QStringLiteral("TimerAnimation"));
    TimerAnimation.setInterval(PeriodeAnimation);
    connect(&TimerAnimation, &QTimer::timeout, this, &frmD4X_matieres::PasAnimation);
}

DimensionsTranches frmD4X_matieres::Dimensions() const {
    DimensionsTranches dimensions = {};
    for (std::size_t i = 0; i < dimensions.size(); ++i) dimensions[i] = txtDimensionsTranches[i]->Valeur();
    return dimensions;
}

VitesseTranche frmD4X_matieres::VitesseChoisie() const {
    if (optVitesseManuMatieres[1]->isChecked()) return VitesseTranche::VSur2;
    return optVitesseManuMatieres[2]->isChecked() ? VitesseTranche::Rapide : VitesseTranche::V;
}

void frmD4X_matieres::Mouvoir(std::size_t mouvement) {
    for (ChampNombre* dimension : txtDimensionsTranches)
        if (!dimension->Valider()) return;
    // What is no number is refused as a speed out of range is.
    const float v = EnSimple(LireDecimal(txtVitesseTranches->text().toStdString())
                                 .value_or(std::numeric_limits<double>::quiet_NaN()));
    if (!AccepterTranche(mouvement, Dimensions(), v, TableINI)) return;
    const DeplacementFil d = DeplacementTranche(mouvement, Dimensions());
    const float vitesse = VitesseDuMouvement(VitesseChoisie(), v, TableINI);
    const float extremes = std::min(vitesse, TableINI.VmaxSansAccXY);
    cmdAnimer->setChecked(false);
    m_faits.push_back(mouvement);
    m_fraction = 0;
    const ConduiteManuelle::Resultat resultat =
        m_conduite->Mouvoir(PasDuDeplacement(d, d, TableINI), {extremes, vitesse, extremes});
    if (resultat.Cause == CauseFin::FinDeListe) {
        m_fraction = 1;
    } else if (resultat.Faits == PasAxes{}) {
        m_faits.pop_back(); // the wire has not moved
        m_fraction = 1;
    }
    lblEtatTranches->setText(TexteAffiche(Texte(MotDeFin(resultat.Fin, resultat.Cause))));
    MontrerTranches();
}

void frmD4X_matieres::MontrerMouvementsPossibles() {
    const bool enMouvement = m_conduite->EnMouvement();
    for (QPushButton* bouton : cmdMvtTranches) bouton->setEnabled(MouvementsActifs && !enMouvement);
    cmdStopTranches->setEnabled(enMouvement);
    findChild<QGroupBox*>(QStringLiteral("frameChauffeMatieres"))->setEnabled(MouvementsActifs);
    chkDesactiverTimeOutMoteurs->setEnabled(!enMouvement);
    for (const char* cadre : {"frameBase", "frameValeurs", "frameVitesseMouvement", "frameMesure"})
        findChild<QGroupBox*>(QString::fromLatin1(cadre))->setEnabled(!enMouvement);
    for (QWidget* commande : {static_cast<QWidget*>(txtVitesseTranches), static_cast<QWidget*>(cmdAnimer),
                              static_cast<QWidget*>(cmdEffacerImage), static_cast<QWidget*>(cmdExplications)})
        commande->setEnabled(!enMouvement);
    for (QWidget* dimension : txtDimensionsTranches) dimension->setEnabled(!enMouvement);
    if (!MouvementsActifs) lblEtatTranches->setText(TexteAffiche(TitresMessages(RangeePasDInterface)));
}

// While nothing was cut yet, the picture shows how the whole test goes.
void frmD4X_matieres::MontrerTranches() {
    VueTranches vue;
    vue.Dimensions = Dimensions();
    vue.Sombre = m_imageTranches->FondSombre();
    const std::span<const std::size_t> ordre = OrdreDesTranches();
    if (cmdAnimer->isChecked()) {
        vue.Mouvements.assign(ordre.begin(), ordre.begin() + static_cast<std::ptrdiff_t>(m_animation) + 1);
        vue.Fraction = m_fraction;
    } else if (m_faits.empty()) {
        vue.Mouvements.assign(ordre.begin(), ordre.end() - 1);
    } else {
        vue.Mouvements = m_faits;
        vue.Fraction = m_fraction;
    }
    m_imageTranches->Montrer(DessinerTranches(vue));
}

void frmD4X_matieres::AnimerTranches(bool lancer) {
    m_animation = 0;
    m_fraction = lancer ? 0 : 1;
    if (lancer) {
        TimerAnimation.start();
    } else {
        TimerAnimation.stop();
    }
    MontrerTranches();
}

void frmD4X_matieres::PasAnimation() {
    m_fraction += PartParPeriode;
    if (m_fraction >= 1) {
        if (m_animation + 1 == OrdreDesTranches().size()) {
            cmdAnimer->setChecked(false);
            return;
        }
        ++m_animation;
        m_fraction = 0;
    }
    MontrerTranches();
}

void frmD4X_matieres::MontrerSaignee() {
    // Nothing was measured yet, or at rapid speed, where a kerf means nothing.
    const bool mesuree = txtEpaisseurObtenue->Valeur() > 0;
    const double saignee = SaigneeMesuree(Dimensions()[1], txtEpaisseurObtenue->Valeur());
    lblSaignee->setText(mesuree ? QString::fromStdString(TexteSaignee(saignee)) : QStringLiteral(" "));
    cmdEnvoyerSaignee->setEnabled(mesuree && VitesseChoisie() != VitesseTranche::Rapide);
}

void frmD4X_matieres::EnvoyerSaignee() {
    if (!txtEpaisseurObtenue->Valider() || !txtDimensionsTranches[1]->Valider()) return;
    const double saignee = SaigneeMesuree(Dimensions()[1], txtEpaisseurObtenue->Valeur());
    const Curseur& curseur = VitesseChoisie() == VitesseTranche::V ? m_saignee : m_saigneeVsur2;
    const double position = Arrondi(saignee / curseur.unite);
    if (position < curseur.barre->minimum() || position > curseur.barre->maximum()) {
        AfficherExclamation(Texte(TexteProgramme::SaigneeHorsCurseur),
                            Texte(TexteProgramme::TitreOperationImpossible));
        return;
    }
    curseur.barre->setValue(static_cast<int>(position));
}

} // namespace tessarel
