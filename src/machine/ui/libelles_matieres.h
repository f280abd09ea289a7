// The words of the material window and of the import.
#pragma once

#include "ui/libelles.h"

#include <span>

namespace tessarel {

std::span<const Libelle> LibellesMatieres();
std::span<const Libelle> LibellesImporterMatiere();

} // namespace tessarel
