// Rows 61 to 120 of the messages, French and English side by side.
#include "app/texts/rangees.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {61, "Conception 4 axes > Position dans le bloc", "", "4-axis design > Position in the block", ""},
    {62,
     "Le nettoyage supprime les points doubles et les points alignés.\r\n"
     "Il peut conserver la synchronisation (le logiciel vous le demande quand vous cliquez sur le "
     "bouton).\r\n"
     "La \"force\" du nettoyage se règle dans la fenêtre \"Informations\" du logiciel (bouton \"i\").",
     "Fonction de nettoyage",
     "The cleanup removes duplicate points and aligned points.\r\n"
     "It can keep the synchronization (the program asks you when you click on the button).\r\n"
     "The \"strength\" of the cleanup is set in the \"Information\" window of the program (\"i\" button).",
     "Cleanup function"},
    {63,
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
    {64, "Le projet courant va être écrasé par le projet importé.", "Importation d'un projet complet",
     "The current project will be replaced by the imported project.", "Importing a complete project"},
    {65, "Tessarel n'arrive pas à ouvrir le fichier.", "Opération impossible",
     "Tessarel cannot open the file.", "Operation not possible"},
    {66, "Choisissez les fichiers à copier dans la bibliothèque et cliquez sur Ouvrir", "",
     "Choose the files to copy to the library and click on Open", ""},
    {67, "Coordonnées et export SketchUp ou Scratch", "", "Coordinates and SketchUp or Scratch export", ""},
    {68, "Vous devez d'abord cliquer sur le fichier à supprimer", "Pas de sélection",
     "You must first click on the file to delete", "No selection"},
    {69, "Déplacement dans la corbeille effectué", "Suppression", "Moved to the recycle bin", "Deletion"},
    {70, "Le déplacement dans la corbeille n'a pas pu être effectué", "Echec de la suppression",
     "The file could not be moved to the recycle bin", "Deletion failed"},
    {71, "Tessarel n'arrive pas à ouvrir le fichier", "Opération impossible", "Tessarel cannot open the file",
     "Operation not possible"},
    {72,
     "Attention, cette opération remplace le projet en cours.\r\n"
     "Continuer?",
     "Ouvrir un projet",
     "Warning: this operation replaces the current project.\r\n"
     "Continue?",
     "Open a project"},
    {73, "Ouvrir un projet .tsr", "", "Open a .tsr project", ""},
    {74, "Extension de fichier incorrecte, essayez de recommencer ou de passer par la visionneuse.",
     "Opération impossible", "Wrong file extension; try again, or use the viewer.", "Operation not possible"},
    {75, "Erreur lors de l'ouverture du fichier", "Opération impossible", "Error while opening the file",
     "Operation not possible"},
    {76,
     "Une erreur est survenue dans la procédure CalculerCoordonneesPerspectiveCPX.\r\n"
     "Si vous arrivez à la reproduire, merci de la signaler par mail à " TESSAREL_COURRIEL_SUPPORT "\r\n"
     "Si vous n'arrivez pas à la reproduire, elle ne pourra pas être corrigée facilement, mais signalez-là "
     "quand même en donnant le maximum d'informations sur la façon dont elle est apparue.",
     "Erreur",
     "An error occurred in procedure CalculerCoordonneesPerspectiveCPX.\r\n"
     "If you can make it happen again, please report it by e-mail to " TESSAREL_COURRIEL_SUPPORT "\r\n"
     "If you cannot make it happen again, it will not be easy to fix, but please report it anyway with as "
     "much information as possible on how it appeared.",
     "Error"},
    {77, "Mesure entre les deux points sélectionnés : ", "",
     "Distance between the two selected points: ", ""},
    {78, "Distance 2 points Emplanture : ", "", "Distance of 2 points on the root: ", ""},
    {79, "Distance 2 points Saumon : ", "", "Distance of 2 points on the tip: ", ""},
    {80, "Enregistrer la conception sous...", "", "Save the design as...", ""},
    {81, "Un projet portant ce nom est déjà présent dans l'onglet 2D. Changez de nom.",
     "Opération impossible", "A project with this name is already open in the 2D tab. Choose another name.",
     "Operation not possible"},
    {82, "L'extension de fichier n'est pas correcte, le projet se sauvegarde en .tsr", "Opération impossible",
     "The file extension is wrong; the project is saved as .tsr", "Operation not possible"},
    {83,
     "Attention, vous allez remplacer un fichier contenant un projet 2D par un fichier de projet 4 axes. "
     "Continuer?",
     "Type de projet",
     "Warning: you are about to replace a file that holds a 2D project with a 4-axis project file. Continue?",
     "Project type"},
    {84, "Enregistrer le profil Emplanture en .dxf ou en .dat...", "",
     "Save the root profile as .dxf or .dat...", ""},
    {85, "Enregistrer le profil Saumon en .dxf ou en .dat...", "", "Save the tip profile as .dxf or .dat...",
     ""},
    {86, "Enregistrer le profil intermédiaire en .dxf ou en .dat...", "",
     "Save the intermediate profile as .dxf or .dat...", ""},
    {87, "Erreur lors de la procédure d'enregistrement.", "Problème", "Error while saving.", "Problem"},
    {88,
     "Plantage dans la procédure de détermination de l'intersection.\r\n"
     "Si vous arrivez à reproduire le bug à partir d'un fichier .tsr, merci de le remonter "
     "à " TESSAREL_COURRIEL_SUPPORT,
     "Opération annulée",
     "Crash in the procedure that finds the intersection.\r\n"
     "If you can reproduce the bug from a .tsr file, please report it to " TESSAREL_COURRIEL_SUPPORT,
     "Operation canceled"},
    {89, "Conception 4 axes > Insertion", "", "4-axis design > Insertion", ""},
    {90, "Conception 4 axes", "", "4-axis design", ""},
    {91, "Effectuer un nettoyage synchrone après la synchronisation?", "Points alignés après synchronisation",
     "Launch a synchronous cleanup after synchronization?", "Aligned points after synchronization"},
    {92,
     "Erreur lors de la procédure de synchronisation.\r\n"
     "Il y a probablement deux points de synchronisation qui se suivent et qui sont confondus, ce n'est pas "
     "possible.",
     "Opération impossible",
     "Error during the synchronization.\r\n"
     "There are probably two synchronization points in a row that coincide, which is not possible.",
     "Operation not possible"},
    {93,
     "Sélection : clic sur le numéro d'une séquence dans le compteur ou clic sur sa représentation, ou cadre "
     "de sélection (clic+glisser) sur la représentation (on peut sélectionner plusieurs séquences).\r\n"
     "Validation directe du choix par bouton OK, ou alors les trois boutons blancs servent à transférer les "
     "séquences sélectionnées dans le cadre du bas pour pouvoir les modifier.\r\n"
     "Utilisation de la souris dans le cadre du bas :\r\n"
     "- Appui sur la touche Alt (ou AltGr) et survol des séquences : fait apparaître les points sur lesquels "
     "le pointeur passe.\r\n"
     "- Sélection : comme dans le cadre du haut.\r\n"
     "- Clic + glisser avec appui sur la touche Ctrl : déplacement des séquences sélectionnées.\r\n"
     "- Clic + glisser avec appui sur la touche Alt (ou AltGr) : déplacement du point situé sous la souris.",
     "Choix dans un fichier contenant plusieurs trajets",
     "Selection: click on the number of a path in the counter, click on its drawing, or drag a selection "
     "frame (click+drag) over the drawing (several paths can be selected).\r\n"
     "Confirm the choice directly with the OK button, or use the three white buttons to transfer the "
     "selected paths to the lower frame, where they can be modified.\r\n"
     "Using the mouse in the lower frame:\r\n"
     "- Alt (or AltGr) key while moving over the paths: shows the points under the pointer.\r\n"
     "- Selection: as in the upper frame.\r\n"
     "- Click + drag with the Ctrl key: moves the selected paths.\r\n"
     "- Click + drag with the Alt (or AltGr) key: moves the point under the pointer.",
     "Choosing from a file with several paths"},
    {94,
     "Aucune séquence sélectionnée (la sélection se fait par clic dans le compteur ou sur la figure). "
     "Quitter la fenêtre?",
     "Validation sans sélection préalable",
     "No path selected (select by clicking in the counter or on the figure). Leave the window?",
     "Confirmed without a selection"},
    {95,
     "1. Choisir une vitesse de découpe (par exemple 4mm/s), la renseigner dans la figure de droite.\r\n"
     "2. Faire chauffer le fil fort (par exemple 90%)\r\n"
     "3. Se déplacer dans la matière (faire des tranches) en baissant la chauffe pendant le mouvement "
     "jusqu'à obtenir la qualité de découpe souhaitée.\r\n"
     "4. Sans changer la valeur de chauffe, faire des tranches dans la matière et mesurer l'épaisseur "
     "obtenue.\r\n"
     "5. Calculer la saignée à la vitesse de découpe : (épaisseur demandée)-(épaissseur obtenue) et la "
     "renseigner dans la figure de droite.\r\n"
     "6. Baisser la vitesse de moitié en conservant la même chauffe.\r\n"
     "7. Faire des tranches dans la matière et mesurer l'épaisseur obtenue.\r\n"
     "8. Calculer la saignée à la demi vitesse de découpe et la renseigner dans la figure de droite.\r\n"
     "9. Sauvegarder la matière et lui donner un nom court.",
     "Définir une matière",
     "1. Choose a cutting speed (for example 4mm/s) and enter it in the figure on the right.\r\n"
     "2. Heat the wire strongly (for example 90%)\r\n"
     "3. Move through the material (cut slices), lowering the heating during the move, until you get the "
     "cutting quality you want.\r\n"
     "4. Without changing the heating value, cut slices of the material and measure the thickness you "
     "get.\r\n"
     "5. Calculate the kerf at the cutting speed: (requested thickness)-(measured thickness), and enter it "
     "in the figure on the right.\r\n"
     "6. Halve the speed and keep the same heating.\r\n"
     "7. Cut slices of the material and measure the thickness you get.\r\n"
     "8. Calculate the kerf at half the cutting speed and enter it in the figure on the right.\r\n"
     "9. Save the material and give it a short name.",
     "Defining a material"},
    {96,
     "Valeur de vitesse V incorrecte, veuillez la modifier. Elle doit être supérieure à zéro et inférieure "
     "ou égale à la vitesse maxi sans accélération",
     "Opération impossible",
     "The speed V is wrong, please change it. It must be above zero and at most the maximum speed without "
     "acceleration",
     "Operation not possible"},
    {97, "La distance du mouvement demandé est incorrecte, veuillez corriger", "Opération impossible",
     "The distance of the requested move is wrong, please correct it", "Operation not possible"},
    {98, "Découpe 4 axes", "", "4-axis cutting", ""},
    {99,
     "Attention, le rangement du fil plus bas que l'origine n'est pas pris en compte.\r\n"
     "La valeur du décalage est ",
     "",
     "Warning: parking the wire lower than the origin is not taken into account.\r\n"
     "The value of the offset is ",
     ""},
    {100, "V Rapide", "", "Rapid speed", ""},
    {101, "Saignée", "", "Kerf", ""},
    {102,
     "Une liste de matières est associée à un nom de machine. Si votre liste est vide, c'est que vous avez "
     "changé de nom de machine. Utilisez le bouton \"Importer\" pour récupérer les matières d'une autre "
     "machine.",
     "Aide matières",
     "Each list of materials belongs to the name of a machine. If your list is empty, you have changed the "
     "name of the machine. Use the \"Import\" button to get the materials of another machine.",
     "Materials help"},
    {103,
     "En cliquant sur ce bouton, vous vous assurez que les moteurs sont en permanence sous tension. Cela  "
     "évite que les chariots ne bougent entre deux mouvements dans le cas des machines à courroies (par "
     "exemple). Le paramétrage par défaut sera rétabli en recliquant sur le bouton ou en quittant la "
     "fenêtre.",
     "Tension moteurs permanente",
     "This button makes sure that the motors are always powered. It prevents the carriages from drifting "
     "between two moves, on belt-driven machines for example. The default setting is restored when you click "
     "on the button again or leave the window.",
     "Motors always powered"},
    {104, "Nom de la matière :", "Base de données Matières", "Material name:", "Material database"},
    {105, "Par defaut", "", "Default", ""},
    {106, "L'interrupteur de chauffe ON/OFF doit être mis sur ON", "Opération impossible",
     "The ON/OFF heating switch must be set to ON", "Operation not possible"},
    {107, "L'interrupteur de chauffe PC(=AUTO)/MANU doit être mis sur PC(=AUTO)", "Opération impossible",
     "The PC(=AUTO)/MANU heating switch must be set to PC(=AUTO)", "Operation not possible"},
    {108, "Pas d'interface détectée", "Désactivation des mouvements", "No interface detected",
     "Motion disabled"},
    {109, "Valeur de vitesse incorrecte", "", "Incorrect speed", ""},
    {110, "Le positionnement du bloc en Z1=", "Paramètre de position en Z",
     "Placing the block at Z1=", "Z position setting"},
    {111,
     "mm n'est pas possible, la largeur de la table est dépassée.\r\n"
     "L'alignement au côté 2 sera sélectionné à la place.",
     "",
     "mm is not possible: the width of the table is exceeded.\r\n"
     "Alignment to side 2 will be selected instead.",
     ""},
    {112, " Point n°", "", " Point no. ", ""},
    {113, "Largeur (écartement) = ", "", "Width (spacing) = ", ""},
    {114, "Epaisseur = ", "", "Thickness = ", ""},
    {115, "Longueur du côté 1 = ", "", "Length of side 1 = ", ""},
    {116, "Longueur du côté 2 = ", "", "Length of side 2 = ", ""},
    {117, "Flèche du côté 1 = ", "", "Sweep of side 1 = ", ""},
    {118, "(Les côtés 1 et 2 sont indiqués sur la représentation graphique.)", "",
     "(Sides 1 and 2 are shown on the drawing.)", ""},
    {119, "Longueur totale avant dressage = ", "", "Overall length before squaring = ", ""},
    {120, "Flèche du côté 2 = ", "", "Sweep of side 2 = ", ""},
};

} // namespace

std::span<const RangeeTexte> Messages061a120() {
    return RANGEES;
}

} // namespace tessarel
