// Motion frames: one straight segment of the four axes, with its duration and its ramps, as the box runs it.
//
// A frame is 31 bytes on the wire, least significant byte first:
//
//   offset width
//    0     1    flags: 1 X1 forward, 2 Y1 forward, 4 X2 forward, 8 Y2 forward, 32 has a ramp, 64 pause;
//               128 alone is the mark at the end of a list
//    1     4    NBRt, ticks of the frame at the interpolator's frequency
//    5     4    2 x steps of X1, without sign
//    9     4    2 x steps of Y1
//   13     4    2 x steps of X2
//   17     4    2 x steps of Y2
//   21     4    rotary axis, 0
//   25     1    ramp level at the start; in a pause, the heat as PWM value
//   26     1    ramp level at the end
//   27     4    tick at which deceleration begins
//
// In memory follow, never sent: offset 31 a spare byte, 32 the duration in seconds (Single), 36 the status of
// the builder, 38 two spare bytes: 40 in all.
//
// Worked example: 50 kHz, slope 6, 40 mm and 12800 steps per turn (320 steps/mm), X1 +3200 steps = 10 mm at 4
// mm/s without ramp. 10 / 4 = 2.5 s, 125000 ticks = 0x0001E848; 6400 = 0x00001900; zero counts are forward:
//   0F  48 E8 01 00  00 19 00 00  00 00 00 00  00 00 00 00  00 00 00 00  00 00 00 00  00 00  00 00 00 00
// The pause of 2 s at 65 % before it: 100000 ticks = 0x000186A0, 65 x 2.55 = 165.75, heat 166 = 0xA6:
//   40  A0 86 01 00  (20 bytes 0)  A6 00  00 00 00 00
// A ramp, 6 -> 8 -> 6 mm/s over 4 mm of X1 (1280 steps): 4 / 8 = 0.5 s, 25000 ticks = 0x61A8, 2560 = 0x0A00.
// The period of 8/6 x 120 = 160 clock ticks stands at level 191 = 0xBF. Levels 191 to 254 at slope 2^15 take
// 2^15 x (sum of 1 / (2 x period)) = 7629.91 ticks, so that deceleration begins at 25000 - 7629 = 17371 =
// 0x43DB:
//   2F  A8 61 00 00  00 0A 00 00  (16 bytes 0)  BF BF  DB 43 00 00
#pragma once

#include "link/octets.h"
#include "link/table_rampe.h"
#include "machine/table_machine.h"
#include "platform/zelkocom.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarel {

// Bytes of a frame that are sent.
inline constexpr std::size_t TailleSalve = 31;

enum DrapeauSalve : std::uint8_t {
    SalveAvantX1 = 1,
    SalveAvantY1 = 2,
    SalveAvantX2 = 4,
    SalveAvantY2 = 8,
    SalveRampe = 32,
    SalvePause = 64,
    SalveFin = 128,
};

// Where the fields of a frame stand.
inline constexpr std::size_t SalvePositionDrapeaux = 0;
inline constexpr std::size_t SalvePositionNBRt = 1;
inline constexpr std::size_t SalvePositionPas = 5; // by Axe, 4 bytes each
inline constexpr std::size_t SalvePositionNiveauDepart = 25;
inline constexpr std::size_t SalvePositionChauffe = 25; // in a pause
inline constexpr std::size_t SalvePositionNiveauFin = 26;
inline constexpr std::size_t SalvePositionDeceleration = 27;

// Results of the builder. After any but StatutSucces the frame does nothing.
inline constexpr std::int16_t SalveFrequenceInconnue = 100;
inline constexpr std::int16_t SalvePenteTropForte = 101;
inline constexpr std::int16_t SalveVitesseNulle = 102;
inline constexpr std::int16_t SalveCalculImpossible = -400;

struct Salve {
    std::array<std::uint8_t, 32> octets = {}; // the last one is not sent
    float Duree = 0;                          // s, estimated
    std::int16_t Statut = StatutSucces;
    std::uint16_t reserve = 0;
    friend bool operator==(const Salve&, const Salve&) = default;
};
static_assert(sizeof(Salve) == 40 && offsetof(Salve, Duree) == 32 && offsetof(Salve, Statut) == 36);

// NBRt of a frame; deceleration tick, in two's complement when it lies before the frame's start.
inline std::uint32_t NBRtDeSalve(const Salve& salve) {
    return LireOctets32(salve.octets, SalvePositionNBRt);
}
inline bool EstSalvePause(const Salve& salve) {
    return (salve.octets[SalvePositionDrapeaux] & SalvePause) != 0;
}
inline bool EstSalveFin(const Salve& salve) {
    return salve.octets[SalvePositionDrapeaux] == SalveFin;
}

// What the builder needs of a machine, made once for any number of frames.
struct ParametresSalve {
    const Rampe* rampe = nullptr;          // of the frequency; null when that is none of the five
    std::int32_t frequence = 0;            // Hz
    std::uint8_t PenteAcceleration = 0;    // as in the machine; above 15 is refused
    double pente = 0;                      // 2 to the power PenteAcceleration + 9
    std::array<double, 4> MmParTour = {};  // by Axe
    std::array<double, 4> PasParTour = {}; // 0: the axis doesn't move, it counts 0 mm and 0 steps
};
ParametresSalve ParametresDeSalve(const TableMachine& table);

// Signed step counts of a move, by Axe.
using PasAxes = std::array<std::int32_t, 4>;

// The frame of a straight move. Speeds in mm/s: from `VitesseDepart` the longer end of the wire ramps to
// `VitesseCible` and at last to `VitesseFin`; there is a ramp only where the target is above one of the
// others. Never throws: what is refused stands in Statut.
Salve ConstruireSalve(const ParametresSalve& parametres, float VitesseDepart, float VitesseCible,
                      float VitesseFin, const PasAxes& pas);

// A pause at rest with the wire heated to `chauffe` percent: the head of every list. The percent is not
// rounded first; the PWM value is held between 0 and 255.
Salve ConstruireSalveTempo(const ParametresSalve& parametres, std::int16_t secondes, float chauffe);

// The mark at the end of a list.
Salve ConstruireSalveFin();

// Clears the buffer and puts command and frame into it.
void ChargerSalveDansTampon(Tampon& tampon, const Salve& salve);
// The same; gives NBRt.
std::int32_t ChargerSalveEtDuree(Tampon& tampon, const Salve& salve);

} // namespace tessarel
