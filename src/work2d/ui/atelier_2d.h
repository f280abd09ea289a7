// The hand on the table of the 2D window: what the mouse and the keys of the canvas do to the paths.
#pragma once

#include "ui/canevas.h"
#include "work2d/dessin_table.h"
#include "work2d/espace2d.h"
#include "work2d/historique2d.h"
#include "work2d/index_points.h"
#include "work2d/selection.h"
#include "work2d/transformations.h"

#include <QObject>
#include <QPointF>
#include <optional>
#include <string>

class QKeyEvent;
class QMouseEvent;

namespace tessarel {

// The tool that a click uses.
enum class OutilAtelier { Selection, InsererPoint, CouperTrace };

// Stands before the canvas and takes the gestures that are meant for the paths; all others stay the view's.
// It works on the paths of `espace` through the engine, keeps the states to go back to, and draws the
// selection's box and what the pointer is on. Nothing is copied while a drag is under way: the layer of the
// selection is shown through a matrix, and the points change once, at its end.
class Atelier2D : public QObject {
    Q_OBJECT
public:
    Atelier2D(Canevas& canevas, Espace2D& espace, QObject* parent);

    // Off while the canvas shows something else than the project.
    void Activer(bool actif);
    void ChoisirOutil(OutilAtelier outil);
    [[nodiscard]] OutilAtelier Outil() const { return m_outil; }

    // After any change of the paths that did not come from here.
    void Actualiser();
    // The states are forgotten: another project stands there.
    void Recommencer();
    // Keeps the present state; to be called before a change made elsewhere. `avant`: how many of the paths
    // stood there already.
    void Memoriser();
    void Memoriser(std::size_t avant);
    // Says what the deed just done made of every path: undo then holds it in less room.
    void Annoncer(const Transformation& transformation);
    // Takes the last kept state back when nothing differs from it.
    void OublierSiInchange();

    [[nodiscard]] const Sequence& BoiteSelection() const { return m_boite; }
    [[nodiscard]] std::size_t NombreSelections() const { return m_selections; }
    // What the mouse holds or would take hold of, in two letters; empty for nothing.
    [[nodiscard]] const std::string& HandleCourant() const { return m_handle; }
    [[nodiscard]] const Historique2D& Historique() const { return m_historique; }
    [[nodiscard]] bool GesteEnCours() const { return m_geste != Geste::Aucun; }

    // Deeds on the selection; without one they do nothing.
    void Transformer(const Transformation& transformation);
    void Dupliquer();
    void Inverser();
    void Refleter(AxeMiroir axe);
    void Supprimer();
    void ToutSelectionner(bool choisir);
    // Back or forward; nothing at the end of the stack.
    void Reculer(SensHistorique sens);

    bool eventFilter(QObject* objet, QEvent* evenement) override;

signals:
    // The paths, or the block, are other ones; the window shows them and what follows from them.
    void ProjetChange();
    void EtatRendu(); // by undo or redo; ProjetChange follows
    void SelectionChangee();
    // While a drag is under way: the size, the move so far (mm), the turn so far (degrees, to the left).
    void TailleVivante(double largeur, double hauteur);
    void DeplacementVivant(double dx, double dy);
    void AngleVivant(double degres);
    // What the mouse would do now; empty when it is elsewhere.
    void Indication(const QString& texte);
    void OutilChoisi();
    // Where the tool in hand would put a point; nothing when `visible` is false.
    void PointVise(bool visible, double xMm, double yMm);

private:
    enum class Geste { Aucun, Appui, Echelle, Deplacement, Rotation };

    // What lies under the pointer; two that are equal look alike.
    struct Survol {
        SurvolBoite boite;
        std::optional<SegmentTouche> segment;
        std::optional<SommetTouche> sommet;
    };

    // Gestures (atelier_2d_gestes.cpp)
    bool Presser(const QMouseEvent& evenement);
    bool PresserSelection(const QMouseEvent& evenement, PointDessin ici);
    bool PresserOutil(PointDessin ici);
    void PrendreTrace(std::size_t rang, Qt::KeyboardModifiers touches);
    void Suivre(QPointF pixels, Qt::KeyboardModifiers touches);
    void SuivreCadre(const QMouseEvent& evenement);
    void SuivreGeste(PointDessin ici, Qt::KeyboardModifiers touches);
    bool Relacher(const QMouseEvent& evenement);
    void FinirGeste();
    void AbandonnerGeste();
    bool Touche(const QKeyEvent& evenement);
    bool Pousser(const QKeyEvent& evenement);
    bool Echapper();
    void PrendreCadre(const CadreDessin& cadre, Qt::KeyboardModifiers touches);
    void PrendreRien(Qt::KeyboardModifiers touches);

    // What is seen (atelier_2d.cpp)
    void Survoler(PointDessin ici);
    void QuitterSurvol();
    void MontrerSurvol();
    [[nodiscard]] bool SurvolDejaMontre() const;
    void MontrerGeste();
    void DessinerOutils();
    void FixerCurseur();
    [[nodiscard]] double Rayon() const;
    const IndexPoints& Index();
    void SelectionModifiee();
    void Changement();

    Canevas& m_canevas;
    Espace2D& m_espace;
    Historique2D m_historique;
    bool m_actif = true;
    OutilAtelier m_outil = OutilAtelier::Selection;
    Sequence m_boite;
    std::size_t m_selections = 0;
    IndexPoints m_index;
    bool m_indexAJour = false;

    Survol m_survol;
    bool m_survole = false;
    std::optional<std::size_t> m_traceMontree; // path shown whole in the layer of the tools
    SurvolBoite m_boiteMontree;                // and what of the box was lit then
    PointDessin m_souris;
    std::string m_handle;

    Geste m_geste = Geste::Aucun;
    Geste m_gesteVoulu = Geste::Aucun; // what an appui becomes once the mouse moves
    QPointF m_pression;                // pixels
    PointDessin m_pressionMm;
    std::optional<std::size_t> m_seulAuRelacher; // path that a click without a drag leaves selected alone
    GesteRotation m_rotation;
    std::optional<Transformation> m_transformation; // of the drag so far
};

} // namespace tessarel
