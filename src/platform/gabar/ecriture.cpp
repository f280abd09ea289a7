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

// Layers of the 3D file, and the one of all that is flat.
constexpr std::string_view CouchePlane = "0";
constexpr std::string_view CoucheEmplanture = "EMPLANTURE";
constexpr std::string_view CoucheSaumon = "SAUMON";
constexpr std::string_view CoucheSurface = "SURFACE";

// The corner `rang`, 0 to 3, of an entity: its three coordinates have the codes 10, 20 and 30 plus the rang.
void AjouterCoordonnees(std::string& texte, const PointSimple& p, float z = 0, char rang = '0') {
    const auto ajouter = [&](char axe, float valeur) {
        texte += ' ';
        texte += axe;
        texte += rang;
        texte += "\r\n";
        AjouterReel(texte, valeur);
        texte += "\r\n";
    };
    ajouter('1', p.X);
    ajouter('2', p.Y);
    ajouter('3', z);
}

// How a polyline lies: its layer, its height, and the bits that say that it, and each of its vertices, is one
// in space.
struct PoseTrace {
    std::string_view couche = CouchePlane;
    float z = 0;
    bool spatiale = false;
};

void AjouterPolyligne(std::string& texte, const PointSimple* debut, const PointSimple* fin,
                      const PoseTrace& pose) {
    if (fin - debut == 1) {
        AjouterPaire(texte, "  0", "POINT");
        AjouterPaire(texte, "  8", pose.couche);
        AjouterCoordonnees(texte, *debut, pose.z);
        return;
    }
    const bool fermee = fin - debut > 2 && debut->X == fin[-1].X && debut->Y == fin[-1].Y;
    if (fermee) --fin;
    AjouterPaire(texte, "  0", "POLYLINE");
    AjouterPaire(texte, "  8", pose.couche);
    AjouterPaire(texte, " 66", "     1");
    AjouterCoordonnees(texte, PointSimple{});
    AjouterPaire(texte, " 70", std::to_string((fermee ? 1 : 0) + (pose.spatiale ? 8 : 0)).insert(0, "     "));
    for (; debut != fin; ++debut) {
        AjouterPaire(texte, "  0", "VERTEX");
        AjouterPaire(texte, "  8", pose.couche);
        AjouterCoordonnees(texte, *debut, pose.z);
        if (pose.spatiale) AjouterPaire(texte, " 70", "    32");
    }
    AjouterPaire(texte, "  0", "SEQEND");
    AjouterPaire(texte, "  8", pose.couche);
}

// What the wire cuts while it walks one segment of both profiles.
void AjouterFacette(std::string& texte, const PointSimple* e, const PointSimple* s, float ecartement) {
    AjouterPaire(texte, "  0", "3DFACE");
    AjouterPaire(texte, "  8", CoucheSurface);
    AjouterCoordonnees(texte, e[0], 0, '0');
    AjouterCoordonnees(texte, e[1], 0, '1');
    AjouterCoordonnees(texte, s[1], ecartement, '2');
    AjouterCoordonnees(texte, s[0], ecartement, '3');
}

// Version R12, the one that every program reads: no handles, no objects, lengths without a declared unit.
void OuvrirDxf(std::string& texte) {
    AjouterPaire(texte, "  0", "SECTION");
    AjouterPaire(texte, "  2", "HEADER");
    AjouterPaire(texte, "  9", "$ACADVER");
    AjouterPaire(texte, "  1", "AC1009");
    AjouterPaire(texte, "  0", "ENDSEC");
    AjouterPaire(texte, "  0", "SECTION");
    AjouterPaire(texte, "  2", "ENTITIES");
}

void FermerDxf(std::string& texte) {
    AjouterPaire(texte, "  0", "ENDSEC");
    AjouterPaire(texte, "  0", "EOF");
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

std::string TexteDxf(const std::vector<PointSimple>& points) {
    std::string texte;
    constexpr std::size_t octetsParSommet = 72;
    texte.reserve(512 + points.size() * octetsParSommet);
    OuvrirDxf(texte);
    ParPolyligne(points, [&](const PointSimple* d, const PointSimple* f) {
        AjouterPolyligne(texte, d, f, PoseTrace{});
    });
    FermerDxf(texte);
    return texte;
}

std::string TexteDxf3D(const std::vector<PointSimple>& emplanture, const std::vector<PointSimple>& saumon,
                       float ecartement) {
    std::string texte;
    constexpr std::size_t octetsParPaire = 400; // two vertices and a face
    texte.reserve(512 + emplanture.size() * octetsParPaire);
    OuvrirDxf(texte);
    const auto profil = [&](const std::vector<PointSimple>& p, const PoseTrace& pose) {
        AjouterPolyligne(texte, p.data(), p.data() + p.size(), pose);
    };
    profil(emplanture, {CoucheEmplanture, 0, true});
    profil(saumon, {CoucheSaumon, ecartement, true});
    for (std::size_t i = 0; i + 1 < emplanture.size(); ++i)
        AjouterFacette(texte, &emplanture[i], &saumon[i], ecartement);
    FermerDxf(texte);
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
