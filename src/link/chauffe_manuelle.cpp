// The wire's heat by hand.
#include "link/chauffe_manuelle.h"

#include "link/commandes.h"
#include "link/echange.h"
#include "platform/drapeau.h"
#include "platform/nombres.h"
#include "platform/pompe.h"

namespace tessarel {

namespace {

// One spoilt reply must not put a wire out; a second one in a row is no chance.
constexpr int RegardsPourConclure = 2;

void Noter(ChauffeManuelle& fil, bool chaude, const SuiviChauffeManuelle& suivi) {
    fil.chaude = chaude;
    fil.echecs = {};
    fil.refroidie = 0;
    if (suivi.Changee) suivi.Changee(chaude);
}

// The box says that it heats nothing, though it should: its STOP button, its switch, its power.
bool SEstRefroidi(double pourcent, const StatutZelko& statut) {
    return !statut.ChauffeActive && !statut.ChauffeSurManu && ValeurPWM(pourcent) != 0;
}

// Asks the box whether a wire that is on is so still, until it answers or `boucle` ends it.
bool EncoreChaud(const ChauffeManuelle& fil, const SuiviChauffe& boucle) {
    EchecsConsecutifs echecs;
    int froids = 0;
    while (!boucle.Interrompre()) {
        const StatutZelko statut = DemanderStatut();
        if (NoterEchange(echecs, statut.Recu)) boucle.Prevenir();
        if (statut.Recu && !SEstRefroidi(fil.confirmee, statut)) return true;
        if (statut.Recu && ++froids == RegardsPourConclure) return false;
        LaisserPasserEvenements();
    }
    return false;
}

enum class FinVoulue {
    Envoyee,
    Refroidi,  // the box had put the wire out by itself: it was switched off
    Abandonnee // by the user, or told: it was switched off
};

// Sends what is wanted, again when the user moved on meanwhile. A heat that the box does not answer for is
// given up and switched off: the wire must not be left to chance. The user hears why once it is cold.
FinVoulue EnvoyerVoulue(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    FinChauffe fin = FinChauffe::Impossible;
    bool sansEcho = false;
    bool allume = true;
    {
        const Drapeau occupee(fil.occupee);
        double envoyee = 0;
        do {
            fil.abandon = false;
            SuiviChauffe boucle;
            boucle.Interrompre = [&fil] { return fil.abandon; };
            boucle.Prevenir = [&fil, &sansEcho] { fil.abandon = sansEcho = true; };
            envoyee = fil.voulue;
            try {
                allume = !fil.chaude || EncoreChaud(fil, boucle);
                fin = allume ? EnvoyerChauffe(ValeurPWM(envoyee), boucle) : FinChauffe::Interrompue;
            } catch (...) {
                SecourirFil(fil, suivi);
                throw;
            }
            if (fin == FinChauffe::Confirmee) fil.confirmee = envoyee;
        } while (fin == FinChauffe::Confirmee && envoyee != fil.voulue);
    }
    if (fin == FinChauffe::Confirmee) return FinVoulue::Envoyee;
    const bool refroidi = !allume && !fil.abandon;
    // An exchange that succeeded without the echo is a reply that doesn't fit.
    const std::int32_t resultat =
        DernierResultatZelko == ResultatZelkoSucces ? ResultatZelkoIncoherent : DernierResultatZelko;
    if (EteindreFil(fil, suivi) && sansEcho) SignalerErreurInterface("EnvoyerChauffe", resultat);
    return refroidi ? FinVoulue::Refroidi : FinVoulue::Abandonnee;
}

VeilleFil Perdre(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    EteindreFil(fil, suivi);
    // Whatever answers next may be another box, or the same with another table in its RAM.
    TesterInterface();
    MouvementsActifs = false;
    return VeilleFil::Perdue;
}

} // namespace

FilEnMarche::FilEnMarche(ChauffeManuelle& fil, DemandesMarche& demandes) : m_fil(fil) {
    m_fil.enMarche = &demandes;
}

FilEnMarche::~FilEnMarche() {
    if (!m_fil.enMarche->ChauffeModifiee) m_fil.confirmee = m_fil.voulue; // the move has sent it
    m_fil.enMarche = nullptr;
    m_fil.coupureVoulue = false;
}

bool AllumerFil(ChauffeManuelle& fil, double pourcent, const SuiviChauffeManuelle& suivi) {
    if (fil.enMarche != nullptr && fil.coupureVoulue && fil.chaude) {
        fil.coupureVoulue = false;
        ChangerChauffeFil(fil, pourcent, suivi);
        return true;
    }
    const bool sEteint = fil.coupureVoulue || (fil.occupee && fil.abandon);
    if (fil.chaude && !sEteint) return true;
    if (fil.occupee || fil.enMarche != nullptr || !MouvementsActifs) return false;
    if (suivi.Permise && !suivi.Permise()) return false;
    fil.voulue = pourcent;
    if (EnvoyerVoulue(fil, suivi) != FinVoulue::Envoyee) return false;
    fil.incertaine = false;
    Noter(fil, true, suivi);
    return true;
}

bool ChangerChauffeFil(ChauffeManuelle& fil, double pourcent, const SuiviChauffeManuelle& suivi) {
    if (fil.coupureVoulue || (!fil.chaude && !fil.occupee)) return true;
    fil.voulue = pourcent;
    if (fil.enMarche != nullptr) {
        fil.enMarche->ChauffeVoulue = EnSimple(pourcent);
        fil.enMarche->ChauffeModifiee = true;
    } else if (!fil.occupee) {
        return EnvoyerVoulue(fil, suivi) != FinVoulue::Refroidi;
    }
    return true;
}

bool EteindreFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    if (fil.occupee) {
        fil.abandon = true; // a heat that is still being asked for ends in a heat-off
        return false;
    }
    if (fil.enMarche != nullptr) {
        fil.enMarche->ChauffeVoulue = 0;
        fil.enMarche->ChauffeModifiee = true;
        fil.coupureVoulue = true;
        return false;
    }
    bool coupee = false;
    {
        const std::shared_ptr<void> garde = suivi.Garder ? suivi.Garder() : nullptr;
        const Drapeau occupee(fil.occupee);
        const Drapeau coupure(fil.coupureVoulue);
        DemandesMarche demandes;
        SuiviMarche boucle;
        boucle.demandes = &demandes;
        // Shown beside the loop, not instead of it: the command goes on being sent while the user reads.
        boucle.Prevenir = [&suivi, &demandes] {
            if (suivi.Prevenir) suivi.Prevenir([&demandes] { demandes.StopDemande = true; });
        };
        try {
            coupee = RefroidirFil(boucle);
        } catch (...) {
            SecourirFil(fil, suivi);
            throw;
        }
        if (suivi.FinPrevenir) suivi.FinPrevenir();
        // Told once: until the watch finds it cold, the sign says it.
        fil.surManu =
            coupee && (fil.surManu ? BoutonChauffeLeFil().value_or(true) : SignalerFilChaudSurManu());
    }
    const bool froid = !fil.surManu && (coupee || !ChauffePeutEtreActive());
    fil.incertaine = !froid;
    Noter(fil, false, suivi);
    return froid;
}

