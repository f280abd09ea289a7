// The fields of the parameter window: which control holds which key of a machine, in which group of which
// tab, with its words in both languages.
#pragma once

#include "ui/libelles.h"

#include <span>
#include <string>
#include <vector>

namespace tessarel {

// A field with its explanation. The kind of the control is told by its name: txt a text, chk a check box,
// slid a slider, combo a list.
struct ChampFenetre {
    const char* controle; // objectName, "_index" included
    const char* cle;      // in the settings file
    const char* francais;
    const char* english;
    const char* aideFrancais;
    const char* aideEnglish;
};

struct GroupeFenetre {
    const char* cadre; // objectName of the frame
    const char* francais;
    const char* english;
    std::span<const ChampFenetre> champs;
};

// Groups of the tabs, in their order; the first tab, with one column of fields per axis, has a layout of its
// own.
enum OngletParametres {
    OngletMoteurs,
    OngletVitesses,
    OngletGeometrie,
    OngletChauffe,
    OngletOrigine,
    OngletGcode,
    OngletMemoires
};
std::span<const GroupeFenetre> GroupesDeLOnglet(int onglet);
// The fields of the first tab.
std::span<const ChampFenetre> ChampsDesMoteurs();
// All fields of the window.
std::vector<const ChampFenetre*> TousLesChamps();

// What a slider shows is its position times this.
int FacteurCurseur(const ChampFenetre& champ);

// Captions, units, explanations and tool tips of all fields.
std::span<const Libelle> LibellesDesChamps();

} // namespace tessarel
