// Fills the tables of sines and cosines.
#include "paths/tables_degres.h"

#include <cmath>

namespace tessarel {

namespace {

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
