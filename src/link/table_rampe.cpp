// Builds the tables of ramp levels and searches in them.
#include "link/table_rampe.h"

#include "platform/erreurs.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessarel {

namespace {

constexpr double NiveauMax = NiveauxRampe - 1;

float Periode(int k, int f) {
    // 16711425 is 255 x 65535: level 0 has the longest period that 16 bits hold.
    constexpr double plusLongue = 16711425;
    const double frequence = k * (f * 10000.0 / NiveauMax) + (NiveauMax - k) * HorlogeRampe / plusLongue;
    return EnSimple(Arrondi(HorlogeRampe / frequence));
}

Rampe ConstruireRampe(int f) {
    Rampe rampe{};
    for (int k = 0; k < NiveauxRampe; ++k) rampe.periodes[static_cast<std::size_t>(k)] = Periode(k, f);
    for (std::size_t debut = 0; debut < NiveauxRampe; ++debut) {
        double somme = 0;
        for (std::size_t k = debut; k < NiveauxRampe; ++k) {
            somme += 1 / (2.0 * rampe.periodes[k]);
            rampe.cumuls[debut][k] = somme;
        }
    }
    return rampe;
}

} // namespace

const Rampe& RampeDeFrequence(int f) {
    // Each is built when a machine of its frequency is first used.
    switch (f) {
    case 1: {
        static const Rampe rampe = ConstruireRampe(1);
        return rampe;
    }
    case 2: {
        static const Rampe rampe = ConstruireRampe(2);
        return rampe;
    }
    case 3: {
        static const Rampe rampe = ConstruireRampe(3);
        return rampe;
    }
    case 4: {
        static const Rampe rampe = ConstruireRampe(4);
        return rampe;
    }
    case 5: {
        static const Rampe rampe = ConstruireRampe(5);
        return rampe;
    }
    default:
        throw FauteInterne("RampeDeFrequence: f = " + std::to_string(f));
    }
}

float TableRampe(int k, int f) {
    return RampeDeFrequence(f).periodes.at(static_cast<std::size_t>(k));
}

int NiveauLePlusProche(const Rampe& rampe, double periode) {
    const auto& periodes = rampe.periodes;
    const auto ecart = [&](std::size_t k) { return std::abs(periodes[k] - periode); };
    // Periods fall with the level, so the distance falls up to the last level at or above `periode` and rises
    // from the next one on: one of these two is nearest.
    const auto passage =
        std::partition_point(periodes.begin(), periodes.end(), [&](float p) { return p >= periode; });
    const auto apres = static_cast<std::size_t>(passage - periodes.begin());
    if (apres == 0) return 0;
    const std::size_t avant = apres - 1;
    if (apres < periodes.size() && ecart(apres) < ecart(avant)) return static_cast<int>(apres);
    // Of levels that are equally near, the lowest: those of the same period, or all where `periode` is so far
    // off that the distances no longer differ.
    const double plusCourt = ecart(avant);
    const auto premier = std::partition_point(periodes.begin(), passage, [&](const float& p) {
        return ecart(static_cast<std::size_t>(std::distance(periodes.data(), &p))) > plusCourt;
    });
    return static_cast<int>(premier - periodes.begin());
}

} // namespace tessarel
