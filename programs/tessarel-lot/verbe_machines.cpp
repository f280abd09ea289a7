// `machines`: the machines that are known, the values of one of them, what two of them, or one and the box,
// differ in.
#include "interface_lot.h"
#include "langue_lot.h"
#include "machine_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "link/etat_interface.h"
#include "link/memoires.h"
#include "machine/cles_machine.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <memory>

namespace tessarel::lot {

namespace {

constexpr int RangeePasDInterface = 247; // of TextesMessages

int ListerMachines() {
    std::string texte;
    for (const std::string& nom : NomsDesMachines()) {
        texte += nom == TableINI.Nom ? "* " : "  ";
        texte += EstMachineIntegree(nom) ? LigneResume(nom, Dire("intégrée", "built in")) : nom + "\n";
    }
    return Imprimer(texte);
}

// A value under the key that the settings file has for it.
std::string Ligne(const char* cle, const std::string& valeur) {
    constexpr std::size_t largeur = 34;
    std::string ligne = cle;
    ligne.resize(std::max(largeur, ligne.size() + 1), ' ');
    return ligne + valeur + "\n";
}

// Every key of the machine as the settings file has it, and what is derived from them.
std::string TexteMachine(const TableMachine& t) {
    std::string texte = Ligne("Nom", t.Nom);
    for (const CleMachine& cle : ClesMachine()) texte += Ligne(cle.cle, TexteDeCle(cle, t));
    texte += Ligne("EcartementUtile", FormaterNombre(t.EcartementUtile, "#####0.0##"));
    return texte;
}

int MontrerMachine(const std::string& nom) {
    if (!ChoisirMachine(nom)) return StatutRefuse;
    std::string texte = TexteMachine(TableINI);
    for (const Matiere& matiere : MatieresMachine)
        texte += Ligne(Dire("Matière", "Material").c_str(),
                       NomAffiche(matiere) + " : " + FormaterNombre(matiere.ChauffeDecoupe, "##0.0") +
                           " %, " + FormaterNombre(matiere.VitesseDecoupe, "##0.0#") + " mm/s, " +
                           FormaterNombre(matiere.SaigneeVD, "##0.0#") + " mm, " +
                           FormaterNombre(matiere.SaigneeVDsur2, "##0.0#") + " mm");
    return Imprimer(texte);
}

// The keys in which two machines differ, under each other: those that the box knows nothing of as well.
int ComparerMachines(const std::string& nom, const std::string& autre) {
    if (!ChoisirMachine(nom)) return StatutRefuse;
    const TableMachine premiere = TableINI;
    if (!ChoisirMachine(autre)) return StatutRefuse;
    std::string texte;
    for (const CleMachine& cle : ClesMachine()) {
        const std::string ici = TexteDeCle(cle, premiere);
        const std::string la = TexteDeCle(cle, TableINI);
        if (ici != la) texte += Ligne(cle.cle, ici + "  <>  " + la);
    }
    if (texte.empty()) texte = Dire("Aucune différence", "No difference") + "\n";
    return Imprimer(texte);
}

std::string TexteComparaison(int numero, const TableMachine& memoire) {
    const std::string titre = Dire("Mémoire ", "Memory ") + std::to_string(numero) + ", " +
                              (memoire.Nom.empty() ? Dire("vide", "empty") : memoire.Nom);
    if (memoire.Nom.empty()) return titre + "\n";
    std::string texte =
        titre + Dire(" :", ":") + (memoire.Nom == TableINI.Nom ? "" : Dire(" autre nom", " another name"));
    const std::vector<std::string> differences = DifferencesAvecMemoire(TableINI, memoire);
    if (differences.empty()) texte += Dire(" mêmes paramètres", " same parameters");
    for (const std::string& ligne : differences) texte += "\n  " + ligne;
    return texte + "\n";
}

// Held against the three memories of the box: what motion depends on.
int ComparerAvecInterface(const std::string& nom) {
    if (!ChoisirMachine(nom)) return StatutRefuse;
    (void)ChercherInterface();
    if (!InterfaceConnectee) {
        AfficherExclamation(TextesMessages(RangeePasDInterface), TitresMessages(RangeePasDInterface));
        return StatutRefuse;
    }
    if (!MemoiresLues()) return StatutRefuse; // the question told why
    std::string texte;
    for (int i = 0; i < NombreMemoires; ++i)
        texte += TexteComparaison(i, MemoiresZelko[static_cast<std::size_t>(i)]);
    return Imprimer(texte);
}

} // namespace

void DeclarerMachines(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(programme, "machines",
                                   Dire("Liste les machines, celle des réglages marquée d'une étoile ; "
                                        "montrer M : ses valeurs ; comparer M : ce qui la distingue",
                                        "Lists the machines, the one of the settings marked with a star; "
                                        "montrer M shows its values, comparer M what is different"));
    CLI::App* montrer = AjouterVerbe(*verbe, "montrer",
                                     Dire("Affiche les valeurs et les matières d'une machine",
                                          "Prints the values and the materials of a machine"));
    const auto nom = std::make_shared<std::string>();
    montrer->add_option("M", *nom, Dire("Nom de la machine", "Name of the machine"))
        ->required()
        ->type_name("");
    CLI::App* comparer =
        AjouterVerbe(*verbe, "comparer",
                     Dire("Compare une machine avec une autre, ou avec les mémoires de l'interface",
                          "Compares a machine with another, or with the memories of the interface"));
    const auto autre = std::make_shared<std::string>();
    comparer->add_option("M", *nom, Dire("Nom de la machine", "Name of the machine"))
        ->required()
        ->type_name("");
    comparer
        ->add_option("AUTRE", *autre,
                     Dire("Autre machine ; sans elle, les mémoires de l'interface",
                          "Another machine; without it, the memories of the interface"))
        ->type_name("");
    verbe->callback([montrer, comparer, nom, autre, choisir] {
        if (montrer->parsed())
            choisir([nom] { return MontrerMachine(*nom); });
        else if (comparer->parsed())
            choisir([nom, autre] {
                return autre->empty() ? ComparerAvecInterface(*nom) : ComparerMachines(*nom, *autre);
            });
        else
            choisir(ListerMachines);
    });
}

} // namespace tessarel::lot
