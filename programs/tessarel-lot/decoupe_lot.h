// A 2D cut from the command line: what is asked, and the doing of it.
#pragma once

#include "work2d/placement.h"

#include <optional>
#include <string>
#include <vector>

namespace tessarel::lot {

struct DemandeDecoupe {
    std::vector<std::string> fichiers;
    std::string machine; // empty: that of the settings
    std::string matiere; // empty: that of the settings
    std::optional<Bloc> bloc;
    bool blocAuto = false;
    ReglesPlacement regles; // margins are filled in from the settings
    int decalage = 0;       // as CoteDecalage2D
    int entree = -1;        // -1: that of the project
    int sortie = -1;
    int approche = 0; // 0 cutting speed, 1 rapid
    int retour = 0;
    std::string gcode; // output files; empty: not wanted
    std::string dxf;
    std::string apercu;
    bool interface = false;
};

// Returns an exit status.
int Decouper(const DemandeDecoupe& demande);

} // namespace tessarel::lot
