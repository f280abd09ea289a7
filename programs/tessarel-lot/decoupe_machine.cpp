// Runs a cut on the machine and shows it on the terminal.
#include "decoupe_machine.h"

#include "langue_lot.h"
#include "progression.h"
#include "verbes.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/echange.h"
#include "link/etat_interface.h"
#include "link/sortie.h"
#include "platform/dialogue.h"
#include "platform/flux_standards.h"
#include "platform/horloge.h"
#include "platform/nombres.h"
#include "platform/pompe.h"
#include "platform/signaux_fin.h"
#include "work2d/decoupe_interface.h"

#include <cstdio>
#include <utility>

namespace tessarel::lot {

namespace {

constexpr int MessagesMiseEnTemperature = 189;
constexpr int MessagesSegment = 190; // its second column
constexpr int MessagesArret = 172;   // its second column
constexpr int DoublesPasDeDecoupe = 53;
// Between two drawings of the bar, so that it costs the run nothing.
constexpr Instant EntreDeuxBarres = std::chrono::milliseconds(100);

// Lines for standard error, which may be held up while the machine runs: what it does not take is offered
// again later.
class LignesSansAttente {
public:
    void Dire(const std::string& ligne) {
        m_reste += ligne + "\n";
        Offrir();
    }
    void Offrir() {
        if (!m_reste.empty()) m_reste.erase(0, EcrireErreurSansAttendre(m_reste));
    }
    // Once nothing moves and the wire is cold it may take its time.
    void Finir() {
        std::fputs(m_reste.c_str(), stderr);
        m_reste.clear();
    }

private:
    std::string m_reste;
};

// While it lives, a signal that asks the program to end, or to be suspended, is a press of Stop, and each
// further one another press.
class StopParSignal {
public:
    StopParSignal(DemandesMarche& demandes, LignesSansAttente& lignes) {
        EcouterSignauxDeFin(SecondSigint::Compte, Suspension::Notee);
        EcouterPlantages([] { EteindreEnSortant(); });
        m_ancienne = InstallerPompe([this, &demandes, &lignes] {
            lignes.Offrir();
            const int recus = SignauxDeFinRecus();
            if (recus == m_vus) return;
            m_vus = recus;
            demandes.StopDemande = true;
        });
    }
    ~StopParSignal() { InstallerPompe(std::move(m_ancienne)); }
    StopParSignal(const StopParSignal&) = delete;
    StopParSignal& operator=(const StopParSignal&) = delete;

private:
    int m_vus = 0;
    Pompe m_ancienne;
};

// The bar of a run.
struct Barre {
    Instant derniere = -EntreDeuxBarres;

    void Montrer(const AvanceeDecoupe& avancee) {
        const Instant maintenant = Maintenant();
        if (maintenant - derniere < EntreDeuxBarres) return;
        derniere = maintenant;
        if (avancee.phase == PhaseDecoupe::Chauffe) {
            Progression::Montrer(avancee.fraction, TextesMessages(MessagesMiseEnTemperature) + " " +
                                                       std::to_string(avancee.secondesRestantes) + "/" +
                                                       std::to_string(avancee.secondesChauffe) + " s");
            return;
        }
        Progression::Montrer(avancee.PartFaite(),
                             TitresMessages(MessagesSegment) + std::to_string(avancee.NumSalveCourante) +
                                 "/" + std::to_string(avancee.sommets) + " - " + TexteTempsRestant(avancee));
    }
};

std::string Coordonnee(Axe axe, const PositionDuFil& position) {
    return FormaterNombre(MillimetresDePas(TableINI, axe, position.pas[axe]), "##0.00");
}

std::string TexteArret(const ResultatDecoupe& resultat) {
    return TitresMessages(MessagesArret) + std::to_string(resultat.NumSalveCourante) +
           Dire(", fil à X ", ", wire at X ") + Coordonnee(AxeX1, resultat.PositionStop) + " mm, Y " +
           Coordonnee(AxeY1, resultat.PositionStop) + " mm\n";
}

// Off only where the box has said so, and nothing has been sent since that could heat again.
std::string TexteChauffe(const ResultatDecoupe& resultat) {
    if (resultat.chauffeCoupee && !ChauffePeutEtreActive()) return Dire("Chauffe coupée\n", "Heating off\n");
    return Dire("La chauffe n'est peut-être pas coupée : tenez le fil pour chaud\n",
                "The heating may not be off: take the wire for hot\n");
}

} // namespace

bool MachinePrete() {
    return TesterBibliothequeZelko() != EtatBibliotheque::TropVieille &&
           VerifierAvantDecoupe() == AvantDecoupe::Permise;
}

int CouperSurMachine(const Decoupe2D& decoupe, const OptionsDecoupe2D& options,
                     const std::string& nomMatiere) {
    if (decoupe.SequenceDecoupe.Points.size() < 2) {
        AfficherExclamation(Dire("Le trajet n'a qu'un point : il n'y a rien à découper.",
                                 "The path has a single point: there is nothing to cut."),
                            TextesDoubles(DoublesPasDeDecoupe, 2));
        return StatutRefuse;
    }
    const DecoupePreparee preparee = PreparerDecoupeTS2D(decoupe, options, TableINI, nomMatiere);
    if (!preparee.possible) return StatutRefuse;
    DemandesMarche demandes;
    LignesSansAttente lignes;
    const StopParSignal stop(demandes, lignes);
    Barre barre;
    SuiviDecoupe suivi;
    suivi.demandes = &demandes;
    suivi.ChangerPhase = [](PhaseDecoupe phase) {
        if (phase == PhaseDecoupe::Origine) Progression::Montrer(0, TextesEtats(EtatOrigine));
    };
    suivi.Avancer = [&barre](const AvanceeDecoupe& avancee) { barre.Montrer(avancee); };
    suivi.Prevenir = [&lignes] {
        Progression::Effacer();
        lignes.Dire(Texte(TexteProgramme::BoitierMuet));
    };
    const ResultatDecoupe resultat =
        LancerDecoupeTS2D(preparee, TableINI, TableINI.OrigineAutomatique, suivi);
    Progression::Effacer();
    lignes.Finir();
    if (resultat.PositionStop.lecture == LecturePosition::Faite && resultat.fin != FinDecoupe::Terminee)
        Imprimer(TexteArret(resultat));
    if (resultat.fin == FinDecoupe::Arretee) AnnulerReprise(suivi);
    if (resultat.fin != FinDecoupe::Terminee && resultat.NumSalveCourante > 1)
        Imprimer(TexteChauffe(resultat));
    return resultat.fin == FinDecoupe::Terminee && resultat.chauffeCoupee ? StatutFait : StatutRefuse;
}

} // namespace tessarel::lot
