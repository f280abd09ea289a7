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

// The numbers below 1000 as text, four bytes each: with leading zeros, and without them, their length last.
struct TablesMilliers {
    std::array<std::array<char, 4>, 1000> groupes{};
    std::array<std::array<char, 4>, 1000> tetes{};
};
constexpr TablesMilliers Milliers = [] {
    TablesMilliers t;
    for (unsigned i = 0; i < 1000; ++i) {
        const std::array<char, 3> chiffres = {static_cast<char>('0' + i / 100),
                                              static_cast<char>('0' + i / 10 % 10),
                                              static_cast<char>('0' + i % 10)};
        const unsigned longueur = i >= 100 ? 3 : i >= 10 ? 2 : 1;
        for (unsigned k = 0; k < 3; ++k) t.groupes[i][k] = chiffres[k];
        for (unsigned k = 0; k < longueur; ++k) t.tetes[i][k] = chiffres[3 - longueur + k];
        t.tetes[i][3] = static_cast<char>(longueur);
    }
    return t;
}();

char* EcrireGroupe(char* sortie, std::uint32_t millier) {
    std::memcpy(sortie, Milliers.groupes[millier].data(), 4);
    return sortie + 3;
}

char* EcrireTete(char* sortie, std::uint32_t millier) {
    std::memcpy(sortie, Milliers.tetes[millier].data(), 4);
    return sortie + Milliers.tetes[millier][3];
}

// Decimals and whole parts that are written by groups of three digits.
constexpr int DecimalesRapides = 6;
constexpr std::uint32_t EntierRapideMax = 999'999;
constexpr std::array<std::uint32_t, DecimalesRapides + 1> PuissancesDe10 = {1,      10,      100,      1'000,
                                                                            10'000, 100'000, 1'000'000};
// Only this close to a half can the fifteen digits of a value decide otherwise than the value itself.
constexpr double VoisinageDemi = 1e-4;
// Highest values written fast, by decimals: scaled they stay below 10^10, so that the fifteenth digit is less
// than VoisinageDemi of a unit.
constexpr std::array<double, DecimalesRapides + 1> GrandeursRapides = {
    EntierRapideMax, EntierRapideMax, EntierRapideMax, EntierRapideMax, EntierRapideMax, 1e5, 1e4};

// Writes a plain number: up to six decimals, a value of moderate size whose decimals are not near a half.
// Null, and nothing written, for any other.
char* EcrireRapide(char* sortie, double valeur, Masque masque) {
    const double grandeur = std::abs(valeur);
    const auto decimales = static_cast<std::size_t>(masque.decimalesMax);
    if (decimales > DecimalesRapides || masque.entiers > 1) return nullptr;
    if (!(grandeur < GrandeursRapides[decimales])) return nullptr;
    auto entiers = static_cast<std::uint32_t>(static_cast<std::int32_t>(grandeur));
    const std::uint32_t unite = PuissancesDe10[decimales];
    // The whole part is taken off without loss.
    const double echelle = (grandeur - entiers) * unite;
    auto reste = static_cast<std::uint32_t>(static_cast<std::int32_t>(echelle));
    const double partie = echelle - reste;
    if (std::abs(partie - 0.5) <= VoisinageDemi) return nullptr;
    reste += partie > 0.5 ? 1 : 0;
    if (reste == unite) {
        reste = 0;
        ++entiers;
    }

    *sortie = '-';
    sortie += std::signbit(valeur) && (entiers | reste) != 0 ? 1 : 0;
    if (entiers >= 1000) {
        sortie = EcrireGroupe(EcrireTete(sortie, entiers / 1000), entiers % 1000);
    } else if (entiers != 0 || masque.entiers != 0) {
        sortie = EcrireTete(sortie, entiers);
    }
    if (decimales == 0) return sortie;
    const std::uint32_t millioniemes = reste * PuissancesDe10[DecimalesRapides - decimales];
    EcrireGroupe(EcrireGroupe(sortie + 1, millioniemes / 1000), millioniemes % 1000);
    std::size_t ecrites = decimales;
    while (ecrites > static_cast<std::size_t>(masque.decimalesMin) && sortie[ecrites] == '0') --ecrites;
    if (ecrites == 0) return sortie;
    *sortie = '.';
    return sortie + 1 + ecrites;
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

} // namespace

char* EcrireNombre(char* sortie, double valeur, Masque masque) {
    if (char* fin = EcrireRapide(sortie, valeur, masque)) return fin;
    return EcrireParChiffres(sortie, std::isfinite(valeur) ? valeur : 0, masque, 15);
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

std::string FormaterSimple(float valeur) {
    constexpr int chiffres = 7;
    std::array<char, 32> tampon;
    const auto ecrit = std::to_chars(tampon.data(), tampon.data() + tampon.size(),
                                     static_cast<double>(valeur), std::chars_format::general, chiffres);
    std::replace(tampon.data(), ecrit.ptr, 'e', 'E');
    return {tampon.data(), ecrit.ptr};
}

namespace {

// Digits and a point, fifteen digits at most, no exponent: the whole number of the digits and the power of
// ten are then exact, and one division rounds as it must. Returns where it ends; null for any other number.
const char* LireDecimalCourt(const char* debut, const char* fin, double& valeur) {
    constexpr std::ptrdiff_t chiffresMax = 15;
    static constexpr std::array<double, chiffresMax + 1> puissances = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    std::uint64_t mantisse = 0;
    const char* c = debut;
    const auto avancer = [&] {
        for (; c != fin && *c >= '0' && *c <= '9'; ++c)
            mantisse = mantisse * 10 + static_cast<unsigned>(*c - '0');
    };
    avancer();
    std::ptrdiff_t chiffres = c - debut;
    std::ptrdiff_t decimales = 0;
    if (c != fin && *c == '.') {
        const char* apres = ++c;
        avancer();
        decimales = c - apres;
        chiffres += decimales;
    }
    if (chiffres == 0 || chiffres > chiffresMax) return nullptr;
    if (c != fin && (*c == 'e' || *c == 'E')) return nullptr;
    valeur = static_cast<double>(mantisse) / puissances[static_cast<std::size_t>(decimales)];
    return c;
}

} // namespace

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
    if (const char* suite = LireDecimalCourt(premier, fin, valeur)) {
        if (*chiffre == '-') valeur = -valeur;
        return static_cast<std::size_t>(suite - texte.data());
    }
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

double DecimalSimple(float valeur) {
    constexpr int chiffres = 7;
    std::array<char, 32> tampon;
    const auto ecrit =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), static_cast<double>(valeur),
                      std::chars_format::scientific, chiffres - 1);
    double decimal = 0;
    std::from_chars(tampon.data(), ecrit.ptr, decimal);
    return decimal;
}

std::int16_t CompteurInteger(std::size_t compte, const std::string& message) {
    if (compte > 32767) throw FauteDepassement(message);
    return static_cast<std::int16_t>(compte);
}

} // namespace tessarel
