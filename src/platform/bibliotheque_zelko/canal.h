// What the library can speak through: a real box on USB, or a virtual one on a socket.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>

namespace tessarel {

// Results, as the program knows them.
inline constexpr std::int32_t CanalSucces = 1;
inline constexpr std::int32_t CanalIntrouvable = -200;
inline constexpr std::int32_t CanalFerme = -201; // it is there and can't be opened
inline constexpr std::int32_t CanalEnvoi = -202;
inline constexpr std::int32_t CanalReception = -203;  // no reply in time, or the box went away
inline constexpr std::int32_t CanalIncoherent = -204; // a reply of another size

// A report: number 0, which is the only one, and 64 bytes.
inline constexpr std::size_t TailleRapport = 65;
using Rapport = std::array<std::uint8_t, TailleRapport>;

// A reply that comes later than this is none.
inline constexpr std::chrono::milliseconds DelaiReponse{1000};

using Horodatage = std::chrono::steady_clock::time_point;

// Milliseconds until then, 0 when it has passed.
inline int MillisecondesJusqua(Horodatage fin) {
    const auto reste = std::chrono::ceil<std::chrono::milliseconds>(fin - std::chrono::steady_clock::now());
    return reste.count() > 0 ? static_cast<int>(reste.count()) : 0;
}

} // namespace tessarel
