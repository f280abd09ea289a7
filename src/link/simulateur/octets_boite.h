// Places and bits of the buffer as the box reads and fills it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessarel::simulateur {

// Byte 1.
inline constexpr std::uint8_t OctetFile = 'B';
inline constexpr std::uint8_t OctetSalve = 'D';
inline constexpr std::uint8_t OctetStatut = 'I';
inline constexpr std::uint8_t OctetMoteurs = 'M';
inline constexpr std::uint8_t OctetModeOrigine = 'O';
inline constexpr std::uint8_t OctetChauffe = 'P';
inline constexpr std::uint8_t OctetArret = 'S';
inline constexpr std::uint8_t OctetTable = 'T';

inline constexpr std::size_t PlaceCommande = 1;
inline constexpr std::size_t PlaceArg1 = 2;
inline constexpr std::size_t PlaceArg2 = 3;
inline constexpr std::size_t PlaceSalve = 2;  // of a frame in the command
inline constexpr std::size_t PlaceEcho = 4;   // of the heat
inline constexpr std::size_t PlaceNumero = 4; // 24 bits
inline constexpr std::size_t PlaceChauffeActive = 7;
inline constexpr std::size_t PlaceInterrupteurs = 8;
inline constexpr std::size_t PlaceFin = 12;
inline constexpr std::size_t PlaceTicksRestants = 13; // 32 bits

inline constexpr std::uint8_t SalveAcceptee = 1;
inline constexpr std::uint8_t BitSwitchsActifs = 2;
inline constexpr std::uint8_t BitChauffe = 16;
inline constexpr std::uint8_t BitManu = 1;
inline constexpr std::uint8_t BitOrigineOuverte = 2;
inline constexpr std::uint8_t BitFinCourseOuverte = 4;
inline constexpr std::uint8_t BitChauffeEteinte = 8;
inline constexpr std::uint8_t BitTerminee = 2;

} // namespace tessarel::simulateur
