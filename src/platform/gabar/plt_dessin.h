// The pen of a plotter file: where it is, whether it draws, and what it has drawn.
#pragma once

#include "assemblage.h"
#include "courbes.h"
#include "plt_repere.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tessarel {

// Pens above this are one.
inline constexpr int PlumesMax = 255;

// What paths come from, as the import report names it.
enum class GenrePlt : std::uint8_t { Plume, Cercle, Rectangle, Secteur, Contour, Remplissage, Nombre };

// A contour of the polygon buffer, in `DessinPlt::tampon`.
struct ContourPlt {
    std::size_t debut = 0;
    bool seul = true; // the only one of its subpolygon: its edge closes as the fill does
};

struct DessinPlt {
    Assemblage assemblage;
    ReperePlt repere;

    Point2 ici; // the pen, in the coordinates of the instructions
    bool baissee = false;
    bool relatif = false;
    bool pieceOuverte = false;

    // Polygon mode: what is drawn goes into a buffer, of which EP and FP make paths.
    bool polygone = false;
    bool polygoneTrace = false;              // the buffer has been drawn already,
    GenrePlt genreTrace = GenrePlt::Contour; // as this,
    int contoursTraces = 0;                  // with so many paths
    Assemblage tampon;
    std::size_t pointsTampons = 0; // of the buffers before this one
    std::vector<ContourPlt> contours;
    std::size_t debutSousPolygone = 0; // first contour of the subpolygon

    std::array<int, static_cast<std::size_t>(GenrePlt::Nombre)> lus = {};
    std::map<std::string, int> parPlume;
    int* plumeEnCours = nullptr; // count of the pen in use, in `parPlume`
    int points = 0;              // strokes of no length, left out
};

void CommencerDessinPlt(DessinPlt& d, const std::string& chemin);
// IN: all as at the start but for what is drawn.
void Initialiser(DessinPlt& d);
void ChoisirPlume(DessinPlt& d, int numero);

// Moves the pen, drawing when it is down.
void Avancer(DessinPlt& d, double x, double y);
// Moves without drawing, whatever the pen.
void Sauter(DessinPlt& d, double x, double y);
void Lever(DessinPlt& d);
void Baisser(DessinPlt& d);
// Ends the stroke under way; the next movement begins another.
void FinirTrait(DessinPlt& d);

// Arc from the pen round a centre, `degres` to the left; the pen ends at its end.
void SuivreArc(DessinPlt& d, Point2 centre, double degres);
// Arc from the pen through one point to another; a segment by all three where they stand in line.
void SuivreArcParPoints(DessinPlt& d, Point2 milieu, Point2 fin);
// Cubic from the pen.
void SuivreBezier(DessinPlt& d, Point2 c1, Point2 c2, Point2 fin);

// Closed figures about the pen, which stays where it is.
void TracerCerclePlt(DessinPlt& d, double rayon);
void TracerRectangle(DessinPlt& d, Point2 coin, GenrePlt genre);
void TracerSecteur(DessinPlt& d, double rayon, double debut, double balayage, GenrePlt genre);

// PM 0, 1 and 2.
void OuvrirPolygone(DessinPlt& d);
void FermerSousPolygone(DessinPlt& d);
void FermerPolygone(DessinPlt& d);
// EP or FP: the buffer as paths, once where both are asked for; a part that is filled is closed.
void TracerPolygone(DessinPlt& d, GenrePlt genre);

} // namespace tessarel
