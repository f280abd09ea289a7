// The two records in which every path of the system lives, and the routines that every user of them needs.
//
// A path is an ordered list of vertices joined by straight segments; a closed contour is one whose last
// vertex repeats its first. Lengths are mm, speeds mm/s, durations s. In memory arrays count from 0; what is
// shown or stored counts from 1, and the conversion stands where it is shown or stored.
#pragma once

#include "platform/gabar/gabar.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tessarel {

struct PointProfil {
    double X = 0;               // mm
    double Y = 0;               // mm; in 2D, height above the table origin
    double Z = 0;               // mm; 2D work leaves it 0
    std::uint16_t Drapeaux = 0; // mask of marks; in 2D the crossing codes 1 to 4 of the limit check
    bool Rapide = false;        // the segment that starts here runs at VitesseRapide
    float Vitesse = 0;          // mm/s; 2D: of the segment that ends here; 4 axes: that starts here
    float Vx = 0;               // mm/s of each carriage on that segment, 4 axes only
    float Vy = 0;
    float Duree = 0;    // s, length of the segment divided by Vitesse
    float Decalage = 0; // kerf at this vertex, 4 axes only
    friend bool operator==(const PointProfil&, const PointProfil&) = default;
};

// `Selection` of a Sequence: selected in the 2D window.
inline constexpr std::uint8_t SelectionSequence = 1;

struct Sequence {
    std::vector<PointProfil> Points;
    float XMin = 0; // bounding box: valid only after CalculerBornesSequence
    float XMax = 0;
    float YMin = 0;
    float YMax = 0;
    float Largeur = 0; // abs(XMax - XMin), mm
    float Hauteur = 0;
    std::uint8_t Selection = 0;
    friend bool operator==(const Sequence&, const Sequence&) = default;
};

// Highest number of vertices of a 2D cut path: its loops count in 16 bits.
inline constexpr std::size_t PointsMaxDecoupe = 32767;

// Fills the box of a sequence. It starts from the first vertex; each comparison is made on the coordinate
// rounded to 32 bits, and what is stored comes from the unrounded value. A sequence without points gets a box
// of zeros.
void CalculerBornesSequence(Sequence& sequence);
// The box of one sequence given to another, points left as they are.
void CopierBornes(const Sequence& bornes, Sequence& sequence);

// Reverses the vertices in place; every field travels with its vertex.
void InverserSequence(Sequence& sequence);

// All sequences end to end, whole records, with bounds.
Sequence ConcatenerSequences(std::span<const Sequence> sequences);

// The box around all sequences that have points (their own boxes must be valid); zeros when there is none.
Etendue CadrageSequences(std::span<const Sequence> sequences);

} // namespace tessarel
