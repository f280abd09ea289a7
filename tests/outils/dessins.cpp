// Drawings as text for tests.
#include "outils/dessins.h"

#include "outils/dossiers.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <fmt/format.h>
#include <fstream>

namespace tessarel::essais {

std::string Paires(std::string_view paires) {
    std::string texte;
    if (paires.empty()) return texte;
    for (const std::string_view paire : Decouper(paires, "|")) {
        const auto blanc = paire.find(' ');
        texte += fmt::format("{}\n{}\n", paire.substr(0, blanc),
                             blanc == std::string_view::npos ? "" : paire.substr(blanc + 1));
    }
    return texte;
}

std::string DxfAvecEntites(std::string_view entites, std::string_view avant) {
    return Paires(avant) + Paires("0 SECTION|2 ENTITIES") + Paires(entites) + Paires("0 ENDSEC|0 EOF");
}

DessinLu LireTexte(const std::string& texte, const std::string& extension) {
    const DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("dessin." + extension);
    std::ofstream(chemin, std::ios::binary) << texte;
    DessinLu lu;
    std::vector<PointSimple> points;
    try {
        LireFichier(points, chemin, lu.etendue, extension, &lu.rapport);
    } catch (const FauteLecture& faute) {
        lu.ligne = faute.Ligne();
        lu.refus = faute.what();
        if (lu.refus.starts_with(chemin)) lu.refus.erase(0, chemin.size());
        return lu;
    }
    for (const PointSimple& p : points) {
        if (lu.polylignes.empty() || lu.polylignes.back().back().CodeSequence != p.CodeSequence)
            lu.polylignes.emplace_back();
        lu.polylignes.back().push_back(p);
    }
    return lu;
}

std::string EnTexte(const std::vector<PointSimple>& polyligne) {
    std::string texte;
    for (const PointSimple& p : polyligne)
        texte += fmt::format("{}{},{}", texte.empty() ? "" : " ", p.X, p.Y);
    return texte;
}

} // namespace tessarel::essais
