// The material window: what its controls do to the base of materials.
#include "machine/ui/frmD4X_matieres.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "link/rafraichir.h"
#include "machine/gestion_matieres.h"
#include "machine/ui/conduite_manuelle.h"
#include "machine/ui/controles_chauffe.h"
#include "machine/ui/explications.h"
#include "machine/ui/frmImporterMatiere.h"
#include "machine/ui/libelles_matieres.h"
#include "machine/ui/vue_dessin.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/icones.h"
#include "ui/theme.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeDefinirMatiere = 95;
constexpr int RangeeAideMatieres = 102;
constexpr int RangeeTensionPermanente = 103;
constexpr int RangeeNomMatiere = 104;

enum Gestion : std::size_t { Nouvelle, Enregistrer, Supprimer, Importer };

constexpr DimensionsTranches DimensionsDeDepart = {200, 20, 60}; // mm: a foam of the width of a hand

void Expliquer(int rangee) {
    AfficherInformation(TextesMessages(rangee), TitresMessages(rangee));
}

QString Affiche(double valeur, const char* masque, const char* unite) {
    return QString::fromStdString(PointVersSeparateur(FormaterNombre(valeur, masque)) + " " + unite);
}

} // namespace

float frmD4X_matieres::Curseur::Valeur() const {
    return EnSimple(barre->value() * unite);
}

frmD4X_matieres::frmD4X_matieres(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmD4X_matieres"));
    setWindowIcon(IconeProgramme());
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_conduite = new ConduiteManuelle(this);
    Disposer();
    AppliquerLibelles(*this, LibellesMatieres(), LangueCourante());
    m_chauffe.barre->setRange(0, static_cast<int>(std::floor(TableINI.ChauffeMaxiSur100 / m_chauffe.unite)));
    m_vitesse.barre->setRange(1, static_cast<int>(Arrondi(TableINI.VmaxAvecAccXY / m_vitesse.unite)));
    for (Curseur* saignee : {&m_saignee, &m_saigneeVsur2})
        saignee->barre->setRange(0, static_cast<int>(Arrondi(Parametres.SaigneeMaxiSoft / saignee->unite)));
    m_controlesChauffe.hscChauffeParam->setRange(0, TableINI.ChauffeMaxiSur100);
    Relier();
    for (std::size_t i = 0; i < txtDimensionsTranches.size(); ++i)
        txtDimensionsTranches[i]->FixerValeur(DimensionsDeDepart[i]);
    RemplirMatieres();
    PrendreMatiere(comboMatieresBDD->currentIndex());
    MontrerMouvementsPossibles();
    MontrerTranches();
    MontrerSaignee();
}

ValeursDecoupe frmD4X_matieres::ValeursMontrees() const {
    return {m_chauffe.Valeur(), m_vitesse.Valeur(), m_saignee.Valeur(), m_saigneeVsur2.Valeur()};
}

void frmD4X_matieres::Relier() {
    connect(comboMatieresBDD, &QComboBox::activated, this, [this](int rang) {
        ChoisirEtRetenirMatiere(MatieresMachine[static_cast<std::size_t>(rang)]);
        PrendreMatiere(rang);
        emit MatieresChangees();
    });
    for (std::size_t i = 0; i < cmdGestionMatiere.size(); ++i)
        connect(cmdGestionMatiere[i], &QPushButton::clicked, this, [this, i] { GererMatiere(i); });
    connect(cmdAideMatieres, &QToolButton::clicked, this, [] { Expliquer(RangeeAideMatieres); });
    connect(findChild<QToolButton*>(QStringLiteral("cmdDefinir")), &QToolButton::clicked, this,
            [] { Expliquer(RangeeDefinirMatiere); });
    connect(findChild<QToolButton*>(QStringLiteral("cmdAideTimeOut")), &QToolButton::clicked, this,
            [] { Expliquer(RangeeTensionPermanente); });
    connect(cmdExplications, &QPushButton::clicked, this,
            [] { OuvrirExplicationsMatiere(LangueCourante()); });
    connect(cmdQuitter, &QPushButton::clicked, this, &QDialog::reject);
    RelierCurseurs();
    RelierTest();
    RelierConduite();
}

void frmD4X_matieres::RelierCurseurs() {
    const auto relier = [this](const Curseur& curseur, const char* masque, const char* unite) {
        const auto montrer = [curseur, masque, unite] {
            curseur.valeur->setText(Affiche(curseur.Valeur(), masque, unite));
        };
        connect(curseur.barre, &QScrollBar::valueChanged, this, montrer);
        montrer();
    };
    relier(m_chauffe, "##0.0", "%");
    relier(m_vitesse, "##0.0#", "mm/s");
    relier(m_saignee, "##0.0#", "mm");
    relier(m_saigneeVsur2, "##0.0#", "mm");
}

