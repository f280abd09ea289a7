// A 4-axis project of the batch program: read, worked on, written.
#pragma once

#include "design4x/conception_cpx.h"
#include "paths/projets.h"
#include "progression.h"

#include <optional>
#include <string>

namespace tessarel::lot {

// The project as its file has it, and the design made of it.
struct Projet4x {
    Projet4axes stocke;
    ConceptionCPX conception;
};

// Nothing after a box: a file that can't be read, or that is no 4-axis project.
std::optional<Projet4x> OuvrirProjet4x(const std::string& fichier, Progression& progression);

// False after a box: an output that is an input, one that is no .tsr, or that the user keeps.
bool SortieProjet4xPermise(const std::string& sortie, const std::vector<std::string>& entrees);

// Writes the design with the rest of the project as it was read. False after a box.
bool EcrireProjet4x(Projet4x& projet, const std::string& sortie, Progression& progression);

// "121 / 98 points, inégaux": the line of a summary that tells the counts.
std::string TexteComptes4x(const ProjetCPX& projet);

} // namespace tessarel::lot
