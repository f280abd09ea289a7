// The settings files: wrappers over the private-profile layer, parsed once and kept.
#pragma once

#include <string>
#include <vector>

namespace tessarel {

// Folders, computed once at start-up; the paths have no separator at their end but for DossierDocuments.
struct Dossiers {
    std::string Documents; // with a trailing separator
    std::string Tessarel;
    std::string Bibliotheque;
    std::string MesDecoupes;
    std::string Datas;
    std::string Plugins;
    std::string FichierIni;
    std::string Programme;  // the program's own folder, or the user's configuration folder for it
    std::string UserChoice; // UserChoice.ini
};
// One per program; filled by the start-up.
extern Dossiers DossiersProgramme;

std::string LireIniAvecFichier(const std::string& section, const std::string& cle, const std::string& fichier,
                               const std::string& defaut);
// False when the file can't be written: the program goes on.
bool EcrireIniAvecFichier(const std::string& section, const std::string& cle, const std::string& valeur,
                          const std::string& fichier);
bool EffacerSectionAvecFichier(const std::string& section, const std::string& fichier);
// The same on FichierIni.
std::string LireIni(const std::string& section, const std::string& cle, const std::string& defaut);
bool EcrireIni(const std::string& section, const std::string& cle, const std::string& valeur);
bool EffacerSection(const std::string& section);
// Names of the sections of FichierIni, in file order.
std::vector<std::string> SectionsIni();
// Rewrites FichierIni without the lines that hold the text anywhere.
bool SupprimerLigneContenant(const std::string& texte);

// Writes the five keys of [Matiere_<nom>].
void EcrireMatiere(const std::string& nom, float chauffe, float vitesse, float saigneeVD, float saigneeVDsur2,
                   const std::string& machine);
bool EcrireMachineUtilisee(const std::string& nom);

// Numeric reads through NombreDepuisTexte.
double LireNombreIni(const std::string& section, const std::string& cle, const std::string& defaut = "");
// The same for a value held in 32 bits; FauteDepassement when it does not fit.
float SimpleDepuisTexte(const std::string& texte);
// True for 1 only.
bool LireBooleenIni(const std::string& section, const std::string& cle);

} // namespace tessarel
