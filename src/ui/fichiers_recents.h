// The files opened or saved last, newest first, in the section [Fichiers] of the settings.
#pragma once

#include <string>
#include <vector>

namespace tessarel {

inline constexpr int NombreRecents = 8;

std::vector<std::string> FichiersRecents();
// Puts a file at the head of the list; the oldest goes.
void RetenirFichierRecent(const std::string& chemin);
void OublierFichierRecent(const std::string& chemin);

} // namespace tessarel
