// The wire's ways into the block and out of it.
#pragma once

#include "work2d/decoupe2d.h"

namespace tessarel {

struct TrajetsBloc {
    Sequence entree; // from the machine's origin to the first point of the path
    Sequence sortie; // from the last point back to the origin
};

// Entry and exit of a cut by their types (0 from the origin side, 1 from above, 2 from the far side), for
// either place of the origin. `Rapide` stands on the point that starts a rapid segment; the segment that
// touches the path never is. A type that is none of the three is taken as 0. Both are empty when the path is.
TrajetsBloc CreationTrajetsDecales(const Sequence& SequenceDecalee, const OptionsDecoupe2D& options,
                                   const TableMachine& table);

// The same shapes on the path before its offset is known, for display: nothing is rapid, and the height over
// the block is not limited by the travel.
TrajetsBloc CreationTrajetsEntreeSortie(const Sequence& SequenceAssemblee, const OptionsDecoupe2D& options,
                                        const TableMachine& table);

} // namespace tessarel
