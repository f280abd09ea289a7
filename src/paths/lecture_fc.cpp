// Profile files .fc: the key list of wing files with equal signs.
#include "paths/aile_importee.h"
#include "paths/texte_aile.h"
#include "platform/fichiers.h"

namespace tessarel {

AileImportee AnalyserFc(const std::string& octets, const std::string& chemin) {
    return LireListeAile(EnUtf8(octets), '=', chemin);
}

std::vector<Sequence> LireProfilsFC(const std::string& chemin, RapportLecture* rapport) {
    return SequencesDepuisAile(AnalyserFc(LireFichierEntier(chemin), chemin), chemin, rapport);
}

} // namespace tessarel
