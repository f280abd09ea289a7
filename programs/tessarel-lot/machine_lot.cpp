// Machine and material by name; a name that isn't there is refused with those that are.
#include "machine_lot.h"

#include "langue_lot.h"

#include "app/settings/cles_generales.h"
#include "app/texts/textes.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "platform/dialogue.h"

#include <algorithm>

namespace tessarel::lot {

namespace {

constexpr int MessagesMatiereParDefaut = 105;

void RefuserNom(const std::string& titre, const std::string& nom, const std::vector<std::string>& connus) {
    std::string texte = nom + Dire(" n'existe pas. Connus : ", " does not exist. Known: ");
    for (std::size_t i = 0; i < connus.size(); ++i) texte += (i == 0 ? "" : ", ") + connus[i];
    AfficherExclamation(texte, titre);
}

} // namespace

bool ChoisirMachine(const std::string& nom) {
    if (nom.empty() || nom == TableINI.Nom) return true;
    const auto& noms = TableauNomsMachines;
    // The built-in machines that no list shows can be named all the same.
    if (std::find(noms.begin(), noms.end(), nom) == noms.end() && !EstMachineIntegree(nom)) {
        RefuserNom(Dire("Machine inconnue", "Unknown machine"), nom, noms);
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
