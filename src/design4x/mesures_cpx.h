// Every measure of a design under its told name, for programs that read them.
#pragma once

#include "design4x/projet_cpx.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tessarel {

// A value of the record. Lengths are mm, indices count from 1 (0: the profile has no point).
struct MesureCPX {
    std::string nom; // "CordeE", "IndiceXminS", "lblCorde_E"
    std::variant<std::string, std::int32_t, float> valeur;
};

// File names, counts, extents, chords, wing measures and block fields in the order of the record, root before
// tip; then the labels of the block window.
std::vector<MesureCPX> MesuresCPX(const ProjetCPX& projet);

} // namespace tessarel
