// The window system's event queue as the pump of the engines' long loops.
#pragma once

namespace tessarel {

// From here on LaisserPasserEvenements() runs the pending events of the application: at each call what the
// program itself has posted, repaints among it; keys, the mouse and timers too, but where two calls are
// microseconds apart. It throws what their handlers let through.
void InstallerPompeQt();

} // namespace tessarel
