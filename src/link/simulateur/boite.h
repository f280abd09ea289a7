// The virtual Zelko: the box and the machine on its outputs, run by the bytes of the wire and by the clock of
// platform/horloge.h.
#pragma once

#include "link/simulateur/carnet.h"
#include "link/simulateur/memoires.h"
#include "link/simulateur/pannes.h"
#include "link/simulateur/salve_boite.h"
#include "platform/horloge.h"
#include "platform/zelkocom.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessarel::simulateur {

// The mechanics that the box does not know. Steps per mm and the distance from switch to origin come from the
// table in RAM. A machine whose table has no switches never opens a loop by its position.
struct Mecanique {
    double courseX = 980; // mm
    double courseY = 510;
    bool origineEnHaut = false;  // the origin of Y, and its switch, are at the far end of its travel
    double margeFinDeCourse = 5; // mm from the end of the travel to the limit switches
    double ecartement = 520;     // mm between the two carriages; only for pictures
    bool operator==(const Mecanique&) const = default;
};

inline constexpr std::size_t CapaciteFileUsuelle = 128;
inline constexpr std::size_t CapaciteFileMinimale = 2; // a frame and its end mark

enum class EtatFile {
    Repos,       // no run: after power-on, B 0, or the end of a run
    Remplissage, // between B 1 and B 128
    EnMarche
};

// What becomes of an exchange on its way back.
enum class SortReponse { Rendue, Perdue, Tardive, Corrompue, Courte, SansBoite };

struct Reponse {
    SortReponse sort = SortReponse::Rendue;
    Tampon octets = {};                          // as they come back, corruption included
    Instant retard{0};                           // of a late one
    std::int32_t resultat = ResultatZelkoSucces; // as a link library tells it
};

// The state that byte 8 and the front of the box show.
struct Commutateurs {
    bool chauffeManu = false;    // PC/MANU on MANU: the knob rules the wire
    bool chauffeEteinte = false; // ON/OFF on OFF: the wire is cold
    bool origineForcee = false;  // loop opened by hand
    bool finCourseForcee = false;
    bool operator==(const Commutateurs&) const = default;
};

// Everything that a window shows, at one moment.
struct EtatBoite {
    EtatFile file = EtatFile::Repos;
    bool branchee = true;
    bool sousTension = true;
    FinMouvement fin = FinMouvement::Aucune;
    std::size_t salvesEnFile = 0;
    std::size_t capaciteFile = 0;
    std::uint32_t salve = 0; // under way, from 1
    std::uint32_t ticks = 0;
    std::uint32_t ticksFaits = 0;
    bool enPause = false;
    bool modeOrigine = false; // O 1
    PositionPas position = {};
    std::uint8_t pwmCommande = 0; // by P or a pause frame
    std::uint8_t pwmFil = 0;      // on the wire, after switches, knob and maximum
    double temperature = 0;       // of the wire, 0 to 1: where it would settle at full heat is 1
    bool moteurs = false;
    bool origineOuverte = false;
    bool finCourseOuverte = false;
    double secondes = 0; // of the box's own time
};

// Owns the state of the box. Nothing happens by itself: Echanger, Traiter and Actualiser first let the time
// pass that went by since the last call, times the speed factor; then they act. Positions depend on the box's
// time only, never on how it was sliced into calls.
//
// Readings where the wire format is silent:
//   - bytes 1 to 3 of a reply repeat the command where nothing else is told;
//   - heat stays as it is at the end of a list, on S and on an open switch; the STOP button takes it off;
//   - frames are taken only between B 1 and the end mark; refused ones change nothing;
//   - byte 12 bit 1 is set whenever nothing runs and no list is being filled, its causes until B 0 or B 1;
//   - ticks left count those after the one under way: NBRt - 1 - done, 0 after the end;
//   - a power-on loads memory 0; motion is refused while RAM holds no frequency;
//   - the motors come on with a run, and go off `delay` seconds after the last motion; M 0 in a run waits for
//     its end.
class BoiteZelko {
public:
    explicit BoiteZelko(std::size_t capaciteFile = CapaciteFileUsuelle);

