// What the virtual box writes down: where the wire went, when it was heated, every exchange and every event.
#pragma once

#include "link/simulateur/memoires.h"
#include "link/simulateur/pannes.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tessarel::simulateur {

// Steps from the machine's origin: X1, Y1, X2, Y2.
using PositionPas = std::array<std::int64_t, NombreAxes>;

// Why a run ended; the values are the bits of byte 12 in the status block.
enum class FinMouvement : std::uint8_t {
    Aucune = 0, // none: no run yet, or thrown away by B 0 or a power cut
    Commande = 4,
    InterrupteurOrigine = 16,
    InterrupteurFinCourse = 32,
    BoutonStop = 64,
    FinDeListe = 128
};

// A corner of the wire's path. Between two of them every axis moved evenly (ramps change the pace along the
// segment, not the segment).
struct PointTrajet {
    enum class Genre : std::uint8_t { Depart, FinSalve, Arret, ChangementChauffe };
    Genre genre = Genre::Depart;
    FinMouvement fin = FinMouvement::Aucune; // of an Arret
    std::uint8_t pwm = 0;                    // heat in the segment that starts here
    std::uint32_t salve = 0;                 // frame under way, from 1; 0 at the start of a run
    std::uint32_t tick = 0;                  // ticks done of it
    PositionPas pas = {};
};

struct NoteChauffe {
    enum class Cause : std::uint8_t { Commande, Pause, Stop, Commutateur, Coupure };
    Cause cause = Cause::Commande;
    std::uint8_t pwm = 0; // what the wire is given from now on
    std::uint64_t horloge = 0;
    std::uint32_t salve = 0;
};

enum class Evenement {
    MiseSousTension,
    Depart,     // of a run
    DebutSalve, // valeur: its number
    Famine,     // the queue is empty in a run without end mark
    Fin,        // valeur: FinMouvement
    Chauffe,    // valeur: PWM on the wire
    MoteursAllumes,
    MoteursEteints,
    PanneSurvient, // valeur: Panne
    PanneCesse,
    CommandeInconnue, // valeur: byte 1
    CommandeHorsDePropos,
    MemoireInconnue,
    TableInutilisable, // nothing can run: no frequency in RAM
    VitesseImpossible, // valeur: axis, 0 to 3: more than one step a tick
    PaquetEcarte       // valeur: its size: not of the told length, not answered
};
inline constexpr Evenement PremiereAnomalie = Evenement::CommandeInconnue;

// One line of the log.
struct NoteJournal {
    bool estEchange = false;
    Instant temps{0};          // since the box was made
    std::uint64_t horloge = 0; // of the box
    // Of an exchange: its number, the command, the result as a library gives it, the reply (all 0 where none
    // came back).
    std::uint64_t numero = 0;
    std::int32_t resultat = 0;
    bool corrompue = false; // the reply, on its way back
    Tampon commande = {};
    Tampon reponse = {};
    // Of an event.
    Evenement evenement = Evenement::MiseSousTension;
    std::int64_t valeur = 0;
};

// Counted since the box was made.
struct ComptesBoite {
    std::uint64_t echanges = 0;        // tries included that found the box unplugged
    std::uint64_t salvesAcceptees = 0; // end marks not counted
    std::uint64_t salvesRefusees = 0;
    std::uint64_t salvesFinies = 0;
    std::uint64_t famines = 0;
    std::uint64_t anomalies = 0;                    // events from CommandeInconnue on
    std::array<std::uint64_t, NombreAxes> pas = {}; // steps done, both ways
};

} // namespace tessarel::simulateur