bool EteindreFilSiChaud(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    return !fil.chaude && !fil.incertaine && !fil.occupee ? true : EteindreFil(fil, suivi);
}

void SecourirFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    const bool coupee = SecourirMarche();
    if (suivi.FinPrevenir) suivi.FinPrevenir();
    fil.surManu = coupee && BoutonChauffeLeFil().value_or(fil.surManu);
    const bool froid = !fil.surManu && (coupee || !ChauffePeutEtreActive());
    fil.incertaine = !froid;
    Noter(fil, false, suivi);
}

VeilleFil VeillerSurFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi) {
    if (fil.occupee || fil.enMarche != nullptr) return VeilleFil::Calme;
    if (fil.incertaine) {
        if (!EssayerCoupure() || BoutonChauffeLeFil().value_or(true)) return VeilleFil::Calme;
        fil.incertaine = fil.surManu = false;
        Noter(fil, false, suivi);
        return VeilleFil::Coupee;
    }
    if (!fil.chaude) return VeilleFil::Calme;
    const StatutZelko statut = DemanderStatut();
    if (NoterEchange(fil.echecs, statut.Recu)) return Perdre(fil, suivi);
    if (!statut.Recu) return VeilleFil::Calme;
    fil.refroidie = SEstRefroidi(fil.voulue, statut) ? fil.refroidie + 1 : 0;
    if (fil.refroidie < RegardsPourConclure) return VeilleFil::Calme;
    EteindreFil(fil, suivi); // or it would come back with the switch
    return VeilleFil::Coupee;
}

} // namespace tessarel
