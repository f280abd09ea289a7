// The figures of the explanation documents, by the name that the text gives them.
#pragma once

#include "platform/dessin.h"

#include <string>

namespace tessarel::explications {

struct Figure {
    Dessin dessin;
    CadreDessin cadre;
};
// "fente": the wire in its slot; "courbe": kerf against speed; "tranches": the slice test. An unknown name
// gives an empty figure.
Figure FaireFigure(const std::string& nom, bool english);

} // namespace tessarel::explications
