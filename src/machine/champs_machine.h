// What each numeric field of a machine may hold: its unit, its limits, and what stands in for a zero.
#pragma once

#include "machine/table_machine.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tessarel {

// What becomes of a 0 that the user enters.
enum class RegleZero : std::uint8_t {
    Admis,
    ParUn,         // told, then 1: ratios and speeds that others are divided by
    ParDeuxCents,  // told, then 200: full steps per turn of the commonest motor
    CourseForcee,  // told, then 300 mm
    VitesseDecoupe // 4 mm/s without a word
};

struct ChampMachineSaisi {
    const char* cle; // key in the settings file
    double minimum;  // both ends allowed
    double maximum;
    const char* unite; // "mm", "mm/s", "%"...: the same in both languages; "" for a bare number
    bool entier = false;
    RegleZero zero = RegleZero::Admis;
};

// One row for each numeric key of ClesMachine() that the user enters, in the order of the window.
std::span<const ChampMachineSaisi> ChampsMachineSaisis();
// The row of a key; nullptr for a key that holds no number to enter.
const ChampMachineSaisi* ChampMachineSaisiDe(std::string_view cle);

// The rotary axis counts only where one of its signals has an output: without, its zeros are left alone.
bool AxeUtilise(const TableMachine& table, Axe axe);

} // namespace tessarel
