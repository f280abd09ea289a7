// A run of the box's queue: filled, started, fed, watched to its end, with every request of the user heard
// between two exchanges. One move and a list of a hundred thousand frames go the same road.
//
//   idle ──B 0, B 1──► filling ──B 128──► running ──bit 1 of byte 12──► ended
//
// The frames go in until one is refused: the queue is full. Then the run is started, and the refused frame is
// offered again and again; each reply brings the status of the run. When all are in, I asks for it.
//
// What a reply says counts only if the exchange succeeded. A frame whose reply was lost may be in the queue
// or not, and sent twice it would put everything after it beside its place. So, while nothing moves yet,
// filling begins again from B 0. While the wire moves, no frame is sent until the box tells which it was: it
// runs the frame after the last one that was accepted, and the doubtful one is in; or it stands at the end of
// the last one, and it is not.
//
// Nothing on the wire tells a spoilt reply from a sound one but what it says. One that names a frame which
// was never sent, or more ticks than the frame has, counts as lost. An end is believed when it is told twice
// in the same words; and where frames were not in yet, it is no end of this list.
#pragma once

#include "link/salves.h"
#include "link/statut.h"

#include <cstdint>
#include <functional>
#include <span>

namespace tessarel {

// What the user asks of a run. Event handlers set these and do nothing else; the loops read them between two
// exchanges. Stop and end of homing are cleared when they were acted on or when the loop leaves.
struct DemandesMarche {
    bool StopDemande = false;
    bool FinOrigineDemandee = false; // stops a move as StopDemande does
    bool MoteursOffDemande = false;  // comes with a stop: the motors are to be switched off as well
    bool ChauffeModifiee = false;
    float ChauffeVoulue = 0; // percent, with ChauffeModifiee
    [[nodiscard]] bool ArretVoulu() const { return StopDemande || FinOrigineDemandee; }
};

// Where a run stands, at each reply.
struct AvanceeMarche {
    std::int32_t NumeroSalve = 0;    // from 1; the pause at a list's head is 1
    std::uint32_t TicksRestants = 0; // in that frame
    std::uint32_t NBRt = 0;          // of that frame
    double Fraction = 0;             // done of it, 0 to 1
};

// Who follows a run. Both calls may be empty; neither may start an exchange, nor wait.
struct SuiviMarche {
    DemandesMarche* demandes = nullptr;
    std::function<void(const AvanceeMarche&)> Avancer;
    // The box has not answered several times in a row: told once, while the loop keeps trying. Empty: the box
    // of a failed exchange.
    std::function<void()> Prevenir;
};

enum class FinMarche {
    StopAvantMouvement, // asked before B 128: nothing moved, B 0 was sent
    Arretee,            // S was sent and the box stands; the status tells if it had ended by itself before;
                        // in the pause of a list, B 0 was sent too
    Finie,              // ended by itself; the status says why
    SansRaison,         // stands, and does not say why: its power was cut, or another program talked to it;
                        // or tells the end of a list whose frames are not all in
    SansDuree,          // a frame of no ticks came up, and the run was stopped there
    Abandonnee,         // a stop was asked, the box did not answer, and the user asked again
    Impossible          // moves are not enabled, or there is no library: nothing was started
};

struct ResultatMarche {
    FinMarche fin = FinMarche::Impossible;
    StatutZelko statut;           // of the last reply; where nothing was started, no more than ChauffeSurManu
    std::int32_t NumeroSalve = 0; // last frame that ran
};

// Runs a list to its end. Its last element is the end mark. The heat stays as the list left it.
ResultatMarche FaireMarche(std::span<const Salve> salves, const SuiviMarche& suivi);

// One command, again and again until its exchange succeeds: for what must not be passed over, as the mode of
// the origin switches. False when a stop was asked in the meantime, or nothing can reach a box.
bool EnvoyerJusquaReponse(std::uint8_t code, std::uint8_t arg1, const SuiviMarche& suivi);

// Heat off, until confirmed; true when it was. A wire that may still be hot is told by a critical box. A stop
// asked in the meantime ends the trying.
bool RefroidirFil(const SuiviMarche& suivi);

// The last thing to do when a fault breaks out of a run: S and heat off in a few tries, without letting
// events run. Never throws. True when the heat is off for certain; otherwise a critical box said that it may
// not be. Called again while the same fault is passed on, it does nothing more and gives the same answer.
bool SecourirMarche() noexcept;

} // namespace tessarel
