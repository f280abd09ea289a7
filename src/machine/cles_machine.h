// The keys of a [Machine_<name>] section, one row each: which field, how it is written, what a zero is mended
// to.
#pragma once

#include "machine/table_machine.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tessarel {

inline constexpr const char* PrefixeMachine = "Machine_";

template <typename T>
using AccesChamp = T& (*)(TableMachine&);
using ChampMachine =
    std::variant<AccesChamp<std::uint8_t>, AccesChamp<std::int16_t>, AccesChamp<std::int32_t>,
                 AccesChamp<float>, AccesChamp<bool>, AccesChamp<std::string>>;

// What is done with a key besides reading it as a rounded number and writing it.
enum class RegleCle : std::uint8_t {
    Ordinaire,
    PartieEntiere,  // decimals are cut off, not rounded
    ToujoursFausse, // told to the user when set, then cleared in the file
    EcriteSeulement // the same for all machines: never read back
};

struct CleMachine {
    const char* cle;
    ChampMachine champ;
    const char* masque = nullptr; // of a number
    const char* defaut = "";      // of a key that is absent
    // A value of 0 is replaced by this text, through the mask of the file; "=" stands for EcartementY1Y2.
    const char* siZero = nullptr;
    RegleCle regle = RegleCle::Ordinaire;
};

// In the order in which they are read, and so mended, and written. Those of the outputs, motors and G-code
// letters stand first; those of the geometry follow, which are read only when the former make sense.
std::span<const CleMachine> ClesMachine();
std::span<const CleMachine> ClesMoteurs();
std::span<const CleMachine> ClesGeometrie();
// The value of a key as the file has it.
std::string TexteDeCle(const CleMachine& cle, const TableMachine& table);
// The row of a key, by its exact name; nullptr where there is none.
const CleMachine* CleMachineDe(std::string_view cle);

// Puts the text of a key into its field, as the field's width takes it; FauteDepassement when it does not
// fit.
void PoserTexteDeCle(TableMachine& table, const CleMachine& cle, const std::string& texte);

} // namespace tessarel
