// Runs a 2D cut on the machine.
#include "work2d/decoupe_interface.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "link/etat_interface.h"
#include "link/rafraichir.h"
#include "link/recherche_origine.h"
#include "paths/projets.h"
#include "platform/dialogue.h"

#include <cmath>

namespace tessarel {

namespace {

// Rows of TextesDoubles.
constexpr int RangeeTerminee = 39;
constexpr int RangeeStopChauffe = 41;
constexpr int RangeeStopOrigine = 42;
constexpr int RangeeHorsRepos = 43;
constexpr int RangeeRetourFait = 44;
constexpr int RangeePoussoirStop = 48;
// Rows of the messages.
constexpr int MessagesSansInterface = 108;
constexpr int MessagesSansCorrespondance = 121;
constexpr int MessagesSansDuree = 173;
constexpr int MessagesChauffeSansDuree = 127;

// Frame in which the first segment runs; the one before is the pause.
constexpr std::int32_t PremiereSalveDeDecoupe = 2;

void Annoncer(int rangee) {
    AfficherInformation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
}

void Alerter(int rangee) {
    AfficherExclamation(TextesDoubles(rangee, 1), TextesDoubles(rangee, 2));
}

// A cut under way.
struct Passe {
    const DecoupePreparee& preparee;
    const TableMachine& table;
    const SuiviDecoupe& suivi;
    GenreDecoupe genre;
    PhaseDecoupe phase = PhaseDecoupe::Repos;
    ResultatDecoupe resultat = {};
    std::vector<double> resteApres = {}; // s, of the motion, after the frame of that number
};

std::vector<double> ResteApresChaque(const TableauSalves& salves) {
    std::vector<double> reste(salves.size() + 1, 0);
    for (std::size_t k = salves.size(); k >= 2; --k)
        reste[k - 1] = reste[k] + salves[k - 1].Duree; // frame k stands at k - 1
    return reste;
}

void Changer(Passe& p, PhaseDecoupe phase) {
    if (p.phase == phase) return;
    p.phase = phase;
    if (p.suivi.ChangerPhase) p.suivi.ChangerPhase(phase);
}

void RemplirPlace(AvanceeDecoupe& avancee, const Passe& p, const AvanceeMarche& marche) {
    const auto numero = static_cast<std::size_t>(marche.NumeroSalve);
    if (numero < p.resteApres.size())
        avancee.secondesReste =
            p.resteApres[numero] + (1 - marche.Fraction) * p.preparee.liste.salves[numero - 1].Duree;
    const TrajetPas& trajet = p.preparee.liste.trajet;
    const auto avant = static_cast<std::size_t>(marche.NumeroSalve) - 1;
    const PositionDuFil fil =
        PositionAuStop(trajet, p.preparee.liste.salves, marche.NumeroSalve, marche.TicksRestants);
    if (fil.lecture != LecturePosition::Faite) return;
    avancee.XDebut = MillimetresDePas(p.table, AxeX1, trajet.bout1[avant].X);
    avancee.YDebut = MillimetresDePas(p.table, AxeY1, trajet.bout1[avant].Y);
    avancee.X1 = MillimetresDePas(p.table, AxeX1, fil.pas[AxeX1]);
    avancee.Y1 = MillimetresDePas(p.table, AxeY1, fil.pas[AxeY1]);
    avancee.X2 = MillimetresDePas(p.table, AxeX2, fil.pas[AxeX2]);
    avancee.Y2 = MillimetresDePas(p.table, AxeY2, fil.pas[AxeY2]);
}

void Suivre(Passe& p, const AvanceeMarche& marche) {
    AvanceeDecoupe avancee;
    avancee.NumSalveCourante = marche.NumeroSalve;
    avancee.sommets = static_cast<std::int32_t>(p.preparee.liste.trajet.bout1.size()) - 1;
    avancee.fraction = marche.Fraction;
    const bool decoupe = marche.NumeroSalve >= PremiereSalveDeDecoupe;
    const PhaseDecoupe enMarche =
        p.genre == GenreDecoupe::Retour ? PhaseDecoupe::Retour : PhaseDecoupe::Decoupe;
    avancee.phase = decoupe ? enMarche : PhaseDecoupe::Chauffe;
    avancee.secondesChauffe = p.preparee.TempoChauffeCourante;
    avancee.secondesTrajet = avancee.secondesReste = p.resteApres[PremiereSalveDeDecoupe - 1];
    if (decoupe)
        RemplirPlace(avancee, p, marche);
    else
        avancee.secondesRestantes =
            static_cast<int>(std::ceil(static_cast<double>(marche.TicksRestants) / p.table.Frequence));
    Changer(p, avancee.phase);
    if (p.suivi.Avancer) p.suivi.Avancer(avancee);
}

// The last look at a list that ran to its end was before that end.
void SuivreJusquAuBout(Passe& p) {
    const auto dernier = static_cast<std::int32_t>(p.preparee.liste.trajet.bout1.size()) - 1;
    if (dernier >= PremiereSalveDeDecoupe) Suivre(p, {.NumeroSalve = dernier, .Fraction = 1});
}

// To the switches and on to the origin. False when the cut ends here, told.
bool FaireOrigine(Passe& p) {
    Changer(p, PhaseDecoupe::Origine);
    const SuiviMarche suivi = SuiviDeMarche(p.suivi);
    const FinOrigine fin = RechercheOrigine(p.table, AxesOrigine::XetY, suivi, RangeeStopOrigine);
    if (fin != FinOrigine::Trouvee) return false;
    const ResultatMouvement mouvement = AllerDesInterrupteursALOrigine(p.table, AxesOrigine::XetY, suivi);
    if (mouvement.cause == CauseFin::FinDeListe) return true;
    if (p.suivi.demandes != nullptr) p.suivi.demandes->StopDemande = false;
    if (mouvement.cause == CauseFin::StopEcran || mouvement.cause == CauseFin::StopEcranMoteursOff)
        Alerter(RangeeStopOrigine);
    else if (!AnnoncerCause(mouvement.cause))
        AnnoncerMarcheAnormale(mouvement.marche.fin);
    return false;
}

void AnnoncerPositionInconnue(LecturePosition lecture) {
    if (lecture == LecturePosition::SansDuree)
        AfficherCritique(TextesMessages(MessagesSansDuree), TitresMessages(MessagesSansDuree));
    else if (lecture == LecturePosition::HorsListe)
        AfficherCritique(Texte(TexteProgramme::ErreurPositionStop), Texte(TexteProgramme::TitreErreur));
}

// Stopped before the first segment: the sentence says that the heat is off, so it is only told when it is.
FinDecoupe FinirAvantDecoupe(const Passe& p) {
    if (p.resultat.chauffeCoupee) Annoncer(RangeeStopChauffe);
    return FinDecoupe::StopAvantDecoupe;
}

void AnnoncerTerminee(const Passe& p) {
    if (p.genre == GenreDecoupe::Retour)
        Annoncer(RangeeRetourFait);
    else if (p.resultat.chauffeCoupee)
        Annoncer(RangeeTerminee);
    else // its sentence would say that the heat is off
        AfficherInformation(Texte(TexteProgramme::DecoupeTermineeFilChaud), TextesDoubles(RangeeTerminee, 2));
}

FinDecoupe FinirArretee(Passe& p) {
    if (p.resultat.NumSalveCourante < PremiereSalveDeDecoupe) return FinirAvantDecoupe(p);
    AnnoncerPositionInconnue(p.resultat.PositionStop.lecture);
    return p.resultat.PositionStop.lecture == LecturePosition::Faite ? FinDecoupe::Arretee
                                                                     : FinDecoupe::Inexpliquee;
}

// The box ended the run by itself, and its status says why.
FinDecoupe FinirSelonStatut(Passe& p, const ResultatMarche& marche) {
    const StatutZelko& statut = marche.statut;
    if (statut.ArretBoutonStop) {
        if (p.resultat.NumSalveCourante >= PremiereSalveDeDecoupe) {
            Alerter(RangeePoussoirStop);
            return FinirArretee(p);
        }
        AnnoncerCause(CauseFin::BoutonStop);
        return FinDecoupe::StopAvantDecoupe;
    }
    if (statut.ArretDemande) return FinirArretee(p);
    if (statut.FinDeListe) {
        AnnoncerTerminee(p);
        return FinDecoupe::Terminee;
    }
    AnnoncerCause(statut.FinCourseOuverteEnMouvement ? CauseFin::FinCourseOuverte : CauseFin::OrigineOuverte);
    return FinDecoupe::SortieDesCourses;
}

bool FinieAvantArret(const StatutZelko& statut) {
    return !statut.ArretDemande && FinieParLaBoite(statut);
}

FinDecoupe Finir(Passe& p, const ResultatMarche& marche) {
    switch (marche.fin) {
    case FinMarche::StopAvantMouvement:
        return FinirAvantDecoupe(p);
    case FinMarche::Arretee:
        // Asked for, but the run had come to its own end before.
        return FinieAvantArret(marche.statut) ? FinirSelonStatut(p, marche) : FinirArretee(p);
    case FinMarche::Finie:
        return FinirSelonStatut(p, marche);
    case FinMarche::SansRaison:
        // Its RAM may hold another table now: nothing moves before the link was refreshed.
        MouvementsActifs = false;
        break;
    case FinMarche::SansDuree:
        if (marche.NumeroSalve >= PremiereSalveDeDecoupe) break;
        AfficherCritique(TextesMessages(MessagesChauffeSansDuree), TitresMessages(MessagesChauffeSansDuree));
        return FinDecoupe::Inexpliquee;
    case FinMarche::Impossible:
    case FinMarche::Abandonnee:
        break;
    }
    AnnoncerMarcheAnormale(marche.fin);
    const bool commencee = marche.fin != FinMarche::Impossible || marche.NumeroSalve > 0;
    return commencee ? FinDecoupe::Inexpliquee : FinDecoupe::Refusee;
}

// `neuve`: the cut begins, and not the rest of one whose place is known.
AvantDecoupe DemanderLiaison(bool neuve) {
    const EtatLiaison etat = RafraichirUsb(TS2D);
    if (etat.Arretee || (neuve && etat.Rattrapee)) return AvantDecoupe::MachineArretee;
    switch (etat.Liaison) {
    case LiaisonZelko::LaisseeEnMarche:
        return AvantDecoupe::LaisseeEnMarche;
    case LiaisonZelko::SansInterface:
        AfficherExclamation(TextesMessages(MessagesSansInterface), TitresMessages(MessagesSansInterface));
        return AvantDecoupe::SansInterface;
    case LiaisonZelko::SansCorrespondance: {
        // Here the question stands apart from the finding, by an empty line.
        std::string texte = TextesMessages(MessagesSansCorrespondance);
        if (const auto fin = texte.find("\r\n"); fin != std::string::npos) texte.insert(fin, "\r\n");
        return DemanderOuiNon(texte, TitresMessages(MessagesSansCorrespondance))
                   ? AvantDecoupe::OuvrirParametrage
                   : AvantDecoupe::SansCorrespondance;
    }
    case LiaisonZelko::MouvementsPermis:
        break;
    }
    return AvantDecoupe::Permise;
}

// One pass of the streaming loop, and its end.
FinDecoupe ExecuterSalves(Passe& p) {
    if (!InterrupteursPermettentLaDecoupe(p.table)) return FinDecoupe::Refusee;
    Changer(p, PhaseDecoupe::Chauffe);
    p.resteApres = ResteApresChaque(p.preparee.liste.salves);
    SuiviMarche suivi = SuiviDeMarche(p.suivi);
    suivi.Avancer = [&p](const AvanceeMarche& marche) { Suivre(p, marche); };
    const ResultatEnvoi envoi = EnvoyerSalves(p.preparee.liste.salves, suivi);
    p.resultat.chauffeCoupee = envoi.chauffeCoupee;
    p.resultat.NumSalveCourante = envoi.marche.NumeroSalve;
    if (envoi.marche.NumeroSalve >= PremiereSalveDeDecoupe)
        p.resultat.PositionStop = PositionAuStop(p.preparee.liste.trajet, p.preparee.liste.salves,
                                                 envoi.marche.NumeroSalve, envoi.marche.statut.TicksRestants);
    if (envoi.marche.fin == FinMarche::Finie && envoi.marche.statut.FinDeListe) SuivreJusquAuBout(p);
    if (p.suivi.Immobile) p.suivi.Immobile(envoi.chauffeCoupee);
    return Finir(p, envoi.marche);
}

} // namespace

std::string TexteTempsRestant(const AvanceeDecoupe& avancee) {
    return TexteRempli(TexteProgramme::TempsRestant,
                       {TexteDureeResume(static_cast<int>(std::ceil(avancee.secondesReste)))});
}

SuiviMarche SuiviDeMarche(const SuiviDecoupe& suivi) {
    return {suivi.demandes, {}, suivi.Prevenir};
}

AvantDecoupe VerifierLiaison() {
    return DemanderLiaison(false);
}

AvantDecoupe VerifierAvantDecoupe() {
    const AvantDecoupe liaison = DemanderLiaison(true);
    if (liaison != AvantDecoupe::Permise) return liaison;
    return VerifierInterrupteurs(TableINI) == StatutSucces ? AvantDecoupe::Permise
                                                           : AvantDecoupe::Interrupteurs;
}

ResultatDecoupe LancerDecoupeTS2D(const DecoupePreparee& preparee, const TableMachine& table,
                                  bool origineAuto, const SuiviDecoupe& suivi, GenreDecoupe genre) {
    Passe p{preparee, table, suivi, genre};
    if (suivi.demandes != nullptr) suivi.demandes->StopDemande = suivi.demandes->FinOrigineDemandee = false;
    if (!preparee.possible || (origineAuto && !FaireOrigine(p))) {
        Changer(p, PhaseDecoupe::Repos);
        return p.resultat;
    }
    if (suivi.demandes != nullptr) suivi.demandes->ChauffeModifiee = false;
    p.resultat.fin = ExecuterSalves(p);
    Changer(p, p.resultat.fin == FinDecoupe::Arretee ? PhaseDecoupe::Arretee : PhaseDecoupe::Repos);
    return p.resultat;
}

void AnnoncerHorsRepos() {
    Alerter(RangeeHorsRepos);
}

void AnnulerReprise(const SuiviDecoupe& suivi) {
    const bool coupee = RefroidirFil(SuiviDeMarche(suivi));
    ViderFile();
    if (suivi.Immobile) suivi.Immobile(coupee && !BoutonChauffeLeFil().value_or(true));
    AnnoncerHorsRepos();
    if (suivi.ChangerPhase) suivi.ChangerPhase(PhaseDecoupe::Repos);
}

} // namespace tessarel
