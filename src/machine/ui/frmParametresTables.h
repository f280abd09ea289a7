// The machine parameter window: the user chooses, creates, edits, saves and deletes machines, sends one to a
// memory of the interface and tries its motors and its wire.
#pragma once

#include "link/machine_trouvee.h"
#include "machine/saisie_machine.h"
#include "machine/ui/champs_parametres.h"

#include <QDialog>
#include <array>
#include <optional>
#include <vector>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabWidget;
class QToolButton;
class QVBoxLayout;

namespace tessarel {

class PanneauEssais;
class VueDessinFixe;

// A thin skin: it collects texts, shows remarks, and calls the engine for everything that is stored or sent.
// TableINI, TableauNomsMachines and the material base must be filled; they follow what is done here.
class frmParametresTables : public QDialog {
    Q_OBJECT
public:
    explicit frmParametresTables(QWidget* parent = nullptr);

    // What the fields hold now, under the name of the current machine.
    [[nodiscard]] SaisieMachine Saisie() const;
    // The output picture as last painted.
    [[nodiscard]] const VueDessinFixe& ImageSorties() const { return *m_imageSorties; }

    void RemplirComboMachines();
    // The memories read anew, when a box is there, and shown.
    void LireEtAfficherNom3TablesZelko();
    // Names of the memories, machine in use, state of the link.
    void ActualiserNomsMemoiresEtAffichageMachineDansFrmParametres();
    void ActiverCadreParametres();
    void DesactiverCadreParametres();
    void ActiverCadreChoixMachine();
    void DesactiverCadreChoixMachine();
    void ActiverCadreMouvements();
    void DesactiverCadreMouvements();

signals:
    // The current machine is another one, or has other values.
    void MachineChangee();

public slots:
    void reject() override;

protected:
    void closeEvent(QCloseEvent* evenement) override;

private:
    // One field of the window: its row of the table and its control.
    struct Champ {
        const ChampFenetre* rangee = nullptr;
        QWidget* controle = nullptr;
        QLabel* remarque = nullptr; // none for the fields per axis, whose line has one
    };

    // Layout (frmParametresTables_disposition.cpp)
    void Disposer();
    QWidget* DisposerEntete();
    QWidget* DisposerReglages();
    QWidget* DisposerMoteurs();
    QWidget* DisposerGroupes(int onglet);
    QGroupBox* DisposerGroupe(const GroupeFenetre& groupe);
    void DisposerRangee(QGridLayout* pose, int rang, const ChampFenetre& champ);
    QWidget* DisposerGrilleAxes();
    QWidget* DisposerMemoires();
    QWidget* DisposerPied();
    QWidget* FaireControle(const ChampFenetre& champ);
    void DecorerGeometrie(QVBoxLayout* pose);

    void Relier();
    void RelierChamp(const Champ& champ);
    [[nodiscard]] static std::string TexteDuChamp(const Champ& champ);
    static void PoserTexteDuChamp(const Champ& champ, const std::string& texte);

    void MontrerMachine();
    void RelireChamps();
    void MontrerRemarques(const std::vector<RemarqueSaisie>& remarques);
    void MontrerCalculs(const SaisieMachine& saisie);
    void MontrerMemoires();
    [[nodiscard]] bool Modifiee() const;
    [[nodiscard]] bool AccepterAbandon();
    [[nodiscard]] std::optional<int> MemoireChoisie() const;

    void ChangerMachine(int rang);
    void DemanderNouvelleTable();
    void DemanderEffacement();
    void Valider(bool versMemoire);
    void Rafraichir(QuestionMachine question);
    void MontrerPage(int page);
    [[nodiscard]] bool PeutFermer();

    std::vector<Champ> m_champs;
    SaisieMachine m_saisieMontree; // as the machine was shown: what the user changes is measured against it
    bool m_montre = false;         // fields are being filled by the window itself

    QComboBox* comboMachines = nullptr;
    QPushButton* cmdNouvelleTable = nullptr;
    QPushButton* cmdEffacerTable = nullptr;
    QToolButton* cmdRafraichirUsb = nullptr;
    QLabel* lblNomReserve = nullptr;
    QLabel* lblEtatInterface = nullptr;
    std::array<QRadioButton*, 2> optReglagesVersManu{};
    QStackedWidget* m_pages = nullptr;
    QTabWidget* ssTabParametres = nullptr;
    std::array<QLabel*, 5> lblPasParMm{};
    std::array<QLabel*, 5> lblRemarqueAxe{};
    QLabel* lblEcartementUtile = nullptr;
    VueDessinFixe* m_imageSorties = nullptr;
    QTabWidget* ssTabZelko = nullptr;
    std::array<QLabel*, 3> lblContenuMemoire{};
    QGroupBox* frameChoixMemoire = nullptr;
    std::array<QRadioButton*, 3> optChoixMemoire{};
    QButtonGroup* m_memoires = nullptr;
    std::array<QPushButton*, 2> cmdValider{};
    QPushButton* cmdQuitter = nullptr;
    QLabel* lblEtat = nullptr;
    PanneauEssais* m_essais = nullptr;
};

} // namespace tessarel
