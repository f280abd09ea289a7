// The window system's event queue as the pump of the engines' long loops.
#pragma once

namespace tessarel {

// From here on LaisserPasserEvenements() runs the pending events of the application.
void InstallerPompeQt();

} // namespace tessarel
