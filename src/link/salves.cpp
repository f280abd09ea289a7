// Builds motion frames.
#include "link/salves.h"

#include "link/commandes.h"
#include "link/echange.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessarel {

namespace {

// Below this a speed counts as none, mm/s.
constexpr double VitesseInfime = 0.00001;
constexpr std::uint8_t PenteMax = 15;
constexpr int DecalagePente = 9;
constexpr std::int32_t UniteFrequence = 10000; // Hz
// Each level of a ramp lasts the slope over this, s.
constexpr double PenteParSeconde = 2 * HorlogeRampe;
constexpr std::uint8_t TousEnAvant = SalveAvantX1 | SalveAvantY1 | SalveAvantX2 | SalveAvantY2;

Salve SalveRefusee(std::int16_t statut) {
    Salve salve;
    salve.Statut = statut;
    return salve;
}

// Length of the way of one end of the wire: single, as are the two it is made of.
float LongueurBout(const ParametresSalve& p, const PasAxes& pas, std::size_t axeX, std::size_t axeY) {
    const auto millimetres = [&](std::size_t axe) -> double {
        return p.PasParTour[axe] == 0 ? 0.0F : EnSimple(p.MmParTour[axe] * pas[axe] / p.PasParTour[axe]);
    };
    const double x = millimetres(axeX);
    const double y = millimetres(axeY);
    return EnSimple(std::sqrt(x * x + y * y));
}

struct DeuxRampes {
    int depart = 0; // levels
    int fin = 0;
    int atteint = 0; // level where the two sums stopped
    double ticksDepart = 0;
    double ticksFin = 0;
};

// Climbs both ramps together, level by level, to the first at which they take more than `nbrt` ticks or to
// the top. Sums never fall, so that level is found by halving.
DeuxRampes SommerRampes(const ParametresSalve& p, int depart, int fin, double nbrt) {
    const auto& deDepart = p.rampe->cumuls[static_cast<std::size_t>(depart)];
    const auto& deFin = p.rampe->cumuls[static_cast<std::size_t>(fin)];
    const auto ticks = [&](int k) {
        return p.pente * deDepart[static_cast<std::size_t>(k)] + p.pente * deFin[static_cast<std::size_t>(k)];
    };
    DeuxRampes r{depart, fin, NiveauxRampe - 1, 0, 0};
    const int bas = std::min(depart, fin);
    constexpr int dernier = NiveauxRampe - 2;
    int somme = dernier; // level up to which the sums go
    if (bas > dernier) return r;
    if (ticks(dernier) > nbrt) {
        int premier = bas;
        while (premier < somme) {
            const int milieu = (premier + somme) / 2;
            if (ticks(milieu) > nbrt)
                somme = milieu;
            else
                premier = milieu + 1;
        }
        r.atteint = somme;
    }
    r.ticksDepart = p.pente * deDepart[static_cast<std::size_t>(somme)];
    r.ticksFin = p.pente * deFin[static_cast<std::size_t>(somme)];
    return r;
}

// Levels, deceleration tick and duration of a frame that has a ramp.
void EcrireRampes(Salve& salve, const ParametresSalve& p, double rapportDepart, double rapportFin,
                  double nbrt) {
    const double periodePleine = HorlogeRampe / p.frequence;
    const int depart = NiveauLePlusProche(*p.rampe, rapportDepart * periodePleine);
    const int fin = NiveauLePlusProche(*p.rampe, rapportFin * periodePleine);
    const DeuxRampes r = SommerRampes(p, depart, fin, nbrt);
    salve.octets[SalvePositionDrapeaux] |= SalveRampe;
    salve.octets[SalvePositionNiveauDepart] = static_cast<std::uint8_t>(depart);
    salve.octets[SalvePositionNiveauFin] = static_cast<std::uint8_t>(fin);
    // A segment shorter than its ramps begins to slow down "before its start".
    const auto deceleration = static_cast<std::int64_t>(nbrt - PartieEntiere(r.ticksFin));
    EcrireOctets32(salve.octets, SalvePositionDeceleration, static_cast<std::uint32_t>(deceleration));
    const double plateau = std::max(0.0, (nbrt - r.ticksDepart - r.ticksFin) / p.frequence);
    salve.Duree = EnSimple((r.atteint - depart) * p.pente / PenteParSeconde +
                           (r.atteint - fin) * p.pente / PenteParSeconde + plateau);
}

std::uint32_t DoublePas(std::int32_t pas) {
    return 2 * static_cast<std::uint32_t>(std::abs(static_cast<std::int64_t>(pas)));
}

// Flags of the directions and double step counts. False when a count has no double in 32 bits.
bool EcrirePas(Salve& salve, const PasAxes& pas) {
    std::uint8_t drapeaux = 0;
    for (std::size_t axe = 0; axe < pas.size(); ++axe) {
        if (pas[axe] == std::numeric_limits<std::int32_t>::min()) return false;
        if (pas[axe] >= 0) drapeaux |= static_cast<std::uint8_t>(SalveAvantX1 << axe);
        EcrireOctets32(salve.octets, SalvePositionPas + 4 * axe, DoublePas(pas[axe]));
    }
    static_assert((SalveAvantX1 << AxeY2) == SalveAvantY2 && TousEnAvant == 15);
    salve.octets[SalvePositionDrapeaux] = drapeaux;
    return true;
}

PasAxes SansAxesAbsents(const ParametresSalve& p, PasAxes pas) {
    for (std::size_t axe = 0; axe < pas.size(); ++axe)
        if (p.PasParTour[axe] == 0) pas[axe] = 0;
    return pas;
}

} // namespace

