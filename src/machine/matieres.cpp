// The material base: its rebuilding from the settings file, the choice, the limits of a machine.
#include "matieres.h"

#include "app/settings/cles_matiere.h"
#include "app/settings/gestion_ini.h"
#include "app/settings/verification_ini.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "cles_machine.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "platform/profil_prive.h"

#include <algorithm>

namespace tessarel {

std::vector<Matiere> MatieresMachine;
std::vector<Matiere> MatieresAutresMachines;
Matiere MatiereCourante;
ValeursDecoupe DecoupeCourante;

namespace {

constexpr const char* NomParDefaut = "Par defaut";
constexpr const char* VitesseDeRemplacement = "4.0"; // mm/s, as written in the file

Matiere MatiereParDefaut(const TableMachine& table) {
    return {NomParDefaut,
            static_cast<float>(table.ChauffeParDefaut),
            table.VitesseDecoupeParDefaut,
            table.SaigneeVDParDefaut,
            table.SaigneeVDsur2ParDefaut,
            table.Nom};
}

void ReparerVitesseMachine(TableMachine& table) {
    if (table.VitesseDecoupeParDefaut != 0) return;
    AfficherInformation(TextesMessages(228), TitresMessages(228));
    EcrireIni(PrefixeMachine + table.Nom, "VitesseDecoupeParDefaut", VitesseDeRemplacement);
    table.VitesseDecoupeParDefaut = SimpleDepuisTexte(VitesseDeRemplacement);
}

// An old material without an owner is adopted by the current machine.
std::string ProprietaireOuAdoption(const std::string& section, const std::string& machineCourante) {
    std::string machine = LireIni(section, CleMachineMatiere, "");
    if (!machine.empty()) return machine;
    EcrireIni(section, CleMachineMatiere, machineCourante);
    return machineCourante;
}

float LireNombre(const std::string& section, NombreMatiere nombre) {
    return SimpleDepuisTexte(LireIni(section, ClesMatiere[nombre].cle, ""));
}

Matiere LireMatiere(const std::string& nom, const std::string& machine) {
    const std::string section = PrefixeMatiere + nom;
    Matiere matiere{nom,
                    LireNombre(section, NombreChauffe),
                    LireNombre(section, NombreVitesse),
                    LireNombre(section, NombreSaigneeVD),
                    LireNombre(section, NombreSaigneeVDsur2),
                    machine};
    if (matiere.VitesseDecoupe == 0) {
        AfficherInformation(TexteRempli(TexteProgramme::ReparationTexte, {nom, "4"}),
                            TexteRempli(TexteProgramme::ReparationTitre, {ClesMatiere[NombreVitesse].cle}));
        EcrireIni(section, ClesMatiere[NombreVitesse].cle, VitesseDeRemplacement);
        matiere.VitesseDecoupe = SimpleDepuisTexte(VitesseDeRemplacement);
    }
    return matiere;
}

// The value, or the limit with a box (a row of TextesDoubles) when it is above.
float Brider(float valeur, float limite, int rangee) {
    if (!(valeur > limite)) return valeur;
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
    return limite;
}

} // namespace

bool ChargerBaseMatieres() {
    MatieresMachine = {MatiereParDefaut(TableINI)};
    MatieresAutresMachines = {Matiere{}}; // element 0 is never a material
    if (!StructureIniCorrecte()) {
        AfficherCritique(Texte(TexteProgramme::IniSansRetourChariotMatieres),
                         Texte(TexteProgramme::IniSansRetourChariotTitre));
        return false;
    }
    const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
    ReparerVitesseMachine(TableINI);
    MatieresMachine[0] = MatiereParDefaut(TableINI);
    bool defautDansLeFichier = false;
    for (const std::string& nom : NomsDesSections(std::string("[") + PrefixeMatiere)) {
        if (nom == NomParDefaut) {
            defautDansLeFichier = true;
            continue;
        }
        const std::string machine = ProprietaireOuAdoption(PrefixeMatiere + nom, TableINI.Nom);
        (machine == TableINI.Nom ? MatieresMachine : MatieresAutresMachines)
            .push_back(LireMatiere(nom, machine));
    }
    if (defautDansLeFichier) {
        const std::string section = std::string(PrefixeMatiere) + NomParDefaut;
        EffacerSection(section);
        SupprimerLigneContenant("[" + section + "]");
    }
    return true;
}

void ChoisirMatiere(const Matiere& matiere) {
    MatiereCourante = matiere;
    DecoupeCourante = {matiere.ChauffeDecoupe, matiere.VitesseDecoupe, matiere.SaigneeVD,
                       matiere.SaigneeVDsur2};
}

const Matiere* TrouverMatiere(const std::string& nom) {
    const auto place = std::find_if(MatieresMachine.begin(), MatieresMachine.end(),
                                    [&](const Matiere& matiere) { return matiere.Nom == nom; });
    return place == MatieresMachine.end() ? nullptr : &*place;
}

ValeursDecoupe LimiterValeurs(const ValeursDecoupe& valeurs, const TableMachine& table, float saigneeMaxi) {
    constexpr int rangeeChauffe = 60;
    constexpr int rangeeVitesse = 58;
    constexpr int rangeeSaignee = 59;
    return {Brider(valeurs.Chauffe, static_cast<float>(table.ChauffeMaxiSur100), rangeeChauffe),
            Brider(valeurs.Vitesse, table.VmaxAvecAccXY, rangeeVitesse),
            Brider(valeurs.SaigneeVD, saigneeMaxi, rangeeSaignee),
            Brider(valeurs.SaigneeVDsur2, saigneeMaxi, rangeeSaignee)};
}

} // namespace tessarel
