// Where the desktop keeps the user's things, and where the program itself lies.
#pragma once

#include <string>

namespace tessarel {

// Folder of the running program; empty when the system won't tell.
std::string DossierExecutable();
// The user's own folder; "/" when there is none.
std::string DossierPersonnel();
// The user's configuration folder for the program. It may not exist yet.
std::string DossierConfiguration();
// The desktop's documents folder as the user set it; where that is not set or not there, "Documents" in the
// user's own folder, or that folder itself.
std::string DossierDocumentsUtilisateur();
// True when files can be made in the folder.
bool DossierModifiable(const std::string& dossier);

} // namespace tessarel
