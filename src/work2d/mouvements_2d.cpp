// Moves and heat by hand in 2D.
#include "work2d/mouvements_2d.h"

#include "app/texts/textes.h"
#include "link/commandes.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

// Rows of TextesDoubles: question and end of the two procedures, and the stop.
constexpr int RangeeQuestionRetour = 23;
constexpr int RangeeRetourFait = 24;
constexpr int RangeeAnnulee = 25;
constexpr int RangeeQuestionRangement = 28;
constexpr int RangeeRangementFait = 29;
// Rows of the messages.
constexpr int MessagesChauffeSurManu = 171;
constexpr int MessagesSansRetourAutomatique = 197;

FinProcedure DepuisOrigine(FinOrigine fin) {
    switch (fin) {
    case FinOrigine::Trouvee:
        return FinProcedure::Faite;
    case FinOrigine::Annulee:
        return FinProcedure::Annulee;
    case FinOrigine::FinDeCourse:
    case FinOrigine::EncoreOuverts:
    case FinOrigine::MarcheImpossible:
        break;
    }
    return FinProcedure::Echouee;
}

// What a move that has ended means, with the box of it.
FinProcedure DepuisMouvement(const ResultatMouvement& mouvement, const SuiviMarche& suivi) {
    switch (mouvement.cause) {
    case CauseFin::FinDeListe:
        return FinProcedure::Faite;
    case CauseFin::StopEcran:
    case CauseFin::StopEcranMoteursOff:
        if (suivi.demandes != nullptr)
            suivi.demandes->StopDemande = suivi.demandes->FinOrigineDemandee = false;
        AfficherExclamation(TextesDoubles(RangeeAnnulee, 1), TextesDoubles(RangeeAnnulee, 2));
        return FinProcedure::Annulee;
    default:
        break;
    }
    if (!AnnoncerCause(mouvement.cause)) AnnoncerMarcheAnormale(mouvement.marche.fin);
    return FinProcedure::Echouee;
}

// The checks that both procedures share, and the question.
FinProcedure DemanderProcedure(int rangeeQuestion) {
    if (VerifierLiaison() != AvantDecoupe::Permise) return FinProcedure::Refusee;
    if (!TableINI.OrigineAutomatique) {
        AfficherExclamation(TextesMessages(MessagesSansRetourAutomatique),
                            TitresMessages(MessagesSansRetourAutomatique));
        return FinProcedure::Refusee;
    }
    const bool oui = DemanderOuiNon(TextesDoubles(rangeeQuestion, 1), TextesDoubles(rangeeQuestion, 2));
    return oui ? FinProcedure::Faite : FinProcedure::Declinee;
}

FinProcedure AllerAuRangement(const TableMachine& table, const SuiviMarche& suivi) {
    // From the origin, which on some machines is at the top of the travel.
    const double x = table.RangementSuivantX;
    const double y = table.RangementSuivantY - (table.OrigineEnHaut ? table.CourseY : 0);
    std::array<float, 4> pas = {};
    for (const Axe axe : {AxeX1, AxeY1, AxeX2, AxeY2})
        pas[axe] = static_cast<float>(PasDeMillimetres(table, axe, axe == AxeX1 || axe == AxeX2 ? x : y));
    return DepuisMouvement(MouvementSimple(table, pas, table.VitesseRapide, suivi), suivi);
}

FinProcedure Conclure(FinProcedure fin, int rangee) {
    if (fin == FinProcedure::Faite) AfficherInformation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
    return fin;
}

} // namespace

FinProcedure MiseAOrigine(const TableMachine& table, AxesOrigine axes, const SuiviMarche& suivi) {
    const FinProcedure fin = DepuisOrigine(RechercheOrigine(table, axes, suivi));
    if (fin != FinProcedure::Faite) return fin;
    return DepuisMouvement(AllerDesInterrupteursALOrigine(table, axes, suivi), suivi);
}

FinProcedure RetourOrigine(const SuiviMarche& suivi) {
    const FinProcedure permise = DemanderProcedure(RangeeQuestionRetour);
    if (permise != FinProcedure::Faite) return permise;
    return Conclure(MiseAOrigine(TableINI, AxesOrigine::XetY, suivi), RangeeRetourFait);
}

FinProcedure RangerLePortique(const SuiviMarche& suivi) {
    FinProcedure fin = DemanderProcedure(RangeeQuestionRangement);
    if (fin != FinProcedure::Faite) return fin;
    fin = MiseAOrigine(TableINI, AxesOrigine::XetY, suivi);
    if (fin == FinProcedure::Faite) fin = AllerAuRangement(TableINI, suivi);
    return Conclure(fin, RangeeRangementFait);
}

bool DeplacerManuellement(const TableMachine& table, const std::array<double, 4>& mm, float vitesse,
                          const SuiviMarche& suivi) {
    const std::optional<VitessesSalve> vitesses = VitessesManuelles(vitesse, table);
    if (!vitesses) return false;
    PasAxes pas = {};
    for (const Axe axe : {AxeX1, AxeY1, AxeX2, AxeY2}) pas[axe] = PasDeMillimetres(table, axe, mm[axe]);
    const ResultatMouvement mouvement = FaireMouvement(table, pas, *vitesses, suivi);
    if (!AnnoncerCause(mouvement.cause)) AnnoncerMarcheAnormale(mouvement.marche.fin);
    return true;
}

bool ChauffeManuellePermise() {
    if (!DemanderStatut().ChauffeSurManu) return true;
    return DemanderOuiNon(TextesMessages(MessagesChauffeSurManu), TitresMessages(MessagesChauffeSurManu));
}

bool AllumerChauffeManuelle(float chauffe, const SuiviMarche& suivi) {
    const auto interrompre = [&suivi] { return suivi.demandes != nullptr && suivi.demandes->ArretVoulu(); };
    return EnvoyerChauffe(ValeurPWM(chauffe), {interrompre, suivi.Prevenir}) == FinChauffe::Confirmee;
}

} // namespace tessarel
