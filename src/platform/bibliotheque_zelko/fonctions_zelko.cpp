// The five functions of the link library, and the choice between a real box and a virtual one.
#include "canal_prise.h"
#include "canal_usb.h"

#include <algorithm>

namespace tessarel {

namespace {

constexpr std::int32_t VersionBibliotheque = 16;
constexpr std::int32_t TableIllisible = -101; // no buffer was given

enum class Boitier { Aucun, Usb, Prise };

// Both channels, and the one chosen: the box that was found when the presence was last tested, or by the
// first exchange of all. An exchange never goes over to the other box by itself, and a box that is gone stays
// the chosen one: a heat-off meant for a real box that was just unplugged must not be confirmed by a virtual
// one.
struct Liaison {
    CanalUsb Usb;
    CanalPrise Prise;
    Boitier Choisi = Boitier::Aucun;
};

Liaison& LaLiaison() {
    static Liaison liaison;
    return liaison;
}

Boitier Choisir(Liaison& liaison) {
    if (liaison.Usb.Presente()) {
        liaison.Prise.Fermer();
        return Boitier::Usb;
    }
    return liaison.Prise.Presente() ? Boitier::Prise : Boitier::Aucun;
}

} // namespace

} // namespace tessarel

extern "C" {

[[gnu::visibility("default")]] std::int32_t Zelko_Dll_Version() {
    return tessarel::VersionBibliotheque;
}

[[gnu::visibility("default")]] std::int32_t Zelko_IsConnected() {
    using namespace tessarel;
    Liaison& liaison = LaLiaison();
    const Boitier trouve = Choisir(liaison);
    if (trouve != Boitier::Aucun) liaison.Choisi = trouve;
    return trouve == Boitier::Aucun ? 0 : 1;
}

[[gnu::visibility("default")]] std::int32_t Zelko_Open() {
    using namespace tessarel;
    Liaison& liaison = LaLiaison();
    if (liaison.Choisi == Boitier::Aucun) liaison.Choisi = Choisir(liaison);
    if (liaison.Choisi == Boitier::Usb) return liaison.Usb.Ouvrir();
    return liaison.Prise.Ouvrir();
}

[[gnu::visibility("default")]] std::int32_t Zelko_Close() {
    using namespace tessarel;
    Liaison& liaison = LaLiaison();
    liaison.Usb.Fermer();
    liaison.Prise.Fermer();
    liaison.Choisi = Boitier::Aucun;
    return CanalSucces;
}

// `reserve` is asked for by the interface of the library and has no use.
[[gnu::visibility("default")]] std::int32_t Zelko_Send(std::uint8_t* tampon, std::int32_t* reserve) {
    using namespace tessarel;
    static_cast<void>(reserve);
    if (tampon == nullptr) return TableIllisible;
    Liaison& liaison = LaLiaison();
    if (liaison.Choisi == Boitier::Aucun) liaison.Choisi = Choisir(liaison);
    Rapport rapport;
    std::copy_n(tampon, rapport.size(), rapport.begin());
    rapport[0] = 0; // the number of the report, whatever the caller left there
    const std::int32_t resultat =
        liaison.Choisi == Boitier::Usb ? liaison.Usb.Echanger(rapport) : liaison.Prise.Echanger(rapport);
    if (resultat != CanalSucces) return resultat;
    rapport[0] = 0;
    std::ranges::copy(rapport, tampon);
    return CanalSucces;
}

} // extern "C"
