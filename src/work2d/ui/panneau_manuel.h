// The page of the moves by hand: arrows that move while they are held, their speed, the way back to the rest
// position, the storage position.
#pragma once

#include <QWidget>
#include <array>

class QAbstractButton;
class QLabel;
class QPushButton;
class QScrollBar;
class QToolButton;

namespace tessarel {

// Shows and asks, drives nothing.
class PanneauManuel : public QWidget {
    Q_OBJECT
public:
    explicit PanneauManuel(QWidget* parent = nullptr);

    // Speeds of a machine, mm/s.
    void MontrerMachine(float vitesse, float vitesseMaxi);
    // While something moves only Stop is at hand, and the arrow that is held: it would be let go otherwise.
    void MontrerMouvement(bool enMouvement, const QString& quoi = {});
    [[nodiscard]] float Vitesse() const;
    // The arrow that started the move is still held.
    [[nodiscard]] bool FlecheTenue() const;

signals:
    // An arrow was pressed: -1, 0 or 1 in X and in Y.
    void DeplacementDemande(int x, int y);
    void StopDemande();
    void RetourOrigineDemande();
    void RangementDemande();
    void FermetureDemandee();

private:
    void DisposerFleches();
    void MontrerVitesse();

    std::array<QToolButton*, 8> optGoManuel{};
    QAbstractButton* m_tenue = nullptr;
    QScrollBar* hscVitesseManuel = nullptr;
    QLabel* lblValeurVitesseManuel = nullptr;
    QLabel* lblEtatManuel = nullptr;
    QPushButton* cmdRetourOrigine = nullptr;
    QPushButton* cmdPlierLePortique = nullptr;
    QPushButton* optAnnulerHome = nullptr;
    QPushButton* cmdFermerManuel = nullptr;
};

} // namespace tessarel
