// The summary told of a 2D cut.
#pragma once

#include "work2d/decoupe2d.h"

#include <string>

namespace tessarel {

// "1 h. 0 min. 5 s.": fields left out up to the first that is not zero; the seconds always stand.
std::string TexteDureeResume(int secondes);

inline constexpr int DureeInconnue = -1;

// What the cut tab says of a cut.
struct ResumeDecoupe2D {
    int dureeSecondes = 0; // of the motion, without the heating; DureeInconnue
    float vitesse = 0;     // mm/s
    float chauffe = 0;     // percent
    float decalage = 0;    // mm, signed
    float saignee = 0;     // mm
    std::string texte;     // label of the cut tab
};

// `duree`: that of the frames of the motion together, s; below 0 where it could not be computed.
ResumeDecoupe2D PreparerResume(float duree, const OptionsDecoupe2D& options, const TableMachine& table,
                               const std::string& nomMatiere);

// The summary of a cut whose heat was changed under way, percent; the rest as it was prepared.
void ChangerChauffe(ResumeDecoupe2D& resume, float chauffe, const OptionsDecoupe2D& options,
                    const std::string& nomMatiere);

} // namespace tessarel
