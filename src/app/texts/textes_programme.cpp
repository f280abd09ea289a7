// The texts that have a name and no row number, in both languages side by side.
#include "app/texts/textes_programme.h"

#include "app/texts/aide_2d.h"
#include "app/texts/textes.h"

#include <array>

namespace tessarel {
namespace {

struct LigneTexte {
    TexteProgramme cle;
    const char* francais;
    const char* english;
};

constexpr std::size_t NombreTextes = static_cast<std::size_t>(TexteProgramme::Fin);

#define COURRIEL TESSAREL_COURRIEL_SUPPORT
constexpr std::array<LigneTexte, NombreTextes> TEXTES = {{
    // Titles that many boxes share
    {TexteProgramme::TitreErreur, "Erreur", "Error"},
    {TexteProgramme::TitreOperationImpossible, "Opération impossible", "Operation not possible"},

    // Start-up
    {TexteProgramme::InstanceUnique,
     "Tessarel ne peut avoir qu'une seule instance, l'instance que vous venez de lancer va se fermer.",
     "Tessarel can only run once at a time. The instance you have just started will now close."},
    {TexteProgramme::InstanceUniqueTitre, "Tessarel est déjà en route", "Tessarel is already running"},
    {TexteProgramme::ErreurChargementRam,
     "Erreur de réponse de l'interface lors du chargement de la table en RAM %1\r\n"
     "dans la procédure AffichageSplashEtTestsZelko de la feuille frmSplashScreen\r\n"
     "Contactez l'auteur du logiciel en lui donnant les informations ci-dessus (mail de contact : " COURRIEL
     ")",
     "The interface answered with an error while the table was being loaded into its RAM %1\r\n"
     "in procedure AffichageSplashEtTestsZelko of window frmSplashScreen\r\n"
     "Please contact the author of the program and pass on the information above (contact: " COURRIEL ")"},
    {TexteProgramme::ErreurEtape, "Erreur %1 (%2) à la ligne %3, de la procédure %4 de Feuille %5",
     "Error %1 (%2) at line %3 of procedure %4 of window %5"},
    {TexteProgramme::ContactAuteur,
     "Contactez l'auteur du logiciel en lui donnant les informations ci-dessus (mail de contact : " COURRIEL
     ")",
     "Please contact the author of the program and pass on the information above (contact: " COURRIEL ")"},
    {TexteProgramme::ProcedureErreur, "Procédure de l'erreur : %1", "Procedure of the error: %1"},
    // Deliberate: no blank before the name in a title.
    {TexteProgramme::ProcedureErreurTitre, "Procédure de l'erreur :%1", "Procedure of the error: %1"},
    {TexteProgramme::IniSansRetourChariot,
     "Erreur sur la structure du fichier Tessarel.ini, il semblerait que les caractères de retour chariot CR "
     "ne sont pas présents. \r\n"
     "Les lignes doivent se terminer par les caractères invisibles CR (retour chariot) et LF (saut de "
     "ligne). \r\n"
     "Cela peut être corrigé en ouvrant le fichier avec Wordpad (attention, Wordpad, pas Notepad) et en "
     "faisant Fichier > Enregistrer.",
     "The structure of the file Tessarel.ini is wrong: the carriage return characters (CR) seem to be "
     "missing. \r\n"
     "Lines must end with the invisible characters CR (carriage return) and LF (line feed). \r\n"
     "To fix this, open the file in WordPad (make sure it is WordPad, not Notepad) and choose File > Save."},
    {TexteProgramme::IniSansRetourChariotMatieres,
     "Erreur sur la structure du fichier Tessarel.ini, il semblerait que les caractères de retour chariot CR "
     "ne sont pas présents. \r\n"
     "Les lignes doivent se terminer par les caractères invisibles CR (retour chariot) et LF (saut de "
     "ligne). \r\n"
     "Cela peut être corrigé en ouvrant le fichier avec Wordpad (attention, pas avec le bloc-notes) et en "
     "faisant Fichier > Enregistrer.",
     "The structure of the file Tessarel.ini is wrong: the carriage return characters (CR) seem to be "
     "missing. \r\n"
     "Lines must end with the invisible characters CR (carriage return) and LF (line feed). \r\n"
     "To fix this, open the file in WordPad (not in Notepad) and choose File > Save."},
    {TexteProgramme::IniSansRetourChariotTitre, "Problème de fichier .ini", "Problem with the .ini file"},
    {TexteProgramme::DossierImpossible, "Le dossier %1 n'a pas pu être créé : %2",
     "The folder %1 could not be created: %2"},
    {TexteProgramme::DossierImpossibleTitre, "Création de dossier", "Creating a folder"},
    {TexteProgramme::SplashCourses, "Courses : %1 × %2 mm", "Travel: %1 × %2 mm"},
    {TexteProgramme::SplashMemoireEgale, "mêmes paramètres", "same parameters"},
    {TexteProgramme::SplashMemoireDifferente, "paramètres différents", "different parameters"},
    {TexteProgramme::SplashMemoireVide, "mémoire vide", "empty memory"},

    // Machines and materials
    {TexteProgramme::ChargementMachineImpossible,
     "Problème : impossible de charger la table %1\r\nMerci de remonter le problème à " COURRIEL,
     "Problem: table %1 could not be loaded\r\nPlease report the problem to " COURRIEL},
    {TexteProgramme::ReparationTitre, "%1=0, valeur impossible", "%1=0, impossible value"},
    {TexteProgramme::ReparationTexte, "%1 modifiée à %2 dans Tessarel.ini pour éviter les erreurs de calcul.",
     "%1 changed to %2 in Tessarel.ini to prevent calculation errors."},
    {TexteProgramme::ReparationLongueurFil,
     "LongueurMaxiFil modifiée à la valeur EcartementY1Y2 dans Tessarel.ini pour éviter les erreurs de "
     "calcul.",
     "LongueurMaxiFil changed to the value of EcartementY1Y2 in Tessarel.ini to prevent calculation errors."},
    {TexteProgramme::OrigineEnHautTitre, "Machine avec origine en haut",
     "Machine with its origin at the top"},
    {TexteProgramme::OrigineEnHautTexte,
     "A partir de la version 4.1.15, Tessarel n'accepte plus les machines avec une origine en haut (comme la "
     "Quenta2D+).\r\n"
     "Le paramètre n'est d'ailleurs plus disponible dans la fenêtre de paramétrage.\r\n"
     "La machine %1 est enregistrée avec l'origine en haut dans le fichier Tessarel.ini.\r\n"
     "Ce paramètre va être modifié dans Tessarel.ini pour éviter le présent message, mais la machine ne sera "
     "plus utilisable dans Tessarel avec l'origine en haut.\r\n"
     "Pour utiliser une machine avec l'origine en haut, il faut utiliser le logiciel Tessarel2D %2",
     "Since version 4.1.15, Tessarel no longer accepts machines with their origin at the top (such as the "
     "Quenta2D+).\r\n"
     "The setting is no longer available in the parameter window either.\r\n"
     "Machine %1 is stored with its origin at the top in the file Tessarel.ini.\r\n"
     "This setting will be changed in Tessarel.ini so that this message does not come back, but Tessarel "
     "will no longer be able to use the machine with its origin at the top.\r\n"
     "To use a machine with its origin at the top, please use the program Tessarel2D %2"},
    {TexteProgramme::MachineParDefautChargee, "La machine par défaut va être chargée.",
     "The default machine will be loaded."},
    {TexteProgramme::MachineParDefautChargeeTitre, "Machine par défaut", "Default machine"},
    {TexteProgramme::SortiesIdentiques,
     "Validation impossible : deux sorties 'out' identiques sont utilisées pour des fonctions différentes.",
     "Validation not possible: the same output 'out' is used for two different functions."},
    {TexteProgramme::ChampNombreAttendu, "un nombre est attendu", "a number is expected"},
    {TexteProgramme::ChampHorsLimites, "la valeur doit être comprise entre %1 et %2 %3",
     "the value must lie between %1 and %2 %3"},
    {TexteProgramme::ChampSortieEnDouble, "sortie déjà utilisée", "output already in use"},
    {TexteProgramme::ChampZeroRemplace, "0 sera remplacé par %1", "0 will be replaced by %1"},
    {TexteProgramme::ChampSeraRamene, "sera ramené à %1", "will be reduced to %1"},
    {TexteProgramme::ChampPasTropFins, "micro-pas × pas par tour dépasse 32767",
     "micro-steps × steps per turn exceed 32767"},
    {TexteProgramme::NomMachineTropLong, "Les mémoires de l'interface ne gardent que 8 caractères du nom.",
     "The interface memories keep only 8 characters of the name."},
    {TexteProgramme::NomMachineImpossible,
     "Le nom ne peut contenir que des lettres sans accent, des chiffres, des espaces et des signes, sauf "
     "les crochets.",
     "The name can only hold letters without accents, digits, blanks and signs, but no square brackets."},
    {TexteProgramme::NomMatiereImpossible, "Le nom d'une matière ne peut pas contenir de crochet.",
     "The name of a material cannot hold a square bracket."},
    {TexteProgramme::SaigneeHorsCurseur, "La valeur n'est pas comprise dans les limites possibles",
     "The value is not within the possible limits"},
    {TexteProgramme::SaigneeYMoinsE, " Saignée = Y - E = ", " Kerf = Y - E = "},
    {TexteProgramme::SortiePas, "%1 pas", "%1 step"},
    {TexteProgramme::SortieDirection, "%1 sens", "%1 direction"},
    {TexteProgramme::SortieInversee, "%1, inversé", "%1, inverted"},
    {TexteProgramme::SortieLibre, "libre", "free"},
    {TexteProgramme::ParametresEffacerBulle, "Supprimer cette machine du fichier des réglages",
     "Remove this machine from the settings file"},
    {TexteProgramme::ParametresModifies, "Modifications non enregistrées", "Changes not stored"},
    {TexteProgramme::ParametresEcartementUtile, "Largeur utile du plateau : %1 mm",
     "Useful width of the table: %1 mm"},
    {TexteProgramme::ParametresMouvementsActifs, "Mémoire %1 : mouvements activés",
     "Memory %1: moves enabled"},
    {TexteProgramme::ParametresAbandon,
     "Les modifications de la machine %1 ne sont pas enregistrées.\r\nLes abandonner ?",
     "The changes to machine %1 are not stored.\r\nDrop them?"},
    {TexteProgramme::ParametresChargementDefaut, "Chargement de la table par défaut",
     "Loading the default table"},
    {TexteProgramme::ParametresChoisirMemoire, "Choisissez d'abord la mémoire de l'interface à remplacer.",
     "First choose the memory of the interface to replace."},
    {TexteProgramme::ParametresEnvoyes, "%1 : enregistrée et envoyée en mémoire %2",
     "%1: stored and sent to memory %2"},
    {TexteProgramme::ParametresEnregistres, "%1 : enregistrée dans le fichier", "%1: stored in the file"},
    {TexteProgramme::EssaiEnCours, "Mouvement en cours : %1 %", "Moving: %1%"},
    {TexteProgramme::EssaiTermine, "Mouvement terminé", "Move done"},
    {TexteProgramme::EssaiArrete, "Mouvement arrêté", "Move stopped"},
    {TexteProgramme::EssaiSansConfirmation, "Arrêt non confirmé par l'interface",
     "Stop not confirmed by the interface"},
    {TexteProgramme::EssaiImpossible, "Le mouvement n'a pas été exécuté", "The move was not carried out"},
    {TexteProgramme::ChauffeEssaiCoupure,
     "La chauffe ne répond pas à la commande d'arrêt, nouvel essai en cours…\r\n"
     "Coupez l'alimentation de la machine si le fil reste chaud.",
     "The heating does not answer the command to stop, trying again…\r\n"
     "Switch the machine's power off if the wire stays hot."},
    {TexteProgramme::EssaiSansReponse,
     "L'interface ne répond plus, nouvel essai en cours…\r\n"
     "Le bouton arrête le mouvement ; coupez l'alimentation de la machine en cas de danger.",
     "The interface does not answer any more, trying again…\r\n"
     "The button stops the move; switch the machine's power off in case of danger."},
    {TexteProgramme::ValeursMatiere, "%1 % · %2 mm/s · saignées %3 et %4 mm",
     "%1% · %2 mm/s · kerfs %3 and %4 mm"},
    {TexteProgramme::MachineDesMatieres, "Machine : %1", "Machine: %1"},
    {TexteProgramme::BoutonAbandonner, "Abandonner", "Give up"},
    {TexteProgramme::ExplicationsAbsentes, "Le document %1 n'a pas été trouvé à côté du programme.",
     "The document %1 was not found beside the program."},

    // The interface box
    {TexteProgramme::FilPeutEtreChaud,
     "L'interface n'a pas confirmé l'arrêt de la chauffe : le fil est peut-être encore chaud.\r\n"
     "Coupez l'alimentation de la chauffe à la main avant d'approcher du fil.",
     "The interface has not confirmed that the heating is off: the wire may still be hot.\r\n"
     "Switch the power of the heating off by hand before you go near the wire."},
    {TexteProgramme::FilChaudSurManu,
     "L'interrupteur de chauffe PC/MANU est sur MANU : le fil chauffe au réglage du bouton de l'interface, "
     "que "
     "le programme ne peut pas couper.\r\n"
     "Coupez la chauffe à la main avant d'approcher du fil.",
     "The heating switch PC/MANU is on MANU: the knob of the interface heats the wire, and the program "
     "cannot "
     "switch that off.\r\n"
     "Switch the heating off by hand before you go near the wire."},
    {TexteProgramme::FilChaudSurManuTitre, "Le fil est encore chaud", "The wire is still hot"},
    {TexteProgramme::DecoupeTermineeFilChaud, "Découpe terminée, fil en position de repos.",
     "Cut finished, wire in its rest position."},
    {TexteProgramme::MachineModifiee,
     "Rien n'a été lancé : la découpe affichée était calculée pour d'autres valeurs de la machine.\r\n"
     "Elle l'est maintenant pour « %1 ». Vérifiez-la, puis lancez-la de nouveau.",
     "Nothing was started: the cut shown had been computed for other values of the machine.\r\n"
     "It has now been computed for \"%1\". Check it, then start it again."},
    {TexteProgramme::MachineModifieeTitre, "Machine modifiée", "Machine changed"},
    {TexteProgramme::MachineModifieeALArret,
     "La découpe arrêtée ne peut pas être reprise : elle était faite pour d'autres valeurs de la machine que "
     "celles de « %1 ».",
     "The stopped cut cannot be resumed: it was made for other values of the machine than those of \"%1\"."},
    {TexteProgramme::ChauffeRattrapee,
     "L'interface répond à nouveau : les mouvements sont arrêtés et la chauffe est coupée.\r\n"
     "Le fil n'est peut-être plus où il était.",
     "The interface answers again: the moves are stopped and the heating is off.\r\n"
     "The wire may no longer be where it was."},
    {TexteProgramme::ChauffeRattrapeeTitre, "Interface retrouvée", "Interface found again"},
    {TexteProgramme::MachineEnMarche,
     "La machine bouge ou son fil chauffe, et ce programme ne la conduit pas.\r\n"
     "Une découpe a été interrompue, ou un autre programme se sert de la machine.\r\n\r\n"
     "Arrêter la machine et couper la chauffe ?",
     "The machine is moving or its wire is hot, and this program is not driving it.\r\n"
     "A cut was broken off, or another program is using the machine.\r\n\r\n"
     "Stop the machine and switch the heating off?"},
    {TexteProgramme::MachineEnMarcheTitre, "Machine en marche", "Machine running"},
    {TexteProgramme::MachineArretee,
     "La machine est arrêtée et la chauffe est coupée.\r\n"
     "Le fil n'est peut-être pas à sa position de repos : dégagez-le et refaites l'origine avant de "
     "découper.",
     "The machine has stopped and the heating is off.\r\n"
     "The wire may not be in its rest position: free it, and home the machine before you cut."},
    {TexteProgramme::MachineArreteeTitre, "Machine arrêtée", "Machine stopped"},
    {TexteProgramme::LaisseeEnMarche, "Laissée en marche", "Left running"},
    {TexteProgramme::LaisseeSansMouvements, "Machine laissée en marche, mouvements désactivés",
     "Machine left running, motion disabled"},
    {TexteProgramme::ArretPerime,
     "Le fil a pu bouger depuis l'arrêt, sans ce programme : la découpe arrêtée ne peut plus être reprise.",
     "The wire may have moved since the stop, without this program: the stopped cut can no longer be "
     "resumed."},
    {TexteProgramme::ArretPerimeTitre, "Reprise impossible", "Cannot resume"},
    {TexteProgramme::VitesseIncorrecte, "Valeur de Vitesse incorrecte", "Incorrect speed"},
    {TexteProgramme::ErreurPositionStop, "Erreur dans le calcul de la position du Stop => " COURRIEL,
     "Error in the calculation of the stop position => " COURRIEL},
    {TexteProgramme::MarcheSansRaison,
     "La machine s'est arrêtée sans que l'interface dise pourquoi : son alimentation a peut-être été coupée, "
     "ou un autre programme lui a parlé.\r\n"
     "Refaites l'origine avant de continuer.",
     "The machine has stopped and the interface does not say why: its power supply may have been cut, or "
     "another program has talked to it.\r\n"
     "Home the machine again before you go on."},
    {TexteProgramme::MarcheSansRaisonTitre, "Arrêt inexpliqué", "Unexplained stop"},
    {TexteProgramme::BoitierMuet,
     "L'interface ne répond plus. Nouvel essai en continu ; vérifiez le câble USB et l'alimentation.",
     "The interface does not answer any more. Trying again continuously; check the USB cable and the power "
     "supply."},
    {TexteProgramme::MarcheAbandonnee,
     "L'interface n'a pas confirmé l'arrêt : la machine peut être encore en mouvement.\r\n"
     "Appuyez sur le bouton STOP de la machine ou coupez son alimentation.",
     "The interface has not confirmed the stop: the machine may still be moving.\r\n"
     "Press the STOP button of the machine or cut its power supply."},
    {TexteProgramme::MarcheAbandonneeTitre, "Arrêt non confirmé", "Stop not confirmed"},
    {TexteProgramme::TempsRestant, "Temps restant : %1", "Time left: %1"},
    {TexteProgramme::DecoupeArretee, "Découpe arrêtée", "Cut stopped"},
    {TexteProgramme::ReprendreDecoupe, "Reprendre la découpe", "Resume the cut"},
    {TexteProgramme::ReprendreDecoupeBulle, "Chauffer le fil et couper le reste à partir de l'arrêt",
     "Heat the wire and cut the rest from the stop on"},
    {TexteProgramme::ReglagesDecoupe, "Réglages de la découpe arrêtée :", "Settings of the stopped cut:"},
    {TexteProgramme::RetourArrete, "Retour arrêté", "Return stopped"},
    {TexteProgramme::TerminerRetour, "Terminer le retour", "Finish the return"},
    {TexteProgramme::TerminerRetourBulle, "Chauffer le fil et finir le retour à partir de l'arrêt",
     "Heat the wire and finish the return from the stop on"},
    {TexteProgramme::ReglagesRetour, "Réglages du retour arrêté :", "Settings of the stopped return:"},
    {TexteProgramme::ChauffeCoupeeALArret, "Chauffe coupée, l'interface le confirme.",
     "Heating off, confirmed by the interface."},
    {TexteProgramme::TableHorsFormatTitre, "La table %1 n'est pas envoyée", "Table %1 is not sent"},
    {TexteProgramme::TableHorsFormat, "La valeur de %1 ne tient pas dans une mémoire de l'interface.",
     "The value of %1 does not fit a memory of the interface."},

    // Moves and heat by hand in 2D
    {TexteProgramme::OrigineAxeQuestion, "Chercher l'origine de l'axe %1 ?",
     "Find the origin of the %1 axis?"},
    {TexteProgramme::OrigineAxeFaite, "L'axe %1 est à son origine.", "The %1 axis is at its origin."},
    {TexteProgramme::OrigineAxeFaiteTitre, "Origine trouvée", "Origin found"},
    {TexteProgramme::SigneFilChaud, "FIL CHAUD", "HOT WIRE"},
    {TexteProgramme::SigneFilIncertain, "FIL PEUT-ÊTRE CHAUD", "WIRE MAY BE HOT"},
    {TexteProgramme::ManuelConseil, "Flèche tenue : le fil se déplace. Échap : STOP",
     "Hold an arrow to move the wire. Esc: STOP"},
    {TexteProgramme::ChauffeManuelleAtteinte, "Fil à température", "Wire at temperature"},
    {TexteProgramme::ChauffeManuelleCoupeeParMachine, "La machine a coupé la chauffe",
     "The machine has switched the heating off"},
    {TexteProgramme::ChauffeManuelleCoupeeEnfin, "Chauffe coupée, l'interface le confirme",
     "Heating off, the interface confirms it"},

    // Projects
    {TexteProgramme::FiltreProjet, "Projet Tessarel(*.tsr)|*.tsr|Tous les fichiers (*.*)|*.*",
     "Tessarel project (*.tsr)|*.tsr|All files (*.*)|*.*"},
    {TexteProgramme::CommentaireTropLong, "Commentaire trop long, il sera limité à 256 caractères.",
     "The comment is too long; it will be cut to 256 characters."},
    {TexteProgramme::CommentaireTropLongTitre, "Taille du commentaire", "Length of the comment"},
    {TexteProgramme::AncienneVersion,
     "Attention, ce fichier provient d'une ancienne version de Tessarel, il peut y avoir un erreur sur le "
     "placement en Z.\r\n"
     "Une fois le fichier ouvert, corrigez le placement et réenregistrez (clic sur le bouton Enregistrer) "
     "pour supprimer ce message à la prochaine ouverture.",
     "Warning: this file comes from an older version of Tessarel, and its placement in Z may be wrong.\r\n"
     "Once the file is open, correct the placement and save again (click on the Save button), and this "
     "message will not appear the next time you open it."},
    {TexteProgramme::AncienneVersionTitre, "Ancienne version de fichier", "Old file version"},

    // 4-axis design
    {TexteProgramme::IntermediaireNombres,
     "Le profil intermédiaire demande autant de points à l'emplanture qu'au saumon.",
     "The intermediate profile needs as many points on the root as on the tip."},
    {TexteProgramme::CtrlSansPremierBouton,
     "Le premier bouton du cadre, \"Points pour application des outils\", doit être enfoncé pour pouvoir "
     "utiliser la touche Ctrl pour déplacer des points.",
     "The first button of the frame, \"Points for the tools\", must be pressed in order to use the Ctrl key "
     "to "
     "move points."},
    {TexteProgramme::CordeTropPetite, "Une corde doit être supérieure à zéro.",
     "A chord must be above zero."},
    {TexteProgramme::OutilInconnu, "Il n'y a pas d'outil nommé %1.", "There is no tool named %1."},
    {TexteProgramme::OutilSansIndice, "%1 demande un indice.", "%1 needs an index."},
    {TexteProgramme::OutilIndice, "%1 : l'indice doit être un nombre de 0 à %2, et non %3.",
     "%1: the index must be a number from 0 to %2, and not %3."},
    {TexteProgramme::OutilValeur, "%1 demande une valeur.", "%1 needs a value."},
    {TexteProgramme::OutilTropDeTermes, "%1 : %2 est de trop.", "%1: %2 is too much."},

    // Drawings in and out
    {TexteProgramme::OuvrirDessinTitre,
     "Choisissez un fichier (.dxf, .tsr, .qnt, .cpx, .dat, .plt, .eps, .txt)",
     "Choose a file (.dxf, .tsr, .qnt, .cpx, .dat, .plt, .eps, .txt)"},
    {TexteProgramme::FiltreDessins,
     "Tessarel (*.tsr)|*.tsr|Quenta (*.qnt)|*.qnt|DAO (*.dxf)|*.dxf|"
     "Coordonnées et export SketchUp ou Scratch (*.txt)|*.txt|Profil (*.dat)|*.dat|Plotter (*.plt)|*.plt|"
     "Encapsulated PostScript (*.eps)|*.eps|Complexes (*.cpx)|*.cpx|RPFC (*.fc)|*.fc|"
     "Tous les fichiers connus|*.tsr;*.qnt;*.dxf;*.txt;*.dat;*.plt;*.eps;*.cpx;*.fc|"
     "Tous les fichiers (*.*)|*.*",
     "Tessarel (*.tsr)|*.tsr|Quenta (*.qnt)|*.qnt|CAD (*.dxf)|*.dxf|"
     "Coordinates and SketchUp or Scratch export (*.txt)|*.txt|Airfoil (*.dat)|*.dat|Plotter (*.plt)|*.plt|"
     "Encapsulated PostScript (*.eps)|*.eps|Complexes (*.cpx)|*.cpx|RPFC (*.fc)|*.fc|"
     "All known files|*.tsr;*.qnt;*.dxf;*.txt;*.dat;*.plt;*.eps;*.cpx;*.fc|"
     "All files (*.*)|*.*"},
    {TexteProgramme::FiltreExportDxf, "Format d'échange DAO (*.dxf)|*.dxf|Tous les fichiers (*.*)|*.*",
     "CAD exchange format (*.dxf)|*.dxf|All files (*.*)|*.*"},

    // Reasons of a refused file
    {TexteProgramme::LectureFichierVide, "le fichier est vide", "the file is empty"},
    {TexteProgramme::LectureFichierTronque, "le fichier s'arrête avant sa fin",
     "the file stops before its end"},
    {TexteProgramme::LectureFichierBinaire, "ce n'est pas un fichier de texte", "this is not a text file"},
    {TexteProgramme::LectureNombreAttendu, "un nombre était attendu au lieu de « %1 »",
     "a number was expected instead of \"%1\""},
    {TexteProgramme::LectureEntierAttendu, "un nombre entier était attendu au lieu de « %1 »",
     "a whole number was expected instead of \"%1\""},
    {TexteProgramme::LecturePointAttendu, "un point X:Y était attendu au lieu de « %1 »",
     "a point X:Y was expected instead of \"%1\""},
    {TexteProgramme::LecturePointProjetAttendu, "un point X:Y:Drapeaux était attendu au lieu de « %1 »",
     "a point X:Y:Drapeaux was expected instead of \"%1\""},
    {TexteProgramme::LectureChoixAttendu, "un choix de 0 à %1 était attendu au lieu de « %2 »",
     "a choice from 0 to %1 was expected instead of \"%2\""},
    {TexteProgramme::LectureValeurHorsLimites, "la valeur « %1 » est hors limites",
     "the value \"%1\" is out of range"},
    {TexteProgramme::LectureCoordonneeHorsLimites, "la coordonnée « %1 » est hors limites",
     "the coordinate \"%1\" is out of range"},
    {TexteProgramme::LectureNombrePoints, "%1 points sont annoncés, %2 sont présents",
     "%1 points are declared, %2 are present"},
    {TexteProgramme::LectureNombreSequences, "%1 séquences sont annoncées, %2 sont présentes",
     "%1 paths are declared, %2 are present"},
    {TexteProgramme::LectureCoordonneesAttendues,
     "deux nombres séparés par un double-point (X:Y) étaient attendus",
     "two numbers separated by a colon (X:Y) were expected"},
    {TexteProgramme::LectureAucuneCoordonnee, "aucune ligne de coordonnées X:Y",
     "no line of X:Y coordinates"},
    {TexteProgramme::LectureGenreInconnu, "cette version ne lit pas ce genre de fichier comme un dessin",
     "this version does not read this kind of file as a drawing"},
    {TexteProgramme::LectureAileAttendue, "les points d'un profil étaient attendus dans une section %1 ou %2",
     "the points of a profile were expected in a section %1 or %2"},
    {TexteProgramme::LecturePointAileAttendu, "un point X;Y était attendu au lieu de « %1 »",
     "a point X;Y was expected in place of \"%1\""},
    {TexteProgramme::LectureNombreCleAttendu, "%1 : un nombre était attendu au lieu de « %2 »",
     "%1: a number was expected in place of \"%2\""},
    {TexteProgramme::NoteDoublons, "tracés présents deux fois, que le fil couperait deux fois : %1",
     "paths that are there twice and that the wire would cut twice: %1"},
    {TexteProgramme::NoteAilePouces, "cotes en pouces mises en millimètres",
     "lengths in inches brought to millimeters"},
    {TexteProgramme::NoteAileProfilAbsent, "section %1 sans point", "section %1 without points"},
    {TexteProgramme::NoteAileProfilLu, "section %1 : points pris dans %2",
     "section %1: points taken from %2"},
    {TexteProgramme::LectureSansTrace, "le fichier ne contient aucun tracé", "the file holds no path"},
    {TexteProgramme::LectureTropDePoints, "le fichier contient %1 points, %2 au plus sont possibles",
     "the file holds %1 points; %2 is the most that is possible"},
    {TexteProgramme::EcritureImpossible, "Le fichier %1 n'a pas pu être écrit : %2",
     "The file %1 could not be written: %2"},
    {TexteProgramme::SortieEgaleEntree,
     "Le fichier %1 est à la fois lu et écrit, choisissez un autre nom pour la sortie.",
     "The file %1 is both read and written; choose another name for the output."},

    // 2D work
    {TexteProgramme::PasDeCoefficient, "pas de coeff défini => " COURRIEL,
     "no scale factor defined => " COURRIEL},
    {TexteProgramme::MargesPlusGrandesQueLeBloc,
     "Le bloc est trop petit pour ses marges intérieures, les tracés n'ont pas été mis à l'échelle.",
     "The block is too small for its inner margins; the paths have not been scaled."},
    {TexteProgramme::PileTransformations, "NbTransf <0 dans cmdUndoTS2D_click => " COURRIEL,
     "NbTransf <0 in cmdUndoTS2D_click => " COURRIEL},
    {TexteProgramme::TrajetTropLong,
     "Le trajet de découpe compte %1 points, %2 au plus sont possibles.\r\n"
     "Augmentez la force du nettoyage (fenêtre \"Informations\", bouton \"i\") ou retirez des séquences.",
     "The cutting path has %1 points; %2 is the most that is possible.\r\n"
     "Increase the strength of the cleanup (\"Information\" window, \"i\" button) or remove some paths."},
    {TexteProgramme::FiltreGcode, "Fichier Gcode(*.gcode)|*.gcode|Tous les fichiers (*.*)|*.*",
     "Gcode file (*.gcode)|*.gcode|All files (*.*)|*.*"},
    {TexteProgramme::VitesseTropBasse, "ATTENTION, vitesse < 0.05mm/s, découpe impossible",
     "WARNING: speed < 0.05mm/s, cutting is impossible"},

    // 4-axis cut
    {TexteProgramme::Decoupe4axesSansEcartement,
     "Découpe impossible, l'écartement est nul.\r\n"
     "Retournez dans l'onglet Conception 4 axes pour le corriger.",
     "Cutting is not possible: the spacing is zero.\r\n"
     "Go back to the 4-axis design tab to correct it."},
    {TexteProgramme::Decoupe4axesSansSegment,
     "Découpe impossible, il faut au moins deux points de chaque côté.\r\n"
     "Retournez dans l'onglet Conception 4 axes pour corriger cela.",
     "Cutting is not possible: each side needs at least two points.\r\n"
     "Go back to the 4-axis design tab to correct this."},
    {TexteProgramme::Decoupe4axesSansVitesse, "La vitesse de découpe est nulle, division impossible",
     "The cutting speed is zero, division impossible"},
    {TexteProgramme::IndiceHorsBornes, "L'indice %1 dépasse le nombre de points, %2",
     "Index %1 is beyond the number of points, %2"},
    {TexteProgramme::Apercu4xCote, "Vue de côté", "Side view"},
    {TexteProgramme::Apercu4xPlan, "Vue de dessus", "View from above"},
    {TexteProgramme::Apercu4xChariot1, "Chariot 1", "Carriage 1"},
    {TexteProgramme::Apercu4xChariot2, "Chariot 2", "Carriage 2"},
    {TexteProgramme::Apercu4xEmplanture, "Côté 2, chariot 2", "Side 2, carriage 2"},
    {TexteProgramme::Apercu4xSaumon, "Côté 1, chariot 1", "Side 1, carriage 1"},

    // Library and report of an opening
    {TexteProgramme::BibliothequeFichierExterieur, "Fichier extérieur à la bibliothèque",
     "File outside the library"},
    {TexteProgramme::BibliothequeTropGrande, "Bibliothèque trop grande : une partie n'est pas montrée",
     "The library is too large: part of it is not shown"},
    {TexteProgramme::BibliothequeCopieImpossible,
     "Ces fichiers n'ont pas pu être copiés :", "These files could not be copied:"},
    {TexteProgramme::ApercuDe, "Aperçu : %1", "Preview: %1"},
    {TexteProgramme::OuvertureJoints, "joints : %1", "joined: %1"},
    {TexteProgramme::OuvertureRetournes, "retournés : %1", "turned around: %1"},
    {TexteProgramme::OuverturePointsRetires, "points retirés : %1", "points removed: %1"},
    {TexteProgramme::OuvertureIgnores, "laissés de côté : %1", "skipped: %1"},
    {TexteProgramme::RapportTitre, "Rapport d'ouverture", "Opening report"},
    {TexteProgramme::RapportFichier, "Fichier : %1", "File: %1"},
    {TexteProgramme::RapportGenre, "Genre : %1", "Kind: %1"},
    {TexteProgramme::RapportTraces, "Tracés : %1", "Paths: %1"},
    {TexteProgramme::RapportPoints, "Points : %1", "Points: %1"},
    {TexteProgramme::RapportPointsRetires, "Points retirés par le nettoyage : %1",
     "Points removed by the cleanup: %1"},
    {TexteProgramme::RapportJoints, "Morceaux joints bout à bout : %1", "Pieces joined end to end: %1"},
    {TexteProgramme::RapportRetournes, "Dont retournés : %1", "Of which turned around: %1"},
    {TexteProgramme::RapportNotes, "Remarques :", "Notes:"},
    {TexteProgramme::RapportLus, "Lu, par genre :", "Read, by kind:"},
    {TexteProgramme::RapportCouches, "Lu, par couche :", "Read, by layer:"},
    {TexteProgramme::RapportIgnores, "Laissé de côté :", "Skipped:"},
    {TexteProgramme::BoutonFermer, "Fermer", "Close"},

    // Summary of a cut
    {TexteProgramme::ResumeVitesse, "Vitesse : %1mm/s - %2", "Speed: %1mm/s - %2"},
    {TexteProgramme::ResumeChauffe, "Chauffe : %1% - Décalage : %2mm", "Heating: %1% - Offset: %2mm"},
    {TexteProgramme::ResumeMatiere, "Matière : %1", "Material: %1"},
    {TexteProgramme::ResumeSaignee, " - Saignée : %1", " - Kerf: %1"},
    {TexteProgramme::DureeJours, "%1 j.", "%1 d."},
    {TexteProgramme::DureeHeures, "%1 h.", "%1 h."},
    {TexteProgramme::DureeMinutes, "%1 min.", "%1 min."},
    {TexteProgramme::DureeSecondes, "%1 s.", "%1 s."},

    // 2D window
    {TexteProgramme::Fenetre2DTitre, "Tessarel - 2D", "Tessarel - 2D"},
    {TexteProgramme::Fenetre2DEtatProjet, "Tracés : %1, points : %2", "Paths: %1, points: %2"},
    {TexteProgramme::Fenetre2DEtatVide, "Ouvrez un fichier, ou déposez-le ici",
     "Open a file, or drop it here"},
    {TexteProgramme::Fenetre2DEtatMachine, "Machine : %1", "Machine: %1"},
    {TexteProgramme::Fenetre2DMouvementsActifs, "Mouvements activés", "Motion enabled"},
    {TexteProgramme::Fenetre2DEtatSauve, "Projet enregistré : %1", "Project saved: %1"},
    {TexteProgramme::Fenetre2DEtatExporte, "Trajet exporté : %1", "Path exported: %1"},
    {TexteProgramme::Fenetre2DEtatOuvert, "%1 : tracés : %2, points : %3", "%1: paths: %2, points: %3"},
    {TexteProgramme::Fenetre2DCoordonnees, "X %1   Y %2 mm", "X %1   Y %2 mm"},
    {TexteProgramme::Fenetre2DIgnores, "Laissé de côté : %1", "Skipped: %1"},
    {TexteProgramme::Fenetre2DAucunRecent, "Aucun fichier récent", "No recent file"},
    {TexteProgramme::Fenetre2DAideTitre, "Souris et clavier", "Mouse and keyboard"},
    // In columns, see boites_qt.cpp.
    {TexteProgramme::Fenetre2DAide, Aide2DFrancais, Aide2DEnglish},
    {TexteProgramme::Fenetre2DLecture, "Lecture de %1", "Reading %1"},
    {TexteProgramme::BoutonAnnuler, "Annuler", "Cancel"},
    {TexteProgramme::AtelierTableVide, "Ouvrez un fichier, ou déposez-le ici. Molette : zoom",
     "Open a file, or drop it here. Wheel: zoom"},
    {TexteProgramme::AtelierSurTable, "Glisser : cadre de sélection. Shift + glisser : déplacer la vue",
     "Drag: selection frame. Shift + drag: pan the view"},
    {TexteProgramme::AtelierCadreEntiers, "Relâcher : choisir les tracés entiers (Ctrl : ajouter ou retirer)",
     "Release: select the paths whole in the frame (Ctrl: add or remove)"},
    {TexteProgramme::AtelierCadreTouches,
     "Relâcher : choisir tous les tracés touchés (Ctrl : ajouter ou retirer)",
     "Release: select all paths touched (Ctrl: add or remove)"},
    {TexteProgramme::AtelierSurDecoupe,
     "Molette : zoom. Clic droit + glisser : zoom sur un cadre. Shift + glisser : vue",
     "Wheel: zoom. Right-click + drag: zoom to a frame. Shift + drag: pan"},
    {TexteProgramme::AtelierSurTrace,
     "Clic : sélectionner ce tracé (Shift : ajouter, Ctrl : ajouter ou retirer)",
     "Click: select this path (Shift: add, Ctrl: add or remove)"},
    {TexteProgramme::AtelierSurSelection, "Glisser : déplacer (Shift : un seul axe, Alt : mm entiers)",
     "Drag: move (Shift: one axis only, Alt: whole mm)"},
    {TexteProgramme::AtelierSurPoignee,
     "Glisser : taille (Shift : proportions, Ctrl : autour du centre, Alt : mm entiers)",
     "Drag: size (Shift: proportions, Ctrl: about the center, Alt: whole mm)"},
    {TexteProgramme::AtelierSurRotation, "Glisser : tourner autour du centre (Alt : par pas de 15°)",
     "Drag: turn about the center (Alt: in steps of 15°)"},
    {TexteProgramme::AtelierDeplace, "Déplacement : %1 mm en X, %2 mm en Y. Échap : renoncer",
     "Move: %1 mm in X, %2 mm in Y. Esc: give up"},
    {TexteProgramme::AtelierRedimensionne, "Taille : %1 mm x %2 mm. Échap : renoncer",
     "Size: %1 mm x %2 mm. Esc: give up"},
    {TexteProgramme::AtelierTourne, "Rotation : %1°. Échap : renoncer", "Rotation: %1°. Esc: give up"},
    {TexteProgramme::AtelierInserer, "Visez un segment : un clic y insère un point. Échap : terminer",
     "Aim at a segment: a click inserts a point on it. Esc: done"},
    {TexteProgramme::AtelierInsererIci, "Clic : insérer un point en X %1, Y %2 mm",
     "Click: insert a point at X %1, Y %2 mm"},
    {TexteProgramme::AtelierCouper, "Visez un point : un clic y coupe le tracé en deux. Échap : terminer",
     "Aim at a point: a click cuts the path in two there. Esc: done"},
    {TexteProgramme::AtelierCouperIci, "Clic : couper le tracé au point %1 sur %2",
     "Click: cut the path at point %1 of %2"},
    {TexteProgramme::AtelierInsertion, "Insertion d'un point : visez un segment",
     "Insert a point: aim at a segment"},
    {TexteProgramme::AtelierInsertionIci, "Insertion d'un point en X %1   Y %2 mm",
     "Insert a point at X %1   Y %2 mm"},
    {TexteProgramme::SaisieLargeur, "Largeur", "Width"},
    {TexteProgramme::SaisieHauteur, "Hauteur", "Height"},
    {TexteProgramme::SaisieEnX, "En X", "In X"},
    {TexteProgramme::SaisieEnY, "En Y", "In Y"},
}};
#undef COURRIEL

constexpr bool DansLOrdre() {
    for (std::size_t i = 0; i < NombreTextes; ++i) {
        if (static_cast<std::size_t>(TEXTES[i].cle) != i) return false;
    }
    return true;
}
static_assert(DansLOrdre(),
              "the table and the enumeration must list the texts in the same order, all of them");

struct TableTextes {
    std::array<std::string, NombreTextes> francais;
    std::array<std::string, NombreTextes> english;

    TableTextes() {
        for (std::size_t i = 0; i < NombreTextes; ++i) {
            francais[i] = TEXTES[i].francais;
            english[i] = TEXTES[i].english;
        }
    }
};

} // namespace

const std::string& Texte(TexteProgramme cle) {
    static const TableTextes table;
    const auto i = static_cast<std::size_t>(cle);
    return LangueCourante() == Langue::English ? table.english.at(i) : table.francais.at(i);
}

} // namespace tessarel
