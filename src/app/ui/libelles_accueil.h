// The words of the windows that stand before all work: the splash and the change list.
#pragma once

#include "ui/libelles.h"

#include <span>

namespace tessarel {

std::span<const Libelle> LibellesSplash();
std::span<const Libelle> LibellesListeModifications();

} // namespace tessarel
