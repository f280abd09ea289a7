// Pictures into files.
#pragma once

#include "platform/dessin.h"

#include <string>

namespace tessarel {

// Paints `dessin` to scale into a PNG of `largeur` x `hauteur` pixels that shows the whole of `cadre`, on
// `fond`. Works without a display. FauteFichier when the file can't be written; the write is all or nothing.
void EcrireApercuPng(const std::string& chemin, const Dessin& dessin, const CadreDessin& cadre, int largeur,
                     int hauteur, Couleur fond);

} // namespace tessarel
