// The general parameters that every mode reads, kept in memory from start-up on.
#pragma once

#include <string>

namespace tessarel {

struct ParametresProgramme {
    std::string ModeNormalExpert = "Normal"; // "Normal" or "Expert"
    float DistNettoyage = 0.02F;             // mm
    std::string Langue = "Francais";
    int SaigneeMaxiSoft = 6; // mm
    std::string OngletActif = "C4X";
    float MargesInterieuresBlocX = 5; // mm
    float MargesInterieuresBlocY = 5;
    float EpaisseurLests = 30; // mm

    [[nodiscard]] bool ModeExpert() const { return ModeNormalExpert == "Expert"; }
};
// One per program; filled by the start-up.
extern ParametresProgramme Parametres;

} // namespace tessarel
