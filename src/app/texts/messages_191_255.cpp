// Rows 191 to 255 of the messages, French and English side by side.
#include "app/texts/rangees.h"

namespace tessarel {
namespace {

constexpr RangeeTexte RANGEES[] = {
    {191, "Quitter la partie 2D de Tessarel ?", "Retour à l'écran d'accueil",
     "Leave the 2D part of Tessarel?", "Back to the start screen"},
    {192,
     "Le projet n'a pas de nom, ce n'est pas normal, merci de remonter le bug à " TESSAREL_COURRIEL_SUPPORT,
     "Erreur",
     "The project has no name, which is not normal. Please report the bug to " TESSAREL_COURRIEL_SUPPORT,
     "Error"},
    {193, "Profil", "sans dimension", "Profile", "without dimension"},
    {194, "Profil(s)", "Projet 2D", "Profile(s)", "Projet 2D"},
    {195, "Projet 4 axes", "", "4-axis project", ""},
    {196, "Nettoyage : ", "", "Cleanup: ", ""},
    {197, "Les paramètres de la machine ne permettent pas le retour automatique", "Opération impossible",
     "The parameters of the machine do not allow the automatic return", "Operation not possible"},
    {198, "Un projet vide ne peut pas être sauvegardé.", "Opération impossible",
     "An empty project cannot be saved.", "Operation not possible"},
    {199, "Un projet portant ce nom est déjà présent dans l'onglet 4 axes. Changez de nom.",
     "Opération impossible",
     "A project with this name is already open in the 4-axis tab. Choose another name.",
     "Operation not possible"},
    {200,
     "Attention, vous allez remplacer un fichier contenant un projet 4 axes par un fichier de projet 2D. "
     "Continuer?",
     "Type de projet",
     "Warning: you are about to replace a file that holds a 4-axis project with a 2D project file. Continue?",
     "Project type"},
    {201, "Exporter le trajet complet en DXF...", "", "Export the whole path as DXF...", ""},
    {202, "L'extension de fichier n'est pas correcte, l'exportation se fait en .dxf", "Opération impossible",
     "The file extension is wrong; the export is made as .dxf", "Operation not possible"},
    {203, "Erreur lors de la procédure d'enregistrement.", "Anomalie", "Error while saving.", "Fault"},
    {204, "Choisissez les fichiers à copier dans la bibliothèque et cliquez sur Ouvrir", "",
     "Choose the files to copy to the library and click on Open", ""},
    {205, "Vous devez d'abord cliquer sur le fichier à supprimer", "Pas de sélection",
     "You must first click on the file to delete", "No selection"},
    {206, "Déplacement dans la corbeille effectué", "Suppression", "Moved to the recycle bin", "Deletion"},
    {207, "Le déplacement dans la corbeille n'a pas pu être effectué", "Echec de la suppression",
     "The file could not be moved to the recycle bin", "Deletion failed"},
    {208, "Sélectionnez le dossier de destination", "", "Select the destination folder", ""},
    {209, "Le nom est déjà utilisé, il faut le modifier ou ajouter au moins un caractère",
     "Opération impossible", "The name is already in use; change it or add at least one character",
     "Operation not possible"},
    {210, "La chauffe de la matière importée (",
     "%)est supérieure à la chauffe maxi de la machine courante (", "The heating of the imported material (",
     "%) is higher than the maximum heating of the current machine ("},
    {211, "La valeur de chauffe de la nouvelle matière sera celle de la chauffe maxi de la machine courante.",
     "Chauffe maxi dépassée",
     "The heating of the new material will be the maximum heating of the current machine.",
     "Maximum heating exceeded"},
    {212, " (machine : ", "", " (machine: ", ""},
    {213, "Impossible d'accéder en ligne au numéro de la dernière version disponible.", "Contrôle de version",
     "The number of the latest version could not be read online.", "Version check"},
    {214, "Les modifications ne seront pas prises en compte.", "Sortie sans valider",
     "The changes will not be kept.", "Leaving without confirming"},
    {215,
     "Le nettoyage s'applique à deux moments :\r\n"
     "- automatiquement, lors de l'ouverture d'un fichier .dxf\r\n"
     "- sur demande de l'utilisateur (bouton \"Nettoyer\")\r\n"
     "Si le nettoyage enlève trop de points, annulez votre opération et baissez sa force.\r\n"
     "Cliquez sur le bouton central pour revenir à la valeur par défaut (0.020).",
     "Force du nettoyage",
     "The cleanup is applied at two moments:\r\n"
     "- automatically, when a .dxf file is opened\r\n"
     "- at the user's request (\"Clean up\" button)\r\n"
     "If the cleanup removes too many points, undo your operation and lower its strength.\r\n"
     "Click on the middle button to go back to the default value (0.020).",
     "Strength of the cleanup"},
    {216,
     "Attention, le mode Expert permet de faire varier la vitesse en Découpe 2D.\r\n"
     "Vos paramètres de chauffe devront être ajustés en conséquence.\r\n"
     "Ce mode n'est pas destiné aux débutants.\r\n"
     "En choisissant ce mode vous déclarez êtes suffisamment compétent\r\n"
     "pour vous en servir sans dommage pour la machine de découpe.",
     "",
     "Warning: Expert mode lets you vary the speed in 2D cutting.\r\n"
     "You will have to adjust your heating settings accordingly.\r\n"
     "This mode is not meant for beginners.\r\n"
     "By choosing this mode, you declare that you are skilled enough\r\n"
     "to use it without damaging the cutting machine.",
     ""},
    {217,
     "Pour changer l'emplacement du dossier de Documents\\Tessarel, la procédure est la suivante :\r\n"
     "- Utiliser le boutons ci-dessous pour choisir le nouvel emplacement.\r\n"
     "ATTENTION, il faut donner l'emplacement dans lequel sera déplacé \\Tessarel,\r\n"
     "IL NE FAUT PAS donner un emplacement qui s'appelle déjà Tessarel.\r\n"
     "Le dossier choisi doit être accessible en écriture pour le logiciel (ce qui n'est pas le cas de "
     "\"Program Files\" par exemple).\r\n"
     "Un fichier \"UserChoice.ini\" va être créé dans l'emplacement actuel de \"\\Tessarel\\Datas\" (voir "
     "fenêtre Information).\r\n"
     "- Déplacer ensuite TOUT le dossier \"Tessarel\" à l'emplacement que vous avez choisi (sinon le "
     "logiciel va en créer un qui sera vide).\r\n"
     "- Déplacer ensuite le fichier \"UserChoice.ini\" dans le dossier \"\\Program Files\\Tessarel\", ce qui "
     "permettra au logiciel de savoir où chercher à la prochaine ouverture.\r\n"
     "Ces opérations ne peuvent pas être automatisées pour des raisons de permission d'accès de Windows.",
     "",
     "To change the location of the folder Documents\\Tessarel, proceed as follows:\r\n"
     "- Use the button below to choose the new location.\r\n"
     "WARNING: give the location INTO WHICH \\Tessarel will be moved;\r\n"
     "DO NOT give a location that is itself called Tessarel.\r\n"
     "The program must be able to write to the chosen folder (which is not the case for \"Program Files\", "
     "for example).\r\n"
     "A file \"UserChoice.ini\" will be created in the current location of \"\\Tessarel\\Datas\" (see the "
     "Information window).\r\n"
     "- Then move the WHOLE \"Tessarel\" folder to the location you chose (otherwise the program will create "
     "an empty one there).\r\n"
     "- Then move the file \"UserChoice.ini\" into the folder \"\\Program Files\\Tessarel\", so that the "
     "program knows where to look the next time it starts.\r\n"
     "These operations cannot be automated because of Windows access permissions.",
     ""},
    {218, "Pour valider, il faut d'abord saisir un nom de table", "Erreur de saisie",
     "Enter a table name before you confirm", "Input error"},
    {219, "Ce nom est réservé, vous ne pouvez pas l'utiliser", "Nom invalide",
     "This name is reserved, you cannot use it", "Invalid name"},
    {220, "Le nom de cette table existe déjà, impossible de l'utiliser", "Nom invalide",
     "A table with this name already exists, it cannot be used", "Invalid name"},
    {221,
     "Les modifications qui n'ont pas été validée par un des boutons Valider ne seront pas prises en "
     "compte.\r\n"
     "Quitter quand même?",
     "Attention",
     "Changes that were not confirmed with one of the Confirm buttons will be lost.\r\n"
     "Leave anyway?",
     "Warning"},
    {222,
     "Cette mesure doit être faite en décalant les chariots le plus possible l'un de l'autre, "
     "horizontalement et verticalement, en restant dans les possibilités de la machine.\r\n"
     "Avant chaque découpe, le logiciel vérifiera que la découpe ne demande pas une longueur de fil "
     "supérieure et vous avertira si c'est le cas, avec une représentation graphique des endroits "
     "problématiques.",
     "Limite de longueur du fil pour les découpes obliques",
     "Take this measurement with the carriages as far apart as possible, horizontally and vertically, within "
     "what the machine allows.\r\n"
     "Before each cut, the program checks that the cut does not need a longer wire and warns you if it does, "
     "with a drawing of the places that cause a problem.",
     "Wire length limit for oblique cuts"},
    {223,
     "Il est conseillé d'effectuer ces mesures avec les chariots à l'origine, pour qu'ils soient bien l'un "
     "en face de l'autre.\r\n"
     "Exemple : \r\n"
     "- J'ai un plateau de 500mm de large.\r\n"
     "- Je mesure 518mm entre le points d'articulation du fil (ce qui correspond souvent à la distance entre "
     "les faces des chariots).\r\n"
     "- Je mesure 10.5mm du côté 1 et 7.5mm du côté 2.\r\n"
     "- Le logiciel m'indique bien une largeur de plateau de 500mm, donc mes mesures sont bonnes.",
     "Paramètres très importants pour la précision des découpes",
     "It is best to take these measurements with the carriages at the origin, so that they face each other "
     "exactly.\r\n"
     "Example: \r\n"
     "- My table top is 500mm wide.\r\n"
     "- I measure 518mm between the pivot points of the wire (often the same as the distance between the "
     "faces of the carriages).\r\n"
     "- I measure 10.5mm on side 1 and 7.5mm on side 2.\r\n"
     "- The program does show a table top width of 500mm, so my measurements are right.",
     "Parameters that matter a great deal for the accuracy of the cuts"},
    {224,
     "L'interface vient d'être branchée\r\n"
     "Cliquez sur OK pour lire les noms en mémoire\r\n"
     "puis choisissez la mémoire à remplacer\r\n"
     "et demandez à nouveau la validation",
     "",
     "The interface has just been plugged in\r\n"
     "Click on OK to read the names in memory\r\n"
     "then choose the memory to replace\r\n"
     "and confirm again",
     ""},
    {225,
     "Erreur : plantage lors de la lecture des tableaux de paramètres\r\n"
     "Merci de contacter l'auteur du logiciel sur " TESSAREL_COURRIEL_SUPPORT,
     "",
     "Error: crash while reading the parameter tables\r\n"
     "Please contact the author of the program at " TESSAREL_COURRIEL_SUPPORT,
     ""},
    {226,
     "Operation impossible, l'interface n'est pas détectée.\r\n"
     "Connectez l'interface puis recommencez.",
     "",
     "Operation not possible: the interface is not detected.\r\n"
     "Connect the interface and try again.",
     ""},
    {227,
     "Erreur : plantage lors de la sauvegarde dans le fichier .ini\r\n"
     "Merci de contacter l'auteur du logiciel sur " TESSAREL_COURRIEL_SUPPORT,
     "",
     "Error: crash while saving to the .ini file\r\n"
     "Please contact the author of the program at " TESSAREL_COURRIEL_SUPPORT,
     ""},
    {228,
     "VitesseDecoupeParDefaut de la table en cours modifiée à 4 dans Tessarel.ini pour éviter les erreurs de "
     "calcul.",
     "VitesseDecoupeParDefaut=0, valeur impossible",
     "VitesseDecoupeParDefaut of the current table changed to 4 in Tessarel.ini to prevent calculation "
     "errors.",
     "VitesseDecoupeParDefaut=0, impossible value"},
    {229, "Course X égale à zéro. C'est impossible, elle sera forcée à 300", "Erreur de saisie",
     "X travel is zero. This is impossible; it will be set to 300", "Input error"},
    {230, "Course Y égale à zéro. C'est impossible, elle sera forcée à 300", "Erreur de saisie",
     "Y travel is zero. This is impossible; it will be set to 300", "Input error"},
    {231,
     "La valeur de chauffe par défaut ne peut pas être supérieure à la valeur maxi de chauffe, elle va être "
     "modifiée.",
     "Valeur de chauffe trop élevée",
     "The default heating value cannot be higher than the maximum heating value; it will be changed.",
     "Heating value too high"},
    {232,
     "Comme l'origine est en haut de l'axe Y, la valeur permettant de ranger le fil plus bas que l'origine "
     "(onglet Ecartements) sera enregistrée à zéro",
     "Modification d'une valeur",
     "As the origin is at the top of the Y axis, the value that parks the wire lower than the origin "
     "(Spacings tab) will be stored as zero",
     "A value was changed"},
    {233,
     "La valeur de chauffe pour le nettoyage du fil ne peut pas être supérieure à la valeur maxi de chauffe, "
     "elle va être modifiée.",
     "Valeur de chauffe trop élevée",
     "The heating value for the wire cleaning cannot be higher than the maximum heating value; it will be "
     "changed.",
     "Heating value too high"},
    {234,
     "V découpe est supérieure à V max sans accélération.\r\n"
     "Ce n'est pas possible. V découpe va être modifiée",
     "Contrôle des valeurs",
     "The cutting speed is higher than the maximum speed without acceleration.\r\n"
     "This is not possible. The cutting speed will be changed",
     "Checking the values"},
    {235,
     "V rapide est supérieure à V max avec accélération.\r\n"
     "Ce n'est pas possible. V rapide va être modifiée",
     "Contrôle des valeurs",
     "The rapid speed is higher than the maximum speed with acceleration.\r\n"
     "This is not possible. The rapid speed will be changed",
     "Checking the values"},
    {236,
     "La valeur de saignée n'est pas réaliste, elle risque de faire planter le programme.\r\n"
     "Elle va être modifiée.",
     "Contrôle des valeurs",
     "The kerf is not realistic and might crash the program.\r\n"
     "It will be changed.",
     "Checking the values"},
    {237, "La machine ", " ne peut pas être effacée", "Machine ", " cannot be deleted"},
    {238,
     "Le nom de la machine est vide, c'est anormal. Vous devez effacer cette machine directement dans le "
     "fichier Tessarel.ini",
     "Opération impossible",
     "The name of the machine is empty, which is not normal. You must delete this machine directly in the "
     "file Tessarel.ini",
     "Operation not possible"},
    {239,
     "Erreur : plantage lors de la lecture des caractéristiques de la table\r\n"
     "Merci de contacter l'auteur du logiciel sur " TESSAREL_COURRIEL_SUPPORT,
     "",
     "Error: crash while reading the characteristics of the table\r\n"
     "Please contact the author of the program at " TESSAREL_COURRIEL_SUPPORT,
     ""},
    {240,
     "Erreur : plantage lors de la sauvegarde dans le fichier .ini\r\n"
     "Merci de contacter l'auteur du logiciel sur " TESSAREL_COURRIEL_SUPPORT,
     "",
     "Error: crash while saving to the .ini file\r\n"
     "Please contact the author of the program at " TESSAREL_COURRIEL_SUPPORT,
     ""},
    {241, "Le format d'un nombre pose problème.", "Erreur de saisie", "The format of a number is not valid.",
     "Input error"},
    {242, "Valeur nulle impossible, la valeur va être remplacée par 1", "Erreur de saisie",
     "Zero is not possible; the value will be replaced with 1", "Input error"},
    {243, "Valeur nulle impossible, la valeur va être remplacée par 200", "Erreur de saisie",
     "Zero is not possible; the value will be replaced with 200", "Input error"},
    {244,
     "Erreur sur la structure du fichier Tessarel.ini, il semblerait que les caractères de retour chariot CR "
     "ne sont pas présents. Les lignes doivent se terminer par les caractères invisibles CR (retour chariot) "
     "et LF (saut de ligne). Cela peut être corrigé en ouvrant le fichier avec Wordpad (attention, Wordpad, "
     "pas Notepad) et en faisant Fichier > Enregistrer.",
     "Problème de fichier .ini",
     "The structure of the file Tessarel.ini is wrong: the carriage return characters (CR) seem to be "
     "missing. Lines must end with the invisible characters CR (carriage return) and LF (line feed). To fix "
     "this, open the file in WordPad (make sure it is WordPad, not Notepad) and choose File > Save.",
     "Problem with the .ini file"},
    {247, "Pas d'interface", "Mouvements désactivés", "No interface", "Motion disabled"},
    {248,
     "Interface détectée\r\n"
     "(Zelko)",
     "Même nom mais paramètres différents, mouvements désactivés",
     "Interface detected\r\n"
     "(Zelko)",
     "Same name but different parameters, motion disabled"},
    {249, "Aucune table du même nom, mouvements désactivés",
     "Même nom et même définition des sorties actives, mouvements activés!",
     "No table with the same name, motion disabled",
     "Same name and same definition of the active outputs, motion enabled!"},
    {250, "Une nouvelle version est disponible : ", "Impossible de vérifier la mise à jour",
     "A new version is available: ", "Unable to check for updates"},
    {251,
     "Tessarel va lancer le navigateur internet puis va se fermer. Téléchargez puis lancez l'installeur de "
     "mise à jour.\r\n"
     "Attention à télécharger l'installeur de mise à jour, pas l'installeur complet, pour que les matières "
     "et projets ne soient pas modifiés.",
     "Télécharger la mise à jour",
     "Tessarel will open the web browser and then close. Download the update installer, then run it.\r\n"
     "Make sure you download the update installer, not the full installer, so that your materials and "
     "projects are left as they are.",
     "Download the update"},
    {253, "Découper", "Exporter", "Cut", "Export"},
    {254, "", "Découpe 4 axes > Calibrer une matière", "", "4-axis cutting > Calibrate a material"},
};

} // namespace

std::span<const RangeeTexte> Messages191a255() {
    return RANGEES;
}

} // namespace tessarel
