// The folders of the program and of the user, found and made at start-up, with the two samples of a first
// start.
#pragma once

#include "app/settings/gestion_ini.h"

#include <string>

namespace tessarel {

// The program's own folder: that of the executable when it holds UserChoice.ini or can be written, else the
// user's configuration folder for the program.
std::string DossierDuProgramme(const std::string& dossierExecutable, const std::string& dossierConfiguration);

// All paths, nothing made. `documents` stands for the user's Documents folder, and then UserChoice.ini isn't
// asked: a run that is told where to work stays there. Empty: UserChoice.ini, else the desktop's folder.
Dossiers CalculerDossiers(const std::string& programme, const std::string& documents);

// Makes the folders that are absent; the samples only together with the library, so that the user may delete
// them. FauteFichier when one can't be made.
void VerifierPresenceDossiersBibliothequeEtDataEtCreerSiAbsent(const Dossiers& dossiers);

// The two samples: a circle of 50 mm, and two paths in one coordinates file.
void CreerFichierDXFCercle(const std::string& fichier);
void CreerFichierTXTRectangleCarre(const std::string& fichier);

} // namespace tessarel
