// What the parameter window does to machines: the choice of one, the save into the file and into a memory of
// the interface, new ones, deletion. It is the only writer of machines and of memories.
#pragma once

#include "machine/saisie_machine.h"

#include <functional>
#include <optional>
#include <string>

namespace tessarel {

enum class FinSauvegarde {
    Refusee,           // told; file and interface are as they were
    FichierImpossible, // told; the interface is as it was
    Enregistree,       // in the file, or nowhere for a built-in machine
    EnregistreeEtEnvoyee,
    MemoireManquee // told; the file is written, the memory may hold a mix
};

// Checks the capture, writes it to the file unless its name is a built-in one, loads it anew with the
// materials, and sends it to a memory, 0 to 2, when one is chosen and the interface is connected. Moves are
// enabled by the last step; where it is left out they are enabled only if a memory holds the machine
// unchanged.
FinSauvegarde SauverParamMachineIniEtZelko(const SaisieMachine& saisie, std::optional<int> memoire);

// Makes a machine current and keeps its name: record, materials, and what the interface holds of it. A
// machine that can't be loaded is replaced by "(Defaut)", which is told.
void ChoisirMachine(const std::string& nom);

// Writes the capture as a new machine and makes it current. False after the box that says why.
bool CreerMachine(SaisieMachine saisie, const std::string& nom);

enum class FinEffacement { Reservee, Abandonnee, Effacee };
// Does nothing for a built-in machine. Asks, removes the section, calls `chargement` (the window shows that
// the default table is being loaded), and makes "(Defaut)" current.
FinEffacement EffacerMachine(const std::string& nom, const std::function<void()>& chargement = {});

// The interface as a save into a memory needs it: true when it is there and was there before. One that has
// just been plugged in is told, so that the user looks at the memories first; one that is missing too. One
// that runs without this program is asked about: false also where it was stopped, for the same reason.
bool InterfacePretePourMemoire();

} // namespace tessarel