ParametresSalve ParametresDeSalve(const TableMachine& table) {
    ParametresSalve p;
    p.frequence = table.Frequence;
    if (table.Frequence % UniteFrequence == 0 && table.Frequence >= UniteFrequence &&
        table.Frequence <= FrequencesRampe * UniteFrequence) {
        p.rampe = &RampeDeFrequence(table.Frequence / UniteFrequence);
    }
    p.PenteAcceleration = table.PenteAcceleration;
    p.pente = std::ldexp(1.0, table.PenteAcceleration + DecalagePente);
    for (std::size_t axe = 0; axe < p.MmParTour.size(); ++axe) {
        p.MmParTour[axe] = table.MmParTour[axe];
        p.PasParTour[axe] = table.PasParTour[axe];
    }
    return p;
}

Salve ConstruireSalve(const ParametresSalve& p, float VitesseDepart, float VitesseCible, float VitesseFin,
                      const PasAxes& pasDemandes) {
    if (p.rampe == nullptr) return SalveRefusee(SalveFrequenceInconnue);
    if (p.PenteAcceleration > PenteMax) return SalveRefusee(SalvePenteTropForte);
    const PasAxes pas = SansAxesAbsents(p, pasDemandes);
    Salve salve;
    if (pas == PasAxes{}) {
        EcrireOctets32(salve.octets, SalvePositionNBRt, 1);
        return salve;
    }
    for (const float vitesse : {VitesseDepart, VitesseCible, VitesseFin})
        if (std::abs(static_cast<double>(vitesse)) < VitesseInfime) return SalveRefusee(SalveVitesseNulle);

    const double cible = VitesseCible;
    const double rapportDepart = cible / VitesseDepart;
    const double rapportFin = cible / VitesseFin;
    const double longueur = std::max(LongueurBout(p, pas, AxeX1, AxeY1), LongueurBout(p, pas, AxeX2, AxeY2));
    const double nbrt = std::ceil(p.frequence * (longueur / cible));
    // Ticks are counted in 32 bits with sign; what is no number fails every comparison.
    const bool calculable = nbrt >= 0 && nbrt <= std::numeric_limits<std::int32_t>::max() &&
                            std::isfinite(rapportDepart) && std::isfinite(rapportFin);
    if (!calculable || !EcrirePas(salve, pas)) return SalveRefusee(SalveCalculImpossible);
    EcrireOctets32(salve.octets, SalvePositionNBRt, static_cast<std::uint32_t>(nbrt));
    if (rapportDepart <= 1 && rapportFin <= 1)
        salve.Duree = EnSimple(nbrt / p.frequence);
    else
        EcrireRampes(salve, p, rapportDepart, rapportFin, nbrt);
    return salve;
}

Salve ConstruireSalveTempo(const ParametresSalve& p, std::int16_t secondes, float chauffe) {
    Salve salve = ConstruireSalve(p, 1, 1, 1, PasAxes{}); // speeds don't matter without a move
    const std::int64_t ticks = static_cast<std::int64_t>(secondes) * p.frequence;
    if (ticks < 0 || ticks > std::numeric_limits<std::int32_t>::max())
        return SalveRefusee(SalveCalculImpossible);
    salve.octets[SalvePositionDrapeaux] |= SalvePause;
    EcrireOctets32(salve.octets, SalvePositionNBRt, static_cast<std::uint32_t>(ticks));
    // What is no number heats nothing.
    if (chauffe > 0) salve.octets[SalvePositionChauffe] = ValeurPWM(chauffe);
    return salve;
}

Salve ConstruireSalveFin() {
    Salve salve;
    salve.octets[SalvePositionDrapeaux] = SalveFin;
    return salve;
}

void ChargerSalveDansTampon(Tampon& tampon, const Salve& salve) {
    tampon.fill(0);
    tampon[1] = CommandeSalve;
    std::copy_n(salve.octets.begin(), TailleSalve, tampon.begin() + 2);
}

std::int32_t ChargerSalveEtDuree(Tampon& tampon, const Salve& salve) {
    ChargerSalveDansTampon(tampon, salve);
    return static_cast<std::int32_t>(NBRtDeSalve(salve));
}

} // namespace tessarel
