// The connection refreshed: the current machine read again, and what the box holds held against it.
#pragma once

#include "machine_trouvee.h"

#include <string>

namespace tessarel {

enum class LiaisonZelko {
    SansInterface,
    LaisseeEnMarche,    // it runs or heats for somebody else, and was left so: its memories were not read
    SansCorrespondance, // a box is there, no memory of it holds the current machine unchanged
    MouvementsPermis,
};

// What the windows show; their captions are their own.
struct EtatLiaison {
    LiaisonZelko Liaison = LiaisonZelko::SansInterface;
    std::string Mode;       // "TS2D" or "D4X", as asked
    std::string NomMachine; // of TableINI, as loaded now
    int Memoire = -1;       // 0 to 2 where moves are active
    // What was found running was stopped by this refresh: the wire stands anywhere.
    bool Arretee = false;
    bool Rattrapee = false; // a heat-off of this program that had been given up was made good
};

// Called by the refresh buttons, on entering a window of work and before a cut. Reloads TableINI (the default
// machine, told, where that fails), reads the three memories into MemoiresZelko and loads the first that
// agrees with the machine into RAM. A box that had been given up while the wire might be hot is stopped and
// the heat switched off before all else, with a box of the outcome; one that runs or heats without this
// program is asked about, and where it is left so nothing else is sent. Sets InterfaceConnectee,
// MouvementsActifs and MachineLaissee. Never changes a memory. Not to be called while a move of this program
// runs.
EtatLiaison RafraichirUsb(const std::string& mode, QuestionMachine question = QuestionMachine::Posee);

} // namespace tessarel
