// The state of a design session: the project, its undo store, the clipboard and the selection mode; and the
// tools of the design window under their control's name.
#pragma once

#include "design4x/copie.h"
#include "design4x/historique.h"
#include "design4x/projet_cpx.h"
#include "design4x/selection.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel {

struct ConceptionCPX {
    ProjetCPX projet;
    HistoriqueCPX historique;
    PressePapiersCPX copie;
    std::uint16_t ModeSelection = DrapeauOutil;
    bool ProjetCharge = false;
    std::string lblStatusBarCPX; // what the measuring tool said last
};

// Puts a project that was read or imported in place of the one there: counters on the first points, a fresh
// undo store with this one state.
void ChargerProjetCPX(ConceptionCPX& conception, ProjetCPX projet);

// MemoPourUndo and cmdUndoCPX of a session: the selection mode goes into the options of the state, and comes
// back with them where it is one of optSelection(0) to (2).
void MemoPourUndo(ConceptionCPX& conception);
bool cmdUndoCPX(ConceptionCPX& conception, int index);

// Empties the project, after the question when one is loaded; spacing and block values return to those of a
// new project, but stay when it is done `pourInsertion` of a profile (no question then). False when the user
// says No.
bool NouveauProjet4X(ConceptionCPX& conception, bool pourInsertion = false);

// A tool that needs no mouse.
struct OutilCPX {
    const char* controle;
    int indices = 0;        // members of the control array; 0: no array
    bool valeur = false;    // takes a number
    int valeurDepuis = 0;   // the lowest index that takes it
    bool memoAvant = false; // opens with MemoPourUndo as well
    bool memoApres = true;  // ends with it
    bool (*appliquer)(ConceptionCPX& conception, int index, double valeur) = nullptr;
};
std::span<const OutilCPX> OutilsCPX();
// Null when there is no tool of that name.
const OutilCPX* TrouverOutilCPX(std::string_view controle);

// Runs a tool as its button or field does: undo snapshots where it takes them. False when nothing was done; a
// refusal has shown its box.
bool AppliquerOutilCPX(ConceptionCPX& conception, const OutilCPX& outil, int index = 0, double valeur = 0);

// A tool in words, "txtDeplacer 0 5.0": control, index if it is an array, value if it takes one.
struct CommandeOutil {
    const OutilCPX* outil = nullptr;
    int index = 0;
    double valeur = 0;
};
// What the words say; `outil` stays null, and `raison` tells why, when they say no tool. A value that is no
// number gets the box of the numeric fields, and leaves `raison` empty.
CommandeOutil LireCommandeOutil(std::span<const std::string> termes, std::string& raison);

} // namespace tessarel
