// Sines and cosines of whole degrees, computed once.
#pragma once

#include <array>

namespace tessarel {

// Deliberate: the fifteen digits that every angle of the program is computed with; the nearest double to pi
// would move the last digits of what is drawn and measured with it.
inline constexpr double Pi = 3.14159265358979;

// Entry d, 0 to 360, holds the value for (d - 180) degrees.
struct TablesDegres {
    std::array<double, 361> sinus = {};
    std::array<double, 361> cosinus = {};
};

// The tables; the first call, made at start-up, fills them.
const TablesDegres& TablesTrigonometriques();

} // namespace tessarel
