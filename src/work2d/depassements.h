// The limit check of a 2D cut: a path clipped to the useful zone of the machine.
#pragma once

#include "machine/table_machine.h"
#include "paths/points.h"

namespace tessarel {

// Codes left in `Drapeaux` of the vertices where a path crosses a border.
enum CodeBord : std::uint8_t { BordGauche = 1, BordHaut = 2, BordDroit = 3, BordBas = 4 };

// X from MargeOrigineBloc to CourseX, Y from MargeFilPlateau to CourseY, in the 32 bits of the check.
struct ZoneUtile {
    float xMin = 0;
    float xMax = 0;
    float yMin = 0;
    float yMax = 0;
};
ZoneUtile ZoneUtileMachine(const TableMachine& table);

// Clips in place and computes the bounds; true when a vertex was dropped (`DepassementDetecte`). The box is
// the caller's, who shows it once. A path wholly inside is left untouched; one wholly outside comes back
// empty.
bool ControleDepassementTS2D(Sequence& sequence, const TableMachine& table);

} // namespace tessarel
