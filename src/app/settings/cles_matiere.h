// The keys of a [Matiere_<name>] section, in the order in which they are written.
#pragma once

#include <array>
#include <cstddef>

namespace tessarel {

inline constexpr const char* PrefixeMatiere = "Matiere_";

struct CleNombreMatiere {
    const char* cle;
    const char* masque;
};

// Heat in percent, speed in mm/s, kerf at the speed and at half of it in mm.
enum NombreMatiere : std::size_t { NombreChauffe, NombreVitesse, NombreSaigneeVD, NombreSaigneeVDsur2 };
inline constexpr std::array<CleNombreMatiere, 4> ClesMatiere = {{
    {"ChauffeDecoupe", "###0.0"},
    {"VitesseDecoupe", "#####0.0#"},
    {"SaigneeVD", "#####0.0#"},
    {"SaigneeVDsur2", "#####0.0#"},
}};
// Owner machine, a text; written last.
inline constexpr const char* CleMachineMatiere = "Machine";

} // namespace tessarel
