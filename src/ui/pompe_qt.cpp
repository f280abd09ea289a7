// The window system's event queue as the pump of the engines' long loops.
#include "ui/pompe_qt.h"

#include "platform/horloge.h"
#include "platform/pompe.h"
#include "ui/fautes_retenues.h"

#include <QCoreApplication>

namespace tessarel {

namespace {

// A look at the window system costs about 1 µs, a tenth of an exchange over a socket. No exchange over a
// cable is as short as this, so there each one has its look.
constexpr Instant EntreDeuxRegards = std::chrono::microseconds(100);

} // namespace

void InstallerPompeQt() {
    InstallerPompe([dernier = Instant::min()]() mutable {
        const Instant maintenant = Maintenant();
        // Another clock may have come, which is behind.
        if (dernier <= maintenant && maintenant - EntreDeuxRegards < dernier) {
            PasserEvenements([] { QCoreApplication::sendPostedEvents(); });
            return;
        }
        PasserEvenements([] { QCoreApplication::processEvents(); });
        dernier = Maintenant();
    });
}

} // namespace tessarel
