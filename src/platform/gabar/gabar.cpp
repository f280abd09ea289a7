// The file library's entries: the choice of the reader or writer by extension.
#include "gabar.h"

#include "lecture.h"
#include "messages.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <fmt/format.h>

namespace tessarel {

namespace {

std::string RaisonFormatNonEcrit(const std::string& genre) {
    return Bilingue(fmt::format("le format .{} ne s'écrit pas", Citation(genre)),
                    fmt::format(".{} files cannot be written", Citation(genre)));
}

// Characters of the codes, in ascending order of their bytes.
constexpr std::string_view Chiffres = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::size_t NombreCodes = Chiffres.size() * Chiffres.size();

Etendue EtenduePoints(const std::vector<PointSimple>& points) {
    Etendue e{points[0].X, points[0].X, points[0].Y, points[0].Y};
    for (const PointSimple& p : points) {
        e.XMin = std::min(e.XMin, p.X);
        e.XMax = std::max(e.XMax, p.X);
        e.YMin = std::min(e.YMin, p.Y);
        e.YMax = std::max(e.YMax, p.Y);
    }
    return e;
}

} // namespace

std::array<char, 2> CodePolyligne(std::size_t rang, std::size_t nombre) {
    // The last has the lowest code for itself, the others go round through those above it.
    const std::size_t code = rang + 1 >= nombre ? 0 : 1 + (nombre - 2 - rang) % (NombreCodes - 1);
    return {Chiffres[code / Chiffres.size()], Chiffres[code % Chiffres.size()]};
}

std::int32_t VersionGabar() {
    return 100;
}

void LireFichier(std::vector<PointSimple>& points, const std::string& chemin, Etendue& etendue,
                 const std::string& extension, RapportLecture* rapport) {
    // A failed read leaves one point at 0.
    points.assign(1, PointSimple{});
    etendue = {};
    RapportLecture local;
    std::vector<PointSimple> lus;
    const std::string genre = EnMinuscules(extension);
    if (genre == "dxf") {
        LireDxf(lus, LireFichierEntier(chemin), chemin, local);
    } else if (genre == "dat") {
        LireDat(lus, LireFichierEntier(chemin), chemin, local);
    } else if (genre == "plt") {
        LirePlt(lus, LireFichierEntier(chemin), chemin, local);
    } else if (genre == "eps") {
        LireEps(lus, LireFichierEntier(chemin), chemin, local);
    } else {
        throw FauteLecture(
            chemin, 0,
            Bilingue(fmt::format("les fichiers .{} ne sont pas lus par cette version", Citation(genre)),
                     fmt::format(".{} files are not read by this version", Citation(genre))));
    }
    points = std::move(lus);
    etendue = EtenduePoints(points);
    if (rapport != nullptr) *rapport = std::move(local);
}

void EcrireFichier(const std::string& chemin, const std::string& extension,
                   const std::vector<PointSimple>& points) {
    if (points.empty())
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin,
                           Bilingue("aucun tracé à écrire", "no path to write"));
    const std::string genre = EnMinuscules(extension);
    if (genre == "dxf") {
        EcrireFichierAtomique(chemin, TexteDxf(points));
    } else if (genre == "dat") {
        EcrireFichierAtomique(chemin, TexteDat(chemin, points));
    } else {
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin, RaisonFormatNonEcrit(genre));
    }
}

void EcrireFichier3D(const std::string& chemin, const std::string& extension,
                     const std::vector<PointSimple>& emplanture, const std::vector<PointSimple>& saumon,
                     float ecartement) {
    if (emplanture.empty() || emplanture.size() != saumon.size())
        throw FauteInterne(Bilingue("les deux profils n'ont pas le même nombre de points",
                                    "the two profiles have not the same number of points"));
    const std::string genre = EnMinuscules(extension);
    if (genre != "dxf")
        throw FauteFichier(NumeroErreur::EcritureImpossible, chemin, RaisonFormatNonEcrit(genre));
    EcrireFichierAtomique(chemin, TexteDxf3D(emplanture, saumon, ecartement));
}

} // namespace tessarel
