// The table, the block, the paths and the cut as a picture to scale.
#pragma once

#include "platform/dessin.h"
#include "work2d/couleurs_table.h"
#include "work2d/decoupe2d.h"
#include "work2d/placement.h"

#include <span>
#include <string>

namespace tessarel {

struct OptionsDessin {
    bool voirPoints = false;
    bool couleurProfils = true;
    bool sombre = false;   // for a dark background
    bool voirSens = false; // many arrows along each path
    bool regles = true;    // rulers of its own; a canvas that has some does without
    float margeX = 0;      // mm, inner margins of the block; not drawn where both are 0
    float margeY = 0;
};

// Which of the paths a layer holds; each keeps the colour of its place among all.
enum class PartieSequences { Toutes, Selectionnees, Autres };

// Table with its axes and rulers, machine zone and block.
void DessinerTable(Dessin& dessin, const TableMachine& table, const Bloc& bloc, const OptionsDessin& options);
// The paths as placed, each with its first point and the direction in which it is cut.
void DessinerSequences(Dessin& dessin, std::span<const Sequence> sequences, const OptionsDessin& options,
                       PartieSequences partie = PartieSequences::Toutes);
// Entry, cut and exit; rapid segments thick. While there is no cut path (an offset that failed), the joined
// paths with the provisional entry and exit, dashed.
void DessinerDecoupe(Dessin& dessin, const Decoupe2D& decoupe, const OptionsDessin& options);
// What a view that shows everything must hold, margins included, with the rulers of the drawing or without.
CadreDessin CadreTable(const TableMachine& table, bool regles = true);

// Graduation of a ruler over `course` mm: 1, 2 or 5 times a power of ten, for five to about twelve labels.
double PasGraduation(double course);
// Label of a block: "60.0 mm x 40.0 mm".
std::string TexteDimensionsBloc(const Bloc& bloc);

} // namespace tessarel
