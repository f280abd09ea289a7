// The kerf offset of a 2D path.
#pragma once

#include "paths/points.h"

namespace tessarel {

// `SequenceAssemblee` shifted by `decalage` mm, positive to the right of the direction of travel; each vertex
// gets the cutting speed. Ends are shifted along the normal of their only segment, also where a contour
// closes; corners are sharp whatever their reach, and loops stay. With 0 a copy, point for point; so too for
// a single point, which has no direction. Two consecutive points within 0.01 mm on both axes: the box is
// shown and the result is empty.
Sequence DecalerSequenceTS2D(const Sequence& SequenceAssemblee, float decalage, float vitesseDecoupe);

} // namespace tessarel
