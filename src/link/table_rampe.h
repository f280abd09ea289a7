// The periods of the ramp levels, on which program and box must agree, and the sums over them that a ramp
// needs.
#pragma once

#include <array>
#include <cstddef>

namespace tessarel {

// Ramp levels 0 (slowest) to 255 (full rate).
inline constexpr int NiveauxRampe = 256;
// Interpolator frequencies are 1 to 5 times 10000 Hz.
inline constexpr int FrequencesRampe = 5;
// Clock of the box, Hz: periods are counted in its ticks.
inline constexpr double HorlogeRampe = 6000000;

// What is known of one frequency; built once, lives to the program's end.
struct Rampe {
    // Period of the interpolation step at each level, in ticks of the 6 MHz clock. A whole number that never
    // rises with the level; the highest levels of 40 and 50 kHz share theirs with a neighbour.
    std::array<float, NiveauxRampe> periodes;
    // cumuls[d][k]: sum of 1 / (2 x period) over the levels d to k, added in that order; 0 where k < d. Times
    // the slope, a power of two and so without a rounding, it is the number of interpolator ticks that a ramp
    // spends on these levels.
    std::array<std::array<double, NiveauxRampe>, NiveauxRampe> cumuls;
};

// `f` is the frequency over 10000, 1 to 5; any other is a broken invariant.
const Rampe& RampeDeFrequence(int f);

// One cell of the table: level k, 0 to 255, frequency f x 10000 Hz.
float TableRampe(int k, int f);

// The level whose period is nearest to `periode`; of two as near, the lower one. What a scan of levels 0 to
// 255 gives that takes a level only when it is strictly nearer, found without the scan.
int NiveauLePlusProche(const Rampe& rampe, double periode);

} // namespace tessarel
