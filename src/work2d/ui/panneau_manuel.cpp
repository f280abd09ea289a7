// The page of the moves by hand.
#include "work2d/ui/panneau_manuel.h"

#include "platform/nombres.h"
#include "ui/nommer.h"
#include "work2d/ui/panneau_chauffe.h"
#include "work2d/ui/style_2d.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr double PasParMm = 10; // the slider counts tenths of mm/s
constexpr int HauteurBouton = 40;
constexpr int CoteFleche = 56;

struct Direction {
    int x;
    int y;
    char16_t signe;
};
// From the top left, row by row, as they stand on the page.
constexpr std::array<Direction, 8> DIRECTIONS = {{{-1, 1, u'↖'},
                                                  {0, 1, u'↑'},
                                                  {1, 1, u'↗'},
                                                  {-1, 0, u'←'},
                                                  {1, 0, u'→'},
                                                  {-1, -1, u'↙'},
                                                  {0, -1, u'↓'},
                                                  {1, -1, u'↘'}}};

QPushButton* Bouton(const char* nom) {
    auto* bouton = Nommer(new QPushButton, nom);
    bouton->setMinimumHeight(HauteurBouton);
    bouton->setIconSize({20, 20});
    return bouton;
}

} // namespace

PanneauManuel::PanneauManuel(QWidget* parent) : QWidget(parent) {
    auto* page = new QVBoxLayout(this);
    page->setSpacing(8);
    page->addWidget(DisposerFleches());
    m_chauffe = new PanneauChauffe;
    page->addWidget(m_chauffe);
    page->addLayout(DisposerProcedures());
    lblEtatManuel = Nommer(new QLabel, "lblEtatManuel");
    lblEtatManuel->setWordWrap(true);
    page->addWidget(lblEtatManuel);
    page->addStretch(1);
    cmdFermerManuel = Bouton("cmdFermerManuel");
    page->addWidget(cmdFermerManuel);
    DisposerStop();
    page->addWidget(optAnnulerHome);
    Relier();
    MontrerMouvement(false);
}

QWidget* PanneauManuel::DisposerFleches() {
    auto* fleches = Nommer(new QGroupBox, "frameFleches");
    auto* pose = new QVBoxLayout(fleches);
    auto* grille = new QGridLayout;
    pose->addLayout(grille);
    grille->setSpacing(6);
    for (std::size_t i = 0; i < optGoManuel.size(); ++i) {
        const Direction& d = DIRECTIONS[i];
        auto* fleche = optGoManuel[i] = new QToolButton;
        fleche->setObjectName(QStringLiteral("optGoManuel_%1").arg(i));
        fleche->setFixedSize(CoteFleche, CoteFleche);
        QFont police = fleche->font();
        police.setPointSizeF(police.pointSizeF() * 1.8);
        fleche->setFont(police);
        fleche->setText(QString(QChar(d.signe)));
        grille->addWidget(fleche, 1 - d.y, 1 + d.x);
        connect(fleche, &QToolButton::pressed, this, [this, fleche, d] {
            m_tenue = fleche;
            emit DeplacementDemande(d.x, d.y);
            m_tenue = nullptr;
        });
        connect(fleche, &QToolButton::released, this, &PanneauManuel::FlecheLachee);
    }
    auto* vitesse = new QHBoxLayout;
    vitesse->addWidget(Nommer(new QLabel, "lblVitesseManuel"));
    hscVitesseManuel = Nommer(new QScrollBar(Qt::Horizontal), "hscVitesseManuel");
    hscVitesseManuel->setMinimumHeight(22);
    hscVitesseManuel->setInvertedControls(false); // the right key and the wheel turned up: faster
    lblValeurVitesseManuel = Nommer(new QLabel, "lblValeurVitesseManuel");
    lblValeurVitesseManuel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblValeurVitesseManuel->setMinimumWidth(
        lblValeurVitesseManuel->fontMetrics().horizontalAdvance(QStringLiteral("000.0 mm/s")));
    vitesse->addWidget(hscVitesseManuel, 1);
    vitesse->addWidget(lblValeurVitesseManuel);
    pose->addLayout(vitesse);
    return fleches;
}

