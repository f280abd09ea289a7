// Creation, check and repair of the settings file at start-up.
#pragma once

#include <string>
#include <vector>

namespace tessarel {

// From this length on, the first line shows that the file has lost its CR characters.
inline constexpr std::size_t LongueurPremiereLigneSansCR = 301;

enum class EtatIni {
    Correct,
    SansCR // the file was left as it is; the program must say so and end
};

// Creates FichierIni with its defaults, or checks its structure and drops sections without a name and the old
// window section; then makes sure that the last folder exists. Needs the folders of DossiersProgramme but
// sets FichierIni.
EtatIni VerifierPresenceINICorrigerSiBesoinEtCreerSiAbsent();

// False when the first line of FichierIni, read whole and split at CR LF, has 301 characters or more. A file
// that could not be created is no fault of its structure; one that can't be read is a FauteFichier.
bool StructureIniCorrecte();

// What stands between `prefixe` ("[Machine_", "[Matiere_") and the last bracket in the lines of FichierIni
// that begin with it, in file order. A section met again can't be read and is left out; so is an empty name.
std::vector<std::string> NomsDesSections(const std::string& prefixe);

} // namespace tessarel
