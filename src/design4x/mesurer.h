// Distances between marked points, as the status bar tells them.
#pragma once

#include "design4x/projet_cpx.h"

#include <string>

namespace tessarel {

// The text for the points that carry the flag `mode`: with one on each side their distance in space, with two
// on a side theirs in its plane; empty in any other case.
std::string cmdMesurerCPX(const ProjetCPX& projet, std::uint16_t mode);

} // namespace tessarel
