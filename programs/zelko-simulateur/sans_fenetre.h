// The virtual box without a window: it serves until it is asked to end.
#pragma once

#include "arguments.h"

namespace tessarel::simulateur {

int ServirSansFenetre(const Arguments& arguments);

} // namespace tessarel::simulateur
