// The top-level window of 2D work: table, block and paths on a canvas, files on the left, values on the
// right, and the cut tab.
#pragma once

#include "link/chauffe_manuelle.h"
#include "link/machine_trouvee.h"
#include "machine/matieres.h"
#include "work2d/apercu.h"
#include "work2d/decoupe2d.h"
#include "work2d/decoupe_interface.h"
#include "work2d/dessin_table.h"
#include "work2d/espace2d.h"
#include "work2d/mouvements_2d.h"
#include "work2d/ui/panneau_course.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QMenu;
class QMessageBox;
class QPushButton;
class QShortcut;
class QSplitter;
class QStackedWidget;
class QToolButton;
class QVBoxLayout;

namespace tessarel {

class Atelier2D;
class BandeauAtelier;
class Canevas;
class ChampNombre;
class GardeEntrees;
class PanneauBibliotheque;
class PanneauManuel;
class PanneauSaisie;
class PanneauSimulation;
class TraceCourse;

// A cut on the machine, from its start until the window is idle again.
struct CourseMachine {
    bool enCours = false;       // its loop runs
    bool arretee = false;       // the wire stands on its way, the operator decides
    bool fermerEnsuite = false; // the window was closed meanwhile
    GenreDecoupe genre = GenreDecoupe::Decoupe;
    float chauffe = 0;      // percent of this cut, as the slider left it: its rest heats alike
    std::int32_t salve = 0; // last frame that it was seen in; 1 is the pause
    DemandesMarche demandes;
    Decoupe2D decoupe;        // its SequenceDecoupe is what is left of the way
    DecoupePreparee preparee; // empty again when the window is idle
    ResultatDecoupe arret;    // of the stop that waits
};

// A thin skin over Espace2D: it reads controls, calls the engine on TableINI, the current material and the
// general parameters, and shows the result. The start-up must have filled those.
class frmTessarel2D : public QMainWindow {
    Q_OBJECT
public:
    explicit frmTessarel2D(QWidget* parent = nullptr);
    ~frmTessarel2D() override;

    // The project under work, as the commands left it.
    [[nodiscard]] const Espace2D& Espace() const { return m_espace; }
    // The cut shown; empty while the cut tab is closed.
    [[nodiscard]] const Decoupe2D& DecoupeMontree() const { return m_decoupe; }
    [[nodiscard]] bool DecoupeOuverte() const;
    // The hand on the paths, and the film of the cut.
    [[nodiscard]] const Atelier2D& Atelier() const { return *m_atelier; }
    [[nodiscard]] const PanneauSimulation& Simulation() const { return *m_simulation; }
    // The run on the machine, idle or not, and what it has drawn.
    [[nodiscard]] const CourseMachine& Course() const { return m_course; }
    [[nodiscard]] const TraceCourse& TraceMachine() const { return *m_trace; }

    // Opens a file as if chosen in the dialog. False after a box that says why; the work is then as it was.
    bool OuvrirFichier(const std::string& chemin);

public slots:
    // Shows the current machine and materials anew: another window has changed them.
    void ActualiserMachine();
    // Looks for the interface box and shows what was found. Not while a cut runs.
    void RafraichirInterface(QuestionMachine question = QuestionMachine::Posee);

signals:
    // The user wants the window of the machine's parameters, or that of the materials.
    void ParametrerMachine();
    void GererMatieres();

protected:
    void closeEvent(QCloseEvent* evenement) override;
    bool event(QEvent* evenement) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;

private:
    // Of the values, in the order of the layout.
    enum { PageProjet = 0, PageDecoupe = 1, PageCourse = 2, PageManuel = 3 };

    // Layout (frmTessarel2D_disposition.cpp)
    void Disposer();
    QWidget* DisposerOutils();
    QWidget* DisposerVueProjet();
    QWidget* DisposerVueDecoupe();
    QWidget* DisposerPageProjet();
    QWidget* DisposerPageDecoupe();
    void DisposerBarreEtat();
    void Relier();
    void RelierFichiers();
    void RelierProjet();
    void RelierDecoupe();

    // Files (frmTessarel2D_fichiers.cpp)
    void NouveauProjet();
    void DemanderOuverture();
    bool SauverSous();
    bool ActualiserSauvegarde();
    bool Enregistrer();
    void ExporterDxf();
    // True when the work may be replaced: saved, or given up by the user.
    bool PeutRemplacerProjet();
    void PreparerMenuRecents();
    // Nothing when the user gave up.
    std::optional<ContenuFichier> LireSansBloquer(const std::string& chemin, float tolerance);

    // Library, previews, report (frmTessarel2D_bibliotheque.cpp)
    void DisposerApercu();
    void RelierBibliotheque();
    void MontrerApercu(const std::string& chemin);
    void CadrerApercu();
    void TracerApercu();
    void FermerApercu();
    std::optional<ContenuFichier> PrendreApercu(const std::string& chemin, float tolerance);
    void MontrerResume(const std::string& chemin, const OuvertureFichier& ouverture);
    void EffacerResume();
    void MontrerOuverture(const std::string& chemin, OuvertureFichier ouverture);

