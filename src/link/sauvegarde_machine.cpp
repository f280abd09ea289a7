// The save of a machine step by step, and the other changes of machine.
#include "sauvegarde_machine.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "echange.h"
#include "machine/cles_machine.h"
#include "machine/matieres.h"
#include "memoires.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/profil_prive.h"
#include "rafraichir.h"

namespace tessarel {

namespace {

constexpr const char* MachineParDefaut = "(Defaut)";
constexpr const char* ModeParametres = "TABLES"; // no window of work follows the refresh

// Rows of TextesMessages.
constexpr int RangeeVientDEtreBranchee = 224;
constexpr int RangeeInterfaceAbsente = 226;
constexpr int RangeeNomVide = 238;
constexpr int RangeeSauvegardeImpossible = 240;
// Row of TextesDoubles.
constexpr int RangeeEffacer = 61;

void Dire(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

// The chosen material goes on under its name where the machine has it, else the default line does.
void ReprendreMatiere() {
    const std::string nom = MatiereCourante.Nom;
    ChargerBaseMatieres();
    const Matiere* meme = TrouverMatiere(nom);
    ChoisirMatiere(meme != nullptr ? *meme : MatieresMachine.front());
}

bool EcrireDansLeFichier(const TableMachine& table) {
    if (EstMachineIntegree(table.Nom)) return true;
    try {
        if (EcrireMachine(table)) return true;
    } catch (const Faute&) { // told below: one sentence for all the ways in which a file can't be written
    }
    AfficherCritique(TextesMessages(RangeeSauvegardeImpossible), Texte(TexteProgramme::TitreErreur));
    return false;
}

FinSauvegarde EnvoyerEnMemoire(int memoire) {
    constexpr const char* procedure = "SauverParamMachineIniEtZelko";
    // A table that can't be composed sends nothing and has told why: the result of something before it must
    // not be told as its own.
    DernierResultatZelko = ResultatZelkoSucces;
    if (!EcrireTableDansZelkoEtChargerEnRam(memoire)) {
        if (DernierResultatZelko != ResultatZelkoSucces) SignalerErreurInterface(procedure);
        return FinSauvegarde::MemoireManquee;
    }
    bool relues = true;
    for (int i = 0; i < NombreMemoires; ++i)
        relues = LireMemoireZelko(MemoiresZelko[static_cast<std::size_t>(i)], i) && relues;
    // Memories that can't be read back tell that the box is out of reach: nothing may move.
    MouvementsActifs = relues;
    return relues ? FinSauvegarde::EnregistreeEtEnvoyee : FinSauvegarde::MemoireManquee;
}

} // namespace

FinSauvegarde SauverParamMachineIniEtZelko(const SaisieMachine& saisie, std::optional<int> memoire) {
    if (Rogner(saisie.Nom).empty()) {
        Dire(RangeeNomVide);
        return FinSauvegarde::Refusee;
    }
    const std::optional<TableMachine> table = ControlerSaisie(saisie);
    if (!table) return FinSauvegarde::Refusee;
    if (!EcrireDansLeFichier(*table)) return FinSauvegarde::FichierImpossible;
    MouvementsActifs = false; // the table in RAM is no longer known to be this machine
    if (ChargerMachine(saisie.Nom) != StatutSucces) return FinSauvegarde::FichierImpossible;
    ReprendreMatiere();
    if (InterfaceConnectee && !MachineLaissee && memoire) return EnvoyerEnMemoire(*memoire);
    if (InterfaceConnectee) RafraichirUsb(ModeParametres, QuestionMachine::PoseeUneFois);
    return FinSauvegarde::Enregistree;
}

void ChoisirMachine(const std::string& nom) {
    MouvementsActifs = false;
    if (ChargerMachine(nom) != StatutSucces) {
        AfficherInformation(Texte(TexteProgramme::MachineParDefautChargee),
                            Texte(TexteProgramme::MachineParDefautChargeeTitre));
        ChargerMachine(MachineParDefaut);
    }
    EcrireMachineUtilisee(TableINI.Nom);
    ReprendreMatiere();
    if (InterfaceConnectee) RafraichirUsb(ModeParametres, QuestionMachine::PoseeUneFois);
}

bool CreerMachine(SaisieMachine saisie, const std::string& nom) {
    if (!AccepterNomMachine(nom)) return false;
    saisie.Nom = std::string(Rogner(nom));
    if (SauverParamMachineIniEtZelko(saisie, std::nullopt) != FinSauvegarde::Enregistree) return false;
    EcrireMachineUtilisee(saisie.Nom);
    CreerTableauDesNomsDeMachines();
    return true;
}

FinEffacement EffacerMachine(const std::string& nom, const std::function<void()>& chargement) {
    if (EstMachineIntegree(nom)) return FinEffacement::Reservee;
    if (Rogner(nom).empty()) {
        Dire(RangeeNomVide);
        return FinEffacement::Abandonnee;
    }
    if (!DemanderOuiNon(TextesDoubles(RangeeEffacer, 1), TextesDoubles(RangeeEffacer, 2)))
        return FinEffacement::Abandonnee;
    {
        const EcrituresGroupees ensemble(DossiersProgramme.FichierIni);
        const std::string section = PrefixeMachine + nom;
        EffacerSection(section);
        SupprimerLigneContenant("[" + section + "]");
    }
    if (chargement) chargement();
    ChoisirMachine(MachineParDefaut);
    CreerTableauDesNomsDeMachines();
    return FinEffacement::Effacee;
}

bool InterfacePretePourMemoire() {
    const bool avant = InterfaceConnectee;
    if (!TesterInterface()) {
        MouvementsActifs = false;
        AfficherExclamation(TextesMessages(RangeeInterfaceAbsente), TitresMessages(RangeeInterfaceAbsente));
        return false;
    }
    // A table written now would become that of a run of somebody else.
    const bool laissee = MachineLaissee;
    const MachineTrouvee trouvee = ControlerMachine(QuestionMachine::Posee);
    if (trouvee == MachineTrouvee::Laissee) MouvementsActifs = false;
    if (laissee || trouvee != MachineTrouvee::Libre) return false;
    if (avant) return true;
    AfficherInformation(TextesMessages(RangeeVientDEtreBranchee), TitresMessages(RangeeVientDEtreBranchee));
    return false;
}

} // namespace tessarel
