// 4-axis projects in and out of the batch program.
#include "projet4x_lot.h"

#include "langue_lot.h"
#include "sorties.h"

#include "app/texts/textes.h"
#include "design4x/compteurs.h"
#include "design4x/conversion_projet.h"
#include "paths/fichier_projet.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "work2d/espace2d.h"

namespace tessarel::lot {

namespace {

// Row of the text tables: extension of a project.
constexpr int MessagesExtensionTsr = 82;
constexpr int MessagesOperationImpossible = 175;

} // namespace

std::optional<Projet4x> OuvrirProjet4x(const std::string& fichier, Progression& progression) {
    progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(fichier));
    try {
        if (LireOngletProjet(fichier) == TS2D) {
            AfficherExclamation(fichier +
                                    Dire(" : un projet 4 axes est attendu, et celui-ci est un projet 2D",
                                         ": a 4-axis project is expected, and this one is a 2D project"),
                                TitresMessages(MessagesOperationImpossible));
            return std::nullopt;
        }
        Projet4x projet;
        projet.stocke = LireProjet4axes(fichier);
        ChargerProjetCPX(projet.conception, ProjetCPXDepuis(projet.stocke, NomDuChemin(fichier)));
        return projet;
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return std::nullopt;
    }
}

bool SortieProjet4xPermise(const std::string& sortie, const std::vector<std::string>& entrees) {
    if (ExtensionMinuscule(sortie) != "tsr") {
        AfficherExclamation(TextesMessages(MessagesExtensionTsr), TitresMessages(MessagesExtensionTsr));
        return false;
    }
    return !SortieEstUneEntree(sortie, entrees) && PeutEtreRemplace(sortie, true);
}

bool EcrireProjet4x(Projet4x& projet, const std::string& sortie, Progression& progression) {
    PorterDansProjet4axes(projet.conception.projet, projet.stocke);
    Sorties sorties;
    sorties.Ajouter(sortie, [&](const std::string& chemin) { EcrireProjet4axes(chemin, projet.stocke); });
    return sorties.Ecrire(progression);
}

std::string TexteComptes4x(const ProjetCPX& projet) {
    const bool egaux = RegleComptes(projet).chkFil;
    return std::to_string(projet.E.Points.size()) + Dire(" à l'emplanture, ", " on the root, ") +
           std::to_string(projet.S.Points.size()) + Dire(" au saumon", " on the tip") +
           (egaux ? "" : Dire(" (à synchroniser)", " (to be synchronised)"));
}

} // namespace tessarel::lot
