// The slice test that measures a kerf: the wire cuts two slices of foam, whose thickness tells what the wire
// took away.
//
//             d0
//      ┌ ─ ─ ─ ─ ─ ─ ─ ┐                 the wire starts at o, goes up by d2, cuts along d0,
//      2 ════════════▶                    goes down by d1, cuts back, down again, cuts again:
//   d2 │ ▒ slice 1 ▒▒ │ d1     Y = d1     two slices were asked to be Y = d1 thick
//      ◀════════════ 3                    and are E thick: the kerf is Y - E
//      │ ▒ slice 2 ▒▒ │ d1
//      o ════════════▶
#pragma once

#include "machine/table_machine.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace tessarel {

// 0: length of a pass in X; 1: thickness asked for, in Y; 2: height of the first pass above the start. mm.
using DimensionsTranches = std::array<double, 3>;

inline constexpr std::size_t NombreMouvementsTranches = 6;

// A move of both wire ends, mm.
struct DeplacementFil {
    double X = 0;
    double Y = 0;
};
// The move of a button, 0 to 5; nothing moves for any other.
DeplacementFil DeplacementTranche(std::size_t mouvement, const DimensionsTranches& dimensions);
// In which order the buttons cut two slices and bring the wire back.
std::span<const std::size_t> OrdreDesTranches();

// Which speed a move has, in the order of the option buttons.
enum class VitesseTranche : std::uint8_t { V = 0, VSur2 = 1, Rapide = 2 };
float VitesseDuMouvement(VitesseTranche choix, float v, const TableMachine& table);

enum class RefusTranche { Aucun, Vitesse, Distance };
// The speed must be above 0 and can start without a ramp; the dimension that the move uses must be above 0
// and within the travel of its axis.
RefusTranche ExaminerTranche(std::size_t mouvement, const DimensionsTranches& dimensions, float v,
                             const TableMachine& table);
// The same with its box; true when the move may go.
bool AccepterTranche(std::size_t mouvement, const DimensionsTranches& dimensions, float v,
                     const TableMachine& table);

// Steps of the four axes, by Axe, of a move given in mm for each end; an axis without a ratio does not move.
std::array<std::int32_t, 4> PasDuDeplacement(const DeplacementFil& fin1, const DeplacementFil& fin2,
                                             const TableMachine& table);

// What the wire took away: thickness asked for less thickness obtained, mm; and " Saignée = Y - E = 1.2 mm".
double SaigneeMesuree(double epaisseurDemandee, double epaisseurObtenue);
std::string TexteSaignee(double saignee);

} // namespace tessarel
