// Reading of the corpus' truths, and the comparison with a reading of ours.
#include "corpus/verites.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <fstream>

namespace tessarel::essais {

std::vector<FichierCorpus> FichiersDuCorpus(const std::string& format) {
    std::vector<FichierCorpus> fichiers;
    const std::string dossier = DossierCorpus(TESSAREL_RACINE);
    if (dossier.empty()) return fichiers;
    std::ifstream flux(dossier + "/truth.json");
    const nlohmann::json verites = nlohmann::json::parse(flux);
    for (const auto& [nom, verite] : verites.items())
        if (nom.starts_with(format + "/")) fichiers.push_back({nom, dossier + "/" + nom, verite});
    return fichiers;
}

Lecture LireCorpus(const FichierCorpus& fichier, const std::string& extension) {
    Lecture l;
    try {
        LireFichier(l.points, fichier.chemin, l.etendue, extension, &l.rapport);
        l.lue = true;
    } catch (const Faute& faute) {
        l.refus = faute.what();
    }
    return l;
}

std::string JugerIssue(const FichierCorpus& fichier, const Lecture& lecture) {
    const std::string attendue = fichier.verite.at("outcome");
    const std::string permise = fichier.verite.value("also_ok", attendue);
    const std::string issue = lecture.lue ? "read" : "reject";
    if (issue == attendue || issue == permise) return "";
    return fmt::format("{}: expected {}, got {} ({})", fichier.nom, attendue, issue, lecture.refus);
}

std::string JugerEtendue(const FichierCorpus& fichier, const Etendue& etendue, double mmParUnite) {
    const auto verite = fichier.verite.find("extents");
    if (verite == fichier.verite.end() || verite->is_null()) return "";
    const double attendu[4] = {
        verite->at(0).get<double>() * mmParUnite, verite->at(1).get<double>() * mmParUnite,
        verite->at(2).get<double>() * mmParUnite, verite->at(3).get<double>() * mmParUnite};
    const double trouve[4] = {etendue.XMin, etendue.YMin, etendue.XMax, etendue.YMax};
    const double taille = std::hypot(attendu[2] - attendu[0], attendu[3] - attendu[1]);
    const double tolerance = std::max(0.02, taille / 1000);
    for (int i = 0; i < 4; ++i)
        if (!(std::abs(attendu[i] - trouve[i]) <= tolerance))
            return fmt::format("{}: extents expected {} {} {} {}, got {} {} {} {}", fichier.nom, attendu[0],
                               attendu[1], attendu[2], attendu[3], trouve[0], trouve[1], trouve[2],
                               trouve[3]);
    return "";
}

} // namespace tessarel::essais
