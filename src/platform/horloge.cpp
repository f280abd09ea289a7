// The clock as the program reads it.
#include "horloge.h"

#include <thread>
#include <utility>

namespace tessarel {

namespace {

Instant HorlogeSysteme() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

SourceTemps& SourceCourante() {
    static SourceTemps source = HorlogeSysteme;
    return source;
}

} // namespace

Instant Maintenant() {
    return SourceCourante()();
}

SourceTemps InstallerHorloge(SourceTemps source) {
    if (!source) source = HorlogeSysteme;
    return std::exchange(SourceCourante(), std::move(source));
}

void Patienter(Instant duree) {
    const auto* deLaMaison = SourceCourante().target<Instant (*)()>();
    if (deLaMaison != nullptr && *deLaMaison == &HorlogeSysteme) std::this_thread::sleep_for(duree);
}

} // namespace tessarel
