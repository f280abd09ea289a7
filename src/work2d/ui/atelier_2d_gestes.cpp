// The gestures of the hand on the table: presses, drags and keys, and what they become.
#include "app/texts/textes_programme.h"
#include "ui/boites_qt.h"
#include "work2d/edition.h"
#include "work2d/ui/atelier_2d.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace tessarel {

namespace {

constexpr double DistanceGlisser = 4; // pixels: a shorter drag is a click
// Millimetres of an arrow key; with Shift, with Ctrl.
constexpr double PasFleche = 1;
constexpr double PasFlecheGrand = 10;
constexpr double PasFlecheFin = 0.1;

TouchesGeste Touches(Qt::KeyboardModifiers touches) {
    return {touches.testFlag(Qt::ControlModifier), touches.testFlag(Qt::ShiftModifier),
            touches.testFlag(Qt::AltModifier)};
}

} // namespace

bool Atelier2D::eventFilter(QObject*, QEvent* evenement) {
    if (!m_actif) return false;
    switch (evenement->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return Presser(*static_cast<QMouseEvent*>(evenement));
    case QEvent::MouseMove: {
        const auto& souris = *static_cast<QMouseEvent*>(evenement);
        // Its release went to another window: what is no longer held stays where it was.
        if (!souris.buttons().testFlag(Qt::LeftButton)) AbandonnerGeste();
        // The view's own gestures show nothing of ours, but what a rubber band would take.
        if (m_geste != Geste::Aucun || !m_canevas.GesteEnCours() || souris.buttons() == Qt::NoButton)
            Suivre(souris.position(), souris.modifiers());
        else if (m_canevas.CadreEnCours())
            SuivreCadre(souris);
        return false; // the canvas tells coordinates and marks its rulers
    }
    case QEvent::MouseButtonRelease:
        return Relacher(*static_cast<QMouseEvent*>(evenement));
    case QEvent::Leave:
        if (m_geste == Geste::Aucun) QuitterSurvol();
        return false;
    case QEvent::KeyPress:
        return Touche(*static_cast<QKeyEvent*>(evenement));
    case QEvent::KeyRelease:
        // A key let go counts at once, not at the next move only.
        if (m_geste != Geste::Aucun && m_geste != Geste::Appui)
            SuivreGeste(m_souris, QApplication::queryKeyboardModifiers());
        return false;
    default:
        return false;
    }
}

bool Atelier2D::Presser(const QMouseEvent& evenement) {
    if (m_geste != Geste::Aucun) {
        if (evenement.button() != Qt::LeftButton) return true; // in the middle of a drag it changes nothing
        AbandonnerGeste(); // a second press: the release of the first went to another window
    }
    if (evenement.button() != Qt::LeftButton || m_canevas.GesteEnCours()) return false;
    m_pression = evenement.position();
    m_pressionMm = m_canevas.EnMm(m_pression);
    Survoler(m_pressionMm);
    return m_outil == OutilAtelier::Selection ? PresserSelection(evenement, m_pressionMm)
                                              : PresserOutil(m_pressionMm);
}

bool Atelier2D::PresserSelection(const QMouseEvent& evenement, PointDessin) {
    m_seulAuRelacher.reset();
    m_gesteVoulu = Geste::Aucun;
    if (m_survol.boite.zone == ZoneBoite::Poignee) {
        m_gesteVoulu = Geste::Echelle;
    } else if (m_survol.segment) {
        PrendreTrace(m_survol.segment->sequence, evenement.modifiers());
        m_gesteVoulu = m_selections > 0 ? Geste::Deplacement : Geste::Aucun;
    } else if (m_survol.boite.zone == ZoneBoite::Dedans && evenement.modifiers() == Qt::NoModifier) {
        m_gesteVoulu = Geste::Deplacement;
    } else if (m_survol.boite.zone == ZoneBoite::Rotation &&
               !evenement.modifiers().testFlag(Qt::ShiftModifier)) {
        m_gesteVoulu = Geste::Rotation;
    } else {
        return false; // the view's: a rubber band, or a pan
    }
    m_geste = Geste::Appui;
    return true;
}

