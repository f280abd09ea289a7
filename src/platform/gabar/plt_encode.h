// Encoded polylines of plotter files: coordinates packed into characters.
#pragma once

#include "plt_dessin.h"
#include "plt_texte.h"

namespace tessarel {

// PE, behind its letters: moves and strokes up to its semicolon. FauteLecture when there is none.
void TracerPE(LecteurPlt& l, DessinPlt& d);

} // namespace tessarel
