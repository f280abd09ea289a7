// A 2D cut on the machine, without a window: what is checked before, homing, heating, cutting, and what is
// told at each end. Window, batch program and tests drive this one.
//
// States: at rest, homing, heating (frame 1), cutting (frame 2 and on), stopped, returning. A stopped cut may
// be resumed or brought back: the caller makes the path that is left (preparation_decoupe.h), prepares it,
// and launches again.
#pragma once

#include "link/envoi_salves.h"
#include "work2d/preparation_decoupe.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tessarel {

enum class PhaseDecoupe { Repos, Origine, Chauffe, Decoupe, Arretee, Retour };

// Where the run stands, at each reply of the box.
struct AvanceeDecoupe {
    PhaseDecoupe phase = PhaseDecoupe::Chauffe;
    std::int32_t NumSalveCourante = 0; // 1 while heating; k while the wire goes to vertex k
    std::int32_t sommets = 0;          // of the path
    double fraction = 0;               // done of the pause or the segment, 0 to 1
    int secondesRestantes = 0;         // of the heating, rounded up
    int secondesChauffe = 0;
    // Of the motion, by the durations of its frames, s: in all, and what is left of it.
    double secondesTrajet = 0;
    double secondesReste = 0;
    // Done of the motion, 0 to 1: a long segment counts for more than a short one.
    [[nodiscard]] double PartFaite() const {
        return secondesTrajet > 0 ? 1 - secondesReste / secondesTrajet : 0;
    }
    // While cutting, mm: the vertex before, and where end 1 and end 2 of the wire are.
    double XDebut = 0, YDebut = 0;
    double X1 = 0, Y1 = 0;
    double X2 = 0, Y2 = 0;
};

// "Temps restant : 5 min. 12 s.": of the motion, in seconds begun.
std::string TexteTempsRestant(const AvanceeDecoupe& avancee);

// Who follows a cut; each call may be empty. None may start an exchange or wait.
struct SuiviDecoupe {
    DemandesMarche* demandes = nullptr;
    std::function<void(PhaseDecoupe)> ChangerPhase;
    std::function<void(const AvanceeDecoupe&)> Avancer;
    std::function<void()> Prevenir; // as in SuiviMarche
    // The wire stands for good, before the box of it: whether the heat is off, confirmed.
    std::function<void(bool)> Immobile;
};

enum class FinDecoupe {
    Terminee,
    StopAvantDecoupe, // during filling or heating: nothing was cut
    Arretee,          // in the cut: may be resumed from `position`
    SortieDesCourses, // an origin or limit switch opened
    Refusee,          // did not begin: switches, homing, moves not enabled
    Inexpliquee       // the box stands without a reason, or was given up
};

struct ResultatDecoupe {
    FinDecoupe fin = FinDecoupe::Refusee;
    std::int32_t NumSalveCourante = 0;
    PositionDuFil PositionStop; // at every end after the wire had begun to move
    bool chauffeCoupee = false; // confirmed; where false and something had been started, a box told it
};

// What the run is for, which decides what is said at its end.
enum class GenreDecoupe { Decoupe, Retour };

// Refreshes the link and asks for what a cut needs. Anything but Permise was told by its box.
enum class AvantDecoupe {
    Permise,
    SansInterface,
    SansCorrespondance,
    OuvrirParametrage,
    Interrupteurs,
    LaisseeEnMarche, // it runs for somebody else, and goes on
    MachineArretee   // it did, and has just been stopped: the wire stands anywhere, nothing follows by itself
};
AvantDecoupe VerifierAvantDecoupe();
// The first two questions of it, for every procedure that moves.
AvantDecoupe VerifierLiaison();

// Homing if asked, the run, its end with the box of it. Ends in phase Arretee after a stop in the cut, else
// in phase Repos. Every end leaves the heat off and confirmed, or has told that it may not be.
ResultatDecoupe LancerDecoupeTS2D(const DecoupePreparee& preparee, const TableMachine& table,
                                  bool origineAuto, const SuiviDecoupe& suivi,
                                  GenreDecoupe genre = GenreDecoupe::Decoupe);

// Gives up after a stop: heat off until confirmed, queue emptied, and the warning that the wire is not at
// rest.
void AnnulerReprise(const SuiviDecoupe& suivi);
// That warning.
void AnnoncerHorsRepos();

// As the requests of a run need it.
SuiviMarche SuiviDeMarche(const SuiviDecoupe& suivi);

} // namespace tessarel
