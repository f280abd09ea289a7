// The wire's heat by hand, as it is shown and asked for.
#include "work2d/ui/panneau_chauffe.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/horloge.h"
#include "ui/boites_qt.h"
#include "ui/icones.h"
#include "ui/nommer.h"
#include "work2d/ui/style_2d.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr int MessagesChauffe = 190; // "Chauffe "
constexpr int BarrePleine = 1000;
constexpr int HauteurOption = 36; // pixels
constexpr int PeriodeTempo = 100; // ms

} // namespace

PanneauChauffe::PanneauChauffe(QWidget* parent) : QGroupBox(parent) {
    setObjectName(QStringLiteral("frameChauffeManuel"));
    auto* pose = new QVBoxLayout(this);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(4);
    auto* exclusives = new QButtonGroup(this);
    constexpr std::array<const char*, 2> noms = {"optChauffe_0", "optChauffe_1"};
    for (std::size_t i = 0; i < noms.size(); ++i) {
        QToolButton* option = optChauffe[i] = Nommer(new QToolButton, noms[i]);
        option->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        option->setIconSize({22, 22});
        option->setCheckable(true);
        option->setMinimumHeight(HauteurOption);
        option->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        option->setStyleSheet(QString::fromLatin1(StyleOptions));
        exclusives->addButton(option, static_cast<int>(i));
        rangee->addWidget(option);
    }
    pose->addLayout(rangee);
    auto* valeur = new QHBoxLayout;
    hscChauffeFilManuel = Nommer(new QScrollBar(Qt::Horizontal), "hscChauffeFilManuel");
    hscChauffeFilManuel->setMinimumHeight(22);
    hscChauffeFilManuel->setPageStep(5);
    hscChauffeFilManuel->setInvertedControls(false); // the right key and the wheel turned up: hotter
    lblValeurChauffeManuel = Nommer(new QLabel, "lblValeurChauffeManuel");
    lblValeurChauffeManuel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblValeurChauffeManuel->setMinimumWidth(
        lblValeurChauffeManuel->fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    valeur->addWidget(hscChauffeFilManuel, 1);
    valeur->addWidget(lblValeurChauffeManuel);
    pose->addLayout(valeur);
    progrbarChauffeManu = Nommer(new QProgressBar, "progrbarChauffeManu");
    progrbarChauffeManu->setRange(0, BarrePleine);
    pose->addWidget(progrbarChauffeManu);
    lblFilChaud = new SigneFil("lblFilChaud", "TimerClignotement");
    pose->addWidget(lblFilChaud);
    // What stands below keeps its place: a hand may be on its way to it.
    for (QWidget* passager :
         {static_cast<QWidget*>(progrbarChauffeManu), static_cast<QWidget*>(lblFilChaud)}) {
        QSizePolicy politique = passager->sizePolicy();
        politique.setRetainSizeWhenHidden(true);
        passager->setSizePolicy(politique);
    }
    TimerTempoChauffeManu.setObjectName(QStringLiteral("TimerTempoChauffeManu"));
    TimerTempoChauffeManu.setInterval(PeriodeTempo);
    connect(&TimerTempoChauffeManu, &QTimer::timeout, this, &PanneauChauffe::MontrerTempo);
    connect(lblFilChaud, &SigneFil::Battement, this, &PanneauChauffe::Battement);
    connect(optChauffe[0], &QToolButton::pressed, this, &PanneauChauffe::CoupureDemandee); // at once
    connect(optChauffe[1], &QToolButton::clicked, this, &PanneauChauffe::AllumageDemande);
    connect(hscChauffeFilManuel, &QScrollBar::valueChanged, this, [this] {
        MontrerPourcent();
        emit ChauffeVoulue(Pourcent());
    });
    MontrerPourcent();
    MontrerFil(Fil::Froid);
}

void PanneauChauffe::MontrerMachine(double chauffe, double chauffeMaxi) {
    hscChauffeFilManuel->setRange(0, static_cast<int>(std::floor(chauffeMaxi)));
    hscChauffeFilManuel->setValue(static_cast<int>(std::lround(chauffe)));
}

double PanneauChauffe::Pourcent() const {
    return hscChauffeFilManuel->value();
}

void PanneauChauffe::MontrerPourcent() {
    lblValeurChauffeManuel->setText(QStringLiteral("%1 %").arg(hscChauffeFilManuel->value()));
}

void PanneauChauffe::PermettreAllumage(bool permis) {
    optChauffe[1]->setEnabled(permis || m_fil == Fil::Chaud);
}

void PanneauChauffe::MontrerFil(Fil fil, int secondes) {
    const bool chaud = fil == Fil::Chaud;
    optChauffe[chaud ? 1 : 0]->setChecked(true);
    if (chaud && m_fil != Fil::Chaud) {
        m_secondes = secondes;
        m_depart = Maintenant();
        TimerTempoChauffeManu.start();
    } else if (!chaud) {
        TimerTempoChauffeManu.stop();
    }
    m_fil = fil;
    progrbarChauffeManu->setVisible(chaud);
    if (chaud) MontrerTempo();
    lblFilChaud->Montrer(fil);
}

void PanneauChauffe::MontrerTempo() {
    const double faites = std::chrono::duration<double>(Maintenant() - m_depart).count();
    const double part = m_secondes > 0 ? std::clamp(faites / m_secondes, 0.0, 1.0) : 1.0;
    progrbarChauffeManu->setValue(static_cast<int>(part * BarrePleine));
    if (part >= 1) {
        TimerTempoChauffeManu.stop();
        progrbarChauffeManu->setFormat(TexteAffiche(Texte(TexteProgramme::ChauffeManuelleAtteinte)));
        return;
    }
    const auto restantes = static_cast<int>(std::ceil(m_secondes - faites));
    progrbarChauffeManu->setFormat(TexteAffiche(TextesMessages(MessagesChauffe) + std::to_string(restantes) +
                                                "/" + std::to_string(m_secondes) + " s"));
}

} // namespace tessarel
