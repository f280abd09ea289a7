// The words of the windows that stand before all work: the splash and the change list.
#include "app/ui/libelles_accueil.h"

namespace tessarel {

namespace {

constexpr Libelle Splash[] = {
    {"", Propriete::Titre, "Tessarel", "Tessarel"},
    {"lblTitre", Propriete::Variable},
    {"lblVersion", Propriete::Variable},
    {"lblSousTitre", Propriete::Texte, "Découpe de mousse au fil chaud", "Hot-wire foam cutting"},

    {"frameInterface", Propriete::Texte, "Interface", "Interface"},
    {"pcbInterfaceDetectee", Propriete::Variable},
    {"lblDetectionInterface", Propriete::Variable},
    {"lblNomMachinesMemoire", Propriete::Texte,
     "Machines en mémoire de l'interface :", "Machines in the interface memories:"},
    {"chkMemoiresZelko_0", Propriete::Variable},
    {"chkMemoiresZelko_1", Propriete::Variable},
    {"chkMemoiresZelko_2", Propriete::Variable},
    {"lblMarqueMemoire_0", Propriete::Variable},
    {"lblMarqueMemoire_1", Propriete::Variable},
    {"lblMarqueMemoire_2", Propriete::Variable},
    {"lblPasDeCorrespondance", Propriete::Variable},

    {"frameMachine", Propriete::Texte, "Machine", "Machine"},
    {"lblDerniereMachine", Propriete::Texte, "Machine en cours :", "Machine in use:"},
    {"chkDerniereMachine", Propriete::Variable},
    {"lblCourses", Propriete::Variable},

    {"cmdContinuer_0", Propriete::Texte, "Découpe 2D", "2D cutting"},
    {"cmdContinuer_0", Propriete::Detail, "Placer un dessin dans le bloc, découper ou exporter en Gcode",
     "Place a drawing in the block, cut it or export Gcode"},
    {"cmdContinuer_0", Propriete::Bulle, "Ouvrir l'espace de travail 2D", "Open the 2D workspace", "Alt+2",
     "mode-2d"},
    {"cmdContinuer_1", Propriete::Texte, "Découpe 4 axes", "4-axis cutting"},
    {"cmdContinuer_1", Propriete::Detail, "Concevoir une aile de l'emplanture au saumon et la découper",
     "Design a wing from root to tip and cut it"},
    {"cmdContinuer_1", Propriete::Bulle, "La conception et la découpe 4 axes ne sont pas dans cette version",
     "4-axis design and cutting are not part of this version", "", "mode-4axes"},

    {"cmdWhatsUp", Propriete::Texte, "Nouveautés", "What's new"},
    {"cmdWhatsUp", Propriete::Bulle, "Lire la liste des modifications", "Read the list of changes", "F1",
     "nouveautes"},
    {"cmdLancerOrvane", Propriete::Texte, "Site internet", "Website"},
    {"cmdLancerOrvane", Propriete::Bulle, "Ouvrir le site de Tessarel dans le navigateur",
     "Open the Tessarel website in the browser", "", "site"},
    {"cmdMiseAJour", Propriete::Texte, "Mettre à jour", "Update"},
    {"cmdMiseAJour", Propriete::Bulle, "Ouvrir la page de téléchargement dans le navigateur",
     "Open the download page in the browser", "", "mise-a-jour"},
    {"cmdAnnuler", Propriete::Texte, "Quitter", "Quit"},
    {"cmdAnnuler", Propriete::Bulle, "Fermer le programme", "Close the program", "Esc", "fermer"},
};

constexpr Libelle ListeDesModifications[] = {
    {"", Propriete::Titre, "Liste des modifications", "List of changes"},
    {"lblEntete", Propriete::Texte,
     "Prenez le temps de lire les dernières modifications,\r\n"
     "cela peut affecter des fonctions que vous avez l'habitude d'utiliser.",
     "Please take the time to read the latest changes:\r\n"
     "they may affect functions you are used to."},
    {"cmdFermer", Propriete::Texte, "Fermer", "Close"},
};

} // namespace

std::span<const Libelle> LibellesSplash() {
    return Splash;
}

std::span<const Libelle> LibellesListeModifications() {
    return ListeDesModifications;
}

} // namespace tessarel
