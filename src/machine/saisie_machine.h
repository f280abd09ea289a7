// A machine as a user enters it, text by text: filled from a table, checked as it is typed, and turned into a
// table again with the corrections that the user is told of.
#pragma once

#include "machine/table_machine.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tessarel {

// One text per key of ClesMachine(): numbers as typed, booleans "1" or "0", letters as they are.
struct SaisieMachine {
    std::string Nom;
    std::map<std::string, std::string, std::less<>> Textes;

    // The text of a key, "" where there is none.
    [[nodiscard]] std::string Lire(std::string_view cle) const;
};

// The texts of a table, through the masks of the settings file.
SaisieMachine SaisieDepuisTable(const TableMachine& table);

// What is to be said beside a field while it is typed; nothing is shown or changed.
struct RemarqueSaisie {
    std::string Cle;
    std::string Texte;
    bool Bloquante = false; // the save will be refused; otherwise the value will be corrected, or is doubtful
};
std::vector<RemarqueSaisie> RemarquesSaisie(const SaisieMachine& saisie);

// Output numbers that serve two functions, each once, in ascending order.
std::vector<int> SortiesEnDouble(const SaisieMachine& saisie);

// Reads, corrects and checks all fields, with a box for each correction and for the refusal. The table has
// its computed fields; nothing is stored.
std::optional<TableMachine> ControlerSaisie(const SaisieMachine& saisie);

// Why a new machine may not have this name.
enum class RefusNom { Aucun, Vide, Reserve, Pris, TropLong, Impossible };
// Characters of the name of a machine that a user makes: a memory of the interface holds no more.
inline constexpr std::size_t LongueurNomMachine = 8;
// Looks at the name without the blanks at its ends: a memory would give it back without them.
RefusNom ExaminerNomMachine(const std::string& nom);
// The same with its box.
bool AccepterNomMachine(const std::string& nom);

} // namespace tessarel
