// Boxes of the design tools from the text tables.
#include "boites_cpx.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

namespace tessarel {

namespace {

// Row of TextesDoubles.
constexpr int DoublesDimensionNulle = 16;

} // namespace

void BoiteArret(int rangee) {
    AfficherCritique(TextesMessages(rangee), TitresMessages(rangee));
}

void BoiteRemarque(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

void BoiteDimensionNulle() {
    AfficherCritique(TextesDoubles(DoublesDimensionNulle, 1), TextesDoubles(DoublesDimensionNulle, 2));
}

std::optional<double> LireValeurSaisie(std::string_view texte) {
    const std::optional<double> valeur = LireDecimal(texte);
    if (!valeur) BoiteArret(MessageNombreAttendu);
    return valeur;
}

} // namespace tessarel
