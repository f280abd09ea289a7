// The material base: named sets of cut values, each for one machine.
#pragma once

#include "machine/table_machine.h"

#include <string>
#include <vector>

namespace tessarel {

struct Matiere {
    std::string Nom;          // unique over all machines
    float ChauffeDecoupe = 0; // percent
    float VitesseDecoupe = 0; // mm/s
    float SaigneeVD = 0;      // kerf at VitesseDecoupe, mm
    float SaigneeVDsur2 = 0;  // kerf at half of it, mm
    std::string Machine;      // owner machine
};

// Materials of the current machine (element 0 is the default line, never in the file) and of all others.
extern std::vector<Matiere> MatieresMachine;
extern std::vector<Matiere> MatieresAutresMachines;

// The chosen material, and the four values that the runs use.
struct ValeursDecoupe {
    float Chauffe = 0;
    float Vitesse = 0;
    float SaigneeVD = 0;
    float SaigneeVDsur2 = 0;
};
extern Matiere MatiereCourante;
extern ValeursDecoupe DecoupeCourante;

// Rebuilds both arrays from the settings file for TableINI. False when the file has no CR: the box was shown
// and the program must end.
bool ChargerBaseMatieres();

// Makes a material current and copies its values.
void ChoisirMatiere(const Matiere& matiere);
// The material of that name among those of the current machine, exact match; nullptr when none.
const Matiere* TrouverMatiere(const std::string& nom);

// Clamps the values of a material that a cut takes, with a box for each value clamped.
ValeursDecoupe LimiterValeurs(const ValeursDecoupe& valeurs, const TableMachine& table, float saigneeMaxi);

} // namespace tessarel
