// A 2D cut as a G-code file.
#pragma once

#include "work2d/decoupe2d.h"

#include <string>

namespace tessarel {

struct ExportGcode2D {
    std::string contenu; // the whole file; empty after a refusal, whose box was shown
    std::string resume;  // second form of the summary, for the box at the end
    int dureeSecondes = 0;
    std::size_t mouvements = 0;
};

// Builds the file for `decoupe.SequenceDecoupe`. `cheminProjet` is empty when the project was not saved.
ExportGcode2D ConstruireGcode2D(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                                const TableMachine& table, const std::string& cheminProjet);

} // namespace tessarel
