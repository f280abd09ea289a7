// The wire's heat outside a cut, as a hand rules it: on, changed, off, watched while it is on. A window keeps
// one record of it and says how it warns; what is sent, when and how often stands here for all of them.
//
//   cold ──AllumerFil──► hot ──EteindreFil──► cold, confirmed
//                         │                └► given up: `incertaine`, after a critical box
//                         └─ the box is lost, or says twice that it does not heat ─► as EteindreFil
#pragma once

#include "link/echange.h"
#include "link/marche.h"

#include <functional>
#include <memory>

namespace tessarel {

// Written by what stands below alone.
struct ChauffeManuelle {
    // Requests of the move that runs, if any: a heat goes out between two of its exchanges, and nothing else
    // is sent meanwhile.
    DemandesMarche* enMarche = nullptr;
    bool chaude = false;        // on, and the box confirmed it
    bool incertaine = false;    // a heat-off was given up, or the box's knob heats on: the wire may be hot
    bool surManu = false;       // the second, and it has been told
    bool occupee = false;       // a loop that repeats the command is under way
    bool coupureVoulue = false; // asked for and not confirmed yet; during a move it is confirmed after it
    bool abandon = false;       // the heat that is being asked for is given up
    double voulue = 0;          // percent, asked for last
    double confirmee = 0;       // percent, that the box confirmed last
    EchecsConsecutifs echecs = {};
    int refroidie = 0; // times in a row that the box said it does not heat
};

// While it lives, the move of `demandes` runs. A heat-off that is asked meanwhile is to be confirmed after
// it: read coupureVoulue before the end of this one.
class FilEnMarche {
public:
    FilEnMarche(ChauffeManuelle& fil, DemandesMarche& demandes);
    ~FilEnMarche();
    FilEnMarche(const FilEnMarche&) = delete;
    FilEnMarche& operator=(const FilEnMarche&) = delete;

private:
    ChauffeManuelle& m_fil;
};

// How a window follows it; each call may be empty.
struct SuiviChauffeManuelle {
    std::function<bool()> Permise; // asked once before the wire is lit, and has told why not
    // The heat-off is not confirmed, and goes on being sent: told once. It must not wait. The function that
    // it is given ends the trying, with the critical box.
    std::function<void(std::function<void()>)> Prevenir;
    std::function<void()> FinPrevenir; // the trying has ended
    // Called when the heat-off is about to be sent, by whatever asks for it; what it gives lives until the
    // trying has ended.
    std::function<std::shared_ptr<void>()> Garder;
    std::function<void(bool)> Changee; // on or off, after each command that says so
};

// Heat on at `pourcent`. True when the box confirmed, when the wire is on already, and when a heat-off asked
// during the move that runs could be taken back. A heat that the box does not answer for ends in a heat-off
// and the box of a failed exchange.
bool AllumerFil(ChauffeManuelle& fil, double pourcent, const SuiviChauffeManuelle& suivi);
// Another heat while the wire is on; also the same once more. Does nothing once the heat is to be switched
// off: a bar that is touched must not light the wire again. For the same reason the box is asked first, but
// during a move; where it has put the wire out by itself, the heat is switched off, and this gives false.
bool ChangerChauffeFil(ChauffeManuelle& fil, double pourcent, const SuiviChauffeManuelle& suivi);
// Heat off, repeated until it is confirmed or the user gives up. True when the wire is known to be cold.
// While a move runs, or a heat is still being asked for, it is only noted: who runs that ends it with a
// heat-off.
bool EteindreFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi);
// The same, only where this wire was lit; true where it wasn't.
bool EteindreFilSiChaud(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi);

// After a fault broke out of the loop of a move or of a heat: S and heat off in a few tries, without letting
// events run. The record says `incertaine` where the box did not confirm, which a critical box has told.
void SecourirFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi);

// One look at a wire that is on, for a timer; nothing is sent while something else is under way. A heat-off
// that was given up before is tried again, without a word.
enum class VeilleFil {
    Calme,
    Coupee, // the machine has switched it off by itself, or the heat-off is confirmed at last
    Perdue  // the box is gone: the heat-off was tried, and told; nothing moves before the link was refreshed
};
VeilleFil VeillerSurFil(ChauffeManuelle& fil, const SuiviChauffeManuelle& suivi);

} // namespace tessarel