    // One exchange as the link library gives it: the reply takes the command's place; 1, or -200, -202, -203,
    // -204 with the buffer left alone. A late reply calls SurAttente with its delay; a corrupt one comes with
    // 1 and spoilt bytes.
    std::int32_t Echanger(Tampon& tampon);
    // The same for a carrier that loses, delays and spoils the reply itself.
    Reponse Traiter(const Tampon& commande);
    // Lets the time pass.
    void Actualiser();
    // A packet that is no exchange came in: noted, never answered.
    void EcarterPaquet(std::size_t taille);
    [[nodiscard]] bool Branchee() const { return m_branchee && m_sousTension; }

    // Times real time; above 0. The time gone by counts at the old factor.
    void FixerFacteur(double facteur);
    [[nodiscard]] double Facteur() const { return m_facteur; }
    // Keeps what is in the queue; at least CapaciteFileMinimale.
    void FixerCapaciteFile(std::size_t capacite);
    void FixerMecanique(const Mecanique& mecanique);
    [[nodiscard]] const Mecanique& MecaniqueEnPlace() const { return m_mecanique; }

    // The memories as stored; writing does not touch the RAM. SurMemoires hears of each write by the
    // wire.
    [[nodiscard]] const MemoiresBoite& Memoires() const { return m_memoires; }
    void EcrireMemoires(const MemoiresBoite& memoires) { m_memoires = memoires; }
    void ChargerEnRam(std::size_t memoire);
    [[nodiscard]] const TableRam& Ram() const { return m_ram; }

    // Carriages moved by hand, in steps; at the origin: (0, 0), or the far end of Y with the origin at the
    // top.
    void PoserChariots(const PositionPas& position);
    [[nodiscard]] PositionPas PositionOrigine() const;
    [[nodiscard]] PositionPas Position() const;

    // The front of the box.
    void AppuyerStop();
    void FixerCommutateurs(const Commutateurs& commutateurs);
    [[nodiscard]] const Commutateurs& CommutateursEnPlace() const { return m_commutateurs; }
    void FixerBoutonChauffe(std::uint8_t pwm); // the knob that rules on MANU
    [[nodiscard]] std::uint8_t BoutonChauffe() const { return m_pwmManu; }
    void Brancher(bool branchee);
    void MettreSousTension(bool sousTension);

    void Programmer(const PanneProgrammee& panne);
    void OublierPannes();
    [[nodiscard]] bool PannesEnAttente() const { return !m_pannes.empty(); }

    [[nodiscard]] EtatBoite Etat() const;
    [[nodiscard]] const ComptesBoite& Comptes() const { return m_comptes; }
    // The wire's corners since the box was made or the record was cleared; past TrajetMax the older half
    // goes.
    [[nodiscard]] const std::vector<PointTrajet>& Trajet() const { return m_trajet; }
    [[nodiscard]] std::uint64_t TrajetOublies() const { return m_trajetOublies; }
    [[nodiscard]] const std::vector<NoteChauffe>& HistoireChauffe() const { return m_histoireChauffe; }
    void EffacerTrajet();
    static constexpr std::size_t TrajetMax = 1U << 20U;
    static constexpr std::size_t HistoireMax = 1U << 16U;

    std::function<void(const NoteJournal&)> SurNote; // every exchange, every event
    std::function<void()> SurMemoires;
    std::function<void()> SurTable; // another table runs
    std::function<void(Instant)> SurAttente;

private:
    struct PanneSuivie {
        PanneProgrammee reglage;
        bool active = false;
        bool finie = false;
        std::uint64_t restants = 0;  // exchanges still struck; 0 is no end
        std::uint64_t retablieA = 0; // exchange at which box or machine is well again
        std::uint64_t vus = 0;       // exchanges of its command so far
        Instant depuis{0};
    };

    // boite_commandes.cpp
    Reponse Executer(const Tampon& commande);
    void CommanderFile(std::uint8_t action);
    void RecevoirSalve(const Tampon& commande, Tampon& reponse);
    void CommanderMoteurs(std::uint8_t action, std::uint8_t delai);
    void CommanderChauffe(std::uint8_t action, std::uint8_t valeur, Tampon& reponse);
    void CommanderTable(const Tampon& commande, Tampon& reponse);
    void EcrireStatut(Tampon& reponse) const;

