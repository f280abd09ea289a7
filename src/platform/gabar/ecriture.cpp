// DXF and DAT writers.
#include "lecture.h"

#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tessarel {

namespace {

// The shortest text that reads back as the same 32 bits, always with a point: the oldest readers ask for one.
void AjouterReel(std::string& texte, float valeur) {
    std::array<char, TailleNombre> tampon;
    if (!std::isfinite(valeur) || valeur == 0) valeur = 0; // no "-0" either
    const auto r =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur, std::chars_format::fixed);
    const std::string_view nombre(tampon.data(), static_cast<std::size_t>(r.ptr - tampon.data()));
    texte += nombre;
    if (nombre.find('.') == std::string_view::npos) texte += ".0";
}

void AjouterPaire(std::string& texte, std::string_view code, std::string_view valeur) {
    texte += code;
    texte += "\r\n";
    texte += valeur;
    texte += "\r\n";
}

void AjouterCoordonnees(std::string& texte, const PointSimple& p) {
    texte += " 10\r\n";
    AjouterReel(texte, p.X);
    texte += "\r\n 20\r\n";
    AjouterReel(texte, p.Y);
    texte += "\r\n 30\r\n0.0\r\n";
}

void AjouterPolyligne(std::string& texte, const PointSimple* debut, const PointSimple* fin) {
    if (fin - debut == 1) {
        AjouterPaire(texte, "  0", "POINT");
        AjouterPaire(texte, "  8", "0");
        AjouterCoordonnees(texte, *debut);
        return;
    }
    const bool fermee = fin - debut > 2 && debut->X == fin[-1].X && debut->Y == fin[-1].Y;
    if (fermee) --fin;
    AjouterPaire(texte, "  0", "POLYLINE");
    AjouterPaire(texte, "  8", "0");
    AjouterPaire(texte, " 66", "     1");
    AjouterCoordonnees(texte, PointSimple{});
    AjouterPaire(texte, " 70", fermee ? "     1" : "     0");
    for (; debut != fin; ++debut) {
        AjouterPaire(texte, "  0", "VERTEX");
        AjouterPaire(texte, "  8", "0");
        AjouterCoordonnees(texte, *debut);
    }
    AjouterPaire(texte, "  0", "SEQEND");
    AjouterPaire(texte, "  8", "0");
}

// Calls `ecrire(first, end)` for each polyline.
template <typename Ecrire>
void ParPolyligne(const std::vector<PointSimple>& points, Ecrire ecrire) {
    const PointSimple* fin = points.data() + points.size();
    for (const PointSimple* debut = points.data(); debut != fin;) {
        const PointSimple* suivant = debut + 1;
        while (suivant != fin && suivant->CodeSequence == debut->CodeSequence) ++suivant;
        ecrire(debut, suivant);
        debut = suivant;
    }
}

} // namespace

// Version R12, the one that every program reads: no handles, no objects, lengths without a declared unit.
std::string TexteDxf(const std::vector<PointSimple>& points) {
    std::string texte;
    constexpr std::size_t octetsParSommet = 72;
    texte.reserve(512 + points.size() * octetsParSommet);
    AjouterPaire(texte, "  0", "SECTION");
    AjouterPaire(texte, "  2", "HEADER");
    AjouterPaire(texte, "  9", "$ACADVER");
    AjouterPaire(texte, "  1", "AC1009");
    AjouterPaire(texte, "  0", "ENDSEC");
    AjouterPaire(texte, "  0", "SECTION");
    AjouterPaire(texte, "  2", "ENTITIES");
    ParPolyligne(points, [&](const PointSimple* d, const PointSimple* f) { AjouterPolyligne(texte, d, f); });
    AjouterPaire(texte, "  0", "ENDSEC");
    AjouterPaire(texte, "  0", "EOF");
    return texte;
}

// The text form of profiles: a title, then X and Y on a line; polylines are parted by a blank line.
std::string TexteDat(const std::string& chemin, const std::vector<PointSimple>& points) {
    constexpr Masque masque = "###0.000000";
    std::array<char, TailleNombre> tampon;
    const auto ajouter = [&](std::string& texte, float valeur) {
        // Through the double: six decimals of a 32-bit value are asked for, not its seven digits.
        texte.append(tampon.data(), EcrireNombre(tampon.data(), static_cast<double>(valeur), masque));
    };
    std::string texte = NomDuChemin(chemin) + " - généré par Tessarel\r\n";
    bool premiere = true;
    ParPolyligne(points, [&](const PointSimple* debut, const PointSimple* fin) {
        if (!premiere) texte += "\r\n";
        premiere = false;
        for (; debut != fin; ++debut) {
            ajouter(texte, debut->X);
            texte += ' ';
            ajouter(texte, debut->Y);
            texte += "\r\n";
        }
    });
    return texte;
}

} // namespace tessarel
