// The table, the block, the paths and the cut as a picture to scale.
#pragma once

#include "platform/dessin.h"
#include "work2d/decoupe2d.h"
#include "work2d/placement.h"

#include <span>

namespace tessarel {

struct OptionsDessin {
    bool voirPoints = false;
    bool couleurProfils = true;
    bool sombre = false; // for a dark background
};

// Table with its rulers, machine zone and block.
void DessinerTable(Dessin& dessin, const TableMachine& table, const Bloc& bloc, const OptionsDessin& options);
// The paths as placed.
void DessinerSequences(Dessin& dessin, std::span<const Sequence> sequences, const OptionsDessin& options);
// Entry, cut and exit; rapid segments thick.
void DessinerDecoupe(Dessin& dessin, const Decoupe2D& decoupe, const OptionsDessin& options);
// What a view that shows everything must hold, margins included.
CadreDessin CadreTable(const TableMachine& table);

} // namespace tessarel
