// Quoting of foreign text in messages.
#include "messages.h"

#include "platform/fichiers.h"

#include <algorithm>

namespace tessarel {

std::string Citation(std::string_view texte) {
    constexpr std::size_t longueurMax = 40;
    const bool coupe = texte.size() > longueurMax;
    std::string propre = EnUtf8(std::string(texte.substr(0, longueurMax)));
    std::replace_if(
        propre.begin(), propre.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return coupe ? propre + "..." : propre;
}

} // namespace tessarel
