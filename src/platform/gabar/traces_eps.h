// What the PostScript interpreter prints of a drawing's painted paths, as polylines.
//
// One line an event, lengths in thousandths of a point (1/72 inch) of the default user space:
//   S F E R          a path is painted: stroke, fill, even-odd fill, rectangles
//   m x y            a subpath begins
//   l x y            a line to
//   c x y x y x y    a Bezier curve to: two control points, then the end
//   h                the subpath closes
//   i NAME           something that is no path was painted: text, image
//   ?                a path that the interpreter will not show; in place of a number: beyond the limits
//   ! NAME           the program ended on an error of this name
//   fin              the program ended well
// Any other line is the file's own output and is passed over.
#pragma once

#include "assemblage.h"
#include "gabar.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

// Millimetres in a point.
inline constexpr double MmParPoint = 25.4 / 72;

// The drawing in the making.
struct TracesEps {
    std::vector<PointSimple> points;
    std::vector<std::uint32_t> debuts; // index of the first point of each polyline
    RapportLecture rapport;            // subpaths by the operator that painted them
    std::string erreur;                // name of the error that ended the program
    bool complet = false;              // the program ended well

    // The subpath under way, from `debut` on.
    bool enCours = false;
    std::size_t debut = 0;
    Point2 premier;
    Point2 courant;
    std::string_view operateur = "stroke";
    std::string reste; // of the last piece: a line whose end is still to come
};

// Takes a piece of the output. `chemin` is the drawing's name for messages. FauteLecture for a coordinate out
// of range, and for more points than a drawing may have.
void AvalerTraces(TracesEps& traces, std::string_view morceau, const std::string& chemin);
// Ends the drawing: the points get their codes.
void TerminerTraces(TracesEps& traces);

} // namespace tessarel
