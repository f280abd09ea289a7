// Encoded polylines.
//
//   character      base 64      base 32 (after a '7')
//   63 to 94       digit        digit
//   95 to 126      digit        last digit of the number
//   191 to 254     last digit   last digit (the high bit does not count)
//
// Digits come least significant first; the lowest bit of the number is its sign. Numbers go by pairs, steps
// from the pen drawn with the pen down, but for the flags before them: '<' pen up, '=' a place instead of a
// step, ':' a pen number comes, '>' a count of binary places comes. "PE<=?\xbf;" moves to (0, 0).
#include "plt_encode.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tessarel {

namespace {

constexpr unsigned PremierChiffre = 63;
// Of one number: what fits a double whole. Longer ones are no coordinate.
constexpr unsigned BitsMax = 50;
constexpr int DecimalesBinairesMax = 30;

struct DecodeurPE {
    bool base32 = false;
    std::uint64_t accumule = 0;
    unsigned bits = 0;

    bool plumeAttendue = false;
    bool decimalesAttendues = false;
    bool haut = false;
    bool absolu = false;
    int decimales = 0;
    bool xLu = false;
    double x = 0;
};

// Takes a data character; the number when it was its last.
std::optional<double> Chiffre(const LecteurPlt& l, DecodeurPE& p, unsigned c) {
    const bool base32 = p.base32;
    const unsigned valeur = (c & 0x7FU) - PremierChiffre;
    const bool dernier = base32 ? valeur >= 32 : c >= 128;
    if (p.bits > BitsMax)
        throw FauteLecture(*l.chemin, l.ligne,
                           Bilingue("PE : nombre codé trop long", "PE: encoded number too long"));
    p.accumule |= static_cast<std::uint64_t>(base32 ? valeur & 31U : valeur) << p.bits;
    p.bits += base32 ? 5 : 6;
    if (!dernier) return std::nullopt;
    const auto module = static_cast<double>(p.accumule >> 1U);
    const double nombre = (p.accumule & 1U) != 0 ? -module : module;
    p.accumule = 0;
    p.bits = 0;
    return nombre;
}

void Prendre(DessinPlt& d, DecodeurPE& p, double nombre) {
    if (p.plumeAttendue) {
        p.plumeAttendue = false;
        FinirTrait(d);
        ChoisirPlume(d, static_cast<int>(std::clamp(nombre, 0.0, static_cast<double>(PlumesMax))));
        return;
    }
    if (p.decimalesAttendues) {
        p.decimalesAttendues = false;
        p.decimales = static_cast<int>(std::clamp(nombre, -static_cast<double>(DecimalesBinairesMax),
                                                  static_cast<double>(DecimalesBinairesMax)));
        return;
    }
    const double valeur = std::ldexp(nombre, -p.decimales);
    if (!p.xLu) {
        p.xLu = true;
        p.x = valeur;
        return;
    }
    const Point2 but = p.absolu ? Point2{p.x, valeur} : Point2{d.ici.X + p.x, d.ici.Y + valeur};
    p.xLu = false;
    if (p.haut) {
        Lever(d);
    } else {
        Baisser(d);
    }
    p.haut = false;
    p.absolu = false;
    Avancer(d, but.X, but.Y);
}

} // namespace

void TracerPE(LecteurPlt& l, DessinPlt& d) {
    DecodeurPE p;
    for (; l.place < l.texte.size(); ++l.place) {
        const auto c = static_cast<unsigned>(static_cast<unsigned char>(l.texte[l.place]));
        // Flags count with the high bit as well.
        switch (c & 0x7FU) {
        case ';':
            return;
        case ':':
            p.plumeAttendue = true;
            continue;
        case '<':
            p.haut = true;
            continue;
        case '=':
            p.absolu = true;
            continue;
        case '>':
            p.decimalesAttendues = true;
            continue;
        case '7':
            p.base32 = true;
            continue;
        default:
            break;
        }
        const unsigned valeur = c & 0x7FU;
        if (valeur < PremierChiffre || valeur > 126) continue; // line ends and the like
        if (const auto nombre = Chiffre(l, p, c)) Prendre(d, p, *nombre);
    }
    RefuserTroncature(l);
}

} // namespace tessarel
