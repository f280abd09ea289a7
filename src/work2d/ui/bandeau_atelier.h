// The row of tools over the table of the 2D window: what is done with the selection, and the tool in hand.
#pragma once

#include <QFrame>
#include <array>

class QLabel;
class QToolButton;

namespace tessarel {

class Atelier2D;

// Ties its buttons to the deeds of an Atelier2D and shows what can be done now.
class BandeauAtelier : public QFrame {
    Q_OBJECT
public:
    explicit BandeauAtelier(QWidget* parent = nullptr);

    void Relier(Atelier2D& atelier);
    // Which buttons are on, and the size of the selection.
    void MontrerEtat();
    void MontrerTaille(double largeur, double hauteur);

private:
    QToolButton* Ajouter(const char* nom);
    void Separer();
    void RelierOutils();

    Atelier2D* m_atelier = nullptr;
    QToolButton* cmdSelection = nullptr;
    QToolButton* cmdInsererPoint = nullptr;
    QToolButton* cmdCouperTrace = nullptr;
    std::array<QToolButton*, 2> cmdUndoTS2D{};
    QToolButton* cmdToutSelectionner = nullptr;
    QToolButton* cmdDupliquer = nullptr;
    QToolButton* cmdInverser = nullptr;
    std::array<QToolButton*, 2> cmdMiroir{};
    QToolButton* cmdPoubelle = nullptr;
    QLabel* lblDimensionSelection = nullptr;
};

} // namespace tessarel
