// The film of a cut: the path of the wire in short steps, and where the wire is at a given second.
#pragma once

#include "paths/points.h"

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace tessarel {

inline constexpr float PasSimulation = 2; // mm, longest step of the wire on screen

// The same path with points put in by linear interpolation, so that no step is longer than `pas` mm; lengths
// and interpolated values are held in 32 bits. An inserted point runs as its segment does. It stops once it
// counts more than `maximum` points. A step that is no positive number leaves the path as it is.
Sequence RedecouperSequence(const Sequence& sequence, float pas,
                            std::size_t maximum = std::numeric_limits<std::size_t>::max());

// What the simulation plays.
struct Film2D {
    Sequence points;              // resampled
    std::vector<double> instants; // s from the start to each point; none for an empty path
    bool limite = false;          // cut off at PointsMaxDecoupe points, after the box that says so
};

// Resamples a cut and times it by the speed of each segment, from its first point. Above PointsMaxDecoupe
// points the told box shows and the film ends there.
Film2D PreparerFilm(const Sequence& SequenceDecoupe);

// Where the wire is.
struct PlaceFil {
    std::size_t point = 0; // last point passed, from 0
    double X = 0;          // mm
    double Y = 0;
    double instant = 0; // s
    bool rapide = false;
    float vitesse = 0; // mm/s of the segment under way
};
// At a second of the film, held to its ends.
PlaceFil PlaceAInstant(const Film2D& film, double instant);
// At a point of it, as the scroll bar gives it (from 0).
PlaceFil PlaceAuPoint(const Film2D& film, std::size_t point);

// Seconds of the whole film.
double DureeFilm(const Film2D& film);
// "0:07", "12:30", "1:02:03": whole seconds passed.
std::string TexteInstant(double secondes);

} // namespace tessarel
