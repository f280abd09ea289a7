// Paths as a coordinates file .txt, which the program reads back.
#pragma once

#include "paths/points.h"

#include <span>
#include <string>

namespace tessarel {

// One line of text opens each path, then X colon Y in mm, one vertex a line, CR LF; six decimals at most. The
// write is all or nothing; FauteFichier when it fails.
void EcrireCoordonneesTexte(const std::string& chemin, std::span<const Sequence> sequences);

// One profile for the 3D modeler's import script, as an open line or as a face: the line "POLYLINE" or
// "FACE", a line X:Y:Z for each point in the order of the profile, in mm, then "END_POLYLINE" or "END_FACE",
// all with CR LF. FauteFichier when the write fails, and for a profile without points.
void EcrirePolyligne3D(const std::string& chemin, const Sequence& profil);
void EcrireFace3D(const std::string& chemin, const Sequence& profil);

} // namespace tessarel
