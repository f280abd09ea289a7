// What the workshop does to the points of a path: move, scale, turn, mirror, reverse; and how a hand on the
// transform box becomes one of these.
//
// clang-format off
//    HG ---- HM ---- HD    a corner sets both factors, a middle one its own
//    |                |    the fixed point is the opposite handle, or the middle of the box
//    MG      +       MD
//    |                |
//    BG ---- BM ---- BD
// clang-format on
#pragma once

#include "paths/points.h"
#include "platform/dessin.h"

#include <optional>
#include <span>
#include <string_view>

namespace tessarel {

// A scale is a hand's, with its two factors in 32 bits; a fit is what the block asks for: one factor in 64
// bits, then a move.
enum class GenreTransformation : std::uint8_t { Deplacement, Echelle, Rotation, Miroir, Sens, Ajustement };

// The coordinate that a mirror turns over.
enum class AxeMiroir : int { X = 0, Y = 1 };

// One deed on every point of the paths it is meant for. Only the fields of its kind count.
struct Transformation {
    GenreTransformation genre = GenreTransformation::Deplacement;
    double dx = 0; // mm, of a move, and of a fit after its scaling
    double dy = 0;
    PointDessin fixe;   // mm: fixed point of a scale or a fit, centre of a rotation, middle of a mirror
    float facteurX = 1; // of a scale; a negative one turns over
    float facteurY = 1;
    double facteur = 1; // of a fit, both axes
    double angle = 0;   // radians of a rotation, counterclockwise
    AxeMiroir axe = AxeMiroir::X;
    friend bool operator==(const Transformation& a, const Transformation& b) {
        return a.genre == b.genre && a.dx == b.dx && a.dy == b.dy && a.fixe.X == b.fixe.X &&
               a.fixe.Y == b.fixe.Y && a.facteurX == b.facteurX && a.facteurY == b.facteurY &&
               a.facteur == b.facteur && a.angle == b.angle && a.axe == b.axe;
    }
};

// Applies it to each point in order; the same points and the same transformation always give the same bits.
void TransformerPoints(std::span<PointProfil> points, const Transformation& transformation);

// True when it leaves every point where it is.
bool SansEffet(const Transformation& transformation);

// Where it takes one place.
PointDessin Transformer(PointDessin p, const Transformation& transformation);

// The same as a matrix, for a view that draws what is not yet done. A reversal moves nothing.
MatriceDessin EnMatrice(const Transformation& transformation);

// True when every point of `boite` stays a number that a path may hold: finite, and within LimiteCoordonnee.
inline constexpr double LimiteCoordonnee = 1e6; // mm: a kilometre either way
bool TransformationPossible(const Sequence& boite, const Transformation& transformation);

// Keys that change what a hand on the box does; read anew at every move.
struct TouchesGeste {
    bool ctrl = false; // about the middle of the box
    bool maj = false;  // proportions stay; a move keeps to one axis
    bool alt = false;  // round values: whole millimetres, steps of 15 degrees
};

// Place of a handle on the box. "" and unknown names give the middle.
PointDessin PlacePoignee(const Sequence& boite, std::string_view HandleCourant);
// The one opposite; "" for what is no handle.
std::string_view PoigneeOpposee(std::string_view HandleCourant);

// The scale when the handle of `boite` has been pulled by (dx, dy) mm. With `maj` the larger of the two
// displacements gives the factor of both axes. Nothing when the result would have no size, or where the box
// has none on an axis that is to change.
std::optional<Transformation> EchelleParPoignee(const Sequence& boite, std::string_view HandleCourant,
                                                double dx, double dy, TouchesGeste touches);

// A move by (dx, dy) mm as the keys want it.
Transformation DeplacementParGeste(const Sequence& boite, double dx, double dy, TouchesGeste touches);

// Angle of a place seen from a centre, radians from 0 to 2 pi.
double AngleSouris(double x, double y, double xc, double yc);

// A rotation under way: each move adds the new angle less the stored one, and stores the new one.
struct GesteRotation {
    PointDessin centre;
    double angleMemorise = 0;
    double total = 0;
};
GesteRotation CommencerRotation(const Sequence& boite, PointDessin souris);
// The whole rotation so far, about the centre the box had when it began.
Transformation SuivreRotation(GesteRotation& geste, PointDessin souris, TouchesGeste touches);

// The scale that gives the box a typed size (mm), about the handle or middle that stays. `proportions`: the
// factor of the typed side (0 width, 1 height) serves both. A negative size turns over. Nothing when a size
// or a side of the box is zero, or the size is no number.
std::optional<Transformation> EchelleSaisie(const Sequence& boite, int cote, double taille,
                                            std::string_view pointFixe, bool proportions);

Transformation Rotation(PointDessin centre, double degres);
Transformation Deplacement(double dx, double dy);
Transformation Miroir(const Sequence& boite, AxeMiroir axe);

PointDessin MilieuBoite(const Sequence& boite);

} // namespace tessarel
