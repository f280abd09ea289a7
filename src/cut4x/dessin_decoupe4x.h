// The 4-axis cut as a picture: from the side, and from above with the wire between its carriages.
#pragma once

#include "cut4x/decoupe4x.h"
#include "platform/dessin.h"

namespace tessarel {

struct OptionsDessin4x {
    bool sombre = false; // for a dark background
    bool voirChariots = true;
    bool voirPoints = false;
};

// Colours of the two sides, the same in both views and on both backgrounds.
inline constexpr Couleur CouleurEmplanture = {70, 110, 230};
inline constexpr Couleur CouleurSaumon = {20, 150, 80};
inline constexpr Couleur CouleurFil = {240, 136, 0};
inline constexpr Couleur CouleurFaute = {220, 30, 40};

// How much of the table the views show: what the cut uses and some room, not the whole of a long table.
struct EtendueVue {
    double X = 0; // mm from the front
    double Y = 0; // mm above the plateau
};
EtendueVue EtendueDesVues(const TableMachine& table, const DecoupeD4X& decoupe);

// X to the right, Y up: strokes of the machine, faces of the block, paths at the block and at the carriages.
// Segments that a carriage can't follow are bold.
void DessinerVueDeCote(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                       const OptionsDessin4x& options);

// Z to the right from carriage 1 to carriage 2, X up, its corner at `origine`: plateau, block, wires, travel
// of the carriages.
void DessinerPlan(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe, PointDessin origine,
                  const OptionsDessin4x& options);

// Both side by side, and the window that shows them whole.
void DessinerDecoupe4x(Dessin& dessin, const ContexteD4X& contexte, const DecoupeD4X& decoupe,
                       const OptionsDessin4x& options);
CadreDessin CadreDecoupe4x(const TableMachine& table, const DecoupeD4X& decoupe);

} // namespace tessarel
