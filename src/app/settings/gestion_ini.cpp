// The wrappers over the settings files, and the writers of single facts.
#include "gestion_ini.h"

#include "cles_generales.h"
#include "cles_matiere.h"
#include "platform/erreurs.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"
#include "platform/raisons.h"

#include <cmath>
#include <limits>

namespace tessarel {

Dossiers DossiersProgramme;

std::string LireIniAvecFichier(const std::string& section, const std::string& cle, const std::string& fichier,
                               const std::string& defaut) {
    return LireProfil(fichier, section, cle, defaut);
}

bool EcrireIniAvecFichier(const std::string& section, const std::string& cle, const std::string& valeur,
                          const std::string& fichier) {
    return EcrireProfil(fichier, section, cle, valeur);
}

bool EffacerSectionAvecFichier(const std::string& section, const std::string& fichier) {
    return EffacerSectionProfil(fichier, section);
}

std::string LireIni(const std::string& section, const std::string& cle, const std::string& defaut) {
    return LireIniAvecFichier(section, cle, DossiersProgramme.FichierIni, defaut);
}

bool EcrireIni(const std::string& section, const std::string& cle, const std::string& valeur) {
    return EcrireIniAvecFichier(section, cle, valeur, DossiersProgramme.FichierIni);
}

bool EffacerSection(const std::string& section) {
    return EffacerSectionAvecFichier(section, DossiersProgramme.FichierIni);
}

std::vector<std::string> SectionsIni() {
    return SectionsProfil(DossiersProgramme.FichierIni);
}

bool SupprimerLigneContenant(const std::string& texte) {
    return SupprimerLignesProfil(DossiersProgramme.FichierIni, texte);
}

void EcrireMatiere(const std::string& nom, float chauffe, float vitesse, float saigneeVD, float saigneeVDsur2,
                   const std::string& machine) {
    const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    const std::string section = PrefixeMatiere + nom;
    const std::array<float, ClesMatiere.size()> valeurs = {chauffe, vitesse, saigneeVD, saigneeVDsur2};
    for (std::size_t i = 0; i < ClesMatiere.size(); ++i)
        EcrireIni(section, ClesMatiere[i].cle, FormaterNombre(valeurs[i], ClesMatiere[i].masque));
    EcrireIni(section, CleMachineMatiere, machine);
}

bool EcrireMachineUtilisee(const std::string& nom) {
    return EcrireIni(SectionParametres, "MachineUtilisee", nom);
}

double LireNombreIni(const std::string& section, const std::string& cle, const std::string& defaut) {
    return NombreDepuisTexte(LireIni(section, cle, defaut));
}

float SimpleDepuisTexte(const std::string& texte) {
    const double valeur = NombreDepuisTexte(texte);
    if (std::abs(valeur) > std::numeric_limits<float>::max())
        throw FauteDepassement(SelonLangue("Dépassement de capacité : ", "Overflow: ") + texte);
    return EnSimple(valeur);
}

bool LireBooleenIni(const std::string& section, const std::string& cle) {
    return LireNombreIni(section, cle) == 1;
}

} // namespace tessarel
