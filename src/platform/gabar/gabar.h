// Drawing files in and out: the library that reads DXF, DAT, PLT and EPS into flat points, and writes DXF.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tessarel {

// One point as the file library exchanges it. `CodeSequence` is the same for all points of a polyline and
// differs between neighbouring polylines.
struct PointSimple {
    float X = 0;
    float Y = 0;
    float Z = 0;
    std::array<char, 2> CodeSequence = {'0', '0'};
};

// What a read did besides the points: for the import report. Kinds are the file's own entity names.
struct RapportLecture {
    std::map<std::string, int> lus;     // entities that gave paths, by kind
    std::map<std::string, int> ignores; // entities that are no paths, by kind
    std::map<std::string, int> couches; // entities read, by layer (DXF)
    int joints = 0;                     // pieces joined to the one before, end to end
    int retournes = 0;                  // of these, turned round
    std::vector<std::string> notes;     // what was put right, one sentence each
};

struct Etendue {
    float XMin = 0;
    float XMax = 0;
    float YMin = 0;
    float YMax = 0;
};

// Code of polyline `rang` (from 0) out of `nombre`: neighbours differ, and the first is above the last as
// soon as there are two. Codes come back in a descending cycle, so that any number of polylines has them.
std::array<char, 2> CodePolyligne(std::size_t rang, std::size_t nombre);

// Version of the library times 100: 30 is 0.30, the lowest that the program likes.
std::int32_t VersionGabar();

// Reads a drawing. `extension` is "dxf", "dat", "plt" or "eps", in any case. `points` receives the points of
// all polylines in file order, a change of `CodeSequence` marking a new one: the first code of the array is
// above the last whenever there are two polylines or more. Coordinates are mm. Throws FauteFichier or
// FauteLecture with a sentence that names the file and, for a text format, the line; `points` then holds one
// point at 0.
void LireFichier(std::vector<PointSimple>& points, const std::string& chemin, Etendue& etendue,
                 const std::string& extension, RapportLecture* rapport = nullptr);

// Writes the polylines (a change of code starts a new one) to a file, in one step; "dxf" and "dat" are known.
void EcrireFichier(const std::string& chemin, const std::string& extension,
                   const std::vector<PointSimple>& points);

// Writes two profiles that face each other, and the ruled surface that the wire cuts between them, as a 3D
// ".dxf" in mm: the root at Z = 0, the tip at Z = `ecartement`. Both must have the same number of points, one
// at least; a FauteInterne when they have not, a FauteFichier when the file can't be written.
void EcrireFichier3D(const std::string& chemin, const std::string& extension,
                     const std::vector<PointSimple>& emplanture, const std::vector<PointSimple>& saumon,
                     float ecartement);

// Rounds the stretch between two points. Given four points p0 to p3, replaces them by p0, p1, the points of a
// curve from p1 to p2, p2, p3. The curve is the centripetal Catmull-Rom cubic (C. Yuksel, S. Schaefer,
// J. Keyser, "Parameterization and applications of Catmull-Rom curves", 2011): with knots t0 = 0 and
// t(k+1) = t(k) + sqrt(|p(k+1) - p(k)|), its speed at p1 is
//   (p1 - p0)/(t1 - t0) - (p2 - p0)/(t2 - t0) + (p2 - p1)/(t2 - t1),
// likewise at p2; this choice of knots neither loops nor makes a cusp within a stretch. A neighbour that
// coincides with its end counts as standing as far off in t as the other end. The points stand at equal steps
// of t, so many that no chord is further than 0.01 mm from the curve. FauteInterne unless four are given.
void LissageSequence(std::vector<PointSimple>& points);

} // namespace tessarel
