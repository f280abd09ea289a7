// What `decouper` prints when it is done.
#pragma once

#include "work2d/espace2d.h"
#include "work2d/export_gcode.h"

#include <map>
#include <string>
#include <vector>

namespace tessarel::lot {

// What the files of a run brought, added up.
struct LectureLot {
    std::size_t sequences = 0;
    std::size_t points = 0;
    std::size_t pointsRetires = 0;
    std::map<std::string, int> ignores;
    std::vector<std::string> notes; // what the readers put right or warn of

    void Ajouter(const OuvertureFichier& ouverture);
};

// Prints the summary on standard output; returns an exit status.
int ImprimerResume(const std::vector<std::string>& fichiers, const LectureLot& lecture,
                   const Espace2D& espace, const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                   const ExportGcode2D& gcode, const std::vector<std::string>& ecrits);

// Summary of a conversion.
std::string TexteConversion(const std::string& entree, const LectureLot& lecture, const std::string& sortie);

// "2 TEXT, 1 HATCH".
std::string TexteComptes(const std::map<std::string, int>& comptes);
// One line of a summary: a label in a column of its own, then the value.
std::string LigneResume(const std::string& libelle, const std::string& valeur);

} // namespace tessarel::lot
