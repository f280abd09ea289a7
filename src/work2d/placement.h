// The foam block and the placing of paths in it.
#pragma once

#include "machine/table_machine.h"
#include "paths/points.h"
#include "work2d/transformations.h"

#include <vector>

namespace tessarel {

// The three rules of the placing, and the inner margins of the block (mm).
struct ReglesPlacement {
    bool ajuster = false; // scale the paths to the block
    bool centrerX = false;
    bool centrerY = false;
    float margeX = 5;
    float margeY = 5;
};

struct Bloc {
    float BlocX = 0; // mm
    float BlocY = 0;
};

// Default block of a machine: four fifths of the room, in whole centimetres.
Bloc BlocParDefaut(const TableMachine& table);
// Brings a typed or stored block down to the machine. A stored one is limited by the told pair of terms.
Bloc LimiterBlocSaisi(Bloc bloc, const TableMachine& table);
Bloc LimiterBlocOuvert(Bloc bloc, const TableMachine& table);

// Applies the rules in their order; `coeffTransf` is the running product of the factors, 1 again when the
// paths are not scaled. Two sizes of zero show the told box and leave the paths.
// Gives what the rules made of every point, a move or a fit; without effect where they left the paths.
Transformation AjusterAuBloc(std::vector<Sequence>& sequences, const Bloc& bloc,
                             const ReglesPlacement& regles, const TableMachine& table, float& coeffTransf);
// Sizes the block on the paths (at least 10 mm each way), then places them by the rules.
struct BlocPlace {
    Bloc bloc;
    Transformation transformation; // as AjusterAuBloc gives it
};
BlocPlace BlocAuto(std::vector<Sequence>& sequences, const ReglesPlacement& regles, const TableMachine& table,
                   float& coeffTransf);

} // namespace tessarel
