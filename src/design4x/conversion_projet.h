// Between a 4-axis project as a file holds it and the record that is designed and cut.
#pragma once

#include "design4x/projet_cpx.h"
#include "paths/projets.h"

#include <string>

namespace tessarel {

// The record of a project that was read: points with their flags, spacing and block through 32 bits, Z
// written, everything measured, the point counters on the first points. `nom` becomes NomProjet. View angles,
// comment and the cut parameters have no place in the record: they stay in `projet`.
ProjetCPX ProjetCPXDepuis(const Projet4axes& projet, const std::string& nom);

// Puts what is designed into the project to be written: both profiles with their boxes, spacing and block, a
// length of 32 bits as its decimal value of seven digits (40.1, and not 40.099998); the rest of `projet`
// stays as it is.
void PorterDansProjet4axes(const ProjetCPX& conception, Projet4axes& projet);

} // namespace tessarel
