// The signals by which a user or the system asks a program to end: noted, so that it can end cleanly.
#pragma once

namespace tessarel {

// From here on SIGINT, SIGTERM and SIGHUP end nothing by themselves: they are noted, from none at all, and
// interrupt a wait. A second SIGINT ends the program at once, in case it hears nothing; not for who must put
// out a wire first (Compte). There SIGQUIT is noted like the others, and neither a closed pipe nor a terminal
// that belongs to another ends or halts the program: the queue of the box would run on without it.
enum class SecondSigint { Termine, Compte };
// The key that suspends, SIGTSTP, for the same reason: noted like the others where the terminal is all that a
// user has in hand, ignored where the windows go on.
enum class Suspension { Ordinaire, Ignoree, Notee };
void EcouterSignauxDeFin(SecondSigint second = SecondSigint::Termine,
                         Suspension suspension = Suspension::Ordinaire);
// A crash of the program (an address that is none, an impossible instruction, abort) calls `secours` first,
// once and for three seconds at most, and ends it as before. `secours` may only do what needs no memory.
void EcouterPlantages(void (*secours)());
bool FinDemandee();
// How many were noted.
int SignauxDeFinRecus();

} // namespace tessarel
