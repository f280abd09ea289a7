// The short status words of the runs, French and English side by side.
#include "app/texts/rangees.h"
#include "app/texts/textes.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {EtatPret, "Prêt", "", "Ready", ""},
    {EtatOrigine, "Recherche de l'origine", "", "Homing", ""},
    {EtatChauffe, "Mise en chauffe", "", "Heating up", ""},
    {EtatDecoupe, "Découpe en cours", "", "Cutting", ""},
    {EtatArrete, "Arrêté", "", "Stopped", ""},
    {EtatRetour, "Retour en cours", "", "Returning", ""},
    {EtatTermine, "Découpe terminée", "", "Cut finished", ""},
    {EtatAnnule, "Découpe annulée", "", "Cut canceled", ""},
    {EtatPointArret, "Point d'arrêt", "", "Stop point", ""},
    {EtatMouvement, "Déplacement", "", "Moving", ""},
    {EtatNettoyage, "Nettoyage du fil", "", "Wire cleaning", ""},
    {EtatRangement, "Rangement", "", "Parking", ""},
    {EtatExport, "Export en cours", "", "Exporting", ""},
    {EtatSimulation, "Simulation", "", "Simulation", ""},
};

} // namespace

std::span<const RangeeTexte> RangeesDesEtats() {
    return RANGEES;
}

} // namespace tessarel
