// The words of the 2D window in both languages.
#include "work2d/ui/libelles_2d.h"

namespace tessarel {

namespace {

using enum Propriete;

constexpr Libelle LIBELLES[] = {
    {"", Titre, "Tessarel - 2D", "Tessarel - 2D"},

    // Files and view
    {"cmdNouveauProjetTS2D", Texte, "Nouveau", "New", "Ctrl+N", "nouveau"},
    {"cmdNouveauProjetTS2D", Bulle, "Commencer un projet vide", "Start an empty project"},
    {"cmdOuvrirFichierTS2D", Texte, "Ouvrir", "Open", "Ctrl+O", "ouvrir"},
    {"cmdOuvrirFichierTS2D", Bulle, "Ouvrir un projet ou ajouter un dessin",
     "Open a project or add a drawing"},
    {"cmdRecents", Texte, "Récents", "Recent", "Ctrl+R", "recents"},
    {"cmdRecents", Bulle, "Rouvrir un des derniers fichiers", "Reopen a recent file"},
    {"menuRecents", Variable},
    {"cmdActualiserSauvegarde", Texte, "Enregistrer", "Save", "Ctrl+S", "enregistrer"},
    {"cmdActualiserSauvegarde", Bulle, "Enregistrer le projet sous son nom",
     "Save the project under its name"},
    {"cmdSauverTS2D", Texte, "Enreg. sous", "Save as", "Ctrl+Shift+S", "enregistrer-sous"},
    {"cmdSauverTS2D", Bulle, "Enregistrer le projet sous un autre nom",
     "Save the project under another name"},
    {"cmdExporterDXF", Texte, "Export DXF", "Export DXF", "Ctrl+E", "exporter-dxf"},
    {"cmdExporterDXF", Bulle, "Exporter en DXF le trajet complet du fil, entrée et sortie comprises",
     "Export the whole path of the wire as DXF, entry and exit included"},
    {"cmdZoomTout", Texte, "Tout voir", "Show all", "Ctrl+0", "zoom-tout"},
    {"cmdZoomTout", Bulle, "Montrer toute la table", "Show the whole table"},
    {"cmdZoomPlus", Bulle, "Agrandir", "Zoom in", "Ctrl++", "zoom-plus"},
    {"cmdZoomMoins", Bulle, "Réduire", "Zoom out", "Ctrl+-", "zoom-moins"},
    {"cmdAide", Texte, "Aide", "Help", "F1", "aide"},
    {"cmdAide", Bulle, "Souris et clavier de cette fenêtre", "Mouse and keyboard in this window"},

    // Project page
    {"frameFichier", Texte, "Fichier", "File"},
    {"lblTypeFichierTS2D", Variable},
    {"frameBloc", Texte, "Bloc", "Block"},
    {"lblBloc_0", Texte, "Largeur", "Width"},
    {"lblBloc_1", Texte, "Hauteur", "Height"},
    {"lblUniteBloc_0", Texte, "mm", "mm"},
    {"lblUniteBloc_1", Texte, "mm", "mm"},
    {"txtBloc_0", Bulle, "Largeur du bloc de mousse, en mm", "Width of the foam block, in mm"},
    {"txtBloc_1", Bulle, "Hauteur du bloc de mousse, en mm", "Height of the foam block, in mm"},
    {"cmdBlocAuto", Texte, "Bloc auto", "Auto block", "Ctrl+B", "bloc-auto"},
    {"cmdBlocAuto", Bulle, "Donner au bloc la taille des tracés, puis les placer",
     "Fit the block to the paths, then place them"},
    {"lblDimensionsBloc", Variable},
    {"framePlacement", Texte, "Placement dans le bloc", "Placement in the block"},
    {"chkCentrer_0", Texte, "Ajuster au bloc", "Fit to the block", "", "ajuster"},
    {"chkCentrer_0", Bulle, "Mettre les tracés à l'échelle du bloc, marges intérieures comprises",
     "Scale the paths to the block, inner margins included"},
    {"chkCentrer_1", Texte, "Centrer en X", "Center in X", "", "centrer-x"},
    {"chkCentrer_1", Bulle, "Centrer les tracés sur la largeur du bloc",
     "Center the paths across the width of the block"},
    {"chkCentrer_2", Texte, "Centrer en Y", "Center in Y", "", "centrer-y"},
    {"chkCentrer_2", Bulle, "Centrer les tracés sur la hauteur du bloc",
     "Center the paths over the height of the block"},
    {"frameAffichage", Texte, "Affichage", "Display"},
    {"chkZoomProjet", Texte, "Zoom sur le projet", "Zoom to the project"},
    {"chkZoomProjet", Bulle, "Cadrer les tracés après chaque opération",
     "Fit the view to the paths after every operation"},
    {"chkVoirPoints", Texte, "Voir les points", "Show the points"},
    {"chkVoirPoints", Bulle, "Marquer chaque point des tracés", "Mark every point of the paths"},
    {"chkCouleurProfils", Texte, "Une couleur par tracé", "One color per path"},
    {"chkCouleurProfils", Bulle, "Distinguer les tracés par leur couleur",
     "Tell the paths apart by their color"},
    {"cmdDecouper", Texte, "Découper…", "Cut…", "Ctrl+D", "decouper"},
    {"cmdDecouper", Bulle, "Passer aux paramètres de la découpe", "Go to the cut settings"},

    // Cut page
    {"frameMatiere", Texte, "Matière", "Material"},
    {"comboMatieres", Bulle,
     "Matière découpée : elle donne la chauffe et, en mode Expert, la vitesse et la saignée",
     "Material to cut: it sets the heating and, in Expert mode, the speed and the kerf"},
    {"comboMatieres", Variable},
    {"frameEntree", Texte, "Entrée dans le bloc", "Entry into the block"},
    {"optEntrerBloc_0", Texte, "Origine", "Origin", "", "entree-0"},
    {"optEntrerBloc_0", Bulle, "Entrer du côté de l'origine, à la hauteur du premier point",
     "Enter from the origin side, at the height of the first point"},
    {"optEntrerBloc_1", Texte, "Dessus", "Above", "", "entree-1"},
    {"optEntrerBloc_1", Bulle, "Entrer par le dessus du bloc", "Enter from above the block"},
    {"optEntrerBloc_2", Texte, "Opposé", "Far side", "", "entree-2"},
    {"optEntrerBloc_2", Bulle, "Passer au-dessus du bloc et entrer par le côté opposé",
     "Go over the block and enter from its far side"},
    {"frameSortie", Texte, "Sortie du bloc", "Exit from the block"},
    {"optSortirBloc_0", Texte, "Origine", "Origin", "", "sortie-0"},
    {"optSortirBloc_0", Bulle, "Sortir du côté de l'origine, à la hauteur du dernier point",
     "Leave on the origin side, at the height of the last point"},
    {"optSortirBloc_1", Texte, "Dessus", "Above", "", "sortie-1"},
    {"optSortirBloc_1", Bulle, "Sortir par le dessus du bloc", "Leave through the top of the block"},
    {"optSortirBloc_2", Texte, "Opposé", "Far side", "", "sortie-2"},
    {"optSortirBloc_2", Bulle, "Sortir par le côté opposé et revenir au-dessus du bloc",
     "Leave on the far side and come back over the block"},
    {"frameApproche", Texte, "Approche", "Approach"},
    {"optApproche_0", Texte, "Lente", "Slow", "", "approche-lente"},
    {"optApproche_0", Bulle, "Approcher à la vitesse de découpe", "Approach at cutting speed"},
    {"optApproche_1", Texte, "Rapide", "Rapid", "", "approche-rapide"},
    {"optApproche_1", Bulle, "Approcher à la vitesse rapide de la machine",
     "Approach at the machine's rapid speed"},
    {"frameRetour", Texte, "Retour", "Return"},
    {"optRetour_0", Texte, "Lent", "Slow", "", "retour-lent"},
    {"optRetour_0", Bulle, "Revenir à la vitesse de découpe", "Return at cutting speed"},
    {"optRetour_1", Texte, "Rapide", "Rapid", "", "retour-rapide"},
    {"optRetour_1", Bulle, "Revenir à la vitesse rapide de la machine",
     "Return at the machine's rapid speed"},
    {"frameDecalage", Texte, "Décalage de la saignée", "Kerf offset"},
    {"optDecalage_0", Texte, "Aucun", "None", "", "decalage-aucun"},
    {"optDecalage_0", Bulle, "Le fil suit le tracé", "The wire follows the path"},
    {"optDecalage_1", Texte, "Gauche", "Left", "", "decalage-gauche"},
    {"optDecalage_1", Bulle, "Le fil passe à gauche du tracé, vu dans le sens du déplacement",
     "The wire runs on the left of the path, seen in the direction of motion"},
    {"optDecalage_2", Texte, "Droite", "Right", "", "decalage-droite"},
    {"optDecalage_2", Bulle, "Le fil passe à droite du tracé, vu dans le sens du déplacement",
     "The wire runs on the right of the path, seen in the direction of motion"},
    {"lblInformationDecoupe", Variable},
    {"lblLegende", Texte,
     "<span style='color:#ff0000'>━</span> entrée &nbsp; <span style='color:#00903d'>━</span> sortie &nbsp; "
     "<b>━</b> rapide",
     "<span style='color:#ff0000'>━</span> entry &nbsp; <span style='color:#00903d'>━</span> exit &nbsp; "
     "<b>━</b> rapid"},
    {"chkZoomDecoupe", Texte, "Zoom sur la découpe", "Zoom to the cut"},
    {"chkZoomDecoupe", Bulle, "Cadrer le trajet du fil", "Fit the view to the path of the wire"},
    {"chkExportGcode2D", Texte, "Exporter un fichier Gcode", "Export a Gcode file"},
    {"chkExportGcode2D", Bulle, "Écrire un fichier .gcode au lieu de piloter la machine",
     "Write a .gcode file instead of driving the machine"},
    {"cmdLancerLaDecoupeTS2D", Variable},
    {"cmdLancerLaDecoupeTS2D", Bulle, "Lancer la découpe, ou écrire le fichier Gcode",
     "Start the cut, or write the Gcode file", "Ctrl+Return"},
    {"cmdAnnulerDecoupe", Texte, "Annuler", "Cancel", "Esc", "annuler"},
    {"cmdAnnulerDecoupe", Bulle, "Fermer la découpe et revenir au projet",
     "Close the cut and go back to the project"},

    // Status bar
    {"lblCoordonnees", Variable},
    {"lblProjet", Variable},
    {"lblMachine", Variable},
};

} // namespace

std::span<const Libelle> LibellesTessarel2D() {
    return LIBELLES;
}

} // namespace tessarel
