// The panel in which the transforms of the selection are typed as numbers: a size, a move, an angle.
#pragma once

#include "work2d/transformations.h"

#include <QGroupBox>
#include <array>
#include <cstddef>
#include <string_view>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QToolButton;

namespace tessarel {

class ChampNombre;

// Shows the size of the selection's box, and tells what was typed as a transformation of it. A typed size
// keeps the point chosen on the little square in its place.
class PanneauSaisie : public QGroupBox {
    Q_OBJECT
public:
    explicit PanneauSaisie(QWidget* parent = nullptr);

    // The box of the selection, or none: fields without a selection are off.
    void Montrer(const Sequence& BoiteSelection, std::size_t selections);
    // Takes what is typed in a field and does not count yet.
    void Valider();
    // The size while a drag is under way; the box stays as it is.
    void MontrerTaille(double largeur, double hauteur);
    // The same of a move, where moves are typed, and of a turn, in degrees.
    void MontrerDeplacement(double dx, double dy);
    void MontrerAngle(double degres);
    // After another language: the words that depend on what is typed.
    void MontrerMots();

signals:
    void TransformationSaisie(const tessarel::Transformation& transformation);

private:
    enum Mode : int { Taille = 0, Deplacer = 1 };
    void Disposer();
    void Relier();
    void Prendre(int cote, double valeur);
    void PrendreTaille(int cote, double valeur);
    void Tourner(double degres);
    void MontrerValeurs();
    void NommerMesures(bool taille);
    [[nodiscard]] std::string_view PointFixe() const;

    Mode m_mode = Taille; // what the fields hold; the buttons are ahead of it while a click is under way
    Sequence m_boite;
    std::size_t m_selections = 0;
    QButtonGroup* m_points = nullptr;
    std::array<QToolButton*, 2> optSaisie{};
    std::array<QLabel*, 2> lblMesures{};
    std::array<ChampNombre*, 2> txtMesures{};
    std::array<QToolButton*, 9> optPointFixe{};
    QCheckBox* chkProportions = nullptr;
    ChampNombre* txtAngle = nullptr;
    QToolButton* cmdQuartDeTour = nullptr;
};

} // namespace tessarel
