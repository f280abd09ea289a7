// Where the carriages are after a move by hand, however it ended.
#pragma once

#include "link/mouvements.h"
#include "link/salves.h"

namespace tessarel {

// Steps done, by Axe, of a move that was asked for `pas`: all of them at the end of its list, a part of them
// at a stop, none where nothing was started.
PasAxes PasFaits(const ResultatMouvement& mouvement, const PasAxes& pas);

} // namespace tessarel
