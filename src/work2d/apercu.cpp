// Previews of files.
#include "work2d/apercu.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessarel {

namespace {

constexpr double PartMarge = 0.06; // of the larger side, so that no path touches the border
constexpr double CoteMini = 5;     // mm; a single point has no size of its own

void Dater(ApercuFichier& apercu) {
    std::error_code ec;
    const auto date = std::filesystem::last_write_time(apercu.chemin, ec);
    apercu.date = ec ? 0 : static_cast<std::int64_t>(date.time_since_epoch().count());
    const std::uintmax_t taille = std::filesystem::file_size(apercu.chemin, ec);
    apercu.taille = ec ? 0 : taille;
}

} // namespace

ApercuFichier PreparerApercu(const std::string& chemin, float distNettoyage) {
    ApercuFichier apercu;
    apercu.chemin = chemin;
    apercu.distNettoyage = distNettoyage;
    Dater(apercu);
    return apercu;
}

bool ApercuValable(const ApercuFichier& apercu, const std::string& chemin, float distNettoyage) {
    if (apercu.chemin != chemin || apercu.distNettoyage != distNettoyage) return false;
    const ApercuFichier present = PreparerApercu(chemin, distNettoyage);
    return present.date != 0 && present.date == apercu.date && present.taille == apercu.taille;
}

CadreDessin CadreApercu(std::span<const Sequence> sequences) {
    const Etendue etendue = CadrageSequences(sequences);
    const double largeur = static_cast<double>(etendue.XMax) - etendue.XMin;
    const double hauteur = static_cast<double>(etendue.YMax) - etendue.YMin;
    const double marge = std::max(std::max(largeur, hauteur) * PartMarge, CoteMini / 2);
    return {etendue.XMin - marge, etendue.XMax + marge, etendue.YMin - marge, etendue.YMax + marge};
}

} // namespace tessarel
