// Numbers as texts by a mask, texts as numbers, and the roundings that have a name.
#include "nombres.h"

#include "erreurs.h"
#include "raisons.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <locale>

namespace tessarel {

namespace {

constexpr std::array<double, 13> PuissancesDe10 = {1e0, 1e1, 1e2, 1e3,  1e4,  1e5, 1e6,
                                                   1e7, 1e8, 1e9, 1e10, 1e11, 1e12};

// Writes the whole part and the decimals of a value already scaled by 10^decimalesMax and rounded.
char* EcrireEchelle(char* sortie, bool negatif, std::uint64_t echelle, Masque masque) {
    std::array<char, 24> chiffres; // least significant first
    int n = 0;
    int decimales = masque.decimalesMax;
    const bool nul = echelle == 0;
    while (decimales > masque.decimalesMin && echelle % 10 == 0) {
        echelle /= 10;
        --decimales;
    }
    while (echelle != 0) {
        chiffres[static_cast<std::size_t>(n++)] = static_cast<char>('0' + echelle % 10);
        echelle /= 10;
    }
    while (n < decimales + masque.entiers) chiffres[static_cast<std::size_t>(n++)] = '0';
    if (negatif && !nul) *sortie++ = '-';
    while (n > decimales) *sortie++ = chiffres[static_cast<std::size_t>(--n)];
    if (decimales > 0) {
        *sortie++ = '.';
        while (n > 0) *sortie++ = chiffres[static_cast<std::size_t>(--n)];
    }
    return sortie;
}

// Rounds the decimal digits of |valeur|, cut to `significatifs` digits first, half away from zero. Slow and
// exact: the digits come from the library, the rounding is done on the text.
template <typename Reel>
char* EcrireParChiffres(char* sortie, Reel valeur, Masque masque, int significatifs) {
    std::array<char, TailleNombre> brut;
    const auto fin = std::to_chars(brut.data(), brut.data() + brut.size(), std::abs(valeur),
                                   std::chars_format::scientific, significatifs - 1);
    // d.ddddde±xx
    std::string chiffres;
    char* c = brut.data();
    for (; c != fin.ptr && *c != 'e'; ++c)
        if (*c != '.') chiffres += *c;
    int exposant = 0;
    if (c != fin.ptr) {
        ++c;
        if (c != fin.ptr && *c == '+') ++c;
        std::from_chars(c, fin.ptr, exposant);
    }
    // Digit i of `chiffres` has the weight 10^(exposant - i); keep those of weight >= 10^-decimalesMax.
    const int gardes = exposant + 1 + masque.decimalesMax;
    std::string nombre;
    bool report = false;
    if (gardes >= 0) {
        const auto g = static_cast<std::size_t>(gardes);
        nombre = chiffres.substr(0, std::min(g, chiffres.size()));
        nombre.append(g - nombre.size(), '0');
        report = g < chiffres.size() && chiffres[g] >= '5';
    }
    for (auto it = nombre.rbegin(); report && it != nombre.rend(); ++it) {
        report = *it == '9';
        *it = report ? '0' : static_cast<char>(*it + 1);
    }
    if (report) nombre.insert(nombre.begin(), '1');
    const auto decimales = static_cast<std::size_t>(masque.decimalesMax);
    const std::size_t largeur = decimales + static_cast<std::size_t>(masque.entiers);
    nombre.erase(0, std::min(nombre.find_first_not_of('0'), nombre.size()));
    const bool nul = nombre.empty();
    if (nombre.size() < largeur) nombre.insert(0, largeur - nombre.size(), '0');
    std::size_t fraction = decimales;
    while (fraction > static_cast<std::size_t>(masque.decimalesMin) && nombre.back() == '0') {
        nombre.pop_back();
        --fraction;
    }
    if (std::signbit(valeur) && !nul) *sortie++ = '-';
    sortie = std::copy(nombre.begin(), nombre.end() - static_cast<std::ptrdiff_t>(fraction), sortie);
    if (fraction > 0) {
        *sortie++ = '.';
        sortie = std::copy(nombre.end() - static_cast<std::ptrdiff_t>(fraction), nombre.end(), sortie);
    }
    return sortie;
}

// The scaled value is within a few units of 2^-52 of the true one; only this close to a half can the 15
// digits decide otherwise.
constexpr double VoisinageDemi = 1e-4;
// Above this the scaled value has no digits left to tell a half by.
constexpr double EchelleMax = 1e10;

} // namespace

char* EcrireNombre(char* sortie, double valeur, Masque masque) {
    if (!std::isfinite(valeur)) valeur = 0;
    const double echelle =
        std::abs(valeur) * PuissancesDe10[static_cast<std::size_t>(std::min(masque.decimalesMax, 12))];
    if (echelle < EchelleMax && masque.decimalesMax <= 12) {
        const double bas = std::floor(echelle);
        const double reste = echelle - bas;
        if (std::abs(reste - 0.5) > VoisinageDemi)
            return EcrireEchelle(sortie, std::signbit(valeur),
                                 static_cast<std::uint64_t>(bas) + (reste > 0.5 ? 1 : 0), masque);
    }
    return EcrireParChiffres(sortie, valeur, masque, 15);
}

char* EcrireNombre(char* sortie, float valeur, Masque masque) {
    if (!std::isfinite(valeur)) valeur = 0;
    return EcrireParChiffres(sortie, valeur, masque, 7);
}

std::string FormaterNombre(double valeur, Masque masque) {
    std::array<char, TailleNombre> tampon;
    return {tampon.data(), EcrireNombre(tampon.data(), valeur, masque)};
}

std::string FormaterNombre(float valeur, Masque masque) {
    std::array<char, TailleNombre> tampon;
    return {tampon.data(), EcrireNombre(tampon.data(), valeur, masque)};
}

std::size_t LireTeteNumerique(std::string_view texte, double& valeur) {
    const char* debut = texte.data();
    const char* fin = debut + texte.size();
    while (debut != fin && (*debut == ' ' || *debut == '\t')) ++debut;
    const char* chiffre = debut;
    if (chiffre != fin && *chiffre == '+') {
        ++chiffre; // from_chars takes no plus sign
        if (chiffre != fin && *chiffre == '-') return 0;
    }
    const char* premier = chiffre;
    if (premier != fin && *premier == '-') ++premier;
    // No "nan", "inf" or other words: a number begins with a digit or a point.
    if (premier == fin || !((*premier >= '0' && *premier <= '9') || *premier == '.')) return 0;
    const auto r = std::from_chars(chiffre, fin, valeur);
    if (r.ec == std::errc::result_out_of_range) {
        // Underflow reads as zero, overflow as infinity, which the callers refuse.
        const std::string copie(chiffre, r.ptr);
        valeur = std::strtod(copie.c_str(), nullptr);
    } else if (r.ec != std::errc()) {
        return 0;
    }
    return static_cast<std::size_t>(r.ptr - texte.data());
}

double NombreDepuisTexte(std::string_view texte) {
    std::string garde;
    garde.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char c = texte[i];
        const auto octet = static_cast<unsigned char>(c);
        if ((c >= '0' && c <= '9') || c == '-' || c == '+') {
            garde += c;
        } else if (c == ',' || c == '.') {
            garde += '.';
        } else if (c == ' ' || octet == 0xA0) {
            continue;
        } else if (octet == 0xC2 && i + 1 < texte.size() &&
                   static_cast<unsigned char>(texte[i + 1]) == 0xA0) {
            ++i;
        } else {
            break;
        }
    }
    double valeur = 0;
    if (LireTeteNumerique(garde, valeur) == 0) return 0;
    return std::isfinite(valeur) ? valeur : 0;
}

