// Paths as a coordinates file .txt, which the program reads back.
#pragma once

#include "paths/points.h"

#include <span>
#include <string>

namespace tessarel {

// One line of text opens each path, then X colon Y in mm, one vertex a line, CR LF; six decimals at most. The
// write is all or nothing; FauteFichier when it fails.
void EcrireCoordonneesTexte(const std::string& chemin, std::span<const Sequence> sequences);

} // namespace tessarel
