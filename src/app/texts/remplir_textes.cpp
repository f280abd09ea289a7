// Puts values in the place of the marks of a text.
#include "app/texts/textes_programme.h"

namespace tessarel {

std::string RemplirMarques(std::string_view texte, std::initializer_list<std::string_view> valeurs) {
    std::string rempli;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const bool marque =
            texte[i] == '%' && i + 1 < texte.size() && texte[i + 1] >= '1' && texte[i + 1] <= '9';
        const std::size_t rang = marque ? static_cast<std::size_t>(texte[i + 1] - '1') : valeurs.size();
        if (rang < valeurs.size()) {
            rempli += valeurs.begin()[rang];
            ++i;
        } else {
            rempli += texte[i];
        }
    }
    return rempli;
}

std::string TexteRempli(TexteProgramme cle, std::initializer_list<std::string_view> valeurs) {
    return RemplirMarques(Texte(cle), valeurs);
}

} // namespace tessarel
