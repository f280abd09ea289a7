// Numbers in and out of text, and the roundings that the records ask for by name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarel {

// A number mask such as "#####0.0#": at least `entiers` digits before the point, from `decimalesMin` to
// `decimalesMax` after it. '0' asks for a digit, '#' allows one.
struct Masque {
    int entiers = 1;
    int decimalesMin = 0;
    int decimalesMax = 0;

    constexpr Masque(const char* texte) { // NOLINT: a mask is written as its text
        entiers = 0;
        bool apresPoint = false;
        for (const char* c = texte; *c != '\0'; ++c) {
            if (*c == '.') {
                apresPoint = true;
            } else if (apresPoint) {
                ++decimalesMax;
                if (*c == '0') decimalesMin = decimalesMax;
            } else if (*c == '0') {
                ++entiers;
            }
        }
    }
};

// Room that `EcrireNombre` may fill: a double in fixed notation with up to 12 decimals.
inline constexpr std::size_t TailleNombre = 400;

// Writes `valeur` through `masque` at `sortie` (room for TailleNombre characters, no NUL added) and returns
// the end. Halves round away from zero on the decimal value: 15 significant digits of a double, 7 of a float.
// The mark is always a point; a value that rounds to zero has no sign. A value that is not finite writes "0".
char* EcrireNombre(char* sortie, double valeur, Masque masque);
char* EcrireNombre(char* sortie, float valeur, Masque masque);

// The same as a string.
std::string FormaterNombre(double valeur, Masque masque);
std::string FormaterNombre(float valeur, Masque masque);

// A single written without a mask: at most seven significant digits, "12", "0.5", "1.5E+07".
std::string FormaterSimple(float valeur);

// Number parser of every numeric setting. Digits, '-' and '+' are kept; ',' and '.' both become the mark;
// blanks and no-break spaces (also as UTF-8) are skipped; anything else ends the scan. The value is that of
// the longest numeric head of what was kept: "" gives 0, "1,5" 1.5, "12 mm" 12, "-" 0.
double NombreDepuisTexte(std::string_view texte);

// A whole text as a number, point or comma as mark, blanks allowed at both ends; nothing when it is none, or
// is not finite. For what a user types.
std::optional<double> LireDecimal(std::string_view texte);

// The numeric head of a text, as fast as it can be read: sets `valeur` and returns the characters used, 0
// when none. Leading blanks are skipped; a comma is not a mark.
std::size_t LireTeteNumerique(std::string_view texte, double& valeur);

// The first comma becomes a point: a number as formatted under any locale, made fit for a file.
std::string VirguleVersPoint(std::string texte);
// A point becomes the decimal mark of the system's own formatting, for texts that are shown.
std::string PointVersSeparateur(std::string texte);

// Nearest whole number, halves to even.
double Arrondi(double valeur);
// The same in 32 and in 16 bits; FauteDepassement when it does not fit.
std::int32_t ArrondiLong(double valeur);
std::int16_t ArrondiInteger(double valeur);
// Greatest whole number not above the value.
double PartieEntiere(double valeur);
// The value through 32 bits: a loss that is part of the behaviour, made visible.
inline float EnSimple(double valeur) {
    return static_cast<float>(valeur);
}
// The decimal value of seven significant digits that a value held in 32 bits stands for: 40.1F gives 40.1.
double DecimalSimple(float valeur);
// A count through a 16-bit signed counter; FauteDepassement with `message` above 32767.
std::int16_t CompteurInteger(std::size_t compte, const std::string& message);

} // namespace tessarel
