// Runs the queue of the box.
#include "link/marche.h"

#include "link/commandes.h"
#include "link/echange.h"
#include "link/liste_salves.h"
#include "platform/horloge.h"
#include "platform/pompe.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace tessarel {

namespace {

// Between two looks at a box that may have run out of frames: longer than the last tick of any frame, in
// which a frame still in the queue looks the same as none.
constexpr Instant EntreDeuxRegards = std::chrono::milliseconds(1);
constexpr int RegardsPourConclure = 3;
// A box that shows neither the frame before nor the one after, and does not move on for this long, is out of
// frames too.
constexpr Instant ImmobileTropLongtemps = std::chrono::seconds(1);
constexpr int RegardsImmobiles = 50;
// Status requests after an S before it is sent again: carriages take a while to slow down.
constexpr int StatutsAvantNouvelArret = 100;
constexpr int EssaisDeSecours = 5;
// An open queue takes its first frame. One that refuses it again and again was closed by the STOP button or
// by a power cut; once alone may be noise.
constexpr int RefusPourConclure = 20;

// One command without a box: what is lost here is tried again, and told in its own way.
bool Envoyer(std::uint8_t code, std::uint8_t arg1 = 0) {
    EffacerTampon();
    TamponEchange[1] = code;
    TamponEchange[2] = arg1;
    return Echanger();
}

// A failure before the packet left: the box has not heard it.
bool JamaisPartie() {
    constexpr std::int32_t boitierAbsent = -200;
    constexpr std::int32_t canalFerme = -201;
    return DernierResultatZelko == boitierAbsent || DernierResultatZelko == canalFerme || RienNePart();
}

// A run under way.
struct Marche {
    std::span<const Salve> salves;
    const SuiviMarche& suivi;
    EchecsConsecutifs echecs = {};
    std::size_t prochaine = 0;   // frames accepted so far; the one of this index is the next to send
    bool finAvantDepart = false; // what the status said of an end and of a frame while the queue was filled
    std::int32_t numeroAvantDepart = 0;
    bool departIncertain = false;           // no reply to B 128, and none since
    bool doute = false;                     // that one may be in the queue already
    int regards = 0;                        // looks at an unchanged status while in doubt
    Instant depuis{0};                      // of the first of them
    std::optional<StatutZelko> finVue = {}; // a reply that told the end, and has not been repeated yet
    ResultatMarche resultat = {};
};

bool ArretVoulu(const SuiviMarche& suivi) {
    return suivi.demandes != nullptr && suivi.demandes->ArretVoulu();
}

void OublierArret(const SuiviMarche& suivi) {
    if (suivi.demandes == nullptr) return;
    suivi.demandes->StopDemande = false;
    suivi.demandes->FinOrigineDemandee = false;
}

// Counts an exchange; after a failure tells a box that is gone, and gives the processor back for a moment.
void Noter(EchecsConsecutifs& echecs, bool reussi, const SuiviMarche& suivi) {
    if (NoterEchange(echecs, reussi)) {
        if (suivi.Prevenir)
            suivi.Prevenir();
        else
            SignalerErreurInterface("EnvoiSalves");
    }
    if (!reussi) Patienter(EntreDeuxEssais);
}

bool Conclure(Marche& m, FinMarche fin) {
    m.resultat.fin = fin;
    return false;
}

void Retenir(Marche& m, const StatutZelko& statut) {
    m.resultat.statut = statut;
    // A box that shows no number any more leaves the last one standing.
    if (statut.NumeroSalve > 0) m.resultat.NumeroSalve = statut.NumeroSalve;
}

bool DitPourquoi(const StatutZelko& statut) {
    return statut.ArretDemande || FinieParLaBoite(statut);
}

// False for a frame that was never sent, or more ticks left in one than it has: nothing that a box says, so
// the bytes are noise. What stands in the ticks of a run that has ended means nothing.
bool Croyable(const Marche& m, const StatutZelko& statut, std::size_t envoyees) {
    const auto numero = static_cast<std::size_t>(statut.NumeroSalve);
    if (numero > envoyees + 1) return false;
    if (statut.Fini || numero == 0 || numero > m.salves.size()) return true;
    const std::uint32_t ticks = NBRtDeSalve(m.salves[numero - 1]);
    return ticks == 0 || statut.TicksRestants <= ticks; // the end mark has none
}

// Frames that the box may have, the doubtful one among them.
std::size_t Envoyees(const Marche& m) {
    return m.prochaine + (m.doute ? 1U : 0U);
}

// A box that stands tells its end twice in the same words; noise does not.
bool MemeFin(const StatutZelko& a, const StatutZelko& b) {
    return a.Fini && b.Fini && a.NumeroSalve == b.NumeroSalve && a.FinDeListe == b.FinDeListe &&
           a.ArretDemande == b.ArretDemande && a.ArretBoutonStop == b.ArretBoutonStop &&
           a.OrigineOuverteEnMouvement == b.OrigineOuverteEnMouvement &&
           a.FinCourseOuverteEnMouvement == b.FinCourseOuverteEnMouvement;
}

// The box stands, by itself. An end before all frames were in, or without a cause of its own, gets an S: it
// harms no box at rest, and stops one that is not. Always false.
bool Arreter(Marche& m, StatutZelko statut) {
    const bool toutes = Envoyees(m) >= m.salves.size();
    if (!toutes) statut.FinDeListe = false; // whatever list that was, it is not this one
    if (!toutes || !FinieParLaBoite(statut)) Envoyer(CommandeArret);
    Retenir(m, statut);
    return Conclure(m, DitPourquoi(statut) ? FinMarche::Finie : FinMarche::SansRaison);
}

// While the queue is filled nothing runs: the number stands still, or becomes one of the frames that are in.
// False for one that does neither, after `vu`: one of the two replies was noise.
bool NumeroTient(const Marche& m, std::optional<std::int32_t> vu, std::int32_t numero) {
    const auto dansLaListe = [&m](std::int32_t n) { return static_cast<std::size_t>(n) <= m.prochaine + 1; };
    return !vu || numero == *vu || (dansLaListe(numero) && dansLaListe(*vu));
}

// Empties and opens the queue and puts frames in until one is refused. A frame whose reply was lost makes it
// begin anew, and one whose reply can't be: nothing moves yet. False when the run ends here.
bool Remplir(Marche& m) {
    for (;;) {
        m.prochaine = 0;
        bool reussi = Envoyer(CommandeFile, FileVider) && Envoyer(CommandeFile, FileOuvrir);
        bool pleine = false;
        int refus = 0; // of the first frame, by a box that stands
        std::optional<std::int32_t> vu;
        while (reussi && !pleine && m.prochaine < m.salves.size()) {
            ChargerSalveDansTampon(TamponEchange, m.salves[m.prochaine]);
            reussi = Echanger();
            if (!reussi) break;
            const StatutZelko statut = LireStatut(TamponEchange);
            reussi = NumeroTient(m, vu, statut.NumeroSalve);
            if (!reussi) break;
            vu = statut.NumeroSalve;
            m.finAvantDepart = statut.Fini;
            m.resultat.statut.ChauffeSurManu = statut.ChauffeSurManu;
            m.numeroAvantDepart = statut.NumeroSalve;
            if (statut.SalveAcceptee)
                ++m.prochaine;
            else if (m.prochaine == 0 && statut.Fini && ++refus > RefusPourConclure)
                return Arreter(m, statut); // the STOP button, or its power: the queue is closed again
            else
                pleine = m.prochaine > 0; // an empty queue that refuses is asked again
            LaisserPasserEvenements();
            if (ArretVoulu(m.suivi)) return Conclure(m, FinMarche::StopAvantMouvement);
        }
        if (!reussi && RienNePart()) return Conclure(m, FinMarche::Impossible);
        LaisserPasserEvenements();
        if (ArretVoulu(m.suivi)) return Conclure(m, FinMarche::StopAvantMouvement);
        Noter(m.echecs, reussi, m.suivi);
        if (reussi) return true;
    }
}

// B 128, sent again only when the status shows that the box has not heard it. False when the run ends here; a
// stop asked in doubt goes the way of a stop in the run.
bool Demarrer(Marche& m) {
    while (!Envoyer(CommandeFile, FileLancer)) {
        if (RienNePart()) return Conclure(m, FinMarche::Impossible);
        StatutZelko statut;
        while (!statut.Recu) {
            Noter(m.echecs, false, m.suivi);
            LaisserPasserEvenements();
            m.departIncertain = ArretVoulu(m.suivi);
            if (m.departIncertain) return true;
            statut = DemanderStatut();
            if (statut.NumeroSalve != m.numeroAvantDepart && !Croyable(m, statut, m.prochaine))
                statut.Recu = false;
        }
        // The run was seen to begin, or to be over already, by anything that has changed.
        if (statut.Fini != m.finAvantDepart || statut.NumeroSalve != m.numeroAvantDepart) return true;
    }
    return true;
}

// After a frame without a reply: whether it is in the queue, once the box shows it.
void LeverDoute(Marche& m, const StatutZelko& statut) {
    const auto acceptees = static_cast<std::int32_t>(m.prochaine);
    if (statut.NumeroSalve > acceptees) {
        ++m.prochaine;
        m.doute = false;
        return;
    }
    const StatutZelko& avant = m.resultat.statut;
    const bool change =
        statut.NumeroSalve != avant.NumeroSalve || statut.TicksRestants != avant.TicksRestants;
    if (change || m.regards == 0) {
        m.regards = 0;
        m.depuis = Maintenant();
    }
    ++m.regards;
    const bool auBout = statut.NumeroSalve == acceptees && statut.TicksRestants == 0;
    const bool immobile = m.regards >= RegardsImmobiles && Maintenant() - m.depuis >= ImmobileTropLongtemps;
    if ((auBout && m.regards >= RegardsPourConclure) || immobile) {
        m.doute = false;
        m.regards = 0;
    } else if (auBout) {
        Patienter(EntreDeuxRegards);
    }
}

// A status request of a run. What can't be counts as lost, but for an end: that one is asked for again.
StatutZelko Interroger(Marche& m) {
    const StatutZelko statut = DemanderStatut();
    if (!statut.Recu || statut.Fini) return statut;
    if (!Croyable(m, statut, Envoyees(m))) return {};
    if (m.doute) LeverDoute(m, statut);
    return statut;
}

// The next frame. What can't be said of it leaves it in doubt, as no reply does.
StatutZelko Offrir(Marche& m) {
    ChargerSalveDansTampon(TamponEchange, m.salves[m.prochaine]);
    const bool rendue = Echanger();
    const StatutZelko statut = rendue ? LireStatut(TamponEchange) : StatutZelko{};
    // A run that has begun and not ended is at some frame.
    const bool nullePart =
        !statut.SalveAcceptee && !statut.Fini && statut.NumeroSalve == 0 && m.resultat.NumeroSalve > 0;
    if (!rendue || nullePart || !Croyable(m, statut, m.prochaine + 1)) {
        m.doute = rendue || !JamaisPartie();
        m.regards = 0;
        return statut.Fini ? statut : StatutZelko{};
    }
    if (statut.SalveAcceptee) {
        ++m.prochaine;
    } else if (statut.Fini) {
        m.doute = true; // until the end is told again
        m.regards = 0;
    }
    return statut;
}

// One exchange of a run: the next frame, or a status request when none is left, the last one is in doubt, or
// an end was told once.
StatutZelko Avancer(Marche& m) {
    const bool demander = m.finVue || m.doute || m.prochaine >= m.salves.size();
    return demander ? Interroger(m) : Offrir(m);
}

// Tells where the run stands. False when the running frame counts no ticks.
bool Annoncer(const Marche& m) {
    const std::int32_t numero = m.resultat.NumeroSalve;
    if (numero < 1 || static_cast<std::size_t>(numero) > m.salves.size()) return true;
    const Salve& salve = m.salves[static_cast<std::size_t>(numero) - 1];
    if (EstSalveFin(salve)) return true;
    AvanceeMarche avancee;
    avancee.NumeroSalve = numero;
    avancee.TicksRestants = m.resultat.statut.TicksRestants;
    avancee.NBRt = NBRtDeSalve(salve);
    const std::optional<double> fraction = FractionFaite(salve, avancee.TicksRestants);
    if (!fraction) return false;
    avancee.Fraction = std::clamp(*fraction, 0.0, 1.0);
    if (m.suivi.Avancer) m.suivi.Avancer(avancee);
    return true;
}

void ChangerChauffe(const SuiviMarche& suivi) {
    if (suivi.demandes == nullptr || !suivi.demandes->ChauffeModifiee) return;
    suivi.demandes->ChauffeModifiee = false;
    EnvoyerChauffe(ValeurPWM(suivi.demandes->ChauffeVoulue),
                   {[&suivi] { return ArretVoulu(suivi); }, suivi.Prevenir});
}

// S until the box says that it stands. False when it doesn't answer and a second stop was asked.
bool ArreterJusquAuRepos(const Marche& m, StatutZelko& statut) {
    OublierArret(m.suivi);
    EchecsConsecutifs echecs;
    bool envoye = false;
    for (int statuts = 0;; ++statuts) {
        if (!envoye || statuts >= StatutsAvantNouvelArret) {
            envoye = Envoyer(CommandeArret);
            statuts = 0;
        }
        const StatutZelko lu = DemanderStatut();
        // An end at a frame that can't be must be told twice, and so must one without a reason.
        const bool finie =
            lu.Fini && ((DitPourquoi(lu) && Croyable(m, lu, Envoyees(m))) || MemeFin(statut, lu));
        if (lu.Recu) statut = lu;
        if (finie) return true;
        if (RienNePart()) return false;
        Noter(echecs, envoye && lu.Recu, m.suivi);
        if (echecs.Nombre == EchecsAvantAvertissement) OublierArret(m.suivi); // what was pressed unwarned
        LaisserPasserEvenements();
        // A second stop gives up a box that doesn't answer, once that was told, or that never comes to rest.
        const bool sourde =
            echecs.Nombre >= EchecsAvantAvertissement || statuts + 1 >= StatutsAvantNouvelArret;
        if (sourde && ArretVoulu(m.suivi)) {
            OublierArret(m.suivi);
            return false;
        }
    }
}

// A run that had begun, stands, and does not tell of the S: its power was cut meanwhile, and nothing that the
// box says now is about this run.
bool PerdueEnRoute(const Marche& m, const StatutZelko& statut) {
    return m.resultat.NumeroSalve > 0 && !DitPourquoi(statut);
}

// A cut whose start may have been lost, stopped before anything was heard of it: a number that still stands
// where it stood is that of the list before.
bool NEstPasPartie(const Marche& m, const StatutZelko& statut) {
    return m.departIncertain && statut.NumeroSalve == m.numeroAvantDepart && !m.salves.empty() &&
           EstSalvePause(m.salves.front());
}

void Stopper(Marche& m, FinMarche fin) {
    StatutZelko statut;
    if (!ArreterJusquAuRepos(m, statut)) {
        m.resultat.fin = FinMarche::Abandonnee;
        return;
    }
    m.resultat.fin = PerdueEnRoute(m, statut) ? FinMarche::SansRaison : fin;
    if (NEstPasPartie(m, statut)) statut.NumeroSalve = 0;
    Retenir(m, statut);
}

// The end, told twice. At a frame that was never sent it is that of another list: nothing else in the reply
// is about this one.
void Finir(Marche& m, const StatutZelko& statut) {
    StatutZelko autre;
    autre.Recu = autre.Fini = true;
    Arreter(m, Croyable(m, statut, Envoyees(m)) ? statut : autre);
}

void Suivre(Marche& m) {
    for (;;) {
        LaisserPasserEvenements();
        if (ArretVoulu(m.suivi)) return Stopper(m, FinMarche::Arretee);
        if (!m.finVue) ChangerChauffe(m.suivi); // nor relights what the machine has put out
        const StatutZelko statut = Avancer(m);
        Noter(m.echecs, statut.Recu, m.suivi);
        if (!statut.Recu) {
            if (RienNePart()) return Stopper(m, FinMarche::Impossible);
            continue;
        }
        if (statut.Fini) {
            if (m.finVue && MemeFin(*m.finVue, statut)) return Finir(m, statut);
            m.finVue = statut;
            continue;
        }
        m.finVue.reset();
        Retenir(m, statut);
        if (!Annoncer(m)) return Stopper(m, FinMarche::SansDuree);
    }
}

// Stopped in the pause at the head of a list: nothing has moved.
bool ArreteeEnChauffe(const Marche& m) {
    constexpr std::int32_t numeroDeLaPause = 1;
    return m.resultat.fin == FinMarche::Arretee && m.resultat.NumeroSalve <= numeroDeLaPause &&
           !m.salves.empty() && EstSalvePause(m.salves.front());
}

} // namespace

