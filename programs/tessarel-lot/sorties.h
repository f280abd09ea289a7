// Output files of a run: refused when they would hit an input, written one by one, each whole or not at all.
#pragma once

#include "progression.h"

#include <functional>
#include <string>
#include <vector>

namespace tessarel::lot {

// True, after a box, when `sortie` (may be empty) is one of the files read.
bool SortieEstUneEntree(const std::string& sortie, const std::vector<std::string>& entrees);

class Sorties {
public:
    // Plans a file; an empty path plans nothing.
    void Ajouter(const std::string& chemin, std::function<void(const std::string&)> ecrire);
    // Writes those planned, in order. False after the box of the first that can't be written.
    bool Ecrire(Progression& progression);
    // Those written.
    [[nodiscard]] const std::vector<std::string>& Chemins() const { return m_chemins; }

private:
    struct Sortie {
        std::string chemin;
        std::function<void(const std::string&)> ecrire;
    };
    std::vector<Sortie> m_prevues;
    std::vector<std::string> m_chemins;
};

} // namespace tessarel::lot
