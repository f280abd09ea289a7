// A cut from the command line: what is asked, and the doing of it; a 4-axis one goes on in decoupe4x_lot.
#pragma once

#include "transformations_lot.h"
#include "work2d/placement.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tessarel::lot {

// What only a 4-axis cut can be asked.
struct Demande4axes {
    std::vector<std::pair<std::string, std::string>> cles; // keys of [Decoupe4axes] with their values
    bool symetrie = false;
    bool blocDresse = false;
    bool dresser = false;
    bool surfacer = false;
    std::optional<std::pair<double, double>> guillotine; // height in mm, angle in degrees
    bool armementRapide = false;
    bool autoXY = false;
    bool autoZ = false;
    // Name of one that was given; empty when none was.
    [[nodiscard]] std::string OptionDonnee() const;
};

struct DemandeDecoupe {
    std::vector<std::string> fichiers;
    std::string machine; // empty: that of the settings
    std::string matiere; // empty: that of the settings
    std::optional<Bloc> bloc;
    bool blocAuto = false;
    TransformationsLot transformations;
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
    Demande4axes quatreAxes;
    std::string option2D; // one given that only a 2D cut can be asked; empty when none was
};

// False, after a box, for an output of a wrong extension or one that is an input.
bool SortiesAcceptables(const DemandeDecoupe& demande);

// Returns an exit status.
int Decouper(const DemandeDecoupe& demande);

} // namespace tessarel::lot
