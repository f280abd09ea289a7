// Whole numbers in and out of the little-endian bytes of the wire.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarel {

inline void EcrireOctets32(std::span<std::uint8_t> octets, std::size_t position, std::uint32_t valeur) {
    for (std::size_t i = 0; i < 4; ++i) octets[position + i] = static_cast<std::uint8_t>(valeur >> (8 * i));
}

inline std::uint32_t LireOctets32(std::span<const std::uint8_t> octets, std::size_t position) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 0; i < 4; ++i) valeur |= static_cast<std::uint32_t>(octets[position + i]) << (8 * i);
    return valeur;
}

} // namespace tessarel
