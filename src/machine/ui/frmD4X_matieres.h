// The material window: the base of materials of the current machine, and the slice test that measures a kerf.
#pragma once

#include "machine/matieres.h"
#include "machine/tranches.h"
#include "machine/ui/controles_chauffe.h"

#include <QDialog>
#include <QTimer>
#include <array>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QToolButton;
class QVBoxLayout;

namespace tessarel {

class ChampNombre;
class ConduiteManuelle;
class VueDessinFixe;

// A thin skin over the material base and the slice test. TableINI, the base and MatiereCourante must be
// filled; they follow what is done here.
class frmD4X_matieres : public QDialog {
    Q_OBJECT
public:
    explicit frmD4X_matieres(QWidget* parent = nullptr);

    // The values in the controls, as a new or a saved material takes them.
    [[nodiscard]] ValeursDecoupe ValeursMontrees() const;
    [[nodiscard]] const VueDessinFixe& ImageTranches() const { return *m_imageTranches; }

signals:
    // Another material is current, or the base has changed.
    void MatieresChangees();

public slots:
    void reject() override;

protected:
    void closeEvent(QCloseEvent* evenement) override;

private:
    // A value of a material: a scroll bar in tenths or hundredths, and what it says.
    struct Curseur {
        QScrollBar* barre = nullptr;
        QLabel* valeur = nullptr;
        double unite = 1; // value of one step of the bar
        [[nodiscard]] float Valeur() const;
    };

    // Layout (frmD4X_matieres_disposition.cpp)
    void Disposer();
    QWidget* DisposerBase();
    QGroupBox* DisposerListe();
    QGroupBox* DisposerValeurs();
    Curseur FaireCurseur(QGroupBox* cadre, int rang, const char* nom, double unite);
    QWidget* DisposerTest();
    QWidget* DisposerParametresTest();
    QWidget* DisposerMouvements();
    QGroupBox* DisposerChauffe();
    QGroupBox* DisposerMesure();
    void Relier();
    void RelierCurseurs();
    void RelierTest();
    void RelierConduite();

    // Base
    void RemplirMatieres();
    void PrendreMatiere(int rang);
    void MontrerValeurs(const ValeursDecoupe& valeurs);
    void GererMatiere(std::size_t indice);
    [[nodiscard]] bool DemanderNouvelle();

    // Slice test (frmD4X_matieres_tranches.cpp)
    [[nodiscard]] DimensionsTranches Dimensions() const;
    [[nodiscard]] VitesseTranche VitesseChoisie() const;
    void Mouvoir(std::size_t mouvement);
    void MontrerTranches();
    void MontrerMouvementsPossibles();
    void AnimerTranches(bool lancer);
    void PasAnimation();
    void MontrerSaignee();
    void EnvoyerSaignee();
    [[nodiscard]] bool PeutFermer();

    ConduiteManuelle* m_conduite = nullptr;
    std::vector<std::size_t> m_faits; // moves made since the picture was wiped
    double m_fraction = 1;
    std::size_t m_animation = 0; // steps of the animation shown so far
    QTimer TimerAnimation{this};

    QComboBox* comboMatieresBDD = nullptr;
    std::array<QPushButton*, 4> cmdGestionMatiere{};
    Curseur m_chauffe;
    Curseur m_vitesse;
    Curseur m_saignee;
    Curseur m_saigneeVsur2;
    QToolButton* cmdAideMatieres = nullptr;
    QPushButton* cmdExplications = nullptr;

    VueDessinFixe* m_imageTranches = nullptr;
    QToolButton* cmdAnimer = nullptr;
    QToolButton* cmdEffacerImage = nullptr;
    QLineEdit* txtVitesseTranches = nullptr;
    std::array<ChampNombre*, 3> txtDimensionsTranches{};
    std::array<QRadioButton*, 3> optVitesseManuMatieres{};
    std::array<QPushButton*, 6> cmdMvtTranches{};
    QPushButton* cmdStopTranches = nullptr;
    QLabel* lblEtatTranches = nullptr;
    ControlesChauffe m_controlesChauffe;
    QCheckBox* chkDesactiverTimeOutMoteurs = nullptr;
    ChampNombre* txtEpaisseurObtenue = nullptr;
    QLabel* lblSaignee = nullptr;
    QPushButton* cmdEnvoyerSaignee = nullptr;
    QPushButton* cmdQuitter = nullptr;
};

} // namespace tessarel
