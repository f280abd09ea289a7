// The panel in which the transforms of the selection are typed.
#include "work2d/ui/panneau_saisie.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/nommer.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <cmath>

namespace tessarel {

namespace {

// "Veuillez entrer un nombre décimal positif ou négatif.", "...une dimension est égale à zéro."
constexpr int DoublesNombreSigne = 15;
constexpr int DoublesDimensionNulle = 16;

constexpr double QuartDeTour = 90; // degrees
constexpr int CotePointFixe = 17;  // pixels
// The places of the little square, row by row from the top left; "" is the middle.
constexpr std::array<std::string_view, 9> NomsPoints = {"HG", "HM", "HD", "MG", "", "MD", "BG", "BM", "BD"};
constexpr int PointParDefaut = 6; // bottom left: where the table's origin is

// A grey that is seen on a dark ground as on a light one; dim where a fixed point would count for nothing.
constexpr const char* StylePoints =
    "QToolButton { border: 1px solid #8a93a0; border-radius: 2px; background: palette(base); }"
    "QToolButton:hover, QToolButton:focus { border-color: palette(highlight); }"
    "QToolButton:checked { border-color: palette(highlight); background: palette(highlight); }"
    "QToolButton:disabled { border-color: palette(mid); background: palette(button); }"
    "QToolButton:checked:disabled { border-color: palette(mid); "
    "background: rgba(138, 147, 160, 45%); }";

} // namespace

PanneauSaisie::PanneauSaisie(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("pctBandeauSaisie"));
    Disposer();
    Relier();
    Montrer({}, 0);
}

void PanneauSaisie::Disposer() {
    auto* grille = new QGridLayout(this);
    grille->setVerticalSpacing(4);
    auto* modes = new QHBoxLayout;
    modes->setSpacing(2);
    auto* exclusifs = new QButtonGroup(this);
    for (std::size_t i = 0; i < optSaisie.size(); ++i) {
        optSaisie[i] = Nommer(new QToolButton, "optSaisie", i);
        optSaisie[i]->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        optSaisie[i]->setCheckable(true);
        optSaisie[i]->setAutoRaise(true);
        exclusifs->addButton(optSaisie[i], static_cast<int>(i));
        modes->addWidget(optSaisie[i]);
    }
    optSaisie[Taille]->setChecked(true);
    modes->addStretch(1);
    grille->addLayout(modes, 0, 0, 1, 4);
    for (std::size_t i = 0; i < txtMesures.size(); ++i) {
        const int rang = static_cast<int>(i) + 1;
        lblMesures[i] = Nommer(new QLabel, "lblMesures", i);
        txtMesures[i] = Nommer(new ChampNombre, "txtMesures", i);
        lblMesures[i]->setBuddy(txtMesures[i]);
        grille->addWidget(lblMesures[i], rang, 0);
        grille->addWidget(txtMesures[i], rang, 1);
        grille->addWidget(Nommer(new QLabel, "lblUniteMesures", i), rang, 2);
    }
    auto* carre = new QGridLayout;
    carre->setSpacing(1);
    m_points = new QButtonGroup(this);
    for (std::size_t i = 0; i < optPointFixe.size(); ++i) {
        const int rang = static_cast<int>(i);
        optPointFixe[i] = Nommer(new QToolButton, "optPointFixe", i);
        optPointFixe[i]->setCheckable(true);
        optPointFixe[i]->setFixedSize(CotePointFixe, CotePointFixe);
        optPointFixe[i]->setStyleSheet(QString::fromLatin1(StylePoints));
        m_points->addButton(optPointFixe[i], rang);
        carre->addWidget(optPointFixe[i], rang / 3, rang % 3);
    }
    optPointFixe[PointParDefaut]->setChecked(true);
    grille->addLayout(carre, 1, 3, 2, 1, Qt::AlignRight | Qt::AlignVCenter);
    chkProportions = Nommer(new QCheckBox, "chkProportions");
    grille->addWidget(chkProportions, 3, 0, 1, 4);
    txtAngle = Nommer(new ChampNombre, "txtAngle");
    auto* angle = Nommer(new QLabel, "lblAngle");
    angle->setBuddy(txtAngle);
    cmdQuartDeTour = Nommer(new QToolButton, "cmdQuartDeTour");
    cmdQuartDeTour->setAutoRaise(true);
    cmdQuartDeTour->setIconSize({22, 22});
    grille->addWidget(angle, 4, 0);
    grille->addWidget(txtAngle, 4, 1);
    grille->addWidget(Nommer(new QLabel, "lblUniteAngle"), 4, 2);
    grille->addWidget(cmdQuartDeTour, 4, 3, Qt::AlignRight);
    grille->setColumnStretch(1, 1);
}

