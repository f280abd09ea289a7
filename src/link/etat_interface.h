// The state of the link to the interface box, read everywhere before a motion command, and the test of the
// library.
#pragma once

#include "platform/zelkocom.h"

#include <cstdint>

namespace tessarel {

// Result of the last exchange; 1 is success.
extern std::int32_t DernierResultatZelko;
// The box was there at the last test.
extern bool InterfaceConnectee;
// A memory of the box holds the current machine unchanged and was loaded to RAM: only then may anything move
// or heat.
extern bool MouvementsActifs;
// A heat-off was given up before the box confirmed it, and the user told. The next refresh that finds the box
// makes up for it. Cleared by the confirmation alone.
extern bool CoupureEnSuspens;
// The box was found running or heating although this program drives it not, and was left so
// (ControlerMachine): nothing may disturb it. False as soon as it is found at rest, or gone.
extern bool MachineLaissee;

// Back to "no interface", the state before any test.
void ReinitialiserEtatInterface();

// Looks for the library, its version before anything else. A missing one is told and the program goes on
// without an interface; one that is too old is told and the program must end.
EtatBibliotheque TesterBibliothequeZelko(const std::vector<std::string>& dossiers = DossiersZelkoCom());

// Asks the library whether a box is there and keeps the answer in InterfaceConnectee.
bool TesterInterface();

} // namespace tessarel
