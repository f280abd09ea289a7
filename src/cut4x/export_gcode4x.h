// A 4-axis cut as a G-code file.
#pragma once

#include "cut4x/troncons4x.h"

#include <cstddef>
#include <string>

namespace tessarel {

struct ExportGcode4axes {
    PreparationD4X preparation; // its Resultat tells what was refused, with its box
    std::string contenu;        // the whole file; empty after a refusal
    std::size_t mouvements = 0;
};

// Builds the file for PaireChariots; the frames are built too, and can stop it. `cheminProjet` is empty when
// the project was not saved.
ExportGcode4axes ConstruireGcode4axes(const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                                      const std::string& cheminProjet);

// The box that ends an export, once the file is written.
void AnnoncerExportGcode4axes(const std::string& chemin, const ResumeGcode& resume);

} // namespace tessarel