void PanneauSaisie::Relier() {
    for (std::size_t i = 0; i < txtMesures.size(); ++i) {
        connect(txtMesures[i], &ChampNombre::ValeurSaisie, this,
                [this, i](double valeur) { Prendre(static_cast<int>(i), valeur); });
    }
    for (QToolButton* mode : optSaisie) {
        connect(mode, &QToolButton::clicked, this, [this] {
            Valider(); // in the mode that it was typed in
            m_mode = optSaisie[Deplacer]->isChecked() ? Deplacer : Taille;
            MontrerMots();
            MontrerValeurs();
        });
    }
    connect(txtAngle, &ChampNombre::ValeurSaisie, this, &PanneauSaisie::Tourner);
    connect(cmdQuartDeTour, &QToolButton::clicked, this, [this] {
        Valider();
        Tourner(QuartDeTour);
    });
}

void PanneauSaisie::Valider() {
    for (ChampNombre* champ : {txtMesures[0], txtMesures[1], txtAngle}) champ->Valider();
}

std::string_view PanneauSaisie::PointFixe() const {
    const int rang = m_points->checkedId();
    return rang < 0 ? std::string_view() : NomsPoints[static_cast<std::size_t>(rang)];
}

void PanneauSaisie::Montrer(const Sequence& BoiteSelection, std::size_t selections) {
    m_boite = BoiteSelection;
    m_selections = selections;
    const bool actif = selections > 0 && m_boite.Selection != 0;
    for (ChampNombre* champ : {txtMesures[0], txtMesures[1], txtAngle}) champ->setEnabled(actif);
    cmdQuartDeTour->setEnabled(actif);
    MontrerMots();
    MontrerValeurs();
}

void PanneauSaisie::MontrerTaille(double largeur, double hauteur) {
    // A size in every mode: its words stand with it until the drag ends.
    if (m_mode != Taille) NommerMesures(true);
    txtMesures[0]->FixerValeur(largeur);
    txtMesures[1]->FixerValeur(hauteur);
}

void PanneauSaisie::MontrerDeplacement(double dx, double dy) {
    if (m_mode != Deplacer) return; // a size that stays what it was
    txtMesures[0]->FixerValeur(dx);
    txtMesures[1]->FixerValeur(dy);
}

void PanneauSaisie::MontrerAngle(double degres) {
    txtAngle->FixerValeur(degres);
}

void PanneauSaisie::MontrerValeurs() {
    const bool taille = m_mode == Taille;
    txtMesures[0]->FixerValeur(taille ? static_cast<double>(m_boite.Largeur) : 0.0);
    txtMesures[1]->FixerValeur(taille ? static_cast<double>(m_boite.Hauteur) : 0.0);
    txtAngle->FixerValeur(0);
    chkProportions->setEnabled(taille);
    for (QToolButton* point : optPointFixe) point->setEnabled(taille);
}

void PanneauSaisie::NommerMesures(bool taille) {
    lblMesures[0]->setText(
        TexteAffiche(Texte(taille ? TexteProgramme::SaisieLargeur : TexteProgramme::SaisieEnX)));
    lblMesures[1]->setText(
        TexteAffiche(Texte(taille ? TexteProgramme::SaisieHauteur : TexteProgramme::SaisieEnY)));
}

void PanneauSaisie::MontrerMots() {
    const bool taille = m_mode == Taille;
    NommerMesures(taille);
    // A move and an angle have a sign, a size hardly ever.
    const std::string& texte = TextesDoubles(DoublesNombreSigne, 1);
    const std::string& titre = TextesDoubles(DoublesNombreSigne, 2);
    for (ChampNombre* champ : txtMesures) champ->FixerRefus(taille ? "" : texte, titre);
    txtAngle->FixerRefus(texte, titre);
}

void PanneauSaisie::Prendre(int cote, double valeur) {
    if (m_mode == Taille) {
        PrendreTaille(cote, valeur);
        return;
    }
    MontrerValeurs(); // a move is done once: the field is empty again
    if (valeur != 0) emit TransformationSaisie(cote == 0 ? Deplacement(valeur, 0) : Deplacement(0, valeur));
}

void PanneauSaisie::PrendreTaille(int cote, double valeur) {
    const auto echelle = EchelleSaisie(m_boite, cote, valeur, PointFixe(), chkProportions->isChecked());
    MontrerValeurs();
    if (!echelle) {
        AfficherExclamation(TextesDoubles(DoublesDimensionNulle, 1), TextesDoubles(DoublesDimensionNulle, 2));
        return;
    }
    emit TransformationSaisie(*echelle);
}

void PanneauSaisie::Tourner(double degres) {
    txtAngle->FixerValeur(0);
    const double reste = std::fmod(degres, 360);
    if (reste != 0) emit TransformationSaisie(Rotation(MilieuBoite(m_boite), reste));
}

} // namespace tessarel
