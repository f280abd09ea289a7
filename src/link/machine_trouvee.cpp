// The look at a box that somebody else may have set going, and the question about it.
#include "machine_trouvee.h"

#include "app/texts/textes_programme.h"
#include "commandes.h"
#include "echange.h"
#include "marche.h"
#include "mouvements.h"
#include "platform/dialogue.h"
#include "platform/horloge.h"
#include "recherche_origine.h"

namespace tessarel {

namespace {

// Longer than a tick, so that a run is seen to go on.
constexpr Instant EntreDeuxRegards = std::chrono::milliseconds(1);
// As many looks as noise never spoils all of; a box that answers nothing twice is not waited for.
constexpr int Regards = 12;
constexpr int SilencesAdmis = 1;
// While carriages slow down after S: two seconds.
constexpr Instant EntreDeuxControles = std::chrono::milliseconds(20);
constexpr int Controles = 100;

enum class Vue { Repos, Chaude, EnMarche, Confuse };

bool MemeEtat(const StatutZelko& a, const StatutZelko& b) {
    return a.Recu && b.Recu && a.Fini == b.Fini && a.ChauffeActive == b.ChauffeActive &&
           a.ChauffeSurManu == b.ChauffeSurManu && a.ChauffeSurOff == b.ChauffeSurOff;
}

bool MemePlace(const StatutZelko& a, const StatutZelko& b) {
    return a.NumeroSalve == b.NumeroSalve && a.TicksRestants == b.TicksRestants;
}

bool Avance(const StatutZelko& a, const StatutZelko& b) {
    return b.NumeroSalve > a.NumeroSalve ||
           (b.NumeroSalve == a.NumeroSalve && b.TicksRestants < a.TicksRestants);
}

// Of two looks in a row. A box that has not ended a run may as well have none: only what goes on runs.
Vue Comparer(const StatutZelko& a, const StatutZelko& b) {
    if (!MemeEtat(a, b)) return Vue::Confuse;
    if (a.ChauffeActive && !a.ChauffeSurManu && !FilAllumeIci()) return Vue::Chaude;
    if (a.Fini || MemePlace(a, b)) return Vue::Repos;
    return Avance(a, b) ? Vue::EnMarche : Vue::Confuse;
}

Vue Regarder() {
    StatutZelko avant = DemanderStatut();
    Vue precedente = Vue::Confuse;
    int silences = 0;
    for (int regard = 1; regard < Regards; ++regard) {
        silences = avant.Recu ? 0 : silences + 1;
        if (silences > SilencesAdmis) break;
        if (!avant.Fini) Patienter(EntreDeuxRegards);
        const StatutZelko statut = DemanderStatut();
        const Vue vue = Comparer(avant, statut);
        if (vue == Vue::Repos || vue == Vue::Chaude) return vue;
        // Noise moves too: twice in a row, and forward, it does not.
        if (vue == Vue::EnMarche && precedente == Vue::EnMarche) return vue;
        precedente = vue;
        avant = statut;
    }
    return Vue::Confuse;
}

Vue AttendreRepos() {
    Vue vue = Regarder();
    for (int controle = 1; controle < Controles && vue == Vue::EnMarche; ++controle) {
        Patienter(EntreDeuxControles);
        vue = Regarder();
    }
    return vue;
}

// True when nothing moves and the wire is cold, for certain; every outcome is told.
bool Arreter() {
    SupposerFilChaud(); // so that a heat-off which is not confirmed is told, and tried again later
    if (!SecourirMarche()) return false;
    switch (AttendreRepos()) {
    case Vue::Repos:
        break;
    case Vue::Chaude:
        SignalerChauffeNonCoupee();
        return false;
    case Vue::EnMarche:
    case Vue::Confuse:
        AnnoncerMarcheAnormale(FinMarche::Abandonnee);
        return false;
    }
    if (!SignalerFilChaudSurManu())
        AfficherInformation(Texte(TexteProgramme::MachineArretee),
                            Texte(TexteProgramme::MachineArreteeTitre));
    return true;
}

} // namespace

MachineTrouvee ControlerMachine(QuestionMachine question) {
    const Vue vue = Regarder();
    const bool dejaLaissee = MachineLaissee;
    MachineLaissee = vue == Vue::Chaude || vue == Vue::EnMarche;
    if (!MachineLaissee) return MachineTrouvee::Libre;
    if (dejaLaissee && question == QuestionMachine::PoseeUneFois) return MachineTrouvee::Laissee;
    const bool arreter = DemanderOuiNon(Texte(TexteProgramme::MachineEnMarche),
                                        Texte(TexteProgramme::MachineEnMarcheTitre), IconeBoite::Exclamation);
    if (!arreter || !Arreter()) return MachineTrouvee::Laissee;
    MachineLaissee = false;
    return MachineTrouvee::Arretee;
}

} // namespace tessarel
