// The reading of a frame's bytes and the passing of its ticks.
#include "link/simulateur/salve_boite.h"

#include "link/octets.h"
#include "link/table_rampe.h"

#include <algorithm>

namespace tessarel::simulateur {

namespace {

// Offsets in the frame.
constexpr std::size_t PlaceTicks = 1;
constexpr std::size_t PlacePas = 5;
constexpr std::size_t PlaceRotatif = 21;
constexpr std::size_t PlaceNiveauDepart = 25;
constexpr std::size_t PlaceNiveauFin = 26;
constexpr std::size_t PlaceDeceleration = 27;

constexpr int PleinRegime = NiveauxRampe - 1;
constexpr int PenteUnite = 8; // a level lasts 2^(slope + 8) clocks

} // namespace

SalveBoite LireSalve(std::span<const std::uint8_t, TailleSalve> octets) {
    SalveBoite s;
    s.drapeaux = octets[0];
    s.ticks = LireOctets32(octets, PlaceTicks);
    for (std::size_t a = 0; a < NombreAxes; ++a) s.doublePas[a] = LireOctets32(octets, PlacePas + 4 * a);
    s.rotatif = LireOctets32(octets, PlaceRotatif);
    s.niveauDepart = octets[PlaceNiveauDepart];
    s.niveauFin = octets[PlaceNiveauFin];
    s.tickDeceleration = LireOctets32(octets, PlaceDeceleration);
    return s;
}

void DeroulementSalve::Ajouter(std::uint64_t ticks, std::uint32_t periode) {
    if (ticks == 0) return;
    if (m_nombre > 0 && m_phases[m_nombre - 1].periode == periode) {
        m_phases[m_nombre - 1].ticks += static_cast<std::uint32_t>(ticks);
    } else {
        m_phases[m_nombre++] = {static_cast<std::uint32_t>(ticks), periode};
    }
}

void DeroulementSalve::Preparer(const SalveBoite& salve, int frequence, int pente) {
    m_nombre = 0;
    m_phase = 0;
    m_faitsDansPhase = 0;
    m_ticks = 0;
    m_depuisTick = 0;
    if ((salve.drapeaux & DrapeauRampe) == 0 || salve.EstPause()) {
        Ajouter(salve.ticks, static_cast<std::uint32_t>(TableRampe(PleinRegime, frequence)));
    } else {
        PreparerRampe(salve, frequence, pente);
    }
}

void DeroulementSalve::PreparerRampe(const SalveBoite& salve, int frequence, int pente) {
    const std::uint64_t duree = std::uint64_t{1} << (pente + PenteUnite); // clocks of one level
    const Rampe& rampe = RampeDeFrequence(frequence);
    const auto periode = [&](int k) {
        return static_cast<std::uint32_t>(rampe.periodes[static_cast<std::size_t>(k)]);
    };
    // One level from `debut` clocks into it: its ticks, at most `reste`, and where the next level begins.
    const auto passer = [&](int niveau, std::uint64_t& debut, std::uint64_t reste) {
        const std::uint64_t p = periode(niveau);
        const std::uint64_t n = debut >= duree ? 0 : std::min((duree - debut + p - 1) / p, reste);
        Ajouter(n, periode(niveau));
        debut = debut + n * p - duree; // wraps where `reste` cut the level short: then nothing follows
        return n;
    };
    const auto signe = static_cast<std::int32_t>(salve.tickDeceleration);
    const std::uint64_t deceleration =
        signe < 0 ? 0 : std::min<std::uint64_t>(salve.ticks, salve.tickDeceleration);

    int niveau = salve.niveauDepart;
    std::uint64_t depuis = 0; // clocks since the level began
    std::uint64_t faits = 0;
    while (niveau < PleinRegime && faits < deceleration) {
        faits += passer(niveau, depuis, deceleration - faits);
        if (faits < deceleration) ++niveau;
    }
    Ajouter(deceleration - faits, periode(PleinRegime));
    faits = deceleration;
    depuis = 0;
    if (niveau > salve.niveauFin) niveau = std::min(niveau, PleinRegime - 1);
    while (niveau > salve.niveauFin && faits < salve.ticks) {
        faits += passer(niveau, depuis, salve.ticks - faits);
        if (faits < salve.ticks) --niveau;
    }
    Ajouter(salve.ticks - faits, periode(niveau));
}

std::uint64_t DeroulementSalve::Avancer(std::uint64_t horloges, std::uint32_t limite) {
    std::uint64_t passees = 0;
    while (m_ticks < limite && m_phase < m_nombre) {
        const Phase& phase = m_phases[m_phase];
        const std::uint32_t voulus = std::min(phase.ticks - m_faitsDansPhase, limite - m_ticks);
        const std::uint64_t duree = std::uint64_t{voulus} * phase.periode - m_depuisTick;
        if (horloges - passees < duree) {
            m_depuisTick += horloges - passees;
            const auto n = static_cast<std::uint32_t>(m_depuisTick / phase.periode);
            m_depuisTick %= phase.periode;
            m_ticks += n;
            m_faitsDansPhase += n;
            return horloges;
        }
        passees += duree;
        m_depuisTick = 0;
        m_ticks += voulus;
        m_faitsDansPhase += voulus;
        if (m_faitsDansPhase == phase.ticks) {
            ++m_phase;
            m_faitsDansPhase = 0;
        }
    }
    return passees;
}

std::uint64_t DeroulementSalve::Duree() const {
    std::uint64_t duree = 0;
    for (std::size_t i = 0; i < m_nombre; ++i)
        duree += std::uint64_t{m_phases[i].ticks} * m_phases[i].periode;
    return duree;
}

} // namespace tessarel::simulateur
