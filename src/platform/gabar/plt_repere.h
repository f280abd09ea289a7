// From the units of a plotter file to millimetres: scaling points, user scaling and rotation.
#pragma once

#include "transformation.h"

#include <array>

namespace tessarel {

// Millimetres in a plotter unit.
inline constexpr double UniteTraceur = 0.025;

// Size of the frame between the scaling points where neither IP nor a sheet size (PS) gives them, plotter
// units. It depends on the plotter; this is that of the desk plotters for A4 and letter sheets, by far the
// most imitated, laid at the origin.
inline constexpr double LargeurCadre = 10000;
inline constexpr double HauteurCadre = 7200;

// State of the instructions that place coordinates, and the map that follows from them.
struct ReperePlt {
    Point2 p1;
    Point2 p2{LargeurCadre, HauteurCadre};
    bool cadreDonne = false;                 // an IP or IR has set the points
    Point2 page{LargeurCadre, HauteurCadre}; // PS

    bool echelle = false;
    int genreEchelle = 0;              // 0 stretched to the frame, 1 the same both ways, 2 by factors
    std::array<double, 4> bornes = {}; // SC: X at P1, X at P2, Y at P1, Y at P2; factors in the place of P2
    double gauche = 50;                // of the free room, percent, for genre 1
    double bas = 50;
    int quarts = 0; // RO: quarter turns to the left

    Transformation mm; // from the coordinates of the instructions to mm
};

// Sets `mm` from the rest. A map that would flatten the drawing is not taken: false, and user scaling is off.
bool CalculerRepere(ReperePlt& r);

// The coordinates that stand at a place in mm.
Point2 DepuisMm(const ReperePlt& r, Point2 mm);

// The instructions, with the numbers that they came with. False when they make no sense and were left out.
bool ReglerIP(ReperePlt& r, const double* v, int nombre);
bool ReglerIR(ReperePlt& r, const double* v, int nombre);
bool ReglerPS(ReperePlt& r, const double* v, int nombre);
bool ReglerSC(ReperePlt& r, const double* v, int nombre);
bool ReglerRO(ReperePlt& r, const double* v, int nombre);

} // namespace tessarel