ResultatMarche FaireMarche(std::span<const Salve> salves, const SuiviMarche& suivi) {
    Marche m{salves, suivi};
    if (!MouvementsActifs) return m.resultat;
    if (Remplir(m) && Demarrer(m)) Suivre(m);
    if (m.resultat.fin == FinMarche::StopAvantMouvement) OublierArret(suivi);
    // What was filled in must not wait there for somebody's B 128.
    if (m.resultat.fin == FinMarche::StopAvantMouvement || ArreteeEnChauffe(m))
        Envoyer(CommandeFile, FileVider);
    return m.resultat;
}

bool EnvoyerJusquaReponse(std::uint8_t code, std::uint8_t arg1, const SuiviMarche& suivi) {
    EchecsConsecutifs echecs;
    while (!Envoyer(code, arg1)) {
        if (RienNePart()) return false;
        Noter(echecs, false, suivi);
        LaisserPasserEvenements();
        if (ArretVoulu(suivi)) return false;
    }
    return true;
}

bool RefroidirFil(const SuiviMarche& suivi) {
    // A stop pressed again gives up only what was told to fail: hands press twice in a fright.
    bool avertie = false;
    const auto prevenir = [&suivi, &avertie] {
        avertie = true;
        OublierArret(suivi);
        if (suivi.Prevenir)
            suivi.Prevenir();
        else
            SignalerErreurInterface("RefroidirFil");
    };
    const FinChauffe fin =
        CouperChauffe({[&suivi, &avertie] { return avertie && ArretVoulu(suivi); }, prevenir});
    OublierArret(suivi);
    // An interruption has been told already.
    if (fin == FinChauffe::Impossible && ChauffePeutEtreActive()) SignalerChauffeNonCoupee();
    return fin == FinChauffe::Confirmee;
}

bool SecourirMarche() noexcept {
    // A fault passes through several hands, each of which may be the only one: the first has done it, and
    // told.
    static std::exception_ptr secourue;
    static bool coupee = false;
    try {
        const std::exception_ptr faute = std::current_exception();
        const bool dejaFait = faute && faute == secourue && !(coupee && ChauffePeutEtreActive());
        if (dejaFait) return coupee;
        secourue = faute;
        coupee = false;
        bool arretee = false;
        for (int essai = 0; essai < EssaisDeSecours && !(arretee && coupee); ++essai) {
            if (essai > 0) Patienter(EntreDeuxEssais);
            arretee = Envoyer(CommandeArret) || arretee;
            coupee = (Envoyer(CommandeChauffe) && ConfirmeCoupure(TamponEchange)) || coupee;
        }
        if (!coupee && ChauffePeutEtreActive()) SignalerChauffeNonCoupee();
        return coupee;
    } catch (...) {
        return false; // whoever shows boxes has failed as well: there is nothing left to try
    }
}

} // namespace tessarel
