// Rows 121 to 190 of the messages, French and English side by side.
#include "app/texts/rangees.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {121,
     "Pas de correspondance entre la table en mémoire et les tables de l'interface\r\n"
     "Voulez-vous ouvrir la fenêtre de paramétrage?",
     "Opération impossible",
     "The table in memory does not match any table of the interface\r\n"
     "Do you want to open the parameter window?",
     "Operation not possible"},
    {122,
     "Lancer le nettoyage du fil?\r\n"
     "Montée: ",
     "Validation de sécurité",
     "Start the wire cleaning?\r\n"
     "Rise: ",
     "Safety confirmation"},
    {123, "Chauffe: ", "", "Heating: ", ""},
    {124, "Attente: ", "", "Wait: ", ""},
    {125, "Erreur de communication.", "Opération annulée", "Communication error.", "Operation canceled"},
    {126, "Nettoyage du fil : ", "", "Wire cleaning: ", ""},
    {127, "NBRt de la chauffe du fil égal à zéro, division impossible => " TESSAREL_COURRIEL_SUPPORT,
     "Opération annulée",
     "NBRt of the wire heating is zero, division impossible => " TESSAREL_COURRIEL_SUPPORT,
     "Operation canceled"},
    {128,
     "Nombre de points trop élevés pour le scrollbar de simulation, la visualisation du fil sera limitée à "
     "32767 points",
     "Trop de points",
     "Too many points for the scroll bar of the simulation; the display of the wire will be limited to 32767 "
     "points",
     "Too many points"},
    {129, "Les points ", " et ", "Points ", " and "},
    {130,
     " du côté Emplanture sont confondus ou quasiment confondus (d < 0.001mm).\r\n"
     "Impossible de définir un décalage. Retournez dans l'onglet Conception 4 axes pour corriger.",
     "Calcul impossible",
     " on the root side coincide or almost coincide (d < 0.001mm).\r\n"
     "An offset cannot be defined. Go back to the 4-axis design tab to correct this.",
     "Calculation not possible"},
    {131,
     " du côté Saumon sont confondus.\r\n"
     "Impossible de définir un décalage. Retournez dans l'onglet Conception 4 axes pour corriger.",
     "Calcul impossible",
     " on the tip side coincide.\r\n"
     "An offset cannot be defined. Go back to the 4-axis design tab to correct this.",
     "Calculation not possible"},
    {132, "Erreur, l'angle est supérieur à 360°, il vaut :", "",
     "Error, angle greater than 360°, value :", ""},
    {133, "Plantage lors du calcul du décalage variable", "Opération impossible",
     "Crash while calculating the variable offset", "Operation not possible"},
    {134,
     "Quand le bloc n'est pas dressé, l'approche horizontale se fait à vitesse de découpe, sans "
     "accélérations. Quand il est dressé, elle se fait en rapide, éventuellement avec accélération.",
     "Conséquence du dressage du bloc",
     "When the block is not squared, the horizontal approach is made at cutting speed, without acceleration. "
     "When it is squared, the approach is rapid, possibly with acceleration.",
     "Effect of squaring the block"},
    {135,
     "Le côté du décalage est défini par rapport à la direction de déplacement du fil. Il faut s'imaginer "
     "qu'on se déplace sur le trajet du fil.\r\n"
     "Un décalage vers la gauche doit être utilisé quand la matière à conserver se trouve à droite.\r\n"
     "Un décalage vers la droite doit être utilisé quand la matière à conserver se trouve à gauche.\r\n"
     "Le décalage nul peut être intéressant quand les fichiers des profils à découper contiennent des "
     "petites imperfection qui font planter le décalage et qu'on veut découper quand même.",
     "Explications sur le côté du décalage.",
     "The side of the offset is defined by the direction in which the wire moves. Imagine yourself traveling "
     "along the path of the wire.\r\n"
     "Use an offset to the left when the material to keep is on the right.\r\n"
     "Use an offset to the right when the material to keep is on the left.\r\n"
     "No offset can be useful when the files of the profiles to cut contain small flaws that make the offset "
     "fail and you want to cut anyway.",
     "About the side of the offset."},
    {136,
     "Le décalage variable permet de tenir compte de la variation de vitesse d'un segment à l'autre lors de "
     "la découpe. C'est le décalage à utiliser par défaut, il donne les découpes les plus précises.\r\n"
     "LE DECALAGE SIMPLE NE DOIT ETRE UTILISE QUE SI LE DECALAGE VARIABLE POSE PROBLEME.",
     "Types de décalage",
     "The variable offset takes into account how the speed varies from one segment to the next during the "
     "cut. It is the offset to use by default and gives the most accurate cuts.\r\n"
     "USE THE SIMPLE OFFSET ONLY IF THE VARIABLE OFFSET CAUSES PROBLEMS.",
     "Types of offset"},
    {137,
     "Recentrer : clic gauche\r\n"
     "Zoom après recentrage : flèches haut/bas\r\n"
     "Zoom par cadre de sélection : clic droit + glisser\r\n"
     "Déplacement de la représentation : Shift + clic gauche ou droit\r\n"
     "Reset zoom : clic central (clic molette)\r\n"
     "Rotation : Alt ou AltGr + clic gauche ou droit",
     "Utilisation de la souris",
     "Re-center: left-click\r\n"
     "Zoom after re-centering: up/down arrows\r\n"
     "Zoom with a selection frame: right-click + drag\r\n"
     "Move the drawing: Shift + left or right click\r\n"
     "Reset the zoom: middle click (wheel click)\r\n"
     "Rotate: Alt or AltGr + left or right click",
     "Using the mouse"},
    {138, "Le positionnement du bloc en Z1=",
     "mm n'est pas possible, cela dépasse la largeur du plateau.\r\n"
     "La valeur sera limitéé au maximum possible.",
     "Placing the block at Z1=",
     "mm is not possible: it exceeds the width of the table top.\r\n"
     "The value will be limited to the highest possible."},
    {139, "Le positionnement du bloc en Z2=",
     "mm n'est pas possible, cela dépasse la largeur du plateau.\r\n"
     "La valeur sera limitéé au maximum possible.",
     "Placing the block at Z2=",
     "mm is not possible: it exceeds the width of the table top.\r\n"
     "The value will be limited to the highest possible."},
    {140, "Découpe 4 axes > Mouvements manuels", "", "4-axis cutting > Manual moves", ""},
    {141,
     "Attention, cette opération efface aussi le projet de l'onglet Conception 4 axes.\r\n"
     "Continuer?",
     "Nouveau projet",
     "Warning: this operation also clears the project of the 4-axis design tab.\r\n"
     "Continue?",
     "New project"},
    {142, "", "Ouvrir un projet", "", "Open a project"},
    {143, "Extension de fichier inconnue", "Opération impossible", "Unknown file extension",
     "Operation not possible"},
    {144, "Erreur lors de l'ouverture du fichier", "Opération impossible", "Error while opening the file",
     "Operation not possible"},
    {145, "Il faut définir une découpe pour pouvoir effectuer une sauvegarde.", "Opération impossible",
     "You must define a cut before you can save.", "Operation not possible"},
    {146, "Enregistrer le projet sous...", "", "Save the project as...", ""},
    {147, "Un projet portant ce nom est déjà présent dans l'onglet 2D. Changez de nom.",
     "Opération impossible", "A project with this name is already open in the 2D tab. Choose another name.",
     "Operation not possible"},
    {148, "L'extension de fichier n'est pas correcte, un projet doit être sauvegardé en .tsr",
     "Opération impossible", "The file extension is wrong; a project must be saved as .tsr",
     "Operation not possible"},
    {149,
     "Attention, vous allez remplacer un fichier contenant un projet 2D par un fichier de projet 4 axes. "
     "Continuer?",
     "Type de projet",
     "Warning: you are about to replace a file that holds a 2D project with a 4-axis project file. Continue?",
     "Project type"},
    {150, "La découpe ne peut pas être sauvegardée si un bouton est enfoncé (Dresser ou Guillotine).",
     "Opération impossible", "The cut cannot be saved while a button is pressed (Square up or Guillotine).",
     "Operation not possible"},
    {151, "Erreur lors de la procédure d'enregistrement.", "Anomalie", "Error while saving.", "Fault"},
    {152, "Problème : le nom du projet est vide, il ne peut pas être réenregistré", "Opération impossible",
     "Problem: the project has no name, it cannot be saved again", "Operation not possible"},
    {153, "Erreur, impossible d'actualiser la sauvegarde du projet", "",
     "Error: the saved project could not be updated", ""},
    {154,
     "La table courante a l'origine en haut de l'axe Y.\r\n"
     "Vous ne pouvez pas accéder à ses paramètres depuis cet onglet.",
     "Opération impossible",
     "The current table has its origin at the top of the Y axis.\r\n"
     "You cannot open its parameters from this tab.",
     "Operation not possible"},
    {155,
     "L'accès aux paramètres n'est pas possible si un bouton est enfoncé (boutons Dresser ou Guillotine).",
     "Opération impossible",
     "The parameters cannot be opened while a button is pressed (Square up or Guillotine buttons).",
     "Operation not possible"},
    {156, "Point d'arrêt", "", "Stop point", ""},
    {157, "Désactiver", " Dressage du bloc ", "Switch off", " Block squaring "},
    {158, "Activer", " Outil guillotine ", "Switch on", " Guillotine tool "},
    {159, "Point d'arrêt, il faut relancer manuellement le mouvement", "Suite de la découpe",
     "Breakpoint, Manually restart the move", "Following the cut"},
    {160, "Erreur", " de calcul de la salve", "Error", " in the calculation of frame "},
    {161, ". Il vaut mieux annuler la découpe et signaler le problème à " TESSAREL_COURRIEL_SUPPORT, "",
     ". It is better to cancel the cut and report the problem to " TESSAREL_COURRIEL_SUPPORT, ""},
    {162, "Durée de la découpe :", "j", "Cutting time :", "d"},
    {163, "h", "min", "h", "min"},
    {164, "s", "Duree de la decoupe : ", "s", "Cutting time : "},
    {165, "Vitesse découpe max : ", "Chauffe : ", "Max cutting speed : ", "Heating : "},
    {166, "", "Lancer la découpe ?", "", "Start the cut?"},
    {167, "Arret de la chauffe", "Fin du programme", "Heating stop", "End of program"},
    {168, "Fichier Gcode (.gcode) exporté sous : ", "", "Gcode file (.gcode) exported as : ", ""},
    {170, "Quitter la partie 4 axes de Tessarel?", "Retour à l'écran d'accueil",
     "Leave the 4-axis part of Tessarel?", "Back to the start screen"},
    {171,
     "L'interrupteur de chauffe PC/MANU est sur MANU, ce qui signifie que vous gérez la valeur de la chauffe "
     "manuellement.\r\n"
     "Confirmez-vous ce choix?",
     "Attention à la position des interrupteurs",
     "The PC/MANU heating switch is set to MANU, which means that you control the heating value by hand.\r\n"
     "Do you confirm this choice?",
     "Check the position of the switches"},
    {172, "Découpe terminée", "Arrêt sur le segment n° ", "Cut finished", "Stopped at segment no. "},
    {173, "Erreur, NBRt=0, division impossible => " TESSAREL_COURRIEL_SUPPORT, "",
     "Error: NBRt=0, division impossible => " TESSAREL_COURRIEL_SUPPORT, ""},
    {174, "Enregistrer le fichier Gcode sous...", "", "Save the Gcode file as...", ""},
    {175, "L'extension de fichier n'est pas correcte, le Gcode se sauvegarde en .gcode",
     "Opération impossible", "The file extension is wrong; Gcode is saved as .gcode",
     "Operation not possible"},
    {176, "Fichier Gcode de decoupe", "Fichier genere par Tessarel", "Gcode cutting file",
     "File generated by Tessarel"},
    {177, "Fichier Tessarel du projet : ",
     "Fichier Tessarel du projet : inexistant, il n'y a pas eu de sauvegarde prealable a l'export du Gcode",
     "Tessarel file of project : ",
     "Tessarel file of project : non-existent, there was no backup prior to exporting the Gcode"},
    {178, "Table de découpe : ", "Corde Cote 1 : ", "Cutting table : ", "Chord Side 1 : "},
    {179, "Corde Cote 2 : ", "Distance Cote1<-->Cote2 : ", "Chord Side 2 : ", "Distance Side1<-->Side2 : "},
    {180, "", "Unites en mm", "", "Units in mm"},
    {181, "Mode inverse du temps - Plus precis pour les decoupes coniques", "Mise en route de la chauffe",
     "Inverse time mode - More accurate for taper cuts", "Starting the heating"},
    {182, "Delai de mise en chauffe du fil avant mouvement, en secondes", "Deplacements des axes",
     "Wire heating time before movement, in seconds", "Axis movements"},
    {183,
     "Remarque: Si le fil est stocke dans une saignee, l'origine est plus bas que le plateau de la table et "
     "les Y en tiennent compte",
     "Deplacements en absolu - Plus precis",
     "Note: If the wire is stored in a groove, the origin is lower than the table top and the Ys take this "
     "into account",
     "Absolute displacements - More precise"},
    {184,
     "Point de depart: 0 0 0 0 - Peut se situer sous le niveau du plateau si le fil se range dans une "
     "saignee",
     "", "Starting point: 0 0 0 0 - Can be below the level of the table if the wire is stored in a groove",
     ""},
    {185, "Liste des points qui posent problème :", "", "List of the points that cause a problem:", ""},
    {186,
     "Découpe impossible, le trajet du fil au niveau du bloc descend plus bas que la marge Fil/Plateau des "
     "paramètres de la machine.",
     "Opération annulée",
     "Cutting is not possible: at the block, the path of the wire goes lower than the Wire/Table top margin "
     "in the parameters of the machine.",
     "Operation canceled"},
    {187,
     "Découpe impossible, les courses de la machine sont dépassées, contrôlez le placement du bloc en X, Y, "
     "Z (essayez le bouton Auto).",
     "Découpe impossible, les vitesses limite de la machine sont dépassées au niveau des chariots : les "
     "segments qui posent problème sont représentés en gras.",
     "Cutting is not possible: the travel of the machine is exceeded; check the placement of the block in X, "
     "Y, Z (try the Auto button).",
     "Cutting is not possible: the speed limits of the machine are exceeded at the carriages. The segments "
     "that cause the problem are drawn in bold."},
    {188, "Découpe impossible, la longueur maxi du fil indiquée dans les paramètres machine est dépassée.",
     "Opération annulée",
     "Cutting is not possible: the maximum wire length given in the machine parameters is exceeded.",
     "Operation canceled"},
    {189, "Mise en température du fil", "", "Heating up the wire", ""},
    {190, "Chauffe ", "Découpe segment n°", "Heating ", "Cutting segment no. "},
};

} // namespace

std::span<const RangeeTexte> Messages121a190() {
    return RANGEES;
}

} // namespace tessarel