// A click on a path. On a selected one it waits for the release, for it may be the start of a drag.
void Atelier2D::PrendreTrace(std::size_t rang, Qt::KeyboardModifiers touches) {
    const std::size_t rangs[] = {rang};
    std::vector<Sequence>& traces = m_espace.TableauSequences;
    bool change = false;
    if (touches.testFlag(Qt::ControlModifier)) {
        change = Selectionner(traces, rangs, ModeSelection::Basculer);
    } else if (touches.testFlag(Qt::ShiftModifier)) {
        change = Selectionner(traces, rangs, ModeSelection::Ajouter);
    } else if (EstSelectionnee(traces[rang])) {
        m_seulAuRelacher = rang;
    } else {
        change = Selectionner(traces, rangs, ModeSelection::Seule);
    }
    if (change) SelectionModifiee();
}

bool Atelier2D::PresserOutil(PointDessin) {
    if (m_outil == OutilAtelier::InsererPoint && m_survol.segment) {
        const SegmentTouche touche = *m_survol.segment;
        Sequence essai;
        const std::vector<PointProfil>& p = m_espace.TableauSequences[touche.sequence].Points;
        if (p.size() < 2) return true;
        essai.Points = {p[touche.segment], p[touche.segment + 1]};
        if (!InsererPoint(essai, 0, touche.pied)) return true; // an end stands there already
        Memoriser();
        InsererPoint(m_espace.TableauSequences[touche.sequence], touche.segment, touche.pied);
        Changement();
        return true;
    }
    if (m_outil == OutilAtelier::CouperTrace && m_survol.sommet) {
        const SommetTouche touche = *m_survol.sommet;
        const std::size_t points = m_espace.TableauSequences[touche.sequence].Points.size();
        const bool dedans = touche.sommet > 0 && touche.sommet + 1 < points;
        if (dedans) Memoriser();
        if (CouperSequence(m_espace.TableauSequences, touche.sequence, touche.sommet)) Changement();
        return true;
    }
    return false;
}

void Atelier2D::Suivre(QPointF pixels, Qt::KeyboardModifiers touches) {
    const PointDessin ici = m_canevas.EnMm(pixels);
    if (m_geste == Geste::Aucun) {
        Survoler(ici);
        return;
    }
    m_souris = ici;
    if (m_geste == Geste::Appui) {
        if ((pixels - m_pression).manhattanLength() < DistanceGlisser || m_gesteVoulu == Geste::Aucun) return;
        m_geste = m_gesteVoulu;
        m_handle = m_survol.boite.HandleCourant;
        m_survol.segment.reset();
        if (m_geste == Geste::Rotation) m_rotation = CommencerRotation(m_boite, m_pressionMm);
    }
    SuivreGeste(ici, touches);
}

// The view's rubber band: which paths it would take.
void Atelier2D::SuivreCadre(const QMouseEvent& evenement) {
    if (m_outil != OutilAtelier::Selection) return;
    if ((evenement.position() - m_pression).manhattanLength() < DistanceGlisser) return;
    const bool entieres = m_canevas.EnMm(evenement.position()).X >= m_pressionMm.X;
    emit Indication(TexteAffiche(
        Texte(entieres ? TexteProgramme::AtelierCadreEntiers : TexteProgramme::AtelierCadreTouches)));
}

// The keys are read anew at each move: letting one go in the middle of a drag changes the fixed point.
void Atelier2D::SuivreGeste(PointDessin ici, Qt::KeyboardModifiers touches) {
    const double dx = ici.X - m_pressionMm.X;
    const double dy = ici.Y - m_pressionMm.Y;
    std::optional<Transformation> t;
    switch (m_geste) {
    case Geste::Echelle:
        t = EchelleParPoignee(m_boite, m_handle, dx, dy, Touches(touches));
        break;
    case Geste::Deplacement:
        t = DeplacementParGeste(m_boite, dx, dy, Touches(touches));
        break;
    case Geste::Rotation:
        t = SuivreRotation(m_rotation, ici, Touches(touches));
        break;
    case Geste::Aucun:
    case Geste::Appui:
        return;
    }
    // A factor of nothing, or a place off the map: the last good one stays.
    if (!t || !TransformationPossible(m_boite, *t)) return;
    m_transformation = t;
    MontrerGeste();
}