    // boite_mouvement.cpp
    void AvancerJusqua(std::uint64_t horloge);
    void Enchainer();
    bool CommencerSalve();
    void FinirSalve();
    void Arreter(FinMouvement fin);
    [[nodiscard]] std::uint32_t TickNotable() const;
    void ChercherOuvertures();
    void VerifierBoucles();
    void CalculerBornes();
    [[nodiscard]] bool OrigineOuverte() const;
    [[nodiscard]] bool FinCourseOuverte() const;
    void NoterPoint(PointTrajet::Genre genre, FinMouvement fin = FinMouvement::Aucune);

    // boite_etat.cpp
    void ChaufferA(std::uint8_t pwmCommande, NoteChauffe::Cause cause);
    void RefaireChauffe(NoteChauffe::Cause cause);
    [[nodiscard]] double Temperature() const;
    [[nodiscard]] bool MoteursAllumes() const;
    void AllumerMoteurs(bool allumes);
    void Noter(Evenement evenement, std::int64_t valeur = 0);
    void NoterEchange(const Tampon& commande, const Reponse& reponse);
    void ChangerCommutateurs(const Commutateurs& commutateurs);
    void ChangerTension(bool sousTension);
    void SubirStop();

    // boite_pannes.cpp
    void SuivreEchange(std::uint8_t commande);
    void SuivreMarche();
    void SuivreTemps();
    [[nodiscard]] std::uint32_t TickPanne() const;
    [[nodiscard]] bool EnMarcheJusqua(const PanneProgrammee& p) const;
    void Activer(PanneSuivie& p, std::uint64_t premier);
    void Cesser(PanneSuivie& p);
    void Appliquer(Panne panne, bool survient);
    bool FrappeEchange(Panne panne, std::uint8_t commande, PanneProgrammee* reglage = nullptr);

    // Time.
    Instant m_debut;
    Instant m_dernier;
    double m_facteur = 1;
    double m_fractionHorloge = 0; // of a clock, not yet passed
    std::uint64_t m_horloge = 0;

    // Tables and mechanics.
    MemoiresBoite m_memoires;
    TableRam m_ram;
    Mecanique m_mecanique;
    PositionPas m_borneOrigine = {}; // beyond it, seen from the travel, the loop is open
    PositionPas m_borneFin = {};
    std::array<bool, NombreAxes> m_borne = {}; // the axis has switches
    bool m_dejaBouge = false;

    // The queue, a ring.
    std::vector<SalveBoite> m_file;
    std::size_t m_tete = 0;
    std::size_t m_enFile = 0;
    EtatFile m_etatFile = EtatFile::Repos;
    bool m_finRecue = false;
    FinMouvement m_fin = FinMouvement::Aucune;

    // The frame under way.
    bool m_enCours = false;
    bool m_famine = false;
    SalveBoite m_salve;
    DeroulementSalve m_deroulement;
    std::uint32_t m_numero = 0;
    PositionPas m_base = {};         // at its start
    std::uint32_t m_tickOrigine = 0; // first ticks at which a loop opens; above NBRt where none does
    std::uint32_t m_tickFinCourse = 0;
    bool m_modeOrigine = false;

    // Heat and motors.
    std::uint8_t m_pwmCommande = 0;
    std::uint8_t m_pwmManu = 128;
    std::uint8_t m_pwmFil = 0;
    double m_temperature = 0; // at m_horlogeTemperature
    std::uint64_t m_horlogeTemperature = 0;
    bool m_moteurs = false;
    bool m_moteursAEteindre = false; // asked for in a run
    int m_delaiMoteurs = 0;          // s
    std::uint64_t m_horlogeMouvement = 0;

    bool m_branchee = true;
    bool m_sousTension = true;
    Commutateurs m_commutateurs;
    std::vector<PanneSuivie> m_pannes;
    ComptesBoite m_comptes;
    std::vector<PointTrajet> m_trajet;
    std::uint64_t m_trajetOublies = 0;
    std::vector<NoteChauffe> m_histoireChauffe;
};

} // namespace tessarel::simulateur
