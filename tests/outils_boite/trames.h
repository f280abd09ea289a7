// Motion frames written by hand, byte by byte, for tests that do not trust the builder.
#pragma once

#include "platform/zelkocom.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tessarel::essais {

struct TrameEssai {
    unsigned drapeaux = 0;
    std::uint32_t ticks = 0;
    std::array<std::uint32_t, 4> pas = {}; // single steps; the wire carries twice as many
    unsigned niveauDepart = 0;
    unsigned niveauFin = 0;
    std::int64_t deceleration = 0;
};

// The command D that carries it.
inline Tampon EnTampon(const TrameEssai& trame) {
    Tampon t = {};
    std::size_t i = 1;
    const auto octet = [&](std::uint64_t v) { t[i++] = static_cast<std::uint8_t>(v & 0xFFU); };
    const auto mot = [&](std::uint64_t v) {
        for (int k = 0; k < 4; ++k) octet(v >> (8 * k));
    };
    octet('D');
    octet(trame.drapeaux);
    mot(trame.ticks);
    for (const std::uint32_t pas : trame.pas) mot(2 * std::uint64_t{pas});
    mot(0);
    octet(trame.niveauDepart);
    octet(trame.niveauFin);
    mot(static_cast<std::uint64_t>(trame.deceleration));
    return t;
}

} // namespace tessarel::essais
