// Pieces of a drawing put end to end: what touches the piece before it in file order becomes one polyline.
#pragma once

#include "gabar.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// Ends closer than this touch, mm.
inline constexpr double ToleranceJonction = 0.001;
// Coordinates beyond this come from a damaged file, mm. Maps in world coordinates, in metres, stay within.
inline constexpr double CoordonneeMax = 1e11;
// A drawing of more points is refused: at 64 bytes a point along the way it would not fit in the memory
// allowed.
inline constexpr std::size_t PointsMaxDessin = 5'000'000;

struct Point2 {
    double X = 0;
    double Y = 0;
};

// The drawing in the making: finished polylines, the open chain behind them, and the piece being laid down.
// `points` holds them in this order; the codes are given at the end.
struct Assemblage {
    std::vector<PointSimple> points;
    std::vector<std::uint32_t> debuts; // index of the first point of each polyline; the last one is the chain
    int joints = 0;
    int retournes = 0;

    // The chain: the last polyline, which may still grow at both ends.
    bool chaineOuverte = false;
    std::size_t piecesChaine = 0;
    Point2 premierChaine;
    Point2 dernierChaine;
    std::vector<PointSimple> avant; // points put before the chain, nearest first

    // The piece.
    std::size_t debutPiece = 0;
    Point2 premierPiece;
    Point2 dernierPiece;
    bool doublon = false;

    // For messages.
    const std::string* chemin = nullptr;
    std::string_view entite;
    long ligne = 0;
};

void CommencerPiece(Assemblage& a);
// Adds a point of the piece, mm; a point equal to the one before it in 32 bits is left out. FauteLecture
// naming the entity when the point is too far out or not finite, or when there are too many.
void AjouterPoint(Assemblage& a, double x, double y);
// Closes the piece where its end touches its beginning (or `fermer`), and joins it to the chain where they
// touch. False when it had fewer than two points and was dropped.
bool FinirPiece(Assemblage& a, bool fermer);
// Ends the drawing: gives the codes. The points are then complete.
void TerminerAssemblage(Assemblage& a);

} // namespace tessarel
