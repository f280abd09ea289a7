// Scan of the pairs of a DXF text: one pass, no copy.
#include "dxf_codes.h"

#include "messages.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <fmt/format.h>

namespace tessarel {

namespace {

constexpr int CodeCommentaire = 999;

bool EstBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The next line without its end and without blanks at its ends. The text must not be at its end.
std::string_view LigneSuivante(LecteurCodes& lecteur) {
    const char* debut = lecteur.position;
    const auto reste = static_cast<std::size_t>(lecteur.fin - debut);
    const auto* saut = static_cast<const char*>(std::memchr(debut, '\n', reste));
    const char* fin = saut != nullptr ? saut : lecteur.fin;
    lecteur.position = saut != nullptr ? saut + 1 : lecteur.fin;
    ++lecteur.lignesLues;
    while (debut != fin && EstBlanc(*debut)) ++debut;
    while (debut != fin && EstBlanc(fin[-1])) --fin;
    return {debut, static_cast<std::size_t>(fin - debut)};
}

bool ResteVide(const LecteurCodes& lecteur) {
    return std::all_of(lecteur.position, lecteur.fin,
                       [](char c) { return EstBlanc(c) || c == '\n' || c == '\x1a' || c == '\0'; });
}

} // namespace

LecteurCodes OuvrirCodes(const std::string& texte, const std::string& chemin) {
    LecteurCodes lecteur;
    lecteur.position = texte.data();
    lecteur.fin = texte.data() + texte.size();
    lecteur.chemin = &chemin;
    if (texte.starts_with("\xEF\xBB\xBF")) lecteur.position += 3;
    return lecteur;
}

bool LirePaire(LecteurCodes& lecteur) {
    do {
        if (lecteur.position == lecteur.fin) return false;
        const std::string_view code = LigneSuivante(lecteur);
        const auto r = std::from_chars(code.data(), code.data() + code.size(), lecteur.code);
        if (code.empty() || r.ec != std::errc() || r.ptr != code.data() + code.size()) {
            if ((code.empty() || code == "\x1a") && ResteVide(lecteur)) return false;
            throw FauteLecture(
                *lecteur.chemin, lecteur.lignesLues,
                Bilingue(
                    fmt::format("ce n'est pas un DXF lisible : code de groupe attendu, trouvé « {} »",
                                Citation(code)),
                    fmt::format("not a readable DXF: expected a group code, found \"{}\"", Citation(code))));
        }
        if (lecteur.position == lecteur.fin)
            throw FauteLecture(
                *lecteur.chemin, lecteur.lignesLues,
                Bilingue(fmt::format("fichier tronqué : le code {} n'a pas de valeur", lecteur.code),
                         fmt::format("the file is truncated: code {} has no value", lecteur.code)));
        lecteur.valeur = LigneSuivante(lecteur);
    } while (lecteur.code == CodeCommentaire);
    return true;
}

void LirePaireExigee(LecteurCodes& lecteur, std::string_view ou) {
    if (LirePaire(lecteur)) return;
    throw FauteLecture(*lecteur.chemin, lecteur.lignesLues,
                       Bilingue(fmt::format("fichier tronqué dans {}", Citation(ou)),
                                fmt::format("the file is truncated inside {}", Citation(ou))));
}

double ValeurReelle(const LecteurCodes& lecteur) {
    double valeur = 0;
    if (LireTeteNumerique(lecteur.valeur, valeur) != lecteur.valeur.size() || lecteur.valeur.empty() ||
        !std::isfinite(valeur))
        throw FauteLecture(*lecteur.chemin, lecteur.lignesLues,
                           Bilingue(fmt::format("nombre attendu (code {}), trouvé « {} »", lecteur.code,
                                                Citation(lecteur.valeur)),
                                    fmt::format("expected a number (code {}), found \"{}\"", lecteur.code,
                                                Citation(lecteur.valeur))));
    return valeur;
}

std::int32_t ValeurEntiere(const LecteurCodes& lecteur) {
    return static_cast<std::int32_t>(std::clamp(ValeurReelle(lecteur), -2147483648.0, 2147483647.0));
}

bool EstMot(const LecteurCodes& lecteur, std::string_view mot) {
    return lecteur.code == 0 && lecteur.valeur.size() == mot.size() &&
           (lecteur.valeur == mot || EgalSansCasse(lecteur.valeur, mot));
}

} // namespace tessarel
