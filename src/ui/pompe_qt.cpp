// The window system's event queue as the pump of the engines' long loops.
#include "ui/pompe_qt.h"

#include "platform/pompe.h"

#include <QCoreApplication>

namespace tessarel {

void InstallerPompeQt() {
    InstallerPompe([] { QCoreApplication::processEvents(); });
}

} // namespace tessarel
