// Fills the tables of sines and cosines.
#include "paths/tables_degres.h"

#include <cmath>

namespace tessarel {

namespace {

// Deliberate: the fifteen digits that every angle of the program is computed with; the nearest double to pi
// would move the last digits of what is drawn from these tables.
constexpr double Pi = 3.14159265358979;

TablesDegres Remplir() {
    TablesDegres tables;
    for (std::size_t d = 0; d < tables.sinus.size(); ++d) {
        const double angle = (static_cast<double>(d) - 180) * Pi / 180;
        tables.sinus[d] = std::sin(angle);
        tables.cosinus[d] = std::cos(angle);
    }
    return tables;
}

} // namespace

const TablesDegres& TablesTrigonometriques() {
    static const TablesDegres tables = Remplir();
    return tables;
}

} // namespace tessarel