bool Atelier2D::Relacher(const QMouseEvent& evenement) {
    if (m_geste == Geste::Aucun) return false;
    if (evenement.button() != Qt::LeftButton) return true;
    if (m_geste == Geste::Appui) {
        m_geste = Geste::Aucun;
        if (m_seulAuRelacher) {
            const std::size_t rangs[] = {*m_seulAuRelacher};
            if (Selectionner(m_espace.TableauSequences, rangs, ModeSelection::Seule)) SelectionModifiee();
        } else if (m_survol.boite.zone == ZoneBoite::Dedans && !m_survol.segment) {
            PrendreRien(evenement.modifiers());
        }
    } else {
        FinirGeste();
    }
    if (m_canevas.rect().contains(evenement.position().toPoint()))
        Survoler(m_canevas.EnMm(evenement.position()));
    else
        QuitterSurvol();
    return true;
}

// The points change here, and only here: the state before the drag is kept first.
void Atelier2D::FinirGeste() {
    const std::optional<Transformation> t = m_transformation;
    if (!t || SansEffet(*t)) { // back where it began: no deed
        AbandonnerGeste();
        return;
    }
    m_geste = Geste::Aucun;
    m_transformation.reset();
    Transformer(*t);
}

void Atelier2D::AbandonnerGeste() {
    if (m_geste == Geste::Aucun) return;
    m_geste = Geste::Aucun;
    m_transformation.reset();
    m_canevas.Transformer(Canevas::CoucheSelection, {});
    DessinerOutils();
    emit SelectionChangee(); // the sizes shown are those of the box again
}

bool Atelier2D::Touche(const QKeyEvent& evenement) {
    switch (evenement.key()) {
    case Qt::Key_Escape:
        return Echapper();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (m_geste == Geste::Aucun) Supprimer();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return Pousser(evenement);
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
        if (m_geste != Geste::Aucun && m_geste != Geste::Appui)
            SuivreGeste(m_souris, QApplication::queryKeyboardModifiers());
        return false;
    default:
        return false;
    }
}

// Escape gives up what is nearest: the drag, the tool, the selection.
bool Atelier2D::Echapper() {
    if (m_geste != Geste::Aucun) {
        AbandonnerGeste();
        Survoler(m_souris);
        return true;
    }
    if (m_canevas.GesteEnCours()) return false; // the view's own drag
    if (m_outil != OutilAtelier::Selection) {
        ChoisirOutil(OutilAtelier::Selection);
        return true;
    }
    if (m_selections == 0) return false;
    ToutSelectionner(false);
    return true;
}

// The arrow keys move the selection; without one they are the view's.
bool Atelier2D::Pousser(const QKeyEvent& evenement) {
    if (m_selections == 0) return false;
    if (m_geste != Geste::Aucun) return true;
    double pas = PasFleche;
    if (evenement.modifiers().testFlag(Qt::ShiftModifier)) pas = PasFlecheGrand;
    if (evenement.modifiers().testFlag(Qt::ControlModifier)) pas = PasFlecheFin;
    switch (evenement.key()) {
    case Qt::Key_Left:
        Transformer(Deplacement(-pas, 0));
        break;
    case Qt::Key_Right:
        Transformer(Deplacement(pas, 0));
        break;
    case Qt::Key_Up:
        Transformer(Deplacement(0, pas));
        break;
    default:
        Transformer(Deplacement(0, -pas));
    }
    return true;
}

// A band drawn to the right takes the paths that lie in it whole, one drawn to the left all that it touches.
void Atelier2D::PrendreCadre(const CadreDessin& cadre, Qt::KeyboardModifiers touches) {
    if (m_outil != OutilAtelier::Selection) return;
    const double milieu = (cadre.XMin + cadre.XMax) / 2;
    const bool entieres = m_pressionMm.X <= milieu;
    const std::vector<std::size_t> rangs =
        SequencesDansCadre(Index(), m_espace.TableauSequences, cadre, entieres);
    const ModeSelection mode =
        touches.testFlag(Qt::ControlModifier) ? ModeSelection::Basculer : ModeSelection::Seule;
    if (Selectionner(m_espace.TableauSequences, rangs, mode)) SelectionModifiee();
}

void Atelier2D::PrendreRien(Qt::KeyboardModifiers touches) {
    if (m_outil == OutilAtelier::Selection && touches == Qt::NoModifier) ToutSelectionner(false);
}

} // namespace tessarel
