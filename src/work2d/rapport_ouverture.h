// What is said of a file that was read: the label of its kind, one sentence for the status line, and the
// whole report.
#pragma once

#include "work2d/espace2d.h"

#include <string>

namespace tessarel {

struct ResumeFichier {
    std::string texte; // "tsr2d", "tsr4x", "qnt", or "a.dxf : 3 Profil(s)" with what was noted, a line each
    std::string titre; // "Projet 2D", "Projet 4 axes"; empty for a drawing
    std::string nettoyage; // "Nettoyage : 12", the points removed
};
ResumeFichier ResumerFichier(const std::string& chemin, const OuvertureFichier& ouverture);

// One sentence: what was read, joined, turned round, thinned and passed over; what did not happen is left
// out.
std::string PhraseOuverture(const std::string& chemin, const OuvertureFichier& ouverture);

// The report in full, lines separated by LF: by kind of entity and by layer, the most frequent first.
std::string RapportOuverture(const std::string& chemin, const OuvertureFichier& ouverture);

} // namespace tessarel
