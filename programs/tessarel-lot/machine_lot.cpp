// Machine and material by name; a name that isn't there is refused with those that are.
#include "machine_lot.h"

#include "langue_lot.h"

#include "app/settings/cles_generales.h"
#include "app/texts/textes.h"
#include "machine/machines_integrees.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "platform/dialogue.h"

#include <algorithm>
#include <iterator>

namespace tessarel::lot {

namespace {

constexpr int MessagesMatiereParDefaut = 105;

void RefuserNom(const std::string& titre, const std::string& nom, const std::vector<std::string>& connues) {
    std::string texte = nom + Dire(" n'existe pas. Connues : ", " does not exist. Known: ");
    for (std::size_t i = 0; i < connues.size(); ++i) texte += (i == 0 ? "" : ", ") + connues[i];
    AfficherExclamation(texte, titre);
}

} // namespace

std::vector<std::string> NomsDesMachines() {
    std::vector<std::string> noms = NomsMachinesIntegrees();
    std::ranges::copy_if(TableauNomsMachines, std::back_inserter(noms),
                         [](const std::string& nom) { return !EstMachineIntegree(nom); });
    return noms;
}

bool ChoisirMachine(const std::string& nom) {
    if (nom.empty() || nom == TableINI.Nom) return true;
    if (!EstMachineConnue(nom)) {
        RefuserNom(Dire("Machine inconnue", "Unknown machine"), nom, NomsDesMachines());
        return false;
    }
    if (ChargerMachine(nom) != StatutSucces || !ChargerBaseMatieres()) return false;
    ChoisirMatiere(MatieresMachine.front());
    if (const Matiere* habituelle = TrouverMatiere(LireParametre("MatiereUtilisee")))
        ChoisirMatiere(*habituelle);
    return true;
}

std::string NomAffiche(const Matiere& matiere) {
    return matiere.Nom == MatieresMachine.front().Nom ? TextesMessages(MessagesMatiereParDefaut)
                                                      : matiere.Nom;
}

bool ChoisirMatiereNommee(const std::string& nom) {
    if (nom.empty()) return true;
    std::vector<std::string> noms;
    for (const Matiere& matiere : MatieresMachine) {
        noms.push_back(NomAffiche(matiere));
        if (matiere.Nom != nom && noms.back() != nom) continue;
        ChoisirMatiere(matiere);
        return true;
    }
    RefuserNom(Dire("Matière inconnue", "Unknown material"), nom, noms);
    return false;
}

} // namespace tessarel::lot
