// The faults that the virtual box has on demand: what goes wrong, when, and for how long.
#pragma once

#include "platform/horloge.h"

#include <cstdint>

namespace tessarel::simulateur {

enum class Panne {
    // Of exchanges.
    CommandePerdue,   // never reaches the box: -202
    ReponsePerdue,    // the box has done it, nothing comes back: -203
    ReponseTardive,   // comes `retard` late; past DelaiReponse: -203
    ReponseCorrompue, // bytes changed, that of the command among them: 1, as on the wire
    ReponseCourte,    // a packet cut short: -204
    SalveRefusee,     // a frame is told to come again, as by a full queue
    // Of the box and the machine, from their moment on.
    Debranchement,  // the cable: the box goes on by itself
    CoupureCourant, // the box is dead: heat, queue, RAM and run are gone when the power comes back
    OrigineOuverte, // the loop of the origin switches, wherever the carriages are
    FinCourseOuverte,
    BoutonStop,    // pressed, once
    ChauffeManu,   // the heat switch PC/MANU stands on MANU
    ChauffeEteinte // the heat switch ON/OFF stands on OFF
};

inline constexpr int NombrePannes = static_cast<int>(Panne::ChauffeEteinte) + 1;
inline bool EstPanneDEchange(Panne panne) {
    return panne <= Panne::SalveRefusee;
}

// A reply later than this is none.
inline constexpr Instant DelaiReponse = std::chrono::seconds(1);

struct PanneProgrammee {
    Panne panne = Panne::ReponsePerdue;
    // Moment: at the exchange of this number, from 1 ...
    std::uint64_t echange = 0;
    // ... or when the run is at this frame, from 1, and `tick` of its ticks are done. Both 0: at once.
    std::uint32_t salve = 0;
    std::uint32_t tick = 0;
    // Exchanges of this command only, counted among themselves; 0: of all.
    std::uint8_t commande = 0;
    // Of an exchange: how many are struck; 0 is all that follow.
    std::uint64_t fois = 1;
    Instant retard = std::chrono::milliseconds(1500);
    // Of box and machine: undone after this many exchanges, or this time; both 0 is never.
    std::uint64_t retablieApresEchanges = 0;
    Instant retablieApres{0};
};

} // namespace tessarel::simulateur
