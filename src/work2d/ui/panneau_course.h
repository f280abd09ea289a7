// The page of a cut that runs on the machine: what it does now, its heat, Stop, and what may follow a stop.
#pragma once

#include "work2d/decoupe_interface.h"

#include <QWidget>
#include <array>

class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QVBoxLayout;

namespace tessarel {

class PlaceLibelle;
class SigneFil;

// Shows and asks, drives nothing: its signals come while the loop of the run lets events go, so whoever hears
// them sets flags, but for those of the stop panel, which come when the run has ended.
class PanneauCourse : public QWidget {
    Q_OBJECT
public:
    explicit PanneauCourse(QWidget* parent = nullptr);

    // Heat in percent: at the start, and at most.
    struct Depart {
        GenreDecoupe genre = GenreDecoupe::Decoupe;
        double chauffe = 0;
        double chauffeMaxi = 0;
        std::string resume;
    };
    void Commencer(const Depart& depart);
    void MontrerResume(const std::string& resume);
    void MontrerPhase(PhaseDecoupe phase);
    void MontrerAvancee(const AvanceeDecoupe& avancee);
    // The wire stands for good, and a box is about to tell why: nothing is left to stop or to change.
    void MontrerImmobile();
    // The run of `genre` stands in frame `numero`: the operator decides. None of its buttons gets the
    // keyboard: the key that pressed Stop must not start anything.
    struct Arret {
        GenreDecoupe genre = GenreDecoupe::Decoupe;
        std::int32_t numero = 0;
        bool chauffeCoupee = false; // confirmed
        std::string resume;         // of what was stopped
    };
    void MontrerArret(const Arret& arret);
    // At a stop.
    void MontrerChauffeCoupee(bool coupee);
    // What was begun after a stop has not moved: the page shows that stop again.
    void RevenirALArret(const Arret& arret);
    // Nothing runs, nothing waits.
    void Finir();

signals:
    void StopDemande();
    void ChauffeVoulue(double pourcent);
    void RepriseDemandee();
    void RetourDemande(tessarel::TrajetRetour trajet);
    void AbandonDemande();

private:
    QGroupBox* DisposerEtat();
    QGroupBox* DisposerChauffe();
    QGroupBox* DisposerReprise();
    void MontrerChauffe(double pourcent);
    void DemanderChauffe();
    void PermettreStop(bool permis);

    GenreDecoupe m_genre = GenreDecoupe::Decoupe;
    bool m_chauffeChangee = false;           // since the slider was taken hold of
    bool m_avancait = false;                 // the run before this one showed how far it was
    PlaceLibelle* m_avertissement = nullptr; // around the label of what the run does
    QLabel* lblAvertissementDecoupe = nullptr;
    QProgressBar* progrbarChauffe = nullptr;
    QProgressBar* progrbarDecoupe = nullptr;
    QLabel* lblResumeCourse = nullptr;
    QGroupBox* optChauffePendantDecoupe = nullptr;
    QScrollBar* hscChauffePendantDecoupe = nullptr;
    QLabel* lblChauffePendantDecoupe = nullptr;
    QPushButton* cmdSTOP = nullptr;
    QPushButton* cmdStopRetourApresReprise = nullptr;
    QGroupBox* pctRepriseDecoupe = nullptr;
    QLabel* lblNumSegmentStop = nullptr;
    QLabel* lblChauffeArret = nullptr; // one of these two stands there
    SigneFil* lblFilArret = nullptr;
    QPushButton* cmdRepriseDecoupe = nullptr;
    std::array<QRadioButton*, 2> optTrajetRetour{};
    QPushButton* cmdLancerRetourApresStop = nullptr;
    QPushButton* cmdAnnulerReprise = nullptr;
};

} // namespace tessarel
