// A wing file (.cpx, .fc) as a design.
#pragma once

#include "design4x/projet_cpx.h"
#include "paths/aile_importee.h"

#include <string>

namespace tessarel {

// The record of a wing file: its two ends placed as the file says, span as spacing, block fields where the
// file has them and those of a new project where it has not. Z is written, everything measured. An end
// without points stays empty. `nom` becomes NomProjet.
ProjetCPX ProjetCPXDepuisAile(const AileImportee& aile, const std::string& nom);

} // namespace tessarel
