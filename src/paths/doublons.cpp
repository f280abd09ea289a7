// Repeated paths, found by a fingerprint and confirmed vertex by vertex.
#include "paths/doublons.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace tessarel {

namespace {

bool MemePlace(const PointProfil& a, const PointProfil& b) {
    return a.X == b.X && a.Y == b.Y;
}

std::uint64_t Melanger(std::uint64_t valeur) {
    valeur ^= valeur >> 30U;
    valeur *= 0xbf58476d1ce4e5b9U;
    valeur ^= valeur >> 27U;
    valeur *= 0x94d049bb133111ebU;
    return valeur ^ (valeur >> 31U);
}

// The same for both directions of walking: a polynomial over the vertices from each end, put together by a
// sum.
std::uint64_t Empreinte(const Sequence& sequence) {
    constexpr std::uint64_t base = 0x9e3779b97f4a7c15U;
    std::uint64_t depuisDebut = 0;
    std::uint64_t depuisFin = 0;
    std::uint64_t puissance = 1;
    for (const PointProfil& p : sequence.Points) {
        // Adding 0 makes one value of the two zeros, which compare equal.
        const std::uint64_t x = std::bit_cast<std::uint64_t>(p.X + 0.0);
        const std::uint64_t sommet = Melanger(x ^ Melanger(std::bit_cast<std::uint64_t>(p.Y + 0.0)));
        depuisDebut = depuisDebut * base + sommet;
        depuisFin += sommet * puissance;
        puissance *= base;
    }
    return Melanger(depuisDebut) + Melanger(depuisFin) + sequence.Points.size();
}

bool MemesSommets(const Sequence& a, const Sequence& b) {
    return std::equal(a.Points.begin(), a.Points.end(), b.Points.begin(), b.Points.end(), MemePlace) ||
           std::equal(a.Points.begin(), a.Points.end(), b.Points.rbegin(), b.Points.rend(), MemePlace);
}

} // namespace

std::size_t CompterDoublons(std::span<const Sequence> sequences) {
    // The first of its kind by fingerprint: two kinds with one fingerprint are kept apart by the next free
    // one.
    std::unordered_map<std::uint64_t, const Sequence*> premieres;
    premieres.reserve(sequences.size());
    std::size_t doublons = 0;
    for (const Sequence& sequence : sequences) {
        if (sequence.Points.size() < 2) continue;
        std::uint64_t cle = Empreinte(sequence);
        auto place = premieres.try_emplace(cle, &sequence);
        while (!place.second && !MemesSommets(*place.first->second, sequence))
            place = premieres.try_emplace(++cle, &sequence);
        if (!place.second) ++doublons;
    }
    return doublons;
}

} // namespace tessarel
