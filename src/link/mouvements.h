// Single moves, what ended them, the switches that forbid them, and the motors.
#pragma once

#include "link/marche.h"
#include "machine/table_machine.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tessarel {

// Speeds of a frame, mm/s.
struct VitessesSalve {
    float depart = 0;
    float cible = 0;
    float fin = 0;
};

// Speeds of a manual or test move at `vitesse`: 0 to VmaxAvecAccXY, without a ramp below VmaxSansAccXY.
// Nothing, after a box, when it is outside; the caller's result is StatutRefus then.
std::optional<VitessesSalve> VitessesManuelles(float vitesse, const TableMachine& table);

// What ended a move, the last of these that is true. The values are those of the told cause codes.
enum class CauseFin : int {
    Aucune = 0,
    FinDeListe = 1,
    BoutonStop = 2,
    OrigineOuverte = 4,
    FinCourseOuverte = 8,
    StopEcran = 16,
    StopEcranMoteursOff = 32
};

struct ResultatMouvement {
    ResultatMarche marche;
    std::int32_t NBRt = 0; // ticks of the move
    CauseFin cause = CauseFin::Aucune;
};

// One move and its end, the wire's heat untouched. Steps by Axe, signed, rounded here to whole ones. Start
// and end speed are the lower of `vitesse` and VmaxSansAccXY. With a stop already asked nothing is sent.
ResultatMouvement MouvementSimple(const TableMachine& table, const std::array<float, 4>& pas, float vitesse,
                                  const SuiviMarche& suivi);
// The same at speeds of one's own.
ResultatMouvement FaireMouvement(const TableMachine& table, const PasAxes& pas, const VitessesSalve& vitesses,
                                 const SuiviMarche& suivi);

CauseFin CauseDeFin(const ResultatMarche& marche, bool moteursOff);
// Box of a cause that is not the user's own doing: STOP button, origin loop, limit loop. True when one was
// shown.
bool AnnoncerCause(CauseFin cause);

// After an I: False when the exchange failed.
bool InterrupteurOrigineOuvert();
bool InterrupteurFinCourseOuvert();

// Before any procedure that moves: 1 when it may begin, at once for a machine without switches. Else, after a
// box: -1 the table in RAM has no active switches, -2 a limit switch is open, -3 an origin switch is.
int VerifierInterrupteurs(const TableMachine& table);

// The check box that keeps the motors on: M 3 0 and M 1 0; when it is cleared M 0 0, and M 3 with the
// machine's delay where that switches them off by itself.
void DesactiverDelaiMoteurs(bool desactiver, const TableMachine& table);

} // namespace tessarel
