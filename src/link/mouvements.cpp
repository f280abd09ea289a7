// Single moves on the box, the causes that end them, and the switches asked before them.
#include "link/mouvements.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "platform/pompe.h"

#include <algorithm>

namespace tessarel {

namespace {

// Rows of TextesDoubles.
constexpr int RangeeOrigineOuverte = 26;
constexpr int RangeeFinCourseOuverte = 27;
constexpr int RangeeInterrupteursInactifs = 30;
constexpr int RangeeDepartFinCourse = 31;
constexpr int RangeeDepartOrigine = 32;
constexpr int RangeeBoutonStop = 35;

int RefuserProcedure(int rangee, int statut) {
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
    return statut;
}

} // namespace

std::optional<VitessesSalve> VitessesManuelles(float vitesse, const TableMachine& table) {
    if (!(vitesse >= 0 && vitesse <= table.VmaxAvecAccXY)) {
        AfficherExclamation(Texte(TexteProgramme::VitesseIncorrecte),
                            Texte(TexteProgramme::TitreOperationImpossible));
        return std::nullopt;
    }
    const float extremes = vitesse >= table.VmaxSansAccXY ? table.VmaxSansAccXY : vitesse;
    return VitessesSalve{extremes, vitesse, extremes};
}

ResultatMouvement MouvementSimple(const TableMachine& table, const std::array<float, 4>& pas, float vitesse,
                                  const SuiviMarche& suivi) {
    const float extremes = std::min(vitesse, table.VmaxSansAccXY);
    PasAxes entiers = {};
    for (std::size_t axe = 0; axe < entiers.size(); ++axe) entiers[axe] = ArrondiLong(pas[axe]);
    return FaireMouvement(table, entiers, {extremes, vitesse, extremes}, suivi);
}

ResultatMouvement FaireMouvement(const TableMachine& table, const PasAxes& pas, const VitessesSalve& vitesses,
                                 const SuiviMarche& suivi) {
    ResultatMouvement mouvement;
    LaisserPasserEvenements();
    if (suivi.demandes != nullptr && suivi.demandes->ArretVoulu()) {
        mouvement.marche.fin = FinMarche::StopAvantMouvement;
    } else {
        // A refused frame goes out as it is: it does nothing.
        const std::array<Salve, 2> liste = {
            ConstruireSalve(ParametresDeSalve(table), vitesses.depart, vitesses.cible, vitesses.fin, pas),
            ConstruireSalveFin()};
        mouvement.NBRt = static_cast<std::int32_t>(NBRtDeSalve(liste[0]));
        try {
            mouvement.marche = FaireMarche(liste, suivi);
        } catch (...) {
            SecourirMarche();
            throw;
        }
    }
    mouvement.cause =
        CauseDeFin(mouvement.marche, suivi.demandes != nullptr && suivi.demandes->MoteursOffDemande);
    return mouvement;
}

CauseFin CauseDeFin(const ResultatMarche& marche, bool moteursOff) {
    CauseFin cause = CauseFin::Aucune;
    const StatutZelko& s = marche.statut;
    if (s.FinDeListe) cause = CauseFin::FinDeListe;
    if (s.ArretBoutonStop) cause = CauseFin::BoutonStop;
    if (s.OrigineOuverteEnMouvement) cause = CauseFin::OrigineOuverte;
    if (s.FinCourseOuverteEnMouvement) cause = CauseFin::FinCourseOuverte;
    if (marche.fin == FinMarche::Arretee || marche.fin == FinMarche::StopAvantMouvement)
        cause = moteursOff ? CauseFin::StopEcranMoteursOff : CauseFin::StopEcran;
    return cause;
}

bool AnnoncerCause(CauseFin cause) {
    switch (cause) {
    case CauseFin::BoutonStop:
        AfficherExclamation(TextesDoubles(RangeeBoutonStop, 1), TextesDoubles(RangeeBoutonStop, 2));
        return true;
    case CauseFin::OrigineOuverte:
        AfficherCritique(TextesDoubles(RangeeOrigineOuverte, 1), TextesDoubles(RangeeOrigineOuverte, 2));
        return true;
    case CauseFin::FinCourseOuverte:
        AfficherCritique(TextesDoubles(RangeeFinCourseOuverte, 1), TextesDoubles(RangeeFinCourseOuverte, 2));
        return true;
    case CauseFin::Aucune:
    case CauseFin::FinDeListe:
    case CauseFin::StopEcran:
    case CauseFin::StopEcranMoteursOff:
        break;
    }
    return false;
}

bool InterrupteurOrigineOuvert() {
    return DemanderStatut().OrigineOuverte;
}

bool InterrupteurFinCourseOuvert() {
    return DemanderStatut().FinCourseOuverte;
}

int VerifierInterrupteurs(const TableMachine& table) {
    constexpr int inactifs = -1;
    constexpr int finCourseOuverte = -2;
    constexpr int origineOuverte = -3;
    if (!table.SwitchsActifs) return StatutSucces;
    if (!ModeNormal()) return RefuserProcedure(RangeeInterrupteursInactifs, inactifs);
    if (InterrupteurFinCourseOuvert()) return RefuserProcedure(RangeeDepartFinCourse, finCourseOuverte);
    if (InterrupteurOrigineOuvert()) return RefuserProcedure(RangeeDepartOrigine, origineOuverte);
    return StatutSucces;
}

void DesactiverDelaiMoteurs(bool desactiver, const TableMachine& table) {
    if (desactiver) {
        ReglerDelaiMoteurs(0);
        AllumerMoteurs();
        return;
    }
    CouperMoteurs();
    if (table.AutoMoteursOff) ReglerDelaiMoteurs(table.DelaiMoteursOff);
}

} // namespace tessarel
