// The film of a cut under its canvas.
#include "work2d/ui/panneau_simulation.h"

#include "platform/horloge.h"
#include "ui/canevas.h"
#include "ui/icones.h"
#include "work2d/dessin_outils.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <chrono>

namespace tessarel {

namespace {

constexpr int PeriodeFilm = 30; // ms between two pictures
// What the speeds of the list are multiplied by; the list stands in the captions in the same order.
constexpr std::array<double, 7> Facteurs = {0.5, 1, 2, 5, 10, 50, 200};
constexpr int FacteurParDefaut = 4;
// A tick that came late, while a box was open say, counts for no more than this.
constexpr double RetardMaxi = 0.25; // s
constexpr int PointsParPage = 100;

double Horloge() {
    return std::chrono::duration<double>(Maintenant()).count();
}

} // namespace

PanneauSimulation::PanneauSimulation(Canevas& canevas, QWidget* parent) : QFrame(parent), m_canevas(canevas) {
    setObjectName(QStringLiteral("frameSimulation"));
    TimerFilm.setObjectName(QStringLiteral("TimerFilm"));
    TimerFilm.setInterval(PeriodeFilm);
    TimerFilm.setTimerType(Qt::PreciseTimer);
    Disposer();
    connect(&TimerFilm, &QTimer::timeout, this, &PanneauSimulation::Avancer);
    connect(cmdSimulation, &QToolButton::clicked, this, &PanneauSimulation::LancerOuSuspendre);
    connect(cmdArretSimulation, &QToolButton::clicked, this, &PanneauSimulation::Arreter);
    connect(hscSimulation, &QScrollBar::valueChanged, this, &PanneauSimulation::AllerAuPoint);
    Arreter();
}

void PanneauSimulation::Disposer() {
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(8, 4, 8, 4);
    rangee->setSpacing(6);
    const auto bouton = [&](const char* nom) {
        auto* b = new QToolButton;
        b->setObjectName(QString::fromLatin1(nom));
        b->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        b->setIconSize({22, 22});
        rangee->addWidget(b);
        return b;
    };
    cmdSimulation = bouton("cmdSimulation");
    cmdArretSimulation = bouton("cmdArretSimulation");
    cmdArretSimulation->setToolButtonStyle(Qt::ToolButtonIconOnly);
    hscSimulation = new QScrollBar(Qt::Horizontal);
    hscSimulation->setObjectName(QStringLiteral("hscSimulation"));
    hscSimulation->setPageStep(PointsParPage);
    hscSimulation->setMinimumHeight(18);
    rangee->addWidget(hscSimulation, 1);
    lblTempsSimulation = new QLabel;
    lblTempsSimulation->setObjectName(QStringLiteral("lblTempsSimulation"));
    lblTempsSimulation->setAlignment(Qt::AlignCenter);
    lblTempsSimulation->setMinimumWidth(
        lblTempsSimulation->fontMetrics().horizontalAdvance(QStringLiteral("00:00:00 / 00:00:00")));
    rangee->addWidget(lblTempsSimulation);
    comboVitesseSimulation = new QComboBox;
    comboVitesseSimulation->setObjectName(QStringLiteral("comboVitesseSimulation"));
    // Its entries come with the captions.
    for (std::size_t i = 0; i < Facteurs.size(); ++i) comboVitesseSimulation->addItem(QStringLiteral("-"));
    comboVitesseSimulation->setCurrentIndex(FacteurParDefaut);
    rangee->addWidget(comboVitesseSimulation);
}

double PanneauSimulation::Facteur() const {
    const auto rang = static_cast<std::size_t>(std::max(comboVitesseSimulation->currentIndex(), 0));
    return Facteurs[std::min(rang, Facteurs.size() - 1)];
}

void PanneauSimulation::Charger(const Sequence* SequenceDecoupe) {
    Arreter();
    m_decoupe = SequenceDecoupe;
    const bool quelqueChose = m_decoupe != nullptr && m_decoupe->Points.size() > 1;
    cmdSimulation->setEnabled(quelqueChose);
    comboVitesseSimulation->setEnabled(quelqueChose);
}

void PanneauSimulation::Arreter() {
    TimerFilm.stop();
    m_film = {};
    m_place = {};
    {
        const QSignalBlocker muet(hscSimulation);
        hscSimulation->setRange(1, 1);
    }
    hscSimulation->setEnabled(false);
    cmdArretSimulation->setEnabled(false);
    lblTempsSimulation->clear();
    m_canevas.Montrer(Canevas::CoucheOutil, {});
    MontrerBouton();
}

void PanneauSimulation::LancerOuSuspendre() {
    if (EnMarche()) {
        TimerFilm.stop();
        MontrerBouton();
        return;
    }
    if (!FilmPret()) {
        if (m_decoupe == nullptr || m_decoupe->Points.size() < 2) return;
        m_film = PreparerFilm(*m_decoupe);
        const QSignalBlocker muet(hscSimulation);
        hscSimulation->setRange(1, static_cast<int>(m_film.instants.size())); // what is shown counts from 1
        hscSimulation->setEnabled(true);
        cmdArretSimulation->setEnabled(true);
        m_place = PlaceAuPoint(m_film, 0);
    } else if (m_place.instant >= DureeFilm(m_film)) {
        m_place = PlaceAuPoint(m_film, 0); // once more from the start
    }
    m_dernierInstant = Horloge();
    TimerFilm.start();
    MontrerPlace();
    MontrerBouton();
}

void PanneauSimulation::Avancer() {
    const double instant = Horloge();
    const double ecoule = std::clamp(instant - m_dernierInstant, 0.0, RetardMaxi);
    m_dernierInstant = instant;
    m_place = PlaceAInstant(m_film, m_place.instant + ecoule * Facteur());
    if (m_place.instant >= DureeFilm(m_film)) {
        TimerFilm.stop();
        MontrerBouton();
    }
    MontrerPlace();
}

void PanneauSimulation::AllerAuPoint(int valeur) {
    if (!FilmPret()) return;
    m_place = PlaceAuPoint(m_film, static_cast<std::size_t>(std::max(valeur, 1)) - 1);
    MontrerPlace();
}

void PanneauSimulation::MontrerPlace() {
    {
        const QSignalBlocker muet(hscSimulation);
        hscSimulation->setValue(static_cast<int>(m_place.point) + 1);
    }
    lblTempsSimulation->setText(
        QString::fromStdString(TexteInstant(m_place.instant) + " / " + TexteInstant(DureeFilm(m_film))));
    Dessin film;
    DessinerFilm(film, m_film, m_place);
    m_canevas.Montrer(Canevas::CoucheOutil, std::move(film));
}

void PanneauSimulation::MontrerBouton() {
    cmdSimulation->setIcon(Icone(EnMarche() ? QStringLiteral("pause") : QStringLiteral("simulation")));
}

} // namespace tessarel
