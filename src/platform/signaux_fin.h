// The signals by which a user or the system asks a program to end: noted, so that it can end cleanly.
#pragma once

namespace tessarel {

// From here on SIGINT, SIGTERM and SIGHUP end nothing by themselves: they are noted, and interrupt a wait. A
// second SIGINT ends the program at once, in case it hears nothing; not for who must put out a wire first.
enum class SecondSigint { Termine, Compte };
void EcouterSignauxDeFin(SecondSigint second = SecondSigint::Termine);
bool FinDemandee();
// How many were noted.
int SignauxDeFinRecus();

} // namespace tessarel
