// The words of the 2D window in both languages.
#pragma once

#include "ui/libelles.h"

#include <QString>
#include <span>

namespace tessarel {

std::span<const Libelle> LibellesTessarel2D();

// Texts that the 2D window writes as it runs.
enum class Texte2D {
    Titre,      // of a project without a name
    EtatProjet, // %1 paths, %2 points
    EtatVide,
    EtatMachine,    // %1 machine
    EtatSauve,      // %1 path
    EtatExporte,    // %1 path
    EtatOuvert,     // %1 file, %2 paths, %3 points
    Coordonnees,    // %1 x, %2 y
    Ignores,        // %1 kinds with their counts
    AucunRecent,
    AideTitre,
    Aide
};
QString TexteDe(Texte2D cle);

} // namespace tessarel
