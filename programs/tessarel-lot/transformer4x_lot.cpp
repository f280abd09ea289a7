// A tool of the 4-axis design on a project file.
#include "transformer4x_lot.h"

#include "langue_lot.h"
#include "projet4x_lot.h"
#include "resume_lot.h"

namespace tessarel::lot {

namespace {

std::string TexteComptes(std::size_t avant, std::size_t apres) {
    return std::to_string(avant) + " points" + Dire(", puis ", ", then ") + std::to_string(apres);
}

} // namespace

int TransformerProjet4axes(const Fichiers4x& fichiers, const ChangementCPX& outil) {
    if (!SortieProjet4xPermise(fichiers.sortie, {fichiers.entree})) return StatutRefuse;
    Progression progression(2);
    std::optional<Projet4x> projet = OuvrirProjet4x(fichiers.entree, progression);
    if (!projet) return StatutRefuse;
    ProjetCPX& conception = projet->conception.projet;
    const std::size_t avantE = conception.E.Points.size();
    const std::size_t avantS = conception.S.Points.size();
    if (!outil(conception) || !EcrireProjet4x(*projet, fichiers.sortie, progression)) return StatutRefuse;
    Progression::Effacer();
    return Imprimer(
        LigneResume(Dire("Fichier", "File"), fichiers.entree) +
        LigneResume(Dire("Emplanture", "Root"), TexteComptes(avantE, conception.E.Points.size())) +
        LigneResume(Dire("Saumon", "Tip"), TexteComptes(avantS, conception.S.Points.size())) +
        LigneResume(Dire("Écrit", "Written"), fichiers.sortie));
}

std::shared_ptr<Fichiers4x> AjouterFichiers4x(CLI::App& verbe) {
    auto fichiers = std::make_shared<Fichiers4x>();
    verbe.add_option("IN", fichiers->entree, Dire("Projet 4 axes à lire", "4-axis project to read"))
        ->required()
        ->type_name("");
    verbe.add_option("OUT", fichiers->sortie, Dire("Projet à écrire", "Project to write"))
        ->required()
        ->type_name("");
    return fichiers;
}

} // namespace tessarel::lot
