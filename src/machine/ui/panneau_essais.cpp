// The test moves: layout and commands.
#include "machine/ui/panneau_essais.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "machine/table_machine.h"
#include "machine/tranches.h"
#include "machine/ui/conduite_manuelle.h"
#include "machine/ui/controles_chauffe.h"
#include "machine/ui/pose.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <functional>
#include <limits>
#include <optional>

namespace tessarel {

namespace {

constexpr int HauteurBouton = 36; // pixels
constexpr const char* MasqueMm = "#####0.0##";

QPushButton* FaireBoutonHaut(const char* nom) {
    QPushButton* bouton = FaireBouton(nom);
    bouton->setMinimumHeight(HauteurBouton);
    return bouton;
}

// Four fields, one per axis, each behind its caption.
void FaireChamps(QGridLayout* pose, const char* nom, std::array<ChampNombre*, 4>& champs) {
    for (std::size_t i = 0; i < champs.size(); ++i) {
        auto* etiquette =
            Nommer(new QLabel, qPrintable(QStringLiteral("lbl") + QString::fromLatin1(nom + 3)), i);
        champs[i] = Nommer(new ChampNombre, nom, i);
        champs[i]->FixerMasque(MasqueMm);
        champs[i]->setMaximumWidth(120);
        etiquette->setBuddy(champs[i]);
        pose->addWidget(etiquette, static_cast<int>(i), 0);
        pose->addWidget(champs[i], static_cast<int>(i), 1);
    }
}

} // namespace

PanneauEssais::PanneauEssais(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frameMouvements"));
    m_conduite = new ConduiteManuelle(this);
    auto* pose = new QGridLayout(this);
    pose->addWidget(DisposerIncrements(), 0, 0);
    pose->addWidget(DisposerValeurs(), 0, 1);
    auto* droite = new QVBoxLayout;
    droite->addWidget(DisposerVitesse());
    droite->addWidget(DisposerChauffe());
    droite->addWidget(DisposerMoteurs());
    pose->addLayout(droite, 0, 2);
    lblEtatMouvement = Nommer(new QLabel, "lblEtatMouvement");
    pose->addWidget(lblEtatMouvement, 1, 0, 1, 3);
    pose->setRowStretch(2, 1);
    for (int colonne = 0; colonne < 3; ++colonne) pose->setColumnStretch(colonne, 1);
    Relier();
    m_conduite->PermettreToujours({cmdStopIncrements, cmdStopValeurs, cmdMoteursOff, m_chauffe.options[0],
                                   m_chauffe.options[1], m_chauffe.hscChauffeParam});
    MontrerEtatMouvement(false);
}

QGroupBox* PanneauEssais::DisposerIncrements() {
    auto* cadre = Nommer(new QGroupBox, "frameIncrements");
    auto* pose = new QGridLayout(cadre);
    FaireChamps(pose, "txtIncrements", txtIncrements);
    auto* unites = new QHBoxLayout;
    FaireOptions(cadre, unites, "optMMPas", optMMPas);
    unites->addStretch(1);
    pose->addLayout(unites, 4, 0, 1, 3);
    cmdGoIncrements = FaireBoutonHaut("cmdGoIncrements");
    cmdStopIncrements = FaireBoutonHaut("cmdStopIncrements");
    pose->addWidget(cmdGoIncrements, 6, 0, 1, 2);
    pose->addWidget(cmdStopIncrements, 6, 2);
    pose->setRowStretch(5, 1);
    return cadre;
}

QGroupBox* PanneauEssais::DisposerValeurs() {
    auto* cadre = Nommer(new QGroupBox, "frameValeurs");
    auto* pose = new QGridLayout(cadre);
    FaireChamps(pose, "txtValeurs", txtValeurs);
    for (std::size_t i = 0; i < lblPosition.size(); ++i) {
        lblPosition[i] = Nommer(new QLabel, "lblPosition", i);
        lblPosition[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        pose->addWidget(lblPosition[i], static_cast<int>(i), 2);
    }
    auto* unites = new QHBoxLayout;
    FaireOptions(cadre, unites, "optMmPasValeurs", optMmPasValeurs);
    unites->addStretch(1);
    pose->addLayout(unites, 4, 0, 1, 2);
    cmdRemiseAZero = FaireBouton("cmdRemiseAZero");
    pose->addWidget(cmdRemiseAZero, 4, 2);
    chkMvtValeurs1egal2 = Nommer(new QCheckBox, "chkMvtValeurs1egal2");
    pose->addWidget(chkMvtValeurs1egal2, 5, 0, 1, 3);
    cmdGoValeurs = FaireBoutonHaut("cmdGoValeurs");
    cmdStopValeurs = FaireBoutonHaut("cmdStopValeurs");
    pose->addWidget(cmdGoValeurs, 7, 0, 1, 2);
    pose->addWidget(cmdStopValeurs, 7, 2);
    pose->setRowStretch(6, 1);
    return cadre;
}

QGroupBox* PanneauEssais::DisposerVitesse() {
    auto* cadre = Nommer(new QGroupBox, "frameVitesseEssai");
    auto* pose = new QVBoxLayout(cadre);
    auto* options = new QHBoxLayout;
    FaireOptions(cadre, options, "optVitesseRelManu", optVitesseRelManu);
    pose->addLayout(options);
    auto* rangee = new QHBoxLayout;
    txtVitesseChoisieParam = Nommer(new QLineEdit, "txtVitesseChoisieParam");
    txtVitesseChoisieParam->setAlignment(Qt::AlignRight);
    txtVitesseChoisieParam->setMaximumWidth(120);
    rangee->addWidget(txtVitesseChoisieParam);
    rangee->addWidget(Nommer(new QLabel, "lblUniteVitesseEssai"));
    rangee->addStretch(1);
    pose->addLayout(rangee);
    return cadre;
}

QGroupBox* PanneauEssais::DisposerChauffe() {
    auto* cadre = Nommer(new QGroupBox, "frameChauffeEssai");
    auto* pose = new QVBoxLayout(cadre);
    pose->addLayout(FaireControlesChauffe(cadre, "optChauffeParam", m_chauffe));
    return cadre;
}

QGroupBox* PanneauEssais::DisposerMoteurs() {
    auto* cadre = Nommer(new QGroupBox, "frameMoteursEssai");
    auto* pose = new QVBoxLayout(cadre);
    cmdMoteursOff = FaireBoutonHaut("cmdMoteursOff");
    pose->addWidget(cmdMoteursOff);
    return cadre;
}

void PanneauEssais::Relier() {
    connect(cmdGoIncrements, &QPushButton::clicked, this, &PanneauEssais::GoIncrements);
    connect(cmdGoValeurs, &QPushButton::clicked, this, &PanneauEssais::GoValeurs);
    for (QPushButton* arret : {cmdStopIncrements, cmdStopValeurs})
        connect(arret, &QPushButton::pressed, this, &PanneauEssais::DemanderArret);
    connect(cmdMoteursOff, &QPushButton::pressed, m_conduite, &ConduiteManuelle::CouperLesMoteurs);
    connect(cmdRemiseAZero, &QPushButton::clicked, this, [this] {
        m_position = {};
        MontrerPositions();
    });
    for (QRadioButton* unite : optMmPasValeurs)
        connect(unite, &QRadioButton::toggled, this, &PanneauEssais::MontrerPositions);
    connect(chkMvtValeurs1egal2, &QCheckBox::toggled, this, &PanneauEssais::CopierChariot1);
    for (const std::size_t i : {AxeX1, AxeY1})
        connect(txtValeurs[i], &ChampNombre::ValeurSaisie, this, &PanneauEssais::CopierChariot1);
    connect(optVitesseRelManu[0], &QRadioButton::toggled, txtVitesseChoisieParam, &QWidget::setEnabled);
    connect(m_conduite, &ConduiteManuelle::DebutMouvement, this, [this] { MontrerEtatMouvement(true); });
    connect(m_conduite, &ConduiteManuelle::FinMouvement, this, [this] { MontrerEtatMouvement(false); });
    connect(m_conduite, &ConduiteManuelle::Avance, this, [this](double part) {
        lblEtatMouvement->setText(
            TexteAffiche(TexteRempli(TexteProgramme::EssaiEnCours, {FormaterNombre(100 * part, "##0")})));
    });
    RelierChauffe(m_chauffe, *m_conduite, *lblEtatMouvement);
    connect(m_conduite, &ConduiteManuelle::ChauffeDemandee, this, [this](bool enCours) {
        for (QPushButton* arret : {cmdStopIncrements, cmdStopValeurs})
            arret->setEnabled(enCours || m_conduite->EnMouvement());
    });
    connect(m_conduite, &ConduiteManuelle::LiaisonPerdue, this, &PanneauEssais::LiaisonPerdue);
}

void PanneauEssais::MontrerMachine() {
    const QSignalBlocker rienNePart(
        m_chauffe.hscChauffeParam); // what a machine proposes is no heat that was asked for
    m_chauffe.hscChauffeParam->setRange(0, TableINI.ChauffeMaxiSur100);
    m_chauffe.hscChauffeParam->setValue(TableINI.ChauffeParDefaut);
    MontrerChauffe(m_chauffe);
    if (txtVitesseChoisieParam->text().isEmpty())
        txtVitesseChoisieParam->setText(QString::fromStdString(
            PointVersSeparateur(FormaterNombre(TableINI.VitesseDecoupeParDefaut, MasqueMm))));
    MontrerPositions();
}

bool PanneauEssais::MouvementEnCours() const {
    return m_conduite->EnMouvement() || m_conduite->Occupee();
}

bool PanneauEssais::FilChaud() const {
    return m_conduite->Chaude();
}

void PanneauEssais::DemanderArret() {
    m_conduite->DemanderArret();
}

bool PanneauEssais::CouperAvantDePartir() {
    if (MouvementEnCours()) return false;
    m_conduite->CouperSiChaud();
    return true;
}

void PanneauEssais::CopierChariot1() {
    const bool copie = chkMvtValeurs1egal2->isChecked();
    for (const std::size_t i : {AxeX2, AxeY2}) {
        txtValeurs[i]->setEnabled(!copie);
        if (copie) txtValeurs[i]->FixerValeur(txtValeurs[i - AxeX2]->Valeur());
    }
}

void PanneauEssais::MontrerPositions() {
    const bool enPas = optMmPasValeurs[1]->isChecked();
    for (std::size_t axe = AxeX1; axe <= AxeY2; ++axe) {
        const auto pas = static_cast<double>(m_position[axe]);
        const double parTour = TableINI.PasParTour[axe];
        const double mm = parTour == 0 ? 0 : pas * TableINI.MmParTour[axe] / parTour;
        const std::string texte =
            enPas ? FormaterNombre(pas, "#####0") : FormaterNombre(mm, MasqueMm) + " mm";
        lblPosition[axe]->setText(QString::fromStdString(PointVersSeparateur(texte)));
    }
}

void PanneauEssais::MontrerEtatMouvement(bool enMouvement) {
    for (QPushButton* depart : {cmdGoIncrements, cmdGoValeurs, cmdRemiseAZero})
        depart->setEnabled(!enMouvement);
    for (QPushButton* arret : {cmdStopIncrements, cmdStopValeurs}) arret->setEnabled(enMouvement);
    for (QWidget* saisie : findChildren<QWidget*>()) {
        const bool texte = qobject_cast<QLineEdit*>(saisie) != nullptr;
        const bool option = qobject_cast<QRadioButton*>(saisie) != nullptr &&
                            std::ranges::find(m_chauffe.options, saisie) == m_chauffe.options.end();
        if (texte || option) saisie->setEnabled(!enMouvement);
    }
    chkMvtValeurs1egal2->setEnabled(!enMouvement);
    if (!enMouvement) {
        CopierChariot1();
        txtVitesseChoisieParam->setEnabled(optVitesseRelManu[0]->isChecked());
    }
    emit EnMouvement(enMouvement);
}

// Moves ---------------------------------------------------------------------------------------------

namespace {

// "La distance du mouvement demandé est incorrecte", of TextesMessages.
constexpr int RangeeDistance = 97;

// The steps of a move; nothing, after a box, where they do not fit 32 bits.
std::optional<std::array<std::int32_t, 4>>
DistanceCorrecte(const std::function<std::array<std::int32_t, 4>()>& calculer) {
    try {
        return calculer();
    } catch (const FauteDepassement&) {
        AfficherExclamation(TextesMessages(RangeeDistance), TitresMessages(RangeeDistance));
        return std::nullopt;
    }
}

// Steps of four numbers in mm or in steps; FauteDepassement when one does not fit 32 bits.
std::array<std::int32_t, 4> EnPas(const std::array<double, 4>& valeurs, bool dejaEnPas) {
    if (!dejaEnPas)
        return PasDuDeplacement({valeurs[AxeX1], valeurs[AxeY1]}, {valeurs[AxeX2], valeurs[AxeY2]}, TableINI);
    std::array<std::int32_t, 4> pas = {};
    for (std::size_t i = 0; i < pas.size(); ++i) pas[i] = ArrondiLong(valeurs[i]);
    return pas;
}

bool LireChamps(const std::array<ChampNombre*, 4>& champs, std::array<double, 4>& valeurs) {
    for (std::size_t i = 0; i < champs.size(); ++i) {
        if (!champs[i]->Valider()) return false;
        valeurs[i] = champs[i]->Valeur();
    }
    return true;
}

} // namespace

void PanneauEssais::GoIncrements() {
    std::array<double, 4> valeurs = {};
    if (!LireChamps(txtIncrements, valeurs)) return;
    if (const auto pas = DistanceCorrecte([&] { return EnPas(valeurs, optMMPas[1]->isChecked()); }))
        Partir(*pas);
}

void PanneauEssais::GoValeurs() {
    std::array<double, 4> valeurs = {};
    if (!LireChamps(txtValeurs, valeurs)) return;
    CopierChariot1();
    if (chkMvtValeurs1egal2->isChecked()) {
        valeurs[AxeX2] = valeurs[AxeX1];
        valeurs[AxeY2] = valeurs[AxeY1];
    }
    const auto reste = DistanceCorrecte([&] {
        Pas pas = EnPas(valeurs, optMmPasValeurs[1]->isChecked());
        for (std::size_t i = 0; i < pas.size(); ++i)
            pas[i] = ArrondiLong(static_cast<double>(pas[i] - m_position[i]));
        return pas;
    });
    if (reste) Partir(*reste);
}

void PanneauEssais::Partir(const Pas& pas) {
    float vitesse =
        optVitesseRelManu[1]->isChecked() ? TableINI.VitesseDecoupeParDefaut : TableINI.VitesseRapide;
    // What is no number is refused as a speed out of range is.
    if (optVitesseRelManu[0]->isChecked())
        vitesse = EnSimple(LireDecimal(txtVitesseChoisieParam->text().toStdString())
                               .value_or(std::numeric_limits<double>::quiet_NaN()));
    const std::optional<VitessesSalve> vitesses = VitessesManuelles(vitesse, TableINI);
    if (!vitesses) return;
    const ConduiteManuelle::Resultat resultat = m_conduite->Mouvoir(pas, *vitesses);
    for (std::size_t i = 0; i < pas.size(); ++i) m_position[i] += resultat.Faits[i];
    MontrerPositions();
    lblEtatMouvement->setText(TexteAffiche(Texte(MotDeFin(resultat.Fin, resultat.Cause))));
}

} // namespace tessarel
