// A tool of the 4-axis design on a project file.
#include "transformer4x_lot.h"

#include "langue_lot.h"
#include "resume_lot.h"
#include "sorties.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "design4x/conversion_projet.h"
#include "paths/fichier_projet.h"
#include "paths/import.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "work2d/espace2d.h"

#include <optional>

namespace tessarel::lot {

namespace {

// Row of the text tables whose title heads a refusal.
constexpr int MessagesOperationImpossible = 175;

void RefuserFichier(const std::string& fichier, const char* francais, const char* anglais) {
    AfficherExclamation(fichier + Dire(francais, anglais), TitresMessages(MessagesOperationImpossible));
}

// Nothing, after a box, when the file is no 4-axis project.
std::optional<Projet4axes> LireProjet(const std::string& entree) {
    try {
        ContenuFichier contenu;
        if (ExtensionMinuscule(entree) == "tsr")
            contenu = LireContenuFichier(entree, Parametres.DistNettoyage);
        if (!contenu.projet4axes)
            RefuserFichier(entree, " : un projet 4 axes (.tsr) est attendu",
                           ": a 4-axis project (.tsr) is expected");
        return contenu.projet4axes;
    } catch (const Faute& faute) {
        DireErreurLecture(faute);
        return std::nullopt;
    }
}

std::string TexteComptesPoints(std::size_t avant, std::size_t apres) {
    return std::to_string(avant) + " points" + Dire(", puis ", ", then ") + std::to_string(apres);
}

} // namespace

int TransformerProjet4axes(const std::string& entree, const std::string& sortie, const OutilCPX& outil) {
    if (ExtensionMinuscule(sortie) != "tsr") {
        RefuserFichier(sortie, " : l'extension de la sortie doit être .tsr",
                       ": the extension of the output must be .tsr");
        return StatutRefuse;
    }
    if (SortieEstUneEntree(sortie, {entree})) return StatutRefuse;

    Progression progression(2);
    progression.Etape(Dire("lecture de ", "reading ") + NomDuChemin(entree));
    std::optional<Projet4axes> projet = LireProjet(entree);
    if (!projet || !PeutEtreRemplace(sortie, true)) return StatutRefuse;

    ProjetCPX conception = ProjetCPXDepuis(*projet, entree);
    const std::size_t avantE = conception.E.Points.size();
    const std::size_t avantS = conception.S.Points.size();
    if (!outil(conception)) return StatutRefuse;
    PorterDansProjet4axes(conception, *projet);

    Sorties sorties;
    sorties.Ajouter(sortie, [&](const std::string& chemin) { EcrireProjet4axes(chemin, *projet); });
    if (!sorties.Ecrire(progression)) return StatutRefuse;
    Progression::Effacer();
    return Imprimer(
        LigneResume(Dire("Fichier", "File"), entree) +
        LigneResume(Dire("Emplanture", "Root"), TexteComptesPoints(avantE, conception.E.Points.size())) +
        LigneResume(Dire("Saumon", "Tip"), TexteComptesPoints(avantS, conception.S.Points.size())) +
        LigneResume(Dire("Écrit", "Written"), sortie));
}

std::shared_ptr<Fichiers4x> AjouterFichiers4x(CLI::App& verbe) {
    const auto fichiers = std::make_shared<Fichiers4x>();
    verbe.add_option("IN.tsr", fichiers->entree, Dire("Projet 4 axes à lire", "4-axis project to read"))
        ->required()
        ->type_name("");
    verbe.add_option("OUT.tsr", fichiers->sortie, Dire("Projet à écrire", "Project to write"))
        ->required()
        ->type_name("");
    return fichiers;
}

} // namespace tessarel::lot
