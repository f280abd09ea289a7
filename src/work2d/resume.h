// Duration of a 2D cut and the summary told of it.
#pragma once

#include "work2d/decoupe2d.h"

#include <string>

namespace tessarel {

// "1 h. 0 min. 5 s.": fields left out up to the first that is not zero; the seconds always stand.
std::string TexteDureeResume(int secondes);

// What the summary window and the batch program say.
struct ResumeDecoupe2D {
    int dureeSecondes = 0;
    float vitesse = 0;  // mm/s
    float chauffe = 0;  // percent
    float decalage = 0; // mm, signed
    float saignee = 0;  // mm
    std::string texte;  // label of the cut tab
};

ResumeDecoupe2D PreparerResume(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                               const TableMachine& table, const std::string& nomMatiere);

} // namespace tessarel
