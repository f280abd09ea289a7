// What the 4-axis cut window offers in each of its states, and what it says of it: no window here.
#pragma once

#include "cut4x/parametres_decoupe4x.h"

#include <string>

namespace tessarel {

// The sixteen groups of the enable table; each enables its controls and shows the active or the inactive
// form of its pictures.
struct EtatCommandesD4X {
    bool entree = false;              // optEntrerBloc
    bool approche = false;            // optBFapproche, only by the trailing edge
    bool sortie = false;              // optSortirBloc
    bool retour = false;              // optBFretour
    bool sortieIntermediaire = false; // optSortieBA and its cursors
    bool position = false;            // X, Y and the weights
    bool alignementZ = false;         // optAlignementBlocZ and its automatic choice
    bool saisieZ = false;             // txtPositionBloc(2) and (3), only with "Saisi"
    bool cote = false;                // optCoteD4X
    bool decalage = false;            // side and algorithm of the offset
    bool blocDresse = false;          // chkBlocDresse
    bool dressage = false;            // chkDresser, and chkSurfacer with it
    bool guillotine = false;          // chkGuillotine and its values
    bool parcours = false;            // hscParcourir and its timer
    bool matiere = false;
    bool decouper = false; // cmdDecouperD4X, cmdMemoBloc
    friend bool operator==(const EtatCommandesD4X&, const EtatCommandesD4X&) = default;
};
// `decoupeEnCours`: everything is off while a cut runs.
EtatCommandesD4X TableDesCommandes(bool DecoupePossible, const ParametresDecoupe4axes& parametres,
                                   bool decoupeEnCours);

// Ticking one of the two tools unticks the other.
void CocherDressage(bool coche, ParametresDecoupe4axes& parametres);
void CocherGuillotine(bool coche, ParametresDecoupe4axes& parametres);
// Caption of their buttons, and what lblDecoupeImpossible shows while one is on (empty: hidden).
const std::string& LegendeOutil(bool coche);
const std::string& TexteOutilActif(const ParametresDecoupe4axes& parametres);

// Leaving the cut tab: both tools are released and the mirror is taken off. True when the mirror was on, and
// the placing must be done anew on the way back.
bool QuitterOngletDecoupe(ParametresDecoupe4axes& parametres);

// False, after its box, while a tool is on.
bool SauvegardePermise(const ParametresDecoupe4axes& parametres);
bool AccesParametresPermis(const ParametresDecoupe4axes& parametres);

} // namespace tessarel
