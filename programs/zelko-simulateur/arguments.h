// The command line of the virtual box.
#pragma once

#include "link/simulateur/poste_virtuel.h"

#include <string>

namespace tessarel::simulateur {

inline constexpr int StatutFait = 0;
inline constexpr int StatutRefuse = 1;
inline constexpr int StatutMauvaisUsage = 2;

struct Arguments {
    bool lancer = false; // else the program ends with `statut`
    int statut = StatutFait;
    bool sansFenetre = false;
    bool anglais = false;
    std::string documents;
    OptionsPoste poste; // without its functions
};

// Parses, and prints help, version or what is wrong, in the language asked for, else that of the settings.
Arguments LireArguments(int argc, char** argv);

} // namespace tessarel::simulateur
