// What a user does with the material base: new materials, values stored, deletion, import from another
// machine. Each refusal has its box; the settings file and both arrays agree afterwards.
#pragma once

#include "machine/matieres.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tessarel {

// True for a name that a material of any machine has, whatever the case of its letters: the sections of the
// settings file tell no difference. The default line's names, as stored and as shown, are taken too.
bool NomMatierePris(const std::string& nom);

// Adds a material of the current machine with these values, writes it and makes it current. Its rank in
// MatieresMachine; nothing for a blank name, which cancels without a word, and for a name that is taken or
// can't be stored, which is told.
std::optional<std::size_t> NouvelleMatiere(const std::string& nom, const ValeursDecoupe& valeurs);

// Gives the material these values and writes it. False for the default line, which is never in the file, and
// for a rank that there is not.
bool SauverMatiere(std::size_t rang, const ValeursDecoupe& valeurs);

// Asks, then removes the material from the file; the default line becomes current and the base is rebuilt.
// False when the user says no or the line is the default one, which is told.
bool EffacerMatiere(std::size_t rang);

// True when there is a material of another machine to import; the box otherwise.
bool ImportPossible();
// Copies a material of another machine under a new name to the current one, with its heat brought down to
// what the machine allows, which is told; the original stays. The rank of the copy, which becomes current;
// nothing when the name is refused, as for a new one.
std::optional<std::size_t> ImporterMatiere(const Matiere& source, const std::string& nouveauNom);

// Makes a material current and keeps its name for the next start.
void ChoisirEtRetenirMatiere(const Matiere& matiere);

// The name as shown: the default line has one in each language.
std::string NomAfficheMatiere(const Matiere& matiere);
// The same for a list of materials of other machines: name and machine.
std::string NomAfficheAvecMachine(const Matiere& matiere);

} // namespace tessarel
