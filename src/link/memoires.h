// The three tables that the box keeps, written and read.
//
// A table crosses the link as three messages, T in byte 1, a sub-code in byte 2, the memory in byte 3; pairs
// are low byte first.
//   part 1, sub-code 4 to write, 3 to read with the same bytes in the reply
//      4 to 11   name, 8 characters of one byte, blanks on the right
//     12 to 16   CodesEntrees
//     17 to 26   CodeDefinitionSortie of outputs 1 to 10
//     27         Frequence / 10000
//     28         PenteAcceleration
//     29         PWMmaxi0to255
//     30         DelaiMoteursOff
//     31         bit 0 SwitchsActifs, bit 1 OrientationX is 1, bit 2 InversionSignalMoteurOnOff
//     32, 33     4 and 0
//   part 2, sub-code 6: five pairs each of steps per mm (4 to 13), of rate without ramp (14 to 23) and with
//   ramp
//     (24 to 33), in steps per second, in the order X1, Y1, X2, Y2, A; A is always 0
//   part 3, sub-code 8: five pairs of steps from the switch to the origin (4 to 13), A always 0
// Example, "(Defaut)" (400 × 32 steps for 40 mm, 6 and 10 mm/s): X1 has 320 steps per mm, 40 01 in bytes 4
// and 5; 6 × 320 = 1920 steps per second, 80 07 in 14 and 15; 3200, 80 0C in 24 and 25.
#pragma once

#include "machine/table_machine.h"
#include "platform/zelkocom.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tessarel {

inline constexpr int NombreMemoires = 3;
// Characters of a name in a memory: a longer one is cut, and then never matches.
inline constexpr std::size_t LongueurNomMemoire = 8;

// What the memories held when they were last read.
extern std::array<TableMachine, NombreMemoires> MemoiresZelko;

// The three messages that store a table.
struct MessagesTable {
    Tampon Partie1{};
    Tampon Partie2{};
    Tampon Partie3{};
};
// Composes them. Every product is rounded to 32 bits and goes out by its low 16 bits: above 65535 steps per
// second it wraps. Deliberate: it is how the box's format stands. FauteDepassement where a product does not
// fit 32 bits, or a field that goes out as one byte does not fit it.
MessagesTable ComposerMessagesTable(const TableMachine& table, int memoire);
// Fills the fields that part 1 carries from such a message; the other fields stay.
void LirePartie1(const Tampon& tampon, TableMachine& enregistrement);

// Steps per mm of an axis, X1 to Y2: Round(MicroPas × PasParTourMoteur / MmParTour), 0 where MmParTour is 0.
double PasParMm(const TableMachine& table, std::size_t axe);

// Writes TableINI into a memory, 0 to 2, and makes it the active table; NumeroMemoire takes its number. A
// failure is told by its box, and nothing is sent after it: the memory may then hold a mix of old and new. A
// table whose values do not fit is told and nothing is sent at all.
bool EcrireTableDansZelkoEtChargerEnRam(int memoire);

// Fills a record from a memory. Where the exchange fails, told by its box, the record is empty, so that
// nothing old can match.
bool LireMemoireZelko(TableMachine& enregistrement, int memoire);

// T 1: the memory becomes the active table. No box. True when the exchange succeeded.
bool ChargerMemoireEnRam(int memoire);

} // namespace tessarel
