// What the workshop draws over the paths: the transform box, what lies under the pointer, a point about to be
// put in, the wire of a simulation.
#pragma once

#include "platform/dessin.h"
#include "work2d/dessin_table.h"
#include "work2d/selection.h"
#include "work2d/simulation.h"

#include <cstddef>
#include <span>

namespace tessarel {

inline constexpr Couleur CouleurSurvol = {255, 0, 255};       // what the pointer is on
inline constexpr Couleur CouleurSegmentCoupe = {255, 255, 0}; // the segment that the wire cuts now
inline constexpr float EpaisseurSegmentCoupe = 2;             // pixels
inline constexpr Couleur CouleurDejaCoupe = {232, 89, 12};    // what the wire has passed
inline constexpr Couleur CouleurOmbre = {30, 30, 36, 200};    // by which yellow is seen on light foam

// The box with its handles and its middle, taken through `matrice` while a drag is under way. `survol` shows
// what the hand would take hold of. `echelle` is in pixels per mm.
void DessinerBoite(Dessin& dessin, const Sequence& BoiteSelection, double echelle, const SurvolBoite& survol,
                   const MatriceDessin& matrice, const OptionsDessin& options);

// A path that a click would select.
void DessinerTraceSurvole(Dessin& dessin, const Sequence& sequence);
// The segment from vertex `segment` (from 0) of a path, with the nearer end marked.
void DessinerSegmentSurvole(Dessin& dessin, const Sequence& sequence, std::size_t segment,
                            PointDessin souris);
// The place where a click would put a point in, or cut.
void DessinerPointVise(Dessin& dessin, PointDessin ou);

// The part already cut, the segment under way, the wire.
void DessinerFilm(Dessin& dessin, const Film2D& film, const PlaceFil& place);

// A run on the machine: the way that is done, the done part of the segment under way with the wire at its
// end, and the way of a return.
void DessinerDejaCoupe(Dessin& dessin, std::span<const PointDessin> points);
void DessinerSegmentEnCours(Dessin& dessin, PointDessin debut, PointDessin fil);
void DessinerTrajetRetour(Dessin& dessin, std::span<const PointDessin> points);

} // namespace tessarel
