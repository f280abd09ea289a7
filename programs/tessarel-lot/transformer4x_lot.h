// A tool of the 4-axis design on a project file: read, changed, written to another file.
#pragma once

#include "design4x/projet_cpx.h"
#include "verbes.h"

#include <functional>
#include <memory>
#include <string>

namespace tessarel::lot {

// Changes a design. False when it refused, after the box that says why: nothing is then written.
using ChangementCPX = std::function<bool(ProjetCPX&)>;

struct Fichiers4x {
    std::string entree;
    std::string sortie;
};

// Reads the 4-axis project `entree`, has `outil` change it and writes it to `sortie`; what the design doesn't
// hold (view, comment, cut) passes as it is. Prints the point counts before and after. Returns an exit
// status.
int TransformerProjet4axes(const Fichiers4x& fichiers, const ChangementCPX& outil);

// Declares the arguments IN.tsr OUT.tsr of a verb.
std::shared_ptr<Fichiers4x> AjouterFichiers4x(CLI::App& verbe);

} // namespace tessarel::lot
