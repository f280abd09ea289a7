// The options of a cut as workspace, material and settings give them: one place for window and batch program.
#pragma once

#include "app/settings/parametres.h"
#include "machine/matieres.h"
#include "work2d/espace2d.h"

namespace tessarel {

// `valeurs` are those of the chosen material, already clamped to the machine.
OptionsDecoupe2D OptionsDepuisEspace(const Espace2D& espace, CoteDecalage2D decalage,
                                     const ValeursDecoupe& valeurs, const ParametresProgramme& parametres);

// Rules of the placing with the inner margins of the settings.
ReglesPlacement ReglesAvecMarges(bool ajuster, bool centrerX, bool centrerY,
                                 const ParametresProgramme& parametres);

} // namespace tessarel
