// The window of the virtual box: the machine at work, the front of the box, faults, the log.
#pragma once

#include "link/simulateur/poste_virtuel.h"
#include "link/simulateur/vues_machine.h"

#include <QElapsedTimer>
#include <QWidget>

#include <array>
#include <deque>

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QSlider;
class QSocketNotifier;
class QTimer;
class QToolButton;
class QVBoxLayout;

namespace tessarel {
class Canevas;
class ChampNombre;
} // namespace tessarel

namespace tessarel::simulateur {

// Serves the box while it lives: exchanges as they come, pictures thirty times a second.
class frmSimulateur : public QWidget {
    Q_OBJECT
public:
    explicit frmSimulateur(PosteVirtuel& poste, QWidget* parent = nullptr);
    ~frmSimulateur() override;

    // One turn of what the timer does, for tests.
    void Tourner();
    void FixerBloc(const BlocMousse& bloc);
    // A line in the log.
    void Avertir(const std::string& texte);
    [[nodiscard]] const BlocMousse& Bloc() const { return m_scene.bloc; }

private:
    static constexpr std::size_t ChampsBloc = 6;

    void Disposer();
    QWidget* DisposerMachine();
    QWidget* DisposerVues();
    QWidget* DisposerReglages();
    QWidget* DisposerJournal();
    void DisposerPannes(QVBoxLayout* page);
    void Brancher();
    void BrancherFacade();

    void ServirEchanges();
    void NoterJournal(const NoteJournal& note);
    void MontrerJournal();
    void MontrerEtat();
    void MontrerVues(bool tout);
    void RefaireScene();
    void LireBloc();
    void EcrireCommutateurs();
    void ProvoquerPanne();

    PosteVirtuel& m_poste;
    SceneMachine m_scene;
    EtatBoite m_montre; // last state shown
    bool m_dejaMontre = false;
    std::size_t m_coinsTraces = 0;   // corners of the path in the picture
    QElapsedTimer m_depuisTrace;     // since that picture was made
    std::size_t m_tours = 0;         // since the views were painted
    qint64 m_reposTrace = 0;         // ns until it may be made anew
    std::size_t m_premierCoin = 0;   // corners before it belong to another block
    std::deque<NoteJournal> m_notes; // not yet shown
    std::uint64_t m_notesPassees = 0;

    Canevas* pctCote = nullptr;
    Canevas* pctFace = nullptr;
    Canevas* pctDessus = nullptr;
    QLabel* lblEtatBoite = nullptr;
    QLabel* lblTable = nullptr;
    QLabel* lblClient = nullptr;
    QLabel* lblSalve = nullptr;
    QLabel* lblOrigine = nullptr;
    QLabel* lblFinCourse = nullptr;
    QLabel* lblTemps = nullptr;
    QLabel* lblPannes = nullptr;
    QLabel* lblMoteurs = nullptr;
    std::array<QLabel*, NombreAxes> lblPosition = {};
    QPushButton* cmdStopMachine = nullptr;
    QPushButton* cmdPoserOrigine = nullptr;
    QPushButton* cmdEffacerTrace = nullptr;
    QPushButton* cmdProgrammer = nullptr;
    QPushButton* cmdOublier = nullptr;
    QToolButton* cmdEffacerJournal = nullptr;
    QCheckBox* chkBranchee = nullptr;
    QCheckBox* chkTension = nullptr;
    QCheckBox* chkOrigine = nullptr;
    QCheckBox* chkFinCourse = nullptr;
    QCheckBox* chkEchanges = nullptr;
    QComboBox* combManu = nullptr;
    QComboBox* combMarche = nullptr;
    QComboBox* combFacteur = nullptr;
    QComboBox* combPanne = nullptr;
    QComboBox* combQuand = nullptr;
    QSlider* hscBouton = nullptr;
    QProgressBar* progrChauffe = nullptr;
    QProgressBar* progrTemperature = nullptr;
    QProgressBar* progrFile = nullptr;
    QProgressBar* progrSalve = nullptr;
    std::array<ChampNombre*, ChampsBloc> txtBloc = {};
    ChampNombre* txtQuand = nullptr;
    QPlainTextEdit* txtJournal = nullptr;
    QSocketNotifier* m_notifieur = nullptr;
    QTimer* m_minuterie = nullptr;
};

} // namespace tessarel::simulateur
