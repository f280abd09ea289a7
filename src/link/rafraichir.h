// The connection refreshed: the current machine read again, and what the box holds held against it.
#pragma once

#include <string>

namespace tessarel {

enum class LiaisonZelko {
    SansInterface,
    SansCorrespondance, // a box is there, no memory of it holds the current machine unchanged
    MouvementsPermis,
};

// What the windows show; their captions are their own.
struct EtatLiaison {
    LiaisonZelko Liaison = LiaisonZelko::SansInterface;
    std::string Mode;       // "TS2D" or "D4X", as asked
    std::string NomMachine; // of TableINI, as loaded now
    int Memoire = -1;       // 0 to 2 where moves are active
};

// Called by the refresh buttons, on entering a window of work and before a cut. Reloads TableINI (the default
// machine, told, where that fails), reads the three memories into MemoiresZelko and loads the first that
// agrees with the machine into RAM. A box that had been given up while the wire might be hot is stopped and
// the heat switched off before all else, with a box of the outcome. Sets InterfaceConnectee and
// MouvementsActifs. Never changes a memory.
EtatLiaison RafraichirUsb(const std::string& mode);

} // namespace tessarel
