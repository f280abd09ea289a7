// The film of a cut under its canvas: play, pause, place, speed, time.
#pragma once

#include "work2d/simulation.h"

#include <QFrame>
#include <QTimer>

class QComboBox;
class QLabel;
class QScrollBar;
class QToolButton;

namespace tessarel {

class Canevas;

// Plays the cut that it was given last on a canvas, in its tool layer. A new cut, or none, ends the film.
class PanneauSimulation : public QFrame {
    Q_OBJECT
public:
    explicit PanneauSimulation(Canevas& canevas, QWidget* parent = nullptr);

    // What the next start plays: a copy is made then, not before. `SequenceDecoupe` must outlive its use
    // here; the film under way ends.
    void Charger(const Sequence* SequenceDecoupe);
    // Ends the film and clears it from the canvas.
    void Arreter();

    [[nodiscard]] bool EnMarche() const { return TimerFilm.isActive(); }
    // A film is there, running or paused.
    [[nodiscard]] bool FilmPret() const { return !m_film.instants.empty(); }
    [[nodiscard]] const PlaceFil& Place() const { return m_place; }
    [[nodiscard]] const Film2D& Film() const { return m_film; }

private:
    void Disposer();
    void LancerOuSuspendre();
    void Avancer();
    void AllerAuPoint(int valeur);
    void MontrerPlace();
    void MontrerBouton();
    [[nodiscard]] double Facteur() const;

    Canevas& m_canevas;
    const Sequence* m_decoupe = nullptr;
    Film2D m_film;
    PlaceFil m_place;
    double m_dernierInstant = 0; // s of the clock at the last tick
    QTimer TimerFilm{this};
    QToolButton* cmdSimulation = nullptr;
    QToolButton* cmdArretSimulation = nullptr;
    QScrollBar* hscSimulation = nullptr;
    QLabel* lblTempsSimulation = nullptr;
    QComboBox* comboVitesseSimulation = nullptr;
};

} // namespace tessarel
