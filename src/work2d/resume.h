// Duration of a 2D cut and the summary told of it.
#pragma once

#include "work2d/decoupe2d.h"

#include <string>

namespace tessarel {

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
