// Folders of their own for tests, and the corpus where it is present.
#include "outils/dossiers.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tessarel::essais {

DossierProvisoire::DossierProvisoire() {
    std::string modele = (std::filesystem::temp_directory_path() / "tessarel-essai-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) throw std::runtime_error("no temporary folder");
    m_chemin = modele;
}

DossierProvisoire::~DossierProvisoire() {
    std::error_code ec;
    std::filesystem::remove_all(m_chemin, ec);
}

std::string DossierCorpus(const std::string& racine) {
    const std::filesystem::path corpus = std::filesystem::path(racine).parent_path() / "shared" / "corpus";
    return std::filesystem::is_directory(corpus) ? corpus.string() : "";
}

} // namespace tessarel::essais
