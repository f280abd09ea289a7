// The event pump: nothing to do where no window is.
#include "pompe.h"

#include <utility>

namespace tessarel {

namespace {

Pompe& PompeCourante() {
    static Pompe pompe;
    return pompe;
}

} // namespace

void LaisserPasserEvenements() {
    if (PompeCourante()) PompeCourante()();
}

Pompe InstallerPompe(Pompe pompe) {
    return std::exchange(PompeCourante(), std::move(pompe));
}

} // namespace tessarel