std::optional<double> LireDecimal(std::string_view texte) {
    const auto debut = texte.find_first_not_of(" \t");
    if (debut == std::string_view::npos) return std::nullopt;
    const auto fin = texte.find_last_not_of(" \t\r\n");
    std::string propre(texte.substr(debut, fin - debut + 1));
    std::replace(propre.begin(), propre.end(), ',', '.');
    double valeur = 0;
    if (LireTeteNumerique(propre, valeur) != propre.size() || !std::isfinite(valeur)) return std::nullopt;
    return valeur;
}

std::string VirguleVersPoint(std::string texte) {
    if (const auto i = texte.find(','); i != std::string::npos) texte[i] = '.';
    return texte;
}

std::string PointVersSeparateur(std::string texte) {
    const char separateur = std::use_facet<std::numpunct<char>>(std::locale()).decimal_point();
    if (const auto i = texte.find('.'); i != std::string::npos) texte[i] = separateur;
    return texte;
}

double Arrondi(double valeur) {
    const double bas = std::floor(valeur);
    const double reste = valeur - bas;
    if (reste < 0.5) return bas;
    if (reste > 0.5) return bas + 1;
    return std::fmod(bas, 2.0) == 0.0 ? bas : bas + 1;
}

std::int32_t ArrondiLong(double valeur) {
    const double r = Arrondi(valeur);
    if (!(r >= -2147483648.0 && r <= 2147483647.0))
        throw FauteDepassement(SelonLangue("Dépassement de capacité (32 bits)", "Overflow (32 bits)"));
    return static_cast<std::int32_t>(r);
}

std::int16_t ArrondiInteger(double valeur) {
    const double r = Arrondi(valeur);
    if (!(r >= -32768.0 && r <= 32767.0))
        throw FauteDepassement(SelonLangue("Dépassement de capacité (16 bits)", "Overflow (16 bits)"));
    return static_cast<std::int16_t>(r);
}

double PartieEntiere(double valeur) {
    return std::floor(valeur);
}

std::int16_t CompteurInteger(std::size_t compte, const std::string& message) {
    if (compte > 32767) throw FauteDepassement(message);
    return static_cast<std::int16_t>(compte);
}

} // namespace tessarel
