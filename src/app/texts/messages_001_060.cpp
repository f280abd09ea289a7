// Rows 1 to 60 of the messages, French and English side by side.
#include "app/texts/rangees.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {1, "Les informations système ne sont pas disponibles actuellement", "",
     "System information is not available at the moment", ""},
    {2, "Voulez-vous importer un projet qui effacera le projet en cours?", "Demande d'importation",
     "Do you want to import a project? It will replace the current project.", "Import request"},
    {3, "Les fichiers d'importation n'ont pas été trouvés", "TempE.dat ou/et TempS.dat introuvable(s)",
     "Import files not found", "TempE.dat or/and TempS.dat not found"},
    {4,
     "Le numéro de version de GabarTools.dll est insuffisant pour bénéficier de toutes les "
     "fonctionnalités\r\n"
     "Vous devez utiliser au moins GabarTools.dll v0.30",
     "Numero de version de GabarTools.dll",
     "The version number of GabarTools.dll is too low for all functions to be available\r\n"
     "You need at least GabarTools.dll v0.30",
     "Version number of GabarTools.dll"},
    {5, "Sauvegarder avant de quitter?", "Fermeture de Tessarel", "Save before leaving?", "Closing Tessarel"},
    {6, "Il faut d'abord charger un profil d'emplanture.", "Action impossible",
     "You must load a root profile first.", "Action not possible"},
    {7, "Zoom + et - uniquement par clic sur les flèches.", "Opération impossible",
     "Zoom + and - only by clicking on the arrows.", "Operation not possible"},
    {8,
     "Le déplacement de la sélection par appui sur la touche Ctrl ne peut se faire qu'en vue de côté.\r\n"
     "Appuyez sur le bouton 'Vue de côté' pour avoir accès à cette fonction",
     "Action impossible",
     "The selection can be moved with the Ctrl key in the side view only.\r\n"
     "Press the 'Side view' button to use this function",
     "Action not possible"},
    {9, "Erreur sur nom du côté", "Couleur compteur", "Wrong name of a side", "Counter color"},
    {10, "Veuillez entrer un nombre décimal.", "Erreur de saisie", "Please enter a decimal number.",
     "Input error"},
    {11, "Il n'est pas possible d'entrer un écartement négatif ou nul.", "Erreur de saisie",
     "A negative or zero spacing cannot be entered.", "Input error"},
    {12, "Pas de point de référence défini à l'emplanture ou au saumon, alignement impossible",
     "Pas de sélection violette",
     "No reference point is defined on the root or the tip; alignment is not possible",
     "No purple selection"},
    {13, "Il faut conserver au moins deux points non sélectionnés de chaque côté.", "Erreur de sélection",
     "At least two points must stay unselected on each side.", "Selection error"},
    {14, "Pour le .dxf 3D, l'emplanture et le saumon doivent avoir le même nombre de points.",
     "Sauvegarde en .dxf 3D impossible",
     "For the 3D .dxf, the root and the tip must have the same number of points.", "Cannot save as 3D .dxf"},
    {15, "Il faut sélectionner quatre points consécutifs deux à deux.", "Erreur de sélection à l'emplanture",
     "You must select four points, consecutive in pairs.", "Selection error on the root"},
    {16, "Il faut sélectionner quatre points consécutifs deux à deux.", "Erreur de sélection au saumon",
     "You must select four points, consecutive in pairs.", "Selection error on the tip"},
    {17, "Deux points consécutifs sont confondus, impossible de définir un des deux segments.",
     "Erreur de sélection à l'emplanture",
     "Two consecutive points coincide; one of the two segments cannot be defined.",
     "Selection error on the root"},
    {18, "Deux points consécutifs sont confondus, impossible de définir un des deux segments.",
     "Erreur de sélection au saumon",
     "Two consecutive points coincide; one of the two segments cannot be defined.",
     "Selection error on the tip"},
    {19, "Les deux segments de l'emplanture sont parallèles.", "Pas d'intersection à l'emplanture",
     "The two segments of the root are parallel.", "No intersection on the root"},
    {20, "Les deux segments de l'emplanture ne se touchent pas.", "Pas d'intersection à l'emplanture",
     "The two segments of the root do not meet.", "No intersection on the root"},
    {21, "Attention, vous venez de créer un point superposé à un point existant",
     "Intersection en bout de segment à l'emplanture",
     "Warning: you have just created a point on top of an existing one",
     "Intersection at the end of a segment of the root"},
    {22, "Les deux segments du saumon sont parallèles.", "Pas d'intersection au saumon",
     "The two segments of the tip are parallel.", "No intersection on the tip"},
    {23, "Les deux segments du saumon ne se touchent pas.", "Pas d'intersection au saumon",
     "The two segments of the tip do not meet.", "No intersection on the tip"},
    {24, "Attention, vous venez de créer un point superposé à un point existant",
     "Intersection en bout de segment au saumon",
     "Warning: you have just created a point on top of an existing one",
     "Intersection at the end of a segment of the tip"},
    {25,
     "Si vous ne sélectionnez pas de point d'insertion sur un profil, l'insertion se fera sur le dernier "
     "point.",
     "Pas de sélection sur un profil",
     "If you do not select an insertion point on a profile, the insertion is made at the last point.",
     "No selection on a profile"},
    {26,
     "Le nettoyage peut être total ou conserver les points synchrones si les profils ont le même nombre de "
     "points.\r\n"
     "Voulez-vous conserver les points synchrones?",
     "Nettoyage",
     "The cleanup can be complete, or it can keep the synchronous points if the profiles have the same "
     "number of points.\r\n"
     "Do you want to keep the synchronous points?",
     "Cleanup"},
    {27, "Les profils n'ont pas le même nombre de points, le nettoyage synchrone est impossible.",
     "Choix impossible",
     "The profiles do not have the same number of points; the synchronous cleanup is not possible.",
     "Choice not possible"},
    {28,
     "Le premier et le dernier segment ne peuvent pas être lissés. Pour les traiter, il faut renuméroter le "
     "profil",
     "Erreur de sélection",
     "The first and the last segment cannot be smoothed. To smooth them, renumber the profile",
     "Selection error"},
    {29, "Il n'y a pas le même nombre de points de synchronisation à l'emplanture et au saumon.",
     "Synchronisation impossible",
     "The root and the tip do not have the same number of synchronization points.",
     "Synchronization not possible"},
    {30,
     "Veuillez contrôler que la synchronisation s'est faite avec des profils qui tournaient dans le bon "
     "sens\r\n"
     "et dont le premier point était bien placé. Pour cela il suffit de faire bouger le fil avec un "
     "ascenseur d'une\r\n"
     "des listes de points.",
     "Synchronisation effectuée",
     "Please check that the synchronization was made with profiles that run in the right direction\r\n"
     "and whose first point is in the right place. To do so, just move the wire with a scroll bar of one\r\n"
     "of the point lists.",
     "Synchronization done"},
    {31, "Deux points consécutifs sont confondus, impossible de définir un des segments.",
     "Erreur de sélection à l'emplanture",
     "Two consecutive points coincide; one of the segments cannot be defined.",
     "Selection error on the root"},
    {32, "Deux points consécutifs sont confondus, impossible de définir un des segments.",
     "Erreur de sélection au saumon",
     "Two consecutive points coincide; one of the segments cannot be defined.", "Selection error on the tip"},
    {33, "Le profil d'emplanture est déjà fermé", "Opération impossible",
     "The root profile is already closed", "Operation not possible"},
    {34, "Le profil de saumon est déjà fermé", "Opération impossible", "The tip profile is already closed",
     "Operation not possible"},
    {35,
     "Malgré tout mes soins, Tessarel vient de planter! Les caractéristiques de l'erreur sont les suivantes "
     ":",
     "Erreur d'exécution",
     "Despite all my care, Tessarel has just crashed! The details of the error are as follows:",
     "Run-time error"},
    {36, "N° erreur : ", "", "Error no.: ", ""},
    {38, "Procédure source de l'erreur : ", "", "Procedure where the error occurred: ", ""},
    {39, "Je vous invite à me retourner un rapport de circonstances du plantage à " TESSAREL_COURRIEL_SUPPORT,
     "", "Please send me a report of the circumstances of the crash at " TESSAREL_COURRIEL_SUPPORT, ""},
    {40,
     "Avant que le programme ne ferme, voulez-vous créer le fichier Rescue_Tessarel avec le travail en "
     "cours?",
     "", "Before the app close, do you want to create the Rescue_Tessarel file with current job?", ""},
    {41, "Pas de point sélectionné sur la figure", "Opération impossible", "No point selected on the figure",
     "Operation not possible"},
    {42,
     "Il faut au moins deux séquences et la dernière séquence ne doit pas être sélectionnée pour pouvoir "
     "utiliser cet outil",
     "Opération impossible",
     "To use this tool, there must be at least two paths and the last path must not be selected",
     "Operation not possible"},
    {43,
     "Il faut au moins deux séquences et la première séquence ne doit pas être sélectionnée pour pouvoir "
     "utiliser cet outil",
     "Opération impossible",
     "To use this tool, there must be at least two paths and the first path must not be selected",
     "Operation not possible"},
    {44,
     "Pour que cet outil fonctionne sur une séquence, il faut qu'elle soit fermée.\r\n"
     "Le premier et le dernier point ne sont pas confondus sur une séquence sélectionnée.\r\n"
     "Il y a probablement une erreur de dessin sur cette séquence, à corriger dans un logiciel de DAO en "
     "zoomant fortement.\r\n"
     "L'opération est annulée et la visualisation du premier point sera activée.",
     "Opération impossible.",
     "For this tool to work on a path, the path must be closed.\r\n"
     "The first and the last point of a selected path do not coincide.\r\n"
     "There is probably a drawing error in this path, to be corrected in CAD software by zooming in "
     "closely.\r\n"
     "The operation is canceled and the display of the first point will be switched on.",
     "Operation not possible."},
    {45, "Pour que la 3D fonctionne, il faut copier freeglut.dll dans le même dossier que Tessarel.exe",
     "freeglut.dll absente", "For the 3D view to work, copy freeglut.dll into the folder of Tessarel.exe",
     "freeglut.dll missing"},
    {46,
     "Sélection/désélection d'un point : clic gauche sur la figure ou dans les compteurs\r\n"
     "Sélection/désélection d'un ensemble de points : clic gauche + glisser sur la figure\r\n"
     "Zoom : clic droit + glisser sur la figure\r\n"
     "Déplacement de la figure : Shift + clic\r\n"
     "Rotation : Alt (ou AltGr) + clic\r\n"
     "Déplacement des points sélectionnés : Ctrl + clic (uniquement actif en vue de côté)",
     "Aide de la souris",
     "Select/deselect a point: left-click on the figure or in the counters\r\n"
     "Select/deselect a group of points: left-click + drag on the figure\r\n"
     "Zoom: right-click + drag on the figure\r\n"
     "Move the figure: Shift + click\r\n"
     "Rotate: Alt (or AltGr) + click\r\n"
     "Move the selected points: Ctrl + click (only active in the side view)",
     "Mouse help"},
    {47,
     "Découpe impossible, l'écartement est plus large que la table.\r\n"
     "Retournez dans l'onglet Conception 4 axes,\r\n"
     "l'outil Profil Intermédiaire permet de découper en deux fois.",
     "Projet impossible à découper",
     "Cutting is not possible: the spacing is wider than the table.\r\n"
     "Go back to the 4-axis design tab;\r\n"
     "the Intermediate Profile tool lets you cut in two steps.",
     "Project cannot be cut"},
    {48,
     "Découpe impossible, les deux côtés n'ont pas le même nombre de points.\r\n"
     "Retournez dans l'onglet Conception 4 axes,\r\n"
     "l'outil de Synchronisation Optimale permet de corriger cela.",
     "Projet impossible à découper",
     "Cutting is not possible: the two sides do not have the same number of points.\r\n"
     "Go back to the 4-axis design tab;\r\n"
     "the Optimal Synchronization tool can correct this.",
     "Project cannot be cut"},
    {49,
     "La découpe 4 axes n'est pas possible avec l'origine de la machine en haut de l'axe Y.\r\n"
     "Modifiez ce paramètre ou changez de machine pour accéder à l'onglet Découpe 4 axes.",
     "Opération impossible",
     "4-axis cutting is not possible with the origin of the machine at the top of the Y axis.\r\n"
     "Change this parameter or choose another machine to open the 4-axis cutting tab.",
     "Operation not possible"},
    {50, "Tessarel - 4 axes", "", "Tessarel - 4 axes", ""},
    {51, "L Rectangle = ", "", "Rectangle L = ", ""},
    {52,
     "Cette fenêtre permet : \r\n"
     "1 - de placer verticalement le projet dans le bloc en modifiant la cote sous l'emplanture (toutes les "
     "autres seront recalculées).\r\n"
     "2 - de définir les marges horizontales du bloc (la dimension totale du bloc est recalculée).\r\n"
     "3 - de définir la hauteur du bloc (épaisseur).",
     "Fenêtre Bloc",
     "This window lets you: \r\n"
     "1 - place the project vertically in the block by changing the dimension below the root (all others are "
     "recalculated).\r\n"
     "2 - set the horizontal margins of the block (the overall dimension of the block is recalculated).\r\n"
     "3 - set the height of the block (thickness).",
     "Block window"},
    {53, "Conception 4 axes", "", "4-axis design", ""},
    {54, "Vous atteignez les limites de la procédure d'affichage", "Attention",
     "You are reaching the limits of the display procedure", "Warning"},
    {55, "Les valeurs égales à 0 seront remplacée par 1.", "Valeur nulle impossible.",
     "Values equal to 0 will be replaced with 1.", "Zero is not possible."},
    {56, "d=0 sera remplacé par d=1.", "Valeur nulle impossible.", "d=0 will be replaced with d=1.",
     "Zero is not possible."},
    {57, "Impossible d'ouvrir le programme du plugin", "Une erreur est survenue",
     "The program of the plug-in cannot be opened", "An error occurred"},
    {58, "Vider l'espace de travail?", "Nouveau projet", "Clear the workspace?", "New project"},
    {59, "Problème : le nom du projet est vide, il ne sera pas réenregistré", "",
     "Problem: the project has no name, it will not be saved again", ""},
    {60, "Erreur, impossible d'actualiser la sauvegarde du projet", "",
     "Error: the saved project could not be updated", ""},
};

} // namespace

std::span<const RangeeTexte> Messages001a060() {
    return RANGEES;
}

} // namespace tessarel
