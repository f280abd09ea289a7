// The test moves of the parameter window: by increments, to values, with their speed, the heat of the wire
// and the motors.
#pragma once

#include "machine/ui/controles_chauffe.h"

#include <QWidget>
#include <array>
#include <cstdint>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tessarel {

class ChampNombre;
class ConduiteManuelle;

class PanneauEssais : public QWidget {
    Q_OBJECT
public:
    explicit PanneauEssais(QWidget* parent = nullptr);

    // Limits and first values from the current machine.
    void MontrerMachine();
    [[nodiscard]] bool MouvementEnCours() const;
    [[nodiscard]] bool FilChaud() const;
    void DemanderArret();
    // Before the panel is left: nothing moves, and the wire is cold, or the user was told loudly that it may
    // not be. False when it must stay.
    bool CouperAvantDePartir();

signals:
    void EnMouvement(bool enMouvement);
    // The box is gone, and the wire is cold.
    void LiaisonPerdue();

private:
    using Pas = std::array<std::int32_t, 4>;
    QGroupBox* DisposerIncrements();
    QGroupBox* DisposerValeurs();
    QGroupBox* DisposerVitesse();
    QGroupBox* DisposerChauffe();
    QGroupBox* DisposerMoteurs();
    void Relier();

    void GoIncrements();
    void GoValeurs();
    void Partir(const Pas& pas);
    void MontrerPositions();
    void MontrerEtatMouvement(bool enMouvement);
    void CopierChariot1();

    ConduiteManuelle* m_conduite = nullptr;
    std::array<std::int64_t, 4> m_position = {}; // steps from the zero

    std::array<ChampNombre*, 4> txtIncrements{};
    std::array<QRadioButton*, 2> optMMPas{};
    QPushButton* cmdGoIncrements = nullptr;
    QPushButton* cmdStopIncrements = nullptr;
    std::array<ChampNombre*, 4> txtValeurs{};
    std::array<QLabel*, 4> lblPosition{};
    std::array<QRadioButton*, 2> optMmPasValeurs{};
    QCheckBox* chkMvtValeurs1egal2 = nullptr;
    QPushButton* cmdGoValeurs = nullptr;
    QPushButton* cmdStopValeurs = nullptr;
    QPushButton* cmdRemiseAZero = nullptr;
    std::array<QRadioButton*, 3> optVitesseRelManu{};
    QLineEdit* txtVitesseChoisieParam = nullptr;
    ControlesChauffe m_chauffe;
    QPushButton* cmdMoteursOff = nullptr;
    QLabel* lblEtatMouvement = nullptr;
};

} // namespace tessarel
