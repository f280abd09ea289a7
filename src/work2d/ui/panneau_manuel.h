// The page of the moves by hand: arrows that move while they are held, their speed, the wire's heat, the
// origin of one axis, the way back to the rest position, the storage position.
#pragma once

#include <QWidget>
#include <array>

class QAbstractButton;
class QLabel;
class QLayout;
class QPushButton;
class QScrollBar;
class QToolButton;

namespace tessarel {

class PanneauChauffe;

// Shows and asks, drives nothing.
class PanneauManuel : public QWidget {
    Q_OBJECT
public:
    explicit PanneauManuel(QWidget* parent = nullptr);

    // Speeds of a machine, mm/s.
    void MontrerMachine(float vitesse, float vitesseMaxi);
    [[nodiscard]] PanneauChauffe& Chauffe() const { return *m_chauffe; }
    // While something moves only Stop is at hand, and the arrow that is held: it would be let go otherwise.
    void MontrerMouvement(bool enMouvement, const QString& quoi = {});
    // Stop also puts the wire out: it is at hand while the wire may be hot, and while its heat is asked for.
    void MontrerStop(bool chauffeDemandee = false);
    void MontrerEtat(const QString& quoi);
    [[nodiscard]] float Vitesse() const;
    // The arrow that started the move is still held.
    [[nodiscard]] bool FlecheTenue() const;

signals:
    // An arrow was pressed: -1, 0 or 1 in X and in Y.
    void DeplacementDemande(int x, int y);
    void FlecheLachee();
    void StopDemande();
    void OrigineXDemandee();
    void OrigineYDemandee();
    void RetourOrigineDemande();
    void RangementDemande();
    void FermetureDemandee();

private:
    QWidget* DisposerFleches();
    QLayout* DisposerProcedures();
    void DisposerStop();
    void Relier();
    void MontrerVitesse();

    std::array<QToolButton*, 8> optGoManuel{};
    QAbstractButton* m_tenue = nullptr;
    QScrollBar* hscVitesseManuel = nullptr;
    QLabel* lblValeurVitesseManuel = nullptr;
    QLabel* lblEtatManuel = nullptr;
    PanneauChauffe* m_chauffe = nullptr;
    QPushButton* optHomeX = nullptr;
    QPushButton* optHomeY = nullptr;
    QPushButton* cmdRetourOrigine = nullptr;
    QPushButton* cmdPlierLePortique = nullptr;
    QPushButton* optAnnulerHome = nullptr;
    QPushButton* cmdFermerManuel = nullptr;
    bool m_enMouvement = false;
};

} // namespace tessarel
