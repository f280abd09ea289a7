// The wire's heat on the page of the moves by hand: on and off, how much, the time it takes, and a sign that
// blinks for as long as the wire may be hot.
#pragma once

#include "work2d/ui/signe_fil.h"

#include <QGroupBox>
#include <QTimer>
#include <array>
#include <chrono>

class QLabel;
class QProgressBar;
class QScrollBar;
class QToolButton;

namespace tessarel {

// Shows and asks, drives nothing.
class PanneauChauffe : public QGroupBox {
    Q_OBJECT
public:
    explicit PanneauChauffe(QWidget* parent = nullptr);

    using Fil = EtatFil;

    // Percent: at the start, and at most.
    void MontrerMachine(double chauffe, double chauffeMaxi);
    // A wire that becomes hot needs `secondes` to be at temperature: they are counted from now on.
    void MontrerFil(Fil fil, int secondes = 0);
    [[nodiscard]] Fil FilMontre() const { return m_fil; }
    [[nodiscard]] double Pourcent() const;
    // Whether the wire may be lit; it can be put out at any time.
    void PermettreAllumage(bool permis);

signals:
    void AllumageDemande();
    void CoupureDemandee();
    void ChauffeVoulue(double pourcent);
    // With each turn of the sign: whoever lit the wire looks after it.
    void Battement();

private:
    void MontrerPourcent();
    void MontrerTempo();

    Fil m_fil = Fil::Froid;
    int m_secondes = 0;
    std::chrono::nanoseconds m_depart{0}; // of the countdown, on the program's clock
    QTimer TimerTempoChauffeManu{this};
    std::array<QToolButton*, 2> optChauffe{};
    QScrollBar* hscChauffeFilManuel = nullptr;
    QLabel* lblValeurChauffeManuel = nullptr;
    QProgressBar* progrbarChauffeManu = nullptr;
    SigneFil* lblFilChaud = nullptr;
};

} // namespace tessarel
