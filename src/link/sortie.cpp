// Heat off at the end of the process.
#include "link/sortie.h"

#include "app/texts/textes.h"
#include "link/commandes.h"
#include "link/echange.h"
#include "platform/dialogue.h"
#include "platform/flux_standards.h"
#include "platform/horloge.h"

#include <cstdlib>
#include <string>

namespace tessarel {

namespace {

constexpr int Essais = 5;
constexpr Instant DureeDesEssais = std::chrono::seconds(2); // a mute box answers none of them for a second
constexpr int RangeeChauffeNonCoupee = 40;                  // of TextesDoubles

// Made before it is needed.
const std::string& Avertissement() {
    static const std::string ligne = BoiteEnUneLigne({TextesDoubles(RangeeChauffeNonCoupee, 1),
                                                      TextesDoubles(RangeeChauffeNonCoupee, 2)}) +
                                     "\n";
    return ligne;
}

} // namespace

void EteindreEnSortant() noexcept {
    if (!ChauffePeutEtreActive()) return;
    try {
        const Instant fin = Maintenant() + DureeDesEssais;
        for (int essai = 0; essai < Essais && Maintenant() < fin; ++essai) {
            if (essai > 0) Patienter(EntreDeuxEssais);
            if (EssayerCoupure() || DernierResultatZelko == ResultatZelkoBibliothequeAbsente) return;
        }
        EcrireErreurSansAttendre(Avertissement());
    } catch (...) {
        return; // there is nobody left to tell
    }
}

void VeillerALaSortie() {
    static const bool veille = [] {
        Maintenant();
        Avertissement();
        return std::atexit([] { EteindreEnSortant(); }) == 0;
    }();
    static_cast<void>(veille);
}

} // namespace tessarel
