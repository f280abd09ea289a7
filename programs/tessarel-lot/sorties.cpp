// Output files of a run.
#include "sorties.h"

#include "langue_lot.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <utility>

namespace tessarel::lot {

namespace {

constexpr int MessagesErreurEnregistrement = 203;

} // namespace

bool SortieEstUneEntree(const std::string& sortie, const std::vector<std::string>& entrees) {
    if (sortie.empty()) return false;
    for (const std::string& entree : entrees) {
        if (!MemeFichier(sortie, entree)) continue;
        AfficherExclamation(TexteRempli(TexteProgramme::SortieEgaleEntree, {sortie}),
                            TitresMessages(MessagesErreurEnregistrement));
        return true;
    }
    return false;
}

void Sorties::Ajouter(const std::string& chemin, std::function<void(const std::string&)> ecrire) {
    if (!chemin.empty()) m_prevues.push_back({chemin, std::move(ecrire)});
}

bool Sorties::Ecrire(Progression& progression) {
    for (const Sortie& sortie : m_prevues) {
        progression.Etape(Dire("écriture de ", "writing ") + NomDuChemin(sortie.chemin));
        try {
            sortie.ecrire(sortie.chemin);
        } catch (const Faute& faute) {
            AfficherCritique(TextesMessages(MessagesErreurEnregistrement) + "\r\n" + faute.what(),
                             TitresMessages(MessagesErreurEnregistrement));
            return false;
        }
        m_chemins.push_back(sortie.chemin);
    }
    return true;
}

} // namespace tessarel::lot