void frmD4X_matieres::RelierConduite() {
    RelierChauffe(m_controlesChauffe, *m_conduite, *lblEtatTranches);
    connect(m_conduite, &ConduiteManuelle::ChauffeDemandee, this,
            [this](bool enCours) { cmdStopTranches->setEnabled(enCours || m_conduite->EnMouvement()); });
    connect(m_conduite, &ConduiteManuelle::LiaisonPerdue, this, &frmD4X_matieres::MontrerMouvementsPossibles);
    connect(chkDesactiverTimeOutMoteurs, &QCheckBox::toggled, this, [this](bool permanente) {
        if (m_conduite->TensionPermanente(permanente)) return;
        const QSignalBlocker rienNEstParti(chkDesactiverTimeOutMoteurs);
        chkDesactiverTimeOutMoteurs->setChecked(!permanente);
    });
}

// Base ----------------------------------------------------------------------------------------------

void frmD4X_matieres::RemplirMatieres() {
    comboMatieresBDD->clear();
    int choisie = 0;
    for (const Matiere& matiere : MatieresMachine) {
        if (matiere.Nom == MatiereCourante.Nom) choisie = comboMatieresBDD->count();
        comboMatieresBDD->addItem(QString::fromStdString(NomAfficheMatiere(matiere)));
    }
    comboMatieresBDD->setCurrentIndex(choisie);
    findChild<QLabel*>(QStringLiteral("lblMachineMatieres"))
        ->setText(TexteAffiche(TexteRempli(TexteProgramme::MachineDesMatieres, {TableINI.Nom})));
}

void frmD4X_matieres::PrendreMatiere(int rang) {
    const Matiere& matiere = MatieresMachine[static_cast<std::size_t>(rang)];
    MontrerValeurs(LimiterValeurs(
        {matiere.ChauffeDecoupe, matiere.VitesseDecoupe, matiere.SaigneeVD, matiere.SaigneeVDsur2}, TableINI,
        static_cast<float>(Parametres.SaigneeMaxiSoft)));
    cmdGestionMatiere[Enregistrer]->setEnabled(rang > 0);
}

void frmD4X_matieres::MontrerValeurs(const ValeursDecoupe& valeurs) {
    const auto poser = [](const Curseur& curseur, float valeur) {
        curseur.barre->setValue(static_cast<int>(Arrondi(valeur / curseur.unite)));
    };
    poser(m_chauffe, valeurs.Chauffe);
    poser(m_vitesse, valeurs.Vitesse);
    poser(m_saignee, valeurs.SaigneeVD);
    poser(m_saigneeVsur2, valeurs.SaigneeVDsur2);
    if (!m_conduite->Chaude())
        m_controlesChauffe.hscChauffeParam->setValue(static_cast<int>(Arrondi(valeurs.Chauffe)));
    MontrerChauffe(m_controlesChauffe);
    txtVitesseTranches->setText(QString::fromStdString(PointVersSeparateur(
        FormaterNombre(std::min(valeurs.Vitesse, TableINI.VmaxSansAccXY), "#####0.0##"))));
}

void frmD4X_matieres::GererMatiere(std::size_t indice) {
    const auto rang = static_cast<std::size_t>(comboMatieresBDD->currentIndex());
    bool change = false;
    switch (indice) {
    case Nouvelle:
        change = DemanderNouvelle();
        break;
    case Enregistrer:
        change = SauverMatiere(rang, ValeursMontrees());
        break;
    case Supprimer:
        change = EffacerMatiere(rang);
        break;
    case Importer:
        change = ImportPossible() && frmImporterMatiere(this).exec() == QDialog::Accepted;
        break;
    default:
        break;
    }
    if (!change) return;
    RemplirMatieres();
    PrendreMatiere(comboMatieresBDD->currentIndex());
    emit MatieresChangees();
}

bool frmD4X_matieres::DemanderNouvelle() {
    QInputDialog demande(this);
    demande.setObjectName(QStringLiteral("frmNomMatiere"));
    demande.setWindowTitle(TexteAffiche(TitresMessages(RangeeNomMatiere)));
    demande.setLabelText(TexteAffiche(TextesMessages(RangeeNomMatiere)));
    demande.setOkButtonText(QStringLiteral("OK"));
    demande.setCancelButtonText(TexteAffiche(Texte(TexteProgramme::BoutonAnnuler)));
    if (demande.exec() != QDialog::Accepted) return false;
    return NouvelleMatiere(demande.textValue().toStdString(), ValeursMontrees()).has_value();
}

// End -----------------------------------------------------------------------------------------------

bool frmD4X_matieres::PeutFermer() {
    if (m_conduite->EnMouvement()) {
        m_conduite->DemanderArret();
        return false;
    }
    if (m_conduite->Occupee()) return false;
    m_conduite->CouperSiChaud();
    // The motors go back to what the machine says.
    if (chkDesactiverTimeOutMoteurs->isChecked()) chkDesactiverTimeOutMoteurs->setChecked(false);
    return true;
}

void frmD4X_matieres::reject() {
    if (PeutFermer()) QDialog::reject();
}

void frmD4X_matieres::closeEvent(QCloseEvent* evenement) {
    if (PeutFermer()) {
        QDialog::closeEvent(evenement);
    } else {
        evenement->ignore();
    }
}

} // namespace tessarel
