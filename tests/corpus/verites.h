// What is known of the foreign sample files, and how a reading is held against it.
#pragma once

#include "platform/gabar/gabar.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace tessarel::essais {

// One file of the corpus.
struct FichierCorpus {
    std::string nom; // below the corpus folder: "dxf/name.dxf"
    std::string chemin;
    nlohmann::json verite;
};

// The files of one format ("dxf"), in the order of their names; none where the corpus is absent.
std::vector<FichierCorpus> FichiersDuCorpus(const std::string& format);

// What a reading gave.
struct Lecture {
    bool lue = false;
    std::string refus; // the fault's sentence
    std::vector<PointSimple> points;
    Etendue etendue;
    RapportLecture rapport;
};
Lecture LireCorpus(const FichierCorpus& fichier, const std::string& extension);

// What the outcome says against the truth; empty when they agree. "reject" is enough where the truth allows
// both.
std::string JugerIssue(const FichierCorpus& fichier, const Lecture& lecture);

// The same for the extents, which the truth gives in file units: each side within 0.02 mm or 0.1 % of the
// size.
std::string JugerEtendue(const FichierCorpus& fichier, const Etendue& etendue, double mmParUnite);

} // namespace tessarel::essais
