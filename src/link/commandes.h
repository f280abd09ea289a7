// One small routine per command of the box, and the two that repeat the heat command until the box confirms
// it.
#pragma once

#include "statut.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tessarel {

// Each of these sends one command through EnvoiBytes: a failure is told by its box. True when the exchange
// succeeded.

// B 0: empties the queue and leaves run mode.
bool ViderFile();
// D 128: the end mark after a single frame.
bool FinDeListe();
// S: stops the run at once. Its end shows in the status.
bool ArreterMouvement();
// O 0: switches stop motion. True when the exchange succeeded and the table in RAM has its switches active.
bool ModeNormal();
// M 0, M 1, M 3: delay 0 means no automatic switch-off.
bool CouperMoteurs();
bool AllumerMoteurs();
bool ReglerDelaiMoteurs(std::uint8_t delai);

// I, without a box: polling loops tell of a box that is gone in their own way (NoterEchange). A failed
// exchange gives a status with nothing set.
StatutZelko DemanderStatut();

// Value on the wire of a heat in percent: Round(percent × 2.55), halves to even; kept within 0 and 255.
std::uint8_t ValeurPWM(double pourcent);

// How a loop that repeats P follows its user. Both may be empty.
struct SuiviChauffe {
    // Asked between two tries; true ends the loop.
    std::function<bool()> Interrompre;
    // Told once, after EchecsAvantAvertissement tries in a row that were not confirmed, and the loop goes on.
    // It should not wait: while it does, nothing is sent. Empty: the box of a failed exchange.
    std::function<void()> Prevenir;
};

enum class FinChauffe {
    Confirmee,   // the box echoed the command
    Interrompue, // by the user; nothing is known of the heat
    Impossible,  // nothing was sent: no library, or a heat while moves are not enabled
};

// P 1 value, repeated until byte 4 echoes it. No limit on the number of tries, on purpose. Events run between
// two tries.
FinChauffe EnvoyerChauffe(std::uint8_t valeur, const SuiviChauffe& suivi = {});

// P 0 0, repeated until byte 2 and byte 4 are both 0: the wire must not stay hot by a lost command. No limit
// on the number of tries, on purpose. Sent at least once whatever the state of the link; an interruption is
// only heard after that and ends in a critical box that says that the wire may still be hot.
FinChauffe CouperChauffe(const SuiviChauffe& suivi = {});

// One S and one heat-off without a word, for a box that may still run something. True when confirmed.
bool EssayerCoupure();

// The critical box that says that the wire may still be hot; the next refresh will try again.
void SignalerChauffeNonCoupee();

// Whether the box's heat switch stands on MANU and its knob heats the wire: no command puts that out. Asks
// until two replies agree; where they don't the last one counts, and nothing is known of a box that is
// silent.
std::optional<bool> BoutonChauffeLeFil();
// True, after a critical box, where it is known to be so.
bool SignalerFilChaudSurManu();

// Called when a program ends, whatever way: where the wire may be hot, CouperChauffe for at most five
// seconds. Sends nothing where nothing was heated.
void CouperChauffeAvantDeQuitter();

} // namespace tessarel
