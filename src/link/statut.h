// The status block of the box, which it gives in reply to a status request and to every frame.
//
// Bytes of the buffer, counted from 0:
//    2        after a frame: 1 accepted, anything else not
//    4 to 6   number of the running frame, 24 bits, low byte first; the pause at a list's head is number 1
//    7        bit 4 (16): heat on
//    8        bit 1 (2): origin loop open
//             bit 2 (4): limit loop open
//             bit 3 (8): heat switch on OFF; clear with bit 0 (1) set: heat switch on MANU
//   12        bit 1 (2): run ended, and why:
//             bit 7 (128): end of the list
//             bit 2 (4): stopped by S
//             bit 6 (64): machine's STOP button
//             bit 4 (16): origin switch opened in motion
//             bit 5 (32): limit switch opened in motion
//   13 to 16  ticks left in the running frame, 32 bits, low byte first
// Example: 4 to 6 = 01 02 03 is frame 197121; 12 = 82 (hex) is a run that reached the end of its list.
#pragma once

#include "platform/zelkocom.h"

#include <cstdint>

namespace tessarel {

struct StatutZelko {
    bool Recu = false;            // the exchange succeeded; where false, all below reads as "no"
    bool SalveAcceptee = false;   // only after a frame
    std::int32_t NumeroSalve = 0; // from 1; 0 where nothing runs
    bool ChauffeActive = false;
    bool OrigineOuverte = false;
    bool FinCourseOuverte = false;
    bool ChauffeSurOff = false;  // the box's heat switch ON/OFF stands on OFF
    bool ChauffeSurManu = false; // its switch PC/MANU stands on MANU
    bool Fini = false;           // the run has ended, for one of the reasons below
    bool FinDeListe = false;
    bool ArretDemande = false; // by S
    bool ArretBoutonStop = false;
    bool OrigineOuverteEnMouvement = false;
    bool FinCourseOuverteEnMouvement = false;
    std::uint32_t TicksRestants = 0;
};

// The end came from the box itself: of the list, by its STOP button, by a switch loop.
bool FinieParLaBoite(const StatutZelko& statut);

// What a reply says; `Recu` is set, for the buffer alone does not tell whether it is a reply.
StatutZelko LireStatut(const Tampon& tampon);

} // namespace tessarel
