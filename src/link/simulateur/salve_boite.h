// A motion frame as the box runs it: its bytes read, the steps done after each tick, and how long ticks last.
#pragma once

#include "link/salves.h"
#include "link/simulateur/memoires.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarel::simulateur {

inline constexpr std::uint8_t DrapeauRampe = 32;
inline constexpr std::uint8_t DrapeauPause = 64;
inline constexpr std::uint8_t MarqueFinDeListe = 128;
// All times of the box are counted in ticks of this clock.
inline constexpr double HorlogeBoite = 6000000; // Hz

struct SalveBoite {
    std::uint8_t drapeaux = 0;
    std::uint32_t ticks = 0;                              // NBRt
    std::array<std::uint32_t, NombreAxes> doublePas = {}; // twice the steps of each axis
    std::uint32_t rotatif = 0;
    std::uint8_t niveauDepart = 0; // ramp level; in a pause frame the heat
    std::uint8_t niveauFin = 0;
    std::uint32_t tickDeceleration = 0; // signed: below 0 slows down from the first tick

    [[nodiscard]] bool EstFinDeListe() const { return drapeaux == MarqueFinDeListe; }
    [[nodiscard]] bool EstPause() const { return (drapeaux & DrapeauPause) != 0; }
    // +1 forward, -1 backward.
    [[nodiscard]] int Sens(std::size_t axe) const { return ((drapeaux >> axe) & 1) != 0 ? 1 : -1; }
    // Steps of an axis; an odd count, which no program should send, is rounded up.
    [[nodiscard]] std::uint32_t Pas(std::size_t axe) const { return doublePas[axe] / 2 + doublePas[axe] % 2; }
};

SalveBoite LireSalve(std::span<const std::uint8_t, TailleSalve> octets);

// Steps that an axis has done after `tick` of the frame's ticks, 0 <= tick <= ticks, ticks > 0. They are
// spread evenly, the step due at half a step counting as done, so that tick = ticks gives exactly the last
// step: the reason why a frame carries twice the count.
inline std::uint32_t PasFaits(std::uint32_t doublePas, std::uint32_t tick, std::uint32_t ticks) {
    // Below 2^64: (2^32 - 1)^2 + 2^32 - 1.
    return static_cast<std::uint32_t>((std::uint64_t{doublePas} * tick + ticks) / (2 * std::uint64_t{ticks}));
}
// First tick after which `pas` steps are done, 1 <= pas <= doublePas / 2.
inline std::uint32_t TickDuPas(std::uint32_t doublePas, std::uint32_t pas, std::uint32_t ticks) {
    const std::uint64_t du = 2 * std::uint64_t{ticks} * pas - ticks;
    return static_cast<std::uint32_t>((du + doublePas - 1) / doublePas);
}

// How the ticks of the frame under way pass.
//
//   period   ______ level start                          A level lasts 2^(slope + 8) clocks; a tick keeps the
//                  \_____ +1                    _____ end      period of the level in which it began.
//                        \____ ...        _____/
//                             \__________/
//                       full rate        ^ deceleration tick
//
// The level rises from the start level to 255, stays, and from the deceleration tick on falls to the end
// level, where the last ticks run. Without the ramp flag every tick lasts 1 / frequency.
class DeroulementSalve {
public:
    // `frequence` 1 to 5 (tens of kHz), `pente` 0 to 15.
    void Preparer(const SalveBoite& salve, int frequence, int pente);
    // Lets `horloges` pass, but no more than it takes to reach tick `limite`; returns what passed.
    std::uint64_t Avancer(std::uint64_t horloges, std::uint32_t limite);
    [[nodiscard]] std::uint32_t Ticks() const { return m_ticks; }
    // Clocks that the whole frame takes.
    [[nodiscard]] std::uint64_t Duree() const;

private:
    struct Phase {
        std::uint32_t ticks;
        std::uint32_t periode; // clocks
    };
    // Up the levels, full rate, down the levels.
    static constexpr std::size_t PhasesMax = 2 * 256 + 2;

    void Ajouter(std::uint64_t ticks, std::uint32_t periode);
    void PreparerRampe(const SalveBoite& salve, int frequence, int pente);

    std::array<Phase, PhasesMax> m_phases;
    std::size_t m_nombre = 0;
    std::size_t m_phase = 0;
    std::uint32_t m_faitsDansPhase = 0;
    std::uint32_t m_ticks = 0;
    std::uint64_t m_depuisTick = 0; // clocks since the last tick
};

} // namespace tessarel::simulateur
