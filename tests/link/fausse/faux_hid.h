// A USB device for tests, in place of the system's: what it does is told by these functions of the test.
#pragma once

#include <cstddef>
#include <cstdint>

struct FauxHid {
    bool branche;
    int ouvertures;
    int (*ecrire)(const std::uint8_t* octets, std::size_t nombre);
    int (*lire)(std::uint8_t* octets, std::size_t place, int delaiMs);
};

// The address of the device in use, as a decimal number: the library is loaded, not linked.
inline constexpr const char* VariableFauxHid = "TESSAREL_ESSAI_HID";
