// The event pump: long loops of an engine let the user's events run between two steps without knowing
// windows.
#pragma once

#include <functional>

namespace tessarel {

using Pompe = std::function<void()>;

// Lets pending events run. Does nothing where no program has installed a pump.
void LaisserPasserEvenements();
// Replaces the pump; returns the one replaced.
Pompe InstallerPompe(Pompe pompe);

} // namespace tessarel