    // Block, placing, display (frmTessarel2D_bloc.cpp)
    void ChangerBloc(std::size_t cote, double valeur);
    void AjusterBlocAuto();
    void ChangerRegle();
    void Replacer();
    [[nodiscard]] ReglesPlacement Regles() const;
    void MontrerBloc();
    void TraceSequTS2D();
    void CalculAffichageInitialTS2D();
    void ZoomAutoToutVoir();
    void TraceTableTS2D(double xMin, double xMax, double yMin, double yMax);
    [[nodiscard]] OptionsDessin OptionsAffichage(const Canevas& canevas) const;
    // After any change of the project: title, buttons, status bar.
    void MontrerEtat();
    void MarquerModifie();
    void MontrerTout();

    // Workshop: selection, tools, undo, typed transforms (frmTessarel2D_atelier.cpp)
    void DisposerAjoutPoint();
    void RelierAtelier();
    void MontrerSelection();
    void ApresAction();
    void MontrerAjoutPoint(bool vise, double xMm, double yMm);
    void ChangerAcces();
    void RelierSource();
    void RendreLargeurs();
    void RetenirLargeurs() const;

    // Cut tab (frmTessarel2D_decoupe.cpp)
    void OuvrirDecoupe();
    void FermerDecoupe();
    void RemplirMatieres();
    void PrendreMatiere(int rang);
    void ChangerOptionsDecoupe();
    void CalculerDecoupe();
    void TraceDecoupe();
    void MontrerOptionsDecoupe();
    void LancerDecoupe();
    void ExporterGcode();
    std::string ChoisirFichierGcodeTS2D();

    // The cut on the machine (frmTessarel2D_machine.cpp)
    void RelierCourse();
    void MontrerLiaison();
    // A loop that talks to the box is under way.
    [[nodiscard]] bool Occupee() const;
    void DecouperSurMachine();
    bool LancerCourse(bool origineAuto, bool suite);
    void LancerSuite(GenreDecoupe genre, Sequence chemin);
    [[nodiscard]] std::string ResumeDeLaCourse() const;
    [[nodiscard]] PanneauCourse::Arret ArretMontre() const;
    void RevoirChauffeALArret();
    void ChangerChauffeCourse(double pourcent);
    [[nodiscard]] bool FilHorsRepos();
    void FinirCourse(const ResultatDecoupe& resultat, bool memeArret);
    void FermerSiDemande();
    void AttendreOperateur(const ResultatDecoupe& resultat);
    [[nodiscard]] bool LiaisonPermetLaSuite();
    void ReprendreDecoupe();
    void LancerRetour(TrajetRetour trajet);
    void AbandonnerDecoupe();
    void OublierArret();
    void AbandonnerPourAutreMachine();
    void RetourAuRepos();
    void InitialiserBoutonsDecoupe(int enMarche);
    void PermettreCommandes(bool libre);
    [[nodiscard]] GardeEntrees GarderCourse();
    [[nodiscard]] std::unique_ptr<GardeEntrees> GarderFil();
    // The wire moves, or stands on its way: nothing else begins.
    [[nodiscard]] bool CourseOuverte() const;
    void PrevenirSilence();
    [[nodiscard]] SuiviDecoupe SuiviCourse();
    // Before the window closes: stops a cut that runs. True when there was one: the window closes by itself
    // once it stands.
    bool ArreterPourFermer();

    // Moves by hand (frmTessarel2D_manuel.cpp)
    void RelierManuel();
    void OuvrirManuel();
    void FermerManuel();
    [[nodiscard]] bool ManuelOuvert() const;
    void MontrerMachineManuel();
    void ArreterManuel();
    void DeplacerParFleche(int x, int y);
    // Runs one move with `etat`, a row of TextesEtats, as what is shown of it once the wire moves.
    void Mouvoir(int etat, const std::function<FinProcedure(const SuiviMarche&)>& mouvement);

    // Heat by hand (frmTessarel2D_chauffe.cpp)
    void RelierChauffe();
    [[nodiscard]] SuiviChauffeManuelle SuiviFil();
    void MontrerFil();
    void AllumerFilManuel();
    // While the wire is on; where the machine has put it out by itself it stays so, and the page says it.
    void EnvoyerChauffeVoulue(double pourcent);
    // Puts out a wire that was lit by hand. False when it may still be hot, which was told.
    bool EteindreFilManuel();
    void VeillerSurFilManuel();
    // A heat-off that was given up, whoever asked for it, goes out again as soon as the box hears.
    void RattraperCoupure();
    // Moves are enabled, at the latest after a look at the box; else a box told why not.
    bool LiaisonPermet();
    // Asks for the window of the machine or of the materials; comes back when it is closed.
    void OuvrirReglages(void (frmTessarel2D::*fenetre)());

