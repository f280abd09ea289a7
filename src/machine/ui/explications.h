// The explanation documents on the kerf, one per language.
#pragma once

#include "app/texts/textes.h"

#include <QString>

namespace tessarel {

// Path of the document of a language: beside the program, else in its shared folder; empty where it is in
// neither.
QString CheminExplicationsMatiere(Langue langue);
// Opens it with the desktop's reader; a box where it is missing.
void OuvrirExplicationsMatiere(Langue langue);

} // namespace tessarel
