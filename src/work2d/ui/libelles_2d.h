// The words of the 2D window in both languages.
#pragma once

#include "ui/libelles.h"

#include <span>

namespace tessarel {

std::span<const Libelle> LibellesTessarel2D();

} // namespace tessarel
