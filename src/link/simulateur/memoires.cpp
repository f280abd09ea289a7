// The reading of a stored table by the box.
#include "link/simulateur/memoires.h"

#include "platform/fichiers.h"

#include <algorithm>

namespace tessarel::simulateur {

namespace {

// Places in a part, counted from byte 4 of the buffer.
constexpr std::size_t LongueurNom = 8;
constexpr std::size_t PlaceSorties = 13;
constexpr std::size_t NombreSorties = 10;
constexpr std::size_t PlaceFrequence = 23;
constexpr std::size_t PlacePente = 24;
constexpr std::size_t PlacePwmMax = 25;
constexpr std::size_t PlaceDelai = 26;
constexpr std::size_t PlaceDrapeaux = 27;
constexpr int FrequenceMax = 5;
constexpr int PenteMax = 15;
// Function of an output: this bit for steps, the low bits for the axis, 1 to 4.
constexpr int SortieDePas = 0x80;
constexpr int MasqueAxe = 0x07;

int Mot(const Partie& partie, std::size_t place) {
    return partie[place] | (partie[place + 1] << 8);
}

} // namespace

bool EstVierge(const MemoireBoite& memoire) {
    return std::ranges::all_of(memoire.parties[0], [](std::uint8_t o) { return o == OctetVierge; });
}

std::string NomMemoire(const MemoireBoite& memoire) {
    if (EstVierge(memoire)) return "";
    const auto debut = memoire.parties[0].begin();
    return EnUtf8(std::string(Rogner(std::string(debut, debut + LongueurNom))));
}

TableRam LireTable(const MemoireBoite& memoire) {
    TableRam table;
    if (EstVierge(memoire)) return table;
    const Partie& p = memoire.parties[0];
    table.nom = NomMemoire(memoire);
    table.frequence = p[PlaceFrequence] <= FrequenceMax ? p[PlaceFrequence] : 0;
    table.pente = std::min<int>(p[PlacePente], PenteMax);
    table.pwmMax = p[PlacePwmMax];
    table.delaiMoteurs = p[PlaceDelai];
    table.switchs = (p[PlaceDrapeaux] & 1) != 0;
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        table.pasParMm[a] = Mot(memoire.parties[1], 2 * a);
        table.pasOrigine[a] = Mot(memoire.parties[2], 2 * a);
    }
    for (std::size_t s = 0; s < NombreSorties; ++s) {
        const int code = p[PlaceSorties + s];
        const auto axe = static_cast<std::size_t>(code & MasqueAxe);
        if ((code & SortieDePas) != 0 && axe >= 1 && axe <= NombreAxes) table.axePresent[axe - 1] = true;
    }
    return table;
}

} // namespace tessarel::simulateur
