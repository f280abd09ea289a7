// What the virtual box keeps of machines: three memories as raw bytes of the wire, and the table that runs.
#pragma once

#include "platform/zelkocom.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace tessarel::simulateur {

inline constexpr std::size_t NombreMemoires = 3;
inline constexpr std::size_t NombreAxes = 4; // X1, Y1, X2, Y2
// A part of a table fills bytes 4 to 33 of the buffer.
inline constexpr std::size_t DebutPartie = 4;
inline constexpr std::size_t TaillePartie = 30;
inline constexpr std::uint8_t OctetVierge = 0xFF; // of a flash memory that was never written

using Partie = std::array<std::uint8_t, TaillePartie>;

// One memory: part 1 (name, outputs, frequency...), part 2 (steps per mm, speeds), part 3 (distances from
// switch to origin), as they crossed the wire.
struct MemoireBoite {
    std::array<Partie, 3> parties;

    MemoireBoite() {
        for (Partie& p : parties) p.fill(OctetVierge);
    }
    bool operator==(const MemoireBoite&) const = default;
};

using MemoiresBoite = std::array<MemoireBoite, NombreMemoires>;

// What the box reads out of a memory when it is loaded to RAM.
struct TableRam {
    std::string nom;      // blanks taken off
    int frequence = 0;    // tens of kHz, 1 to 5; 0 where the memory holds none of these: nothing can move
    int pente = 0;        // 0 to 15
    int pwmMax = 255;     // 0 to 255
    int delaiMoteurs = 0; // 0: motors are never switched off by themselves
    bool switchs = false; // the machine has switches, and they stop motion
    std::array<int, NombreAxes> pasParMm = {};
    std::array<int, NombreAxes> pasOrigine = {};  // from switch to origin
    std::array<bool, NombreAxes> axePresent = {}; // some output carries its steps
    bool operator==(const TableRam&) const = default;
};

bool EstVierge(const MemoireBoite& memoire);
// The name of a memory without its blanks; empty for a blank memory.
std::string NomMemoire(const MemoireBoite& memoire);
TableRam LireTable(const MemoireBoite& memoire);

} // namespace tessarel::simulateur
