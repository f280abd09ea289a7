// Folders of their own for tests that write files, and the corpus where it is present.
#pragma once

#include <string>

namespace tessarel::essais {

// A fresh folder, removed with all it holds when the object ends.
class DossierProvisoire {
public:
    DossierProvisoire();
    ~DossierProvisoire();
    DossierProvisoire(const DossierProvisoire&) = delete;
    DossierProvisoire& operator=(const DossierProvisoire&) = delete;

    [[nodiscard]] const std::string& Chemin() const { return m_chemin; }
    [[nodiscard]] std::string Fichier(const std::string& nom) const { return m_chemin + "/" + nom; }

private:
    std::string m_chemin;
};

// Folder of foreign sample files beside the checkout at `racine`; empty when there is none.
std::string DossierCorpus(const std::string& racine);

} // namespace tessarel::essais
