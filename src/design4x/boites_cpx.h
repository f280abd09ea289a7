// The stop boxes of the design tools, by their row in the text tables, and the numbers typed in their fields.
#pragma once

#include <optional>
#include <string_view>

namespace tessarel {

// Rows of TextesMessages and TitresMessages that the tools show.
enum RangeeConception : int {
    MessageNombreAttendu = 10,
    MessageEcartementNul = 11,
    MessageSansAlignement = 12,
    MessageGarderDeuxPoints = 13,
    MessageSansPointInsertion = 25,
    MessageConfondusE = 31,
    MessageConfondusS = 32,
    MessageDejaFermeE = 33,
    MessageDejaFermeS = 34,
    MessageValeursNulles = 55,
    MessageDistanceNulle = 56,
    MessageViderEspace = 58,
    MessageMesureDeuxCotes = 77,
    MessageDistanceE = 78,
    MessageDistanceS = 79,
};

// Shows text and title of a row as a stop box, or as a plain remark.
void BoiteArret(int rangee);
void BoiteRemarque(int rangee);

// The stop box of a division by a dimension that is zero.
void BoiteDimensionNulle();

// What a user typed in a numeric field, comma or point as mark; nothing, after the stop box, when it is no
// number.
std::optional<double> LireValeurSaisie(std::string_view texte);

} // namespace tessarel
