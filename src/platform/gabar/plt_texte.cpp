// Instructions, numbers, labels and escape sequences of plotter files.
#include "plt_texte.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

constexpr char Echappement = '\x1B';

bool EstLettre(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

bool EstSeparateur(char c) {
    return c == ',' || c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

bool Fini(const LecteurPlt& l) {
    return l.place >= l.texte.size();
}

void AllerApres(LecteurPlt& l, char c) {
    const std::size_t fin = l.texte.find(c, l.place);
    l.place = fin == std::string_view::npos ? l.texte.size() : fin + 1;
}

void AllerA(LecteurPlt& l, char c) {
    l.place = std::min(l.texte.find(c, l.place), l.texte.size());
}

// "ESC . letter", then the values of those letters that have some, ended by a colon.
void PasserEchappementTraceur(LecteurPlt& l) {
    l.place = std::min(l.place + 2, l.texte.size());
    while (!Fini(l) && (EstChiffre(l.texte[l.place]) || l.texte[l.place] == ';')) ++l.place;
    if (!Fini(l) && l.texte[l.place] == ':') ++l.place;
}

// "ESC group letter value ... capital" of the printer languages. Raster data (a W) carries as many bytes as
// its value says; "% A" leaves the plotter language until the next escape, "% -12345 X" opens lines of job
// control.
void PasserEchappementImprimante(LecteurPlt& l) {
    const char groupe = l.texte[l.place];
    std::size_t fin = l.place + 1;
    while (fin < l.texte.size() && !(l.texte[fin] >= '@' && l.texte[fin] <= 'Z')) ++fin;
    if (fin >= l.texte.size()) {
        l.place = l.texte.size();
        return;
    }
    std::size_t nombre = l.texte.find_last_not_of("0123456789", fin - 1);
    nombre = nombre == std::string_view::npos ? fin : nombre + 1;
    std::size_t octets = 0;
    std::from_chars(l.texte.data() + nombre, l.texte.data() + fin, octets);
    l.place = fin + 1;
    if (l.texte[fin] == 'W') l.place += std::min(octets, l.texte.size() - l.place);
    if (groupe == '%' && l.texte[fin] == 'A') AllerA(l, Echappement);
}

void PasserEchappement(LecteurPlt& l) {
    ++l.place;
    if (Fini(l)) return;
    const char c = l.texte[l.place];
    if (c == '.') {
        PasserEchappementTraceur(l);
    } else if (c >= '!' && c <= '/') {
        PasserEchappementImprimante(l);
    } else {
        ++l.place;
    }
}

// A line of job control, or a comment: '#' at the head of its line.
bool CommenceLigneEtrangere(const LecteurPlt& l) {
    if (l.texte[l.place] == '#') return l.place == 0 || l.texte[l.place - 1] == l.finLigne;
    return l.texte.substr(l.place, 4) == "@PJL";
}

// Whole numbers, the most frequent by far; false when the text is more than one of at most fifteen digits.
bool LireEntierCourt(LecteurPlt& l, double& valeur) {
    constexpr std::size_t chiffresMax = 15;
    const char* debut = l.texte.data() + l.place;
    const char* fin = l.texte.data() + l.texte.size();
    const char* c = debut;
    const bool negatif = *c == '-';
    if (negatif) ++c;
    const char* premier = c;
    std::int64_t n = 0;
    while (c != fin && EstChiffre(*c) && c - premier <= static_cast<std::ptrdiff_t>(chiffresMax))
        n = n * 10 + (*c++ - '0');
    const auto chiffres = static_cast<std::size_t>(c - premier);
    if (chiffres == 0 || chiffres > chiffresMax) return false;
    if (c != fin && (*c == '.' || *c == 'e' || *c == 'E')) return false;
    valeur = static_cast<double>(negatif ? -n : n);
    l.place += static_cast<std::size_t>(c - debut);
    return true;
}

} // namespace

LecteurPlt OuvrirPlt(std::string_view texte, const std::string& chemin) {
    LecteurPlt l;
    l.texte = texte;
    l.chemin = &chemin;
    if (texte.find('\n') == std::string_view::npos) l.finLigne = '\r';
    return l;
}

bool LireMotPlt(LecteurPlt& l) {
    while (!Fini(l)) {
        const char c = l.texte[l.place];
        if (EstLettre(c) && l.place + 1 < l.texte.size() && EstLettre(l.texte[l.place + 1])) {
            l.ligne += std::count(l.texte.begin() + static_cast<std::ptrdiff_t>(l.debut),
                                  l.texte.begin() + static_cast<std::ptrdiff_t>(l.place), l.finLigne);
            l.debut = l.place;
            l.mot = l.texte.substr(l.place, 2);
            l.place += 2;
            return true;
        }
        if (c == Echappement) {
            PasserEchappement(l);
        } else if (CommenceLigneEtrangere(l)) {
            AllerApres(l, l.finLigne);
        } else {
            if (c != ';' && c != FinEtiquetteDefaut && c != '\0' && !EstSeparateur(c)) ++l.horsSujet;
            ++l.place;
        }
    }
    return false;
}

bool LireNombrePlt(LecteurPlt& l, double& valeur) {
    while (!Fini(l) && EstSeparateur(l.texte[l.place])) ++l.place;
    if (Fini(l)) return false;
    const char c = l.texte[l.place];
    if (!EstChiffre(c) && c != '-' && c != '+' && c != '.') return false;
    if (LireEntierCourt(l, valeur)) return true;
    const std::size_t lus = LireTeteNumerique(l.texte.substr(l.place), valeur);
    if (lus == 0) {
        ++l.illisibles;
        ++l.place;
        return false;
    }
    l.place += lus;
    return true;
}

void RefuserTroncature(const LecteurPlt& l) {
    throw FauteLecture(
        *l.chemin, l.ligne,
        Bilingue(fmt::format("le fichier s'arrête au milieu de l'instruction {}", Citation(l.mot)),
                 fmt::format("the file ends in the middle of the instruction {}", Citation(l.mot))));
}

bool LirePairePlt(LecteurPlt& l, double& x, double& y) {
    if (!LireNombrePlt(l, x)) return false;
    if (LireNombrePlt(l, y)) return true;
    if (Fini(l)) RefuserTroncature(l);
    ++l.illisibles;
    return false;
}

int LireNombresPlt(LecteurPlt& l, double* valeurs, int nombre) {
    int lus = 0;
    while (lus < nombre && LireNombrePlt(l, valeurs[lus])) ++lus;
    return lus;
}

void PasserEtiquette(LecteurPlt& l) {
    const std::size_t fin = l.texte.find(l.finEtiquette, l.place);
    if (fin == std::string_view::npos) l.etiquetteOuverte = l.ligne;
    l.place = fin == std::string_view::npos ? l.texte.size() : fin + 1;
}

void LireFinEtiquette(LecteurPlt& l) {
    if (Fini(l)) return;
    const char c = l.texte[l.place];
    // "DT;" alone goes back to the usual character.
    l.finEtiquette = c == ';' ? FinEtiquetteDefaut : c;
    ++l.place;
    if (c != ';') PasserArguments(l);
}

void PasserSymbole(LecteurPlt& l) {
    if (!Fini(l)) ++l.place;
}

void PasserCommentaire(LecteurPlt& l) {
    while (!Fini(l) && EstSeparateur(l.texte[l.place])) ++l.place;
    if (!Fini(l) && l.texte[l.place] == '"') {
        PasserArguments(l);
    } else {
        AllerA(l, ';');
    }
}

void PasserArguments(LecteurPlt& l) {
    while (!Fini(l)) {
        const char c = l.texte[l.place];
        if (c == ';' || c == Echappement || EstLettre(c)) return;
        ++l.place;
        if (c == '"') AllerApres(l, '"');
    }
}

} // namespace tessarel
