// The start-up sequence without windows: the same for the splash and for the batch program.
#pragma once

#include "app/demarrage/etat_splash.h"
#include "app/texts/textes.h"
#include "platform/zelkocom.h"

#include <optional>
#include <string>
#include <vector>

namespace tessarel {

struct OptionsDemarrage {
    std::string DossierDocuments; // stands for the user's Documents folder; empty: the user's own choice
    std::string DossierProgramme; // empty: found out
    std::optional<Langue> LangueImposee;
    // Without it the library isn't looked for, and nothing is said of it: for work that never moves a
    // machine. A box that stands in its place already stays.
    bool ChercherInterface = true;
    std::optional<std::vector<std::string>>
        DossiersBibliotheque; // where libZelkoCom.so may be; none: DossiersZelkoCom
    AccesMemoires Memoires;
};

// Why the program must end at once; the user has been told.
enum class FinDemarrage { Non, BibliothequeTropVieille, IniSansRetourChariot, MachineRefusee };

struct EtatDemarrage {
    FinDemarrage Fin = FinDemarrage::Non;
    EtatBibliotheque Bibliotheque = EtatBibliotheque::Absente;
    std::string NomMachine;
    EtatSplash Splash;
    // The button that has the focus: true cmdContinuer(0), the 2D mode; false cmdContinuer(1), the 4-axis
    // modes.
    bool FocusSur2D = false;

    [[nodiscard]] bool Termine() const { return Fin != FinDemarrage::Non; }
};

// Runs all steps in their order and fills the program's records: DossiersProgramme, Parametres, TableINI,
// TableauNomsMachines, the material base, MatiereCourante, MouvementsActifs, the text tables. A fault in a
// step is told by a box and the next step runs.
EtatDemarrage Demarrer(const OptionsDemarrage& options);

} // namespace tessarel
