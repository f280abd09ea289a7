// Runs a shell script the way a user would, alone in a folder, and tells what came out.
#pragma once

#include <string>

namespace tessarel::essais {

struct Execution {
    int statut = -1;     // exit status; 128 + signal when killed; -1 when it ran over its time
    std::string sortie;  // standard output
    std::string erreurs; // standard error
};

// `script` is shell text, run by sh -eu in the folder `dossier` with the built programs first in PATH,
// standard input empty, no display, and home and configuration folders of its own. It is killed after
// `secondes`.
Execution Executer(const std::string& script, const std::string& dossier, int secondes = 60);

// True when a program of that name is in PATH.
bool ProgrammePresent(const std::string& nom);

std::string LireTout(const std::string& chemin);
void EcrireTout(const std::string& chemin, const std::string& contenu);

} // namespace tessarel::essais