QLayout* PanneauManuel::DisposerProcedures() {
    auto* pose = new QVBoxLayout;
    auto* axes = new QHBoxLayout;
    optHomeX = Bouton("optHomeX");
    optHomeY = Bouton("optHomeY");
    axes->addWidget(optHomeX);
    axes->addWidget(optHomeY);
    pose->addLayout(axes);
    cmdRetourOrigine = Bouton("cmdRetourOrigine");
    cmdPlierLePortique = Bouton("cmdPlierLePortique");
    pose->addWidget(cmdRetourOrigine);
    pose->addWidget(cmdPlierLePortique);
    return pose;
}

void PanneauManuel::DisposerStop() {
    optAnnulerHome = Bouton("optAnnulerHome");
    optAnnulerHome->setMinimumHeight(HauteurStop);
    QFont gras = optAnnulerHome->font();
    gras.setBold(true);
    optAnnulerHome->setFont(gras);
    optAnnulerHome->setStyleSheet(QString::fromLatin1(StyleStop));
}

void PanneauManuel::Relier() {
    connect(hscVitesseManuel, &QScrollBar::valueChanged, this, &PanneauManuel::MontrerVitesse);
    connect(optHomeX, &QPushButton::clicked, this, &PanneauManuel::OrigineXDemandee);
    connect(optHomeY, &QPushButton::clicked, this, &PanneauManuel::OrigineYDemandee);
    connect(cmdRetourOrigine, &QPushButton::clicked, this, &PanneauManuel::RetourOrigineDemande);
    connect(cmdPlierLePortique, &QPushButton::clicked, this, &PanneauManuel::RangementDemande);
    // On the way down: nobody waits for a finger to come up, nor for the keys to show the button sunk.
    connect(optAnnulerHome, &QPushButton::pressed, this, &PanneauManuel::StopDemande);
    connect(cmdFermerManuel, &QPushButton::clicked, this, &PanneauManuel::FermetureDemandee);
}

void PanneauManuel::MontrerMachine(float vitesse, float vitesseMaxi) {
    hscVitesseManuel->setRange(1, std::max(1, static_cast<int>(std::floor(vitesseMaxi * PasParMm))));
    hscVitesseManuel->setValue(static_cast<int>(std::lround(vitesse * PasParMm)));
    MontrerVitesse();
}

void PanneauManuel::MontrerVitesse() {
    lblValeurVitesseManuel->setText(QString::fromStdString(
        PointVersSeparateur(FormaterNombre(hscVitesseManuel->value() / PasParMm, "##0.0")) + " mm/s"));
}

float PanneauManuel::Vitesse() const {
    return static_cast<float>(hscVitesseManuel->value() / PasParMm);
}

bool PanneauManuel::FlecheTenue() const {
    return m_tenue != nullptr && m_tenue->isDown() && isActiveWindow();
}

void PanneauManuel::MontrerMouvement(bool enMouvement, const QString& quoi) {
    m_enMouvement = enMouvement;
    for (QToolButton* fleche : optGoManuel) fleche->setEnabled(!enMouvement || fleche == m_tenue);
    for (QWidget* commande :
         {static_cast<QWidget*>(hscVitesseManuel), static_cast<QWidget*>(optHomeX),
          static_cast<QWidget*>(optHomeY), static_cast<QWidget*>(cmdRetourOrigine),
          static_cast<QWidget*>(cmdPlierLePortique), static_cast<QWidget*>(cmdFermerManuel)})
        commande->setEnabled(!enMouvement);
    m_chauffe->PermettreAllumage(!enMouvement);
    MontrerStop();
    lblEtatManuel->setText(quoi);
}

void PanneauManuel::MontrerStop(bool chauffeDemandee) {
    optAnnulerHome->setEnabled(m_enMouvement || chauffeDemandee ||
                               m_chauffe->FilMontre() != PanneauChauffe::Fil::Froid);
}

void PanneauManuel::MontrerEtat(const QString& quoi) {
    lblEtatManuel->setText(quoi);
}

} // namespace tessarel
