// Rows 1 to 64 of the double texts, French and English side by side.
#include "app/texts/rangees.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {1,
     "Deux points consécutifs sont confondus.\r\n"
     "Impossible de définir un décalage. Retournez dans l'onglet Conception 4 axes pour corriger.",
     "Calcul impossible.",
     "Two consecutive points coincide.\r\n"
     "An offset cannot be defined. Go back to the 4-axis design tab to correct this.",
     "Calculation not possible."},
    {2,
     "Le répertoire \\Bibliotheque n'est pas présent, il va être créé mais il sera vide : à vous de le "
     "remplir!",
     "Initialisation de la bibliothèque",
     "The folder \\Bibliotheque does not exist. It will be created, but it will be empty: it is up to you to "
     "fill it!",
     "Setting up the library"},
    {3,
     "Le fichier \"Tessarel.ini\" contient des clés qui commencent par \"NbrPasToOri...\".\r\n"
     "Ces clés ne sont plus valides et vont être remplacées par les \r\n"
     "nouvelles clés de type \"MmToOri...\" pour que Tessarel puisse fonctionner correctement.",
     "Ancienne version du .ini",
     "The file \"Tessarel.ini\" contains keys that begin with \"NbrPasToOri...\".\r\n"
     "These keys are no longer valid and will be replaced by the \r\n"
     "new \"MmToOri...\" keys so that Tessarel can work properly.",
     "Old version of the .ini"},
    {4,
     "La valeur d'un paramètre d'une matière dépasse la valeur maximale possible sur la machine.\r\n"
     "La valeur sera bridée à la valeur maximale.",
     "Valeur trop élevée",
     "The value of a parameter of a material is higher than the maximum the machine allows.\r\n"
     "The value will be limited to the maximum.",
     "Value too high"},
    {5,
     "Le fichier ZelkoComm.dll présent sur votre ordinateur est trop vieux.\r\n"
     "Tessarel ne peut pas fonctionner.\r\n"
     "Veuillez télécharger la dernière version et relancer.",
     "Communication avec la machine impossible",
     "The ZelkoComm.dll file on your computer is too old.\r\n"
     "Tessarel cannot run.\r\n"
     "Please download the latest version and start again.",
     "Communication with the machine not possible"},
    {6,
     "La communication avec l'interface USB pose problème\r\n"
     "- Vérifiez le branchement correct du câble USB et de l'alimentation électrique\r\n"
     "- Attention à ne pas mettre un câble USB trop long, trop fin ou de mauvaise qualité\r\n"
     "- Vérifiez qu'aucune autre application ne cherche à communiquer avec l'interface\r\n"
     "- Vérifiez que votre installation électrique n'envoie pas des parasites dans votre ordinateur (néon, "
     "moteur, frigo...)",
     "Problème de communication avec l'interpolateur.",
     "There is a problem in the communication with the USB interface\r\n"
     "- Check that the USB cable and the power supply are properly connected\r\n"
     "- Do not use a USB cable that is too long, too thin or of poor quality\r\n"
     "- Check that no other application is trying to communicate with the interface\r\n"
     "- Check that your electrical installation is not sending interference into your computer (neon light, "
     "motor, fridge...)",
     "Communication problem with the interpolator."},
    {7,
     "Le fichier ZelkoCom.dll n'a pas été trouvé,\r\n"
     "veuillez l'installer sur votre ordinateur, à la bonne place.\r\n"
     "La découpe sera désactivée.",
     "Communication avec la machine impossible",
     "The file ZelkoCom.dll was not found,\r\n"
     "please install it on your computer, in the right place.\r\n"
     "Cutting will be disabled.",
     "Communication with the machine not possible"},
    {8,
     "Il semblerait que la machine ne soit pas en position de rangement.\r\n"
     "Voulez-vous lancer la procédure de rangement du plateau et du fil avant de quitter le logiciel ?",
     "Demande de fermeture de Tessarel",
     "The machine does not seem to be in its parking position.\r\n"
     "Do you want to run the parking procedure of the table top and the wire before you leave the program?",
     "Request to close Tessarel"},
    {9,
     "Coupez l'alimentation de la machine avant de quitter le programme.\r\n"
     "Vérifiez également que votre projet est sauvegardé.\r\n"
     "Confirmez-vous la fermeture de l'application ?",
     "Demande de fermeture de Tessarel",
     "Switch off the power supply of the machine before you leave the program.\r\n"
     "Also check that your project is saved.\r\n"
     "Do you confirm that you want to close the application?",
     "Request to close Tessarel"},
    {10, "Erreur lors de la lecture, impossible de représenter ce fichier.", "Erreur de lecture de fichier",
     "Reading error: this file cannot be displayed.", "File reading error"},
    {11, "Voulez-vous effectuer une sauvegarde du projet en cours?", "Nouveau projet",
     "Do you want to save the current project?", "New project"},
    {12,
     "Extension de fichier non valide. Tessarel sait ouvrir les .tsr, .qnt, .cpx, .fc, .dxf, .dat, .plt, "
     ".eps (et les .txt avec les coordonnées des points séparées par un double-point).",
     "Ouverture impossible",
     "Invalid file extension. Tessarel can open .tsr, .qnt, .cpx, .fc, .dxf, .dat, .plt, .eps files (and "
     ".txt files with the coordinates of the points separated by a colon).",
     "Cannot open the file"},
    {13, "Vous avez coupé sur le premier point d'un profil, impossible de couper à cet endroit.",
     "Opération impossible", "You cut at the first point of a profile; it is not possible to cut there.",
     "Operation not possible"},
    {14, "Vous avez coupé sur le dernier point d'un profil, impossible de couper à cet endroit.",
     "Opération impossible", "You cut at the last point of a profile; it is not possible to cut there.",
     "Operation not possible"},
    {15, "Veuillez entrer un nombre décimal positif ou négatif.", "Erreur de saisie",
     "Please enter a positive or negative decimal number.", "Input error"},
    {16, "L'opération demandée est impossible, une dimension est égale à zéro.", "Calcul impossible",
     "The requested operation is not possible: one dimension is zero.", "Calculation not possible"},
    {17, "La zone utile de la machine est dépassée, le projet est tronqué automatiquement.",
     "Dépassement des courses",
     "The working area of the machine is exceeded; the project is clipped automatically.", "Travel exceeded"},
    {18,
     "Le nom de cette matière est déjà utilisé (peut-être associé à une autre machine), il faut ajouter une "
     "lettre ou un chiffre pour pouvoir l'utiliser.",
     "Opération impossible",
     "The name of this material is already in use (possibly for another machine). Add a letter or a digit to "
     "be able to use it.",
     "Operation not possible"},
    {19, "Cette ligne ne peut pas être effacée.", "Opération impossible", "This line cannot be deleted.",
     "Operation not possible"},
    {20, "Valider l'effacement de ce matériau?", "Supprimer un matériau",
     "Do you want to delete this material?", "Delete a material"},
    {21,
     "Il y a un problème : la valeur de chauffe pour la matière choisie dépasse la valeur maxi pour cette "
     "machine. Elle sera bridée à la valeur maxi.",
     "Valeur de chauffe trop élevée",
     "There is a problem: the heating value of the chosen material is higher than the maximum of this "
     "machine. It will be limited to the maximum.",
     "Heating value too high"},
    {22, "Appairage", "Interface USB détectée", "Pairing", "USB interface detected"},
    {23, "Exécuter la procédure de retour à la position de repos ?", "Validation de sécurité",
     "Run the procedure that returns to the rest position?", "Safety confirmation"},
    {24, "Le fil est à la position de repos.", "Retour effectué", "The wire is in its rest position.",
     "Return completed"},
    {25, "L'opération a été annulée.", "Arrêt d'urgence", "The operation was canceled.", "Emergency stop"},
    {26,
     "La boucle des interrupteurs d'origine est ouverte.\r\n"
     "Ce n'est pas normal.\r\n"
     "Il faut dégager les interrupteurs en tournant les moteurs à la main\r\n"
     "(couper l'alimentation s'ils résistent).",
     "Sortie des courses",
     "The origin switch loop is open.\r\n"
     "This is not normal.\r\n"
     "Free the switches by turning the motors by hand\r\n"
     "(switch off the power supply if they resist).",
     "Travel limits exceeded"},
    {27,
     "La boucle des interrupteurs de fin de course est ouverte.\r\n"
     "Ce n'est pas normal.\r\n"
     "Il faut dégager les interrupteurs en tournant les moteurs à la main\r\n"
     "(couper l'alimentation s'ils résistent).",
     "Sortie des courses",
     "The limit switch loop is open.\r\n"
     "This is not normal.\r\n"
     "Free the switches by turning the motors by hand\r\n"
     "(switch off the power supply if they resist).",
     "Travel limits exceeded"},
    {28, "Déplacement en position de rangement?", "Validation de sécurité", "Move to the parking position?",
     "Safety confirmation"},
    {29, "Position de rangement atteinte.", "Mouvement effectué", "Parking position reached.",
     "Move completed"},
    {30, "Les interrupteurs de la table courante ne sont pas actifs.", "Impossible de faire la procédure.",
     "The switches of the current table are not active.", "The procedure cannot be run."},
    {31,
     "Un interrupteur de fin de course est ouvert, la procédure ne peut pas commencer.\r\n"
     "Dégagez tous les interrupteurs en tournant les tiges filetées à la main.",
     "Impossible de faire la procédure.",
     "A limit switch is open; the procedure cannot start.\r\n"
     "Free all switches by turning the lead screws by hand.",
     "The procedure cannot be run."},
    {32,
     "Un interrupteur d'origine est ouvert, la procédure ne peut pas commencer.\r\n"
     "Dégagez tous les interrupteurs en tournant les tiges filetées à la main.",
     "Impossible de faire la procédure.",
     "An origin switch is open; the procedure cannot start.\r\n"
     "Free all switches by turning the lead screws by hand.",
     "The procedure cannot be run."},
    {33,
     "Il y a un problème, il semblerait qu'il faille plus de 2mm pour sortir des interrupteurs. On va "
     "essayer encore...",
     "Recherche de l'origine",
     "There is a problem: it seems to take more than 2mm to clear the switches. Trying once more...",
     "Homing"},
    {34,
     "Les interrupteurs sont encore ouverts. La mise à l'origine n'est pas possible, contrôlez la machine.",
     "Recherche de l'origine",
     "The switches are still open. Homing is not possible; please check the machine.", "Homing"},
    {35, "Arrêt chauffe et mouvements par appui sur bouton STOP de la machine.", "Arrêt d'urgence",
     "Heating and motion stopped by the STOP button of the machine.", "Emergency stop"},
    {36, "Un problème est survenu lors du calcul du temps de découpe.", "Annulation",
     "A problem occurred while the cutting time was being calculated.", "Canceled"},
    {37,
     "Pas de tracé chargé.\r\n"
     "Impossible d'accéder aux paramètres de découpe",
     "Opération impossible",
     "No path loaded.\r\n"
     "The cutting parameters cannot be opened",
     "Operation not possible"},
    {38, "Faut-il remplacer les valeurs mémorisée pour cette matière par les valeurs affichées?", "Matière",
     "Do you want to replace the values stored for this material with the values displayed?", "Material"},
    {39, "Découpe terminée, fil en position de repos, chauffe coupée.", "machine disponible",
     "Cut finished, wire in its rest position, heating off.", "machine available"},
    {40, "Attention, la chauffe n'est pas coupée!", "Problème de communication avec la machine",
     "Warning: the heating is not off!", "Communication problem with the machine"},
    {41,
     "Le bouton Stop a été appuyé avant le début du mouvement.\r\n"
     "La chauffe est coupée.",
     "Arrêt pendant la chauffe",
     "The Stop button was pressed before the motion started.\r\n"
     "The heating is off.",
     "Stopped while heating"},
    {42, "Le bouton STOP a été appuyé, opération annulée.", "Arrêt d'urgence",
     "The STOP button was pressed; operation canceled.", "Emergency stop"},
    {43, "Attention, le fil n'est pas à sa position de repos.", "Arrêt dans la zone utile",
     "Warning: the wire is not in its rest position.", "Stopped in the working area"},
    {44, "Le fil est à la position de repos.", "Retour effectué", "The wire is in its rest position.",
     "Return completed"},
    {45,
     "Un interrupteur est ouvert, la découpe ne peut pas commencer.\r\n"
     "Dégagez tous les interrupteurs en tournant les tiges filetées à la main.",
     "Impossible de faire la découpe.",
     "A switch is open; the cut cannot start.\r\n"
     "Free all switches by turning the lead screws by hand.",
     "The cut cannot be made."},
    {46,
     "Un interrupteur de mise à l'origine s'est ouvert. Ce n'est pas normal, dégagez la pièce et refaites "
     "l'origine.",
     "Arrêt en cours de découpe!",
     "An origin switch has opened. This is not normal: free the part and home the machine again.",
     "Stopped during the cut!"},
    {47,
     "Un interrupteur de fin de course s'est ouvert. Ce n'est pas normal, dégagez la pièce et refaites "
     "l'origine.",
     "Arrêt en cours de découpe!",
     "A limit switch has opened. This is not normal: free the part and home the machine again.",
     "Stopped during the cut!"},
    {48, "Le poussoir d'arrêt d'urgence a été appuyé, annulation de la découpe.",
     "Arrêt en cours de découpe!", "The emergency stop button was pressed; the cut is canceled.",
     "Stopped during the cut!"},
    {50, "Copie annulée", "Copie de fichiers", "Copy canceled", "Copying files"},
    {51, "Les fichiers ont été copiés à l'emplacement demandé.", "Copie de fichiers",
     "The files have been copied to the requested location.", "Copying files"},
    {52, "La zone utile de la machine est dépassée, le projet est tronqué automatiquement.",
     "Dépassement des courses",
     "The working area of the machine is exceeded; the project is clipped automatically.", "Travel exceeded"},
    {53, "Pas de tracé dans le bloc.", "Opération impossible", "There is no path in the block.",
     "Operation not possible"},
    {54, "Opération impossible.", "Annulation", "Operation not possible.", "Canceled"},
    {55,
     "Clic droit à l'endroit du zoom\r\n"
     "puis molette de la souris\r\n"
     "ou flèches haut et bas du clavier.",
     "Zoom",
     "Right-click where you want to zoom\r\n"
     "then use the mouse wheel\r\n"
     "or the up and down arrows of the keyboard.",
     "Zoom"},
    {56,
     "La valeur de vitesse mémorisée pour cette matière dépasse la valeur maximale possible sur la "
     "machine.\r\n"
     "La vitesse sera bridée à la valeur maximale.",
     "Vitesse trop élevée",
     "The speed stored for this material is higher than the maximum the machine allows.\r\n"
     "The speed will be limited to the maximum.",
     "Speed too high"},
    {57,
     "Le nom de cette matière est déjà en mémoire (mode Expert).\r\n"
     "Ecraser les valeurs?",
     "Modification d'une matière",
     "The name of this material is already stored (Expert mode).\r\n"
     "Overwrite the values?",
     "Changing a material"},
    {58,
     "Il y a un problème : la valeur de vitesse pour la matière choisie n'est pas dans les limites "
     "admissibles par la machine.\r\n"
     "La vitesse sera bridée à la valeur maximale.",
     "Valeur incorrecte",
     "There is a problem: the speed of the chosen material is not within the limits of the machine.\r\n"
     "The speed will be limited to the maximum.",
     "Incorrect value"},
    {59,
     "Il y a un problème : la valeur de saignée pour la matière choisie dépasse la limite définie dans les "
     "paramètres du logiciel.\r\n"
     "La saignée sera bridée à la valeur maximale. Vous pouvez modifier ce paramètre en cliquant sur le "
     "bouton marqué d'un i.",
     "Valeur incorrecte",
     "There is a problem: the kerf of the chosen material is above the limit set in the preferences of the "
     "program.\r\n"
     "The kerf will be limited to the maximum. You can change this setting by clicking on the button marked "
     "with an i.",
     "Incorrect value"},
    {60,
     "Il y a un problème : la valeur de chauffe mémorisée pour cette matière dépasse la valeur maximale "
     "possible sur la machine.\r\n"
     "La chauffe sera bridée à la valeur maximale.",
     "Valeur incorrecte",
     "There is a problem: the heating value stored for this material is higher than the maximum the machine "
     "allows.\r\n"
     "The heating will be limited to the maximum.",
     "Incorrect value"},
    {61, "Etes-vous sûr de vouloir effacer les paramètres et le nom de cette machine?",
     "Supprimer une machine", "Are you sure you want to delete the parameters and the name of this machine?",
     "Delete a machine"},
    {62, "Pas d'autre matière associée à une autre machine", "Opération impossible",
     "There is no other material that belongs to another machine", "Operation not possible"},
};

} // namespace

std::span<const RangeeTexte> Doubles01a64() {
    return RANGEES;
}

} // namespace tessarel
