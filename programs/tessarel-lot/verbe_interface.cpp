// `interface`: what is connected, the three memories, and the one that agrees with the machine.
#include "interface_lot.h"
#include "json_lot.h"
#include "langue_lot.h"
#include "machine_lot.h"
#include "resume_lot.h"
#include "verbes.h"

#include "link/etat_interface.h"
#include "link/memoires.h"

#include <memory>

namespace tessarel::lot {

namespace {

std::string TexteBibliotheque() {
    switch (EtatZelkoCom()) {
    case EtatBibliotheque::Presente:
        return OrigineZelkoCom() + ", version " + std::to_string(Zelko_Dll_Version());
    case EtatBibliotheque::TropVieille:
        return Dire("trop vieille, version ", "too old, version ") + std::to_string(Zelko_Dll_Version());
    case EtatBibliotheque::Absente:
        break;
    }
    return Dire("absente", "missing");
}

const char* MotBibliotheque() {
    switch (EtatZelkoCom()) {
    case EtatBibliotheque::Presente:
        return "presente";
    case EtatBibliotheque::TropVieille:
        return "trop vieille";
    case EtatBibliotheque::Absente:
        break;
    }
    return "absente";
}

std::string TexteMemoire(const MemoireAffichee& affichee, const TableMachine& memoire) {
    if (affichee.Nom.empty()) return Dire("vide", "empty") + "\n";
    if (!affichee.Cochee) return affichee.Nom + "\n";
    const std::vector<std::string> differences = DifferencesAvecMemoire(TableINI, memoire);
    if (differences.empty()) return affichee.Nom + Dire(", mêmes paramètres", ", same parameters") + "\n";
    std::string texte = affichee.Nom + Dire(", paramètres différents :", ", different parameters:") + "\n";
    for (const std::string& ligne : differences) texte += "  " + ligne + "\n";
    return texte;
}

std::string TexteInterface(const EtatSplash& etat) {
    std::string texte = LigneResume(Dire("Bibliothèque", "Library"), TexteBibliotheque());
    texte += LigneResume("Interface", InterfaceConnectee ? Dire("détectée", "detected")
                                                         : Dire("pas d'interface", "no interface"));
    if (MachineLaissee)
        texte += LigneResume(Dire("État", "State"), Dire("laissée en marche", "left running"));
    texte += LigneResume("Machine", TableINI.Nom);
    for (std::size_t i = 0; MemoiresLues() && i < etat.Memoires.size(); ++i) {
        std::string memoire = TexteMemoire(etat.Memoires[i], MemoiresZelko[i]);
        memoire.pop_back();
        texte += LigneResume(Dire("Mémoire ", "Memory ") + std::to_string(i), memoire);
    }
    const std::string memoire =
        Dire("activés par la mémoire ", "enabled by memory ") + std::to_string(TableINI.NumeroMemoire);
    texte +=
        LigneResume(Dire("Mouvements", "Moves"), MouvementsActifs ? memoire : Dire("désactivés", "disabled"));
    return texte;
}

nlohmann::ordered_json JsonMemoire(std::size_t numero, const TableMachine& memoire) {
    nlohmann::ordered_json objet;
    const bool memeNom = memoire.Nom == TableINI.Nom;
    const std::vector<std::string> differences = DifferencesAvecMemoire(TableINI, memoire);
    objet["memoire"] = numero;
    objet["nom"] = memoire.Nom;
    objet["meme_nom"] = memeNom;
    objet["memes_parametres"] = differences.empty();
    objet["sorties"] = memoire.CodeDefinitionSortie;
    objet["frequence"] = memoire.Frequence;
    objet["pente"] = memoire.PenteAcceleration;
    objet["pwm_maxi"] = memoire.PWMmaxi0to255;
    objet["delai_moteurs"] = memoire.DelaiMoteursOff;
    objet["interrupteurs"] = memoire.SwitchsActifs;
    objet["inversion_moteurs"] = memoire.InversionSignalMoteurOnOff;
    objet["differences"] = memeNom ? differences : std::vector<std::string>();
    return objet;
}

nlohmann::ordered_json JsonInterface(const EtatSplash& etat) {
    nlohmann::ordered_json objet;
    objet["bibliotheque"] = {{"etat", MotBibliotheque()}, {"version", Zelko_Dll_Version()}};
    objet["connectee"] = InterfaceConnectee;
    objet["laissee_en_marche"] = MachineLaissee;
    objet["machine"] = TableINI.Nom;
    objet["memoires"] = nlohmann::ordered_json::array();
    for (std::size_t i = 0; MemoiresLues() && i < etat.Memoires.size(); ++i)
        objet["memoires"].push_back(JsonMemoire(i, MemoiresZelko[i]));
    objet["mouvements"] = MouvementsActifs;
    objet["memoire_active"] =
        MouvementsActifs ? nlohmann::ordered_json(TableINI.NumeroMemoire) : nlohmann::ordered_json();
    return objet;
}

int MontrerInterface(const std::string& machine, bool json) {
    if (!ChoisirMachine(machine)) return StatutRefuse;
    const EtatSplash etat = ChercherInterface();
    const int statut = Imprimer(json ? TexteJson(JsonInterface(etat)) : TexteInterface(etat));
    return InterfaceConnectee ? statut : StatutRefuse;
}

} // namespace

void DeclarerInterface(CLI::App& programme, const ChoisirAction& choisir) {
    CLI::App* verbe = AjouterVerbe(
        programme, "interface",
        Dire("Dit quelle interface est branchée, ce que tiennent ses mémoires, et si la machine peut bouger",
             "Tells which interface is connected, what its memories hold, and whether the machine may move"));
    const auto machine = std::make_shared<std::string>();
    const auto json = std::make_shared<bool>(false);
    verbe
        ->add_option("--machine", *machine,
                     Dire("Machine à comparer ; sinon celle des réglages",
                          "Machine to compare (default: that of the settings)"))
        ->type_name("M");
    verbe->add_flag("--json", *json, Dire("Écrit un objet JSON", "Prints a JSON object"));
    verbe->callback(
        [machine, json, choisir] { choisir([machine, json] { return MontrerInterface(*machine, *json); }); });
}

} // namespace tessarel::lot
