// Sends the list of a cut.
#include "link/envoi_salves.h"

#include "app/texts/textes.h"
#include "link/commandes.h"
#include "link/mouvements.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

constexpr int RangeeInterrupteursInactifs = 30; // of TextesDoubles
constexpr int RangeeInterrupteurOuvert = 45;

} // namespace

ResultatEnvoi EnvoyerSalves(const TableauSalves& salves, const SuiviMarche& suivi) {
    try {
        ResultatEnvoi envoi;
        envoi.marche = FaireMarche(salves, suivi);
        envoi.chauffeCoupee = RefroidirFil(suivi);
        // Given up, and it answers again: it has gone on by itself until now.
        if (envoi.chauffeCoupee && envoi.marche.fin == FinMarche::Abandonnee) ArreterMouvement();
        if (envoi.marche.statut.ChauffeSurManu && SignalerFilChaudSurManu()) envoi.chauffeCoupee = false;
        return envoi;
    } catch (...) {
        SecourirMarche();
        throw;
    }
}

bool InterrupteursPermettentLaDecoupe(const TableMachine& table) {
    if (!table.SwitchsActifs) return true;
    int rangee = 0;
    if (!ModeNormal())
        rangee = RangeeInterrupteursInactifs;
    else if (InterrupteurOrigineOuvert() || InterrupteurFinCourseOuvert())
        rangee = RangeeInterrupteurOuvert;
    if (rangee == 0) return true;
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
    return false;
}

} // namespace tessarel
