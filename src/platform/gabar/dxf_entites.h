// The entities of a DXF as records: what their group codes say, nothing worked out yet.
#pragma once

#include "courbes.h"
#include "dxf_codes.h"

#include <string_view>
#include <vector>

namespace tessarel {

enum class GenreEntite {
    Ignore, // no path: text, hatching, points, solids...
    Ligne,
    Arc,
    Cercle,
    Ellipse,
    PolyligneLegere,
    Polyligne,
    Spline,
    Insertion,
};

struct SommetDxf {
    Point3 p;
    double renflement = 0; // bulge of the segment that starts here
};

// What an entity says in single values. Lengths and angles as the file has them: drawing units, degrees
// (radians for the ellipse).
struct ChampsDxf {
    GenreEntite genre = GenreEntite::Ignore;
    std::string_view type; // as the file has it
    long ligne = 0;        // line of its first pair's value
    std::string_view calque;
    bool invisible = false;
    bool espacePapier = false;
    Point3 p0; // codes 10, 20, 30
    Point3 p1; // codes 11, 21, 31
    Point3 extrusion{0, 0, 1};
    double elevation = 0; // code 38
    double r40 = 0, r50 = 0, r51 = 0;
    double r41 = 0, r42 = 0, r43 = 0, r44 = 0, r45 = 0;
    bool a41 = false, a42 = false, a43 = false; // the code was there
    std::int32_t drapeaux = 0;                  // code 70
    std::int32_t rangees = 1;                   // code 71, of an insertion
    std::string_view bloc;                      // code 2, of an insertion
};

// One entity, with its lists.
struct EntiteDxf : ChampsDxf {
    std::vector<SommetDxf> sommets;
    Spline spline;
};

// Reads the entity whose opening pair (code 0) is current; leaves the next opening pair current. The vertices
// of a POLYLINE are taken along. FauteLecture where the text ends inside it or a needed number is none.
void LireEntite(LecteurCodes& lecteur, EntiteDxf& entite);

} // namespace tessarel
