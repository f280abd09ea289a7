// Moves by hand in 2D, and the question before the heat.
#include "work2d/mouvements_2d.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "link/etat_interface.h"
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
constexpr int MessagesChauffeSurOff = 106;
constexpr int MessagesSansInterface = 108;
constexpr int MessagesChauffeSurManu = 171;
constexpr int MessagesSansRetourAutomatique = 197;

FinProcedure DepuisOrigine(FinOrigine fin) {
    switch (fin) {
    case FinOrigine::Trouvee:
        return FinProcedure::Faite;
    case FinOrigine::Annulee:
        return FinProcedure::Annulee;
    case FinOrigine::SansInterrupteurs:
        return FinProcedure::Refusee;
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

void Refuser(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

// What every procedure needs before its question: a cold wire, for nothing watches it while a box waits for
// an answer; the link, and a machine that finds its origin by itself.
FinProcedure PermettreProcedure(const RefroidirManuel& refroidir) {
    if (refroidir && !refroidir()) return FinProcedure::Refusee;
    const AvantDecoupe liaison = VerifierLiaison();
    if (liaison == AvantDecoupe::OuvrirParametrage) return FinProcedure::OuvrirParametrage;
    if (liaison != AvantDecoupe::Permise) return FinProcedure::Refusee;
    if (!TableINI.OrigineAutomatique) {
        Refuser(MessagesSansRetourAutomatique);
        return FinProcedure::Refusee;
    }
    return FinProcedure::Faite;
}

FinProcedure Confirmer(const std::string& question, const std::string& titre) {
    return DemanderOuiNon(question, titre) ? FinProcedure::Faite : FinProcedure::Declinee;
}

FinProcedure DemanderProcedure(int rangeeQuestion, const RefroidirManuel& refroidir) {
    const FinProcedure permise = PermettreProcedure(refroidir);
    if (permise != FinProcedure::Faite) return permise;
    return Confirmer(TextesDoubles(rangeeQuestion, 1), TextesDoubles(rangeeQuestion, 2));
}

// What the box stopped a move for by itself, also in the instant of a stop that was asked here: CauseDeFin
// tells that one alone then.
CauseFin CauseDeLaBoite(ResultatMarche marche) {
    marche.fin = FinMarche::Finie;
    const CauseFin cause = CauseDeFin(marche, false);
    return cause == CauseFin::FinDeListe ? CauseFin::Aucune : cause;
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

FinProcedure RetourOrigine(const SuiviMarche& suivi, const RefroidirManuel& refroidir) {
    const FinProcedure permise = DemanderProcedure(RangeeQuestionRetour, refroidir);
    if (permise != FinProcedure::Faite) return permise;
    return Conclure(MiseAOrigine(TableINI, AxesOrigine::XetY, suivi), RangeeRetourFait);
}

FinProcedure RangerLePortique(const SuiviMarche& suivi, const RefroidirManuel& refroidir) {
    FinProcedure fin = DemanderProcedure(RangeeQuestionRangement, refroidir);
    if (fin != FinProcedure::Faite) return fin;
    fin = MiseAOrigine(TableINI, AxesOrigine::XetY, suivi);
    if (fin == FinProcedure::Faite) fin = AllerAuRangement(TableINI, suivi);
    return Conclure(fin, RangeeRangementFait);
}

FinProcedure OrigineDUnAxe(AxesOrigine axe, const SuiviMarche& suivi, const RefroidirManuel& refroidir) {
    FinProcedure fin = PermettreProcedure(refroidir);
    if (fin != FinProcedure::Faite) return fin;
    if (VerifierInterrupteurs(TableINI) != StatutSucces) return FinProcedure::Refusee;
    const std::string nom = axe == AxesOrigine::X ? "X" : "Y";
    fin = Confirmer(TexteRempli(TexteProgramme::OrigineAxeQuestion, {nom}),
                    TextesDoubles(RangeeQuestionRetour, 2));
    if (fin == FinProcedure::Faite) fin = MiseAOrigine(TableINI, axe, suivi);
    if (fin == FinProcedure::Faite)
        AfficherInformation(TexteRempli(TexteProgramme::OrigineAxeFaite, {nom}),
                            Texte(TexteProgramme::OrigineAxeFaiteTitre));
    return fin;
}

FinProcedure DeplacerManuellement(const TableMachine& table, const std::array<double, 4>& mm, float vitesse,
                                  const SuiviMarche& suivi, const RefroidirManuel& refroidir) {
    const std::optional<VitessesSalve> vitesses = VitessesManuelles(vitesse, table);
    if (!vitesses) return FinProcedure::Refusee;
    PasAxes pas = {};
    for (const Axe axe : {AxeX1, AxeY1, AxeX2, AxeY2}) pas[axe] = PasDeMillimetres(table, axe, mm[axe]);
    const ResultatMouvement mouvement = FaireMouvement(table, pas, *vitesses, suivi);
    // It may still run: the link is asked, and the box stopped, before anything else.
    if (mouvement.marche.fin == FinMarche::Abandonnee) MouvementsActifs = false;
    if (mouvement.cause == CauseFin::FinDeListe) return FinProcedure::Faite;
    const CauseFin deLaBoite = CauseDeLaBoite(mouvement.marche);
    const bool arretee =
        mouvement.cause == CauseFin::StopEcran || mouvement.cause == CauseFin::StopEcranMoteursOff;
    if (arretee && deLaBoite == CauseFin::Aucune) return FinProcedure::Annulee;
    if (refroidir) refroidir();
    if (!AnnoncerCause(deLaBoite)) AnnoncerMarcheAnormale(mouvement.marche.fin);
    return FinProcedure::Echouee;
}

bool ChauffeManuellePermise() {
    const StatutZelko statut = DemanderStatut();
    if (!statut.Recu || statut.ChauffeSurOff) {
        Refuser(statut.Recu ? MessagesChauffeSurOff : MessagesSansInterface);
        return false;
    }
    if (!statut.ChauffeSurManu) return true;
    return DemanderOuiNon(TextesMessages(MessagesChauffeSurManu), TitresMessages(MessagesChauffeSurManu));
}

} // namespace tessarel
