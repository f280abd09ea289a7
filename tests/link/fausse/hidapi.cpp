// The few functions of the USB layer that the link library calls, led to the device of the test.
#include "faux_hid.h"

#include <cstdlib>
#include <string>

namespace {

FauxHid* Appareil() {
    const char* adresse = std::getenv(VariableFauxHid);
    if (adresse == nullptr) return nullptr;
    return reinterpret_cast<FauxHid*>(std::stoull(adresse)); // NOLINT: the test's own object
}

bool Branche() {
    return Appareil() != nullptr && Appareil()->branche;
}

} // namespace

extern "C" {

void* hid_enumerate(unsigned short, unsigned short) {
    return Branche() ? Appareil() : nullptr;
}
void hid_free_enumeration(void*) {}
void* hid_open(unsigned short, unsigned short, const wchar_t*) {
    if (!Branche()) return nullptr;
    ++Appareil()->ouvertures;
    return Appareil();
}
void hid_close(void*) {}
int hid_exit() {
    return 0;
}
int hid_write(void*, const unsigned char* octets, std::size_t nombre) {
    return Branche() ? Appareil()->ecrire(octets, nombre) : -1;
}
int hid_read_timeout(void*, unsigned char* octets, std::size_t place, int delai) {
    return Branche() ? Appareil()->lire(octets, place, delai) : -1;
}

} // extern "C"