    Espace2D m_espace;
    Decoupe2D m_decoupe;
    OptionsDecoupe2D m_options;
    ValeursDecoupe m_valeurs; // of the material, clamped to the machine
    CoteDecalage2D m_decalage = CoteDecalage2D::Aucun;
    bool m_annoncerDepassement = true;     // cleared by the box
    std::optional<ApercuFichier> m_apercu; // the file looked at, while the canvas shows it
    std::string m_cheminOuvert;            // last file opened, and what it brought
    OuvertureFichier m_ouverture;
    std::vector<std::string> m_fichiersImportes; // drawings of this project: no export replaces them

    CourseMachine m_course;
    ChauffeManuelle m_fil;     // lit by hand
    bool m_stopManuel = false; // Stop was pressed in the move by hand that runs
    bool m_ailleurs = false;   // a window of the machine or of the materials is open
    QTimer TimerRattrapage{this};
    std::unique_ptr<TraceCourse> m_trace;
    PanneauCourse* m_panneauCourse = nullptr;
    PanneauManuel* m_panneauManuel = nullptr;
    QToolButton* cmdDeplacementsManuels = nullptr;
    QPointer<QMessageBox> m_alerteInterface; // over the window while the box does not answer
    QToolButton* cmdRafraichirUsbTS2D = nullptr;

    Canevas* pctSequTS2D = nullptr;
    Canevas* pctDecoupe = nullptr;
    Atelier2D* m_atelier = nullptr;
    BandeauAtelier* m_bandeau = nullptr;
    PanneauSaisie* m_saisie = nullptr;
    PanneauSimulation* m_simulation = nullptr;
    QFrame* pctAjoutPoint = nullptr;
    QLabel* lblAjoutPoint = nullptr;
    QToolButton* cmdFinirAjout = nullptr;
    QSplitter* m_milieu = nullptr; // library beside the canvas
    QStackedWidget* m_vues = nullptr;
    QStackedWidget* m_pages = nullptr;

    QToolButton* cmdNouveauProjetTS2D = nullptr;
    QToolButton* cmdOuvrirFichierTS2D = nullptr;
    QToolButton* cmdRecents = nullptr;
    QMenu* menuRecents = nullptr;
    QToolButton* cmdActualiserSauvegarde = nullptr;
    QToolButton* cmdSauverTS2D = nullptr;
    QToolButton* cmdExporterDXF = nullptr;
    QToolButton* cmdBibliotheque = nullptr;
    PanneauBibliotheque* m_bibliotheque = nullptr;
    QFrame* bandeauApercu = nullptr;
    QLabel* lblApercu = nullptr;
    QToolButton* cmdMiroirFichierSource = nullptr;
    QToolButton* cmdInverserSensSequ = nullptr;
    QToolButton* cmdAfficherSensSequ = nullptr;
    QToolButton* cmdOuvrirApercu = nullptr;
    QToolButton* cmdFermerApercu = nullptr;
    QShortcut* raccourciFermerApercu = nullptr; // while a preview is shown
    QToolButton* cmdParametresMachine = nullptr;
    QToolButton* cmdMatieres = nullptr;
    QToolButton* cmdZoomTout = nullptr;
    QToolButton* cmdZoomPlus = nullptr;
    QToolButton* cmdZoomMoins = nullptr;
    QToolButton* cmdAide = nullptr;
    QShortcut* raccourciEnregistrer = nullptr; // while cmdActualiserSauvegarde is hidden

    QLabel* lblTypeFichierTS2D = nullptr;
    QLabel* lblCoeffNettoyage = nullptr;
    QTimer TimerAffichageTypeFichier{this};
    std::array<ChampNombre*, 2> txtBloc{};
    QToolButton* cmdBlocAuto = nullptr;
    QLabel* lblDimensionsBloc = nullptr;
    std::array<QCheckBox*, 3> chkCentrer{};
    QCheckBox* chkZoomProjet = nullptr;
    QCheckBox* chkVoirPoints = nullptr;
    QCheckBox* chkCouleurProfils = nullptr;
    QPushButton* cmdDecouper = nullptr;

    QComboBox* comboMatieres = nullptr;
    std::array<QToolButton*, 3> optEntrerBloc{};
    std::array<QToolButton*, 3> optSortirBloc{};
    std::array<QToolButton*, 2> optApproche{};
    std::array<QToolButton*, 2> optRetour{};
    std::array<QToolButton*, 3> optDecalage{};
    QLabel* lblInformationDecoupe = nullptr;
    QCheckBox* chkZoomDecoupe = nullptr;
    QCheckBox* chkExportGcode2D = nullptr;
    QPushButton* cmdLancerLaDecoupeTS2D = nullptr;
    QPushButton* cmdAnnulerDecoupe = nullptr;
    QToolButton* imgCroixFermeDecoupe = nullptr; // over the corner of the drawing

    QLabel* lblCoordonnees = nullptr;
    QLabel* lblProjet = nullptr;
    QLabel* lblMachine = nullptr;
    QToolButton* cmdRapportOuverture = nullptr;
};

} // namespace tessarel
