// The list of frames of a 2D run: the path in steps of the motors, a frame per segment, the heating pause
// before them; and where the wire stands when the run is stopped.
#pragma once

#include "link/salves.h"
#include "machine/table_machine.h"
#include "paths/points.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tessarel {

// A point of one end of the wire.
struct PointPas {
    std::int32_t X = 0; // steps
    std::int32_t Y = 0;
    float Vitesse = 0;       // mm/s
    std::int16_t Rapide = 0; // not 0: the segment that starts here is rapid
};
static_assert(sizeof(PointPas) == 16);

// Two ends of the same length. Element 0 is the machine's origin, 1 to n the vertices of the path: here the
// index is the number that users see.
struct TrajetPas {
    std::vector<PointPas> bout1;
    std::vector<PointPas> bout2;
};

// A list as it is streamed: element 0 the pause, 1 to n - 1 the segments, n the end mark. The box counts from
// 1: frame number = index + 1, so that frame k ends at vertex k.
using TableauSalves = std::vector<Salve>;

// The path in steps, both ends of the wire at the same place, each with its own axes. FauteDepassement when a
// position does not fit 32 bits; that includes a way in mm on an axis whose turn is worth 0 mm.
TrajetPas CalculerTrajetPas(std::span<const PointProfil> chemin, const TableMachine& table);

// Fills `salves` 1 to n; element 0 is left as it is. FauteDepassement when the way between two points does
// not fit 32 bits. A refused frame stays in the list with its status and does nothing.
void ConstruireSalves(const TrajetPas& trajet, const TableMachine& table, TableauSalves& salves);

struct ListeDeDecoupe {
    TrajetPas trajet;
    TableauSalves salves;
    float duree = 0; // s, the segments together, without the pause
};
// The whole list for a 2D path whose vertices have `X`, `Y`, `Vitesse` and `Rapide`. `chauffe` in percent.
// `depart`: where the two ends stand on the first vertex, in steps. After a stop they need not be where that
// vertex says, for the axes of the two ends round differently.
ListeDeDecoupe PreparerSalves(std::span<const PointProfil> chemin, std::int16_t secondesDeChauffe,
                              float chauffe, const TableMachine& table,
                              const std::optional<PasAxes>& depart = {});

// Seconds that the wire heats before a cut.
std::int16_t TempoChauffePourChauffe(float chauffe, const TableMachine& table);

// Part of a frame that is done, from the ticks it counts and those left; nothing when it counts none.
std::optional<double> FractionFaite(const Salve& salve, std::uint32_t ticksRestants);

// Steps of the four axes at a stop in frame `numero` (from 1, the pause is 1) with this many ticks left.
enum class LecturePosition { Faite, SansDuree, HorsListe };
struct PositionDuFil {
    LecturePosition lecture = LecturePosition::HorsListe;
    PasAxes pas = {};
};
PositionDuFil PositionAuStop(const TrajetPas& trajet, const TableauSalves& salves, std::int32_t numero,
                             std::uint32_t ticksRestants);

// Position in mm of steps of an axis, and back; 0 on an axis without steps per turn. Back: FauteDepassement.
double MillimetresDePas(const TableMachine& table, Axe axe, double pas);
std::int32_t PasDeMillimetres(const TableMachine& table, Axe axe, double mm);

} // namespace tessarel
