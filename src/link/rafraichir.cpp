// The refresh of the connection, step by step.
#include "rafraichir.h"

#include "app/settings/gestion_ini.h"
#include "app/texts/textes_programme.h"
#include "echange.h"
#include "marche.h"
#include "memoires.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

void RechargerMachine() {
    constexpr const char* parDefaut = "(Defaut)";
    // A copy: the load replaces the record that holds the name.
    const std::string nom = TableINI.Nom.empty() ? parDefaut : TableINI.Nom;
    if (ChargerMachine(nom) == StatutSucces) return;
    AfficherInformation(Texte(TexteProgramme::MachineParDefautChargee),
                        Texte(TexteProgramme::MachineParDefautChargeeTitre));
    EcrireMachineUtilisee(parDefaut);
    ChargerMachine(parDefaut);
}

// The box was given up with the wire hot, and is there again: it has gone on by itself meanwhile. True when
// it is made good.
bool RattraperCoupure() {
    if (!CoupureEnSuspens || !SecourirMarche()) return false;
    AfficherInformation(Texte(TexteProgramme::ChauffeRattrapee),
                        Texte(TexteProgramme::ChauffeRattrapeeTitre));
    return true;
}

// The number of the memory that was made active, -1 for none.
int ChargerMemoireQuiCorrespond() {
    for (int i = 0; i < NombreMemoires; ++i) {
        const TableMachine& memoire = MemoiresZelko[static_cast<std::size_t>(i)];
        if (memoire.Nom != TableINI.Nom || !ComparerMachineEtZelko(TableINI, memoire)) continue;
        TableINI.NumeroMemoire = static_cast<std::uint8_t>(i);
        if (ChargerMemoireEnRam(i)) return i;
        SignalerErreurInterface("RafraichirUsb");
        InterfaceConnectee = false;
        return -1;
    }
    return -1;
}

} // namespace

EtatLiaison RafraichirUsb(const std::string& mode, QuestionMachine question) {
    RechargerMachine();
    EtatLiaison etat;
    etat.Mode = mode;
    etat.NomMachine = TableINI.Nom;
    MouvementsActifs = false;
    if (!TesterInterface()) return etat;
    etat.Rattrapee = RattraperCoupure();
    // A heat of this program that does not go off has been told.
    const MachineTrouvee trouvee = CoupureEnSuspens ? MachineTrouvee::Libre : ControlerMachine(question);
    etat.Arretee = trouvee == MachineTrouvee::Arretee;
    if (trouvee == MachineTrouvee::Laissee) {
        etat.Liaison = LiaisonZelko::LaisseeEnMarche;
        return etat;
    }
    for (int i = 0; i < NombreMemoires; ++i) LireMemoireZelko(MemoiresZelko[static_cast<std::size_t>(i)], i);
    etat.Memoire = ChargerMemoireQuiCorrespond();
    MouvementsActifs = etat.Memoire >= 0;
    if (MouvementsActifs)
        etat.Liaison = LiaisonZelko::MouvementsPermis;
    else if (InterfaceConnectee)
        etat.Liaison = LiaisonZelko::SansCorrespondance;
    return etat;
}

} // namespace tessarel
