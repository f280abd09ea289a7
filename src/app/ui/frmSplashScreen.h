// The window that the program starts in: which machine is current, whether an interface was found, which
// memories it holds, whether motion is allowed, and the way into the modes.
#pragma once

#include "app/demarrage/demarrage.h"
#include "app/texts/textes.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QToolButton;

namespace tessarel {

class Enseigne;
class GrandBouton;

// The ways on from the splash, in the order of cmdContinuer.
enum class ModeChoisi { Mode2D = 0, Mode4Axes = 1 };

class frmSplashScreen : public QWidget {
    Q_OBJECT
public:
    explicit frmSplashScreen(QWidget* parent = nullptr);

    // Writes the words of a language. What the start-up found was told in the language of that moment and
    // stays.
    void ChargerLibelles(Langue langue);
    // Shows what the start-up found, and gives the focus to the button of the mode last used.
    void Montrer(const EtatDemarrage& etat);
    // Adds the travel of the current machine, mm.
    void MontrerCourses(int courseX, int courseY);
    // Opens the way into the 4-axis modes; it is closed at first.
    void PermettreMode4Axes();
    // Offers the download page: a newer version was found.
    void ProposerMiseAJour();

signals:
    void Continuer(tessarel::ModeChoisi mode);
    // The user leaves the program from here.
    void Annuler();

protected:
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;

private:
    QWidget* FaireEnseigne();
    QWidget* FaireInterface();
    QWidget* FaireMachine();
    QLayout* FaireContinuer();
    QLayout* FairePied();
    QToolButton* FaireBoutonPied(const char* nom);
    void Relier();

    void Peindre();
    void MontrerInterface();
    void MontrerMemoires();
    void MontrerMachine();
    void OuvrirSite(const QString& adresse);
    void MettreAJour();

    EtatDemarrage m_etat;
    int m_courseX = 0;
    int m_courseY = 0;
    Langue m_langue = Langue::Francais;

    QLabel* m_lblTitre = nullptr;
    QLabel* m_lblSousTitre = nullptr;
    QLabel* m_lblVersion = nullptr;
    QGroupBox* m_frameInterface = nullptr;
    QLabel* m_pcbInterfaceDetectee = nullptr;
    QLabel* m_lblDetectionInterface = nullptr;
    QLabel* m_lblNomMachinesMemoire = nullptr;
    std::array<QCheckBox*, 3> m_chkMemoiresZelko = {};
    std::array<QLabel*, 3> m_lblMarqueMemoire = {};
    QLabel* m_lblPasDeCorrespondance = nullptr;
    QGroupBox* m_frameMachine = nullptr;
    QLabel* m_pcbDerniereMachine = nullptr;
    QLabel* m_lblDerniereMachine = nullptr;
    QCheckBox* m_chkDerniereMachine = nullptr;
    QLabel* m_lblCourses = nullptr;
    std::array<GrandBouton*, 2> m_cmdContinuer = {};
    QToolButton* m_cmdWhatsUp = nullptr;
    QToolButton* m_cmdLancerOrvane = nullptr;
    QToolButton* m_cmdMiseAJour = nullptr;
    QToolButton* m_cmdAnnuler = nullptr;
};

} // namespace tessarel
