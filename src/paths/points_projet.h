// The point lines of a project section, "<i>=<X>:<Y>:<Drapeaux>", as a sequence.
#pragma once

#include "paths/points.h"
#include "paths/texte_projet.h"

#include <string_view>

namespace tessarel {

// Sequence of a section: the points 1 to `NombrePoints`, in whatever order their lines stand; the first line
// of a number counts, lines beyond the count are ignored. Bounds are computed. FauteLecture for a count above
// the lines that are there (nothing is allocated for it), and for a line that is no point.
Sequence LireSequenceProjet(const TexteProjet& texte, std::string_view section);

} // namespace tessarel
