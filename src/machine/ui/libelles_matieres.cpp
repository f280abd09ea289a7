// The words of the material window and of the import in both languages.
#include "machine/ui/libelles_matieres.h"

namespace tessarel {

namespace {

using enum Propriete;

constexpr Libelle Matieres[] = {
    {"", Titre, "Matières", "Materials"},

    {"frameBase", Texte, "Matières de la machine", "Materials of the machine"},
    {"lblMachineMatieres", Variable},
    {"comboMatieresBDD", Variable},
    {"comboMatieresBDD", Bulle, "La matière choisie devient la matière en cours",
     "The material chosen becomes the one in use"},
    {"cmdGestionMatiere_0", Texte, "Nouvelle…", "New…", "Ctrl+N", "nouveau"},
    {"cmdGestionMatiere_0", Bulle, "Créer une matière avec les valeurs affichées",
     "Make a material with the values shown"},
    {"cmdGestionMatiere_1", Texte, "Enregistrer", "Save", "Ctrl+S", "enregistrer"},
    {"cmdGestionMatiere_1", Bulle,
     "Donner à la matière choisie les valeurs affichées ; la ligne par défaut se règle avec la machine",
     "Give the chosen material the values shown; the default line is set with the machine"},
    {"cmdGestionMatiere_2", Texte, "Supprimer", "Delete", "", "supprimer"},
    {"cmdGestionMatiere_2", Bulle, "Effacer la matière choisie", "Delete the chosen material"},
    {"cmdGestionMatiere_3", Texte, "Importer…", "Import…", "Ctrl+I", "importer"},
    {"cmdGestionMatiere_3", Bulle, "Copier une matière d'une autre machine",
     "Copy a material from another machine"},
    {"cmdAideMatieres", Bulle, "Pourquoi ma liste est-elle vide ?", "Why is my list empty?", "", "aide"},

    {"frameValeurs", Texte, "Valeurs de découpe", "Cut values"},
    {"lblChauffeBDD", Texte, "Chauffe", "Heating"},
    {"lblVitesseBDD", Texte, "Vitesse V", "Speed V"},
    {"lblSaigneeBDD", Texte, "Saignée à V", "Kerf at V"},
    {"lblSaigneeVsur2BDD", Texte, "Saignée à V / 2", "Kerf at V / 2"},
    {"lblValeurChauffeBDD", Variable},
    {"lblValeurVitesseBDD", Variable},
    {"lblValeurSaigneeBDD", Variable},
    {"lblValeurSaigneeVsur2BDD", Variable},
    {"hscChauffeBDD", Bulle, "Chauffe du fil, jamais plus que le maximum de la machine",
     "Heating of the wire, never above the maximum of the machine"},
    {"hscVitesseBDD", Bulle, "Vitesse à laquelle la matière se coupe bien",
     "Speed at which the material cuts well"},
    {"hscSaigneeBDD", Bulle, "Largeur que le fil enlève à la vitesse V",
     "Width that the wire takes away at speed V"},
    {"hscSaigneeVsur2BDD", Bulle, "Largeur que le fil enlève à la moitié de V",
     "Width that the wire takes away at half of V"},
    {"cmdExplications", Texte, "Explications (PDF)", "Explanations (PDF)", "F1", "rapport"},
    {"cmdExplications", Bulle, "Ouvrir le document : ce qu'est la saignée, comment la mesurer",
     "Open the document: what the kerf is, how to measure it"},
    {"cmdDefinir", Texte, "Définir une matière pas à pas", "Defining a material step by step", "", "aide"},
    {"cmdDefinir", Bulle, "Les neuf étapes, de la vitesse à la sauvegarde",
     "The nine steps, from the speed to saving"},

    {"frameTranches", Texte, "Mesure de la saignée : deux tranches de mousse",
     "Measuring the kerf: two slices of foam"},
    {"cmdAnimer", Texte, "Voir le déroulement", "Show how it goes", "", "simulation"},
    {"cmdAnimer", Bulle, "Jouer les mouvements dans l'image, sans la machine",
     "Play the moves in the picture, without the machine"},
    {"cmdEffacerImage", Texte, "Effacer", "Wipe", "", "defaire"},
    {"cmdEffacerImage", Bulle, "Remettre l'image au départ : la prochaine mousse est en place",
     "Put the picture back to its start: the next foam is in place"},
    {"lblVitesseTranches", Texte, "Vitesse V", "Speed V"},
    {"lblUniteVitesseTranches", Texte, "mm/s", "mm/s"},
    {"txtVitesseTranches", Bulle, "Au-dessus de 0, sans dépasser la vitesse max sans accélération",
     "Above 0, up to the top speed without ramp"},
    {"lblDimensionsTranches_0", Texte, "Passe en X", "Pass along X"},
    {"lblDimensionsTranches_1", Texte, "Tranche demandée Y", "Slice asked for, Y"},
    {"lblDimensionsTranches_2", Texte, "Montée H", "Rise H"},
    {"lblUniteDimensions_0", Texte, "mm", "mm"},
    {"lblUniteDimensions_1", Texte, "mm", "mm"},
    {"lblUniteDimensions_2", Texte, "mm", "mm"},
    {"txtDimensionsTranches_0", Bulle, "Plus long que la mousse, dans la course X de la machine",
     "Longer than the foam, within the X travel of the machine"},
    {"txtDimensionsTranches_1", Bulle, "Épaisseur demandée des tranches, dans la course Y",
     "Thickness asked for, within the Y travel"},
    {"txtDimensionsTranches_2", Bulle, "Hauteur de la première passe, dans la course Y",
     "Height of the first pass, within the Y travel"},
    {"frameVitesseMouvement", Texte, "Vitesse des mouvements", "Speed of the moves"},
    {"optVitesseManuMatieres_0", Texte, "V", "V"},
    {"optVitesseManuMatieres_1", Texte, "V / 2", "V / 2"},
    {"optVitesseManuMatieres_2", Texte, "Rapide", "Rapid"},
    {"frameMvtTranches", Texte, "Mouvements", "Moves"},
    {"cmdMvtTranches_0", Texte, "Monter de H", "Up by H"},
    {"cmdMvtTranches_1", Texte, "Descendre de H", "Down by H"},
    {"cmdMvtTranches_2", Texte, "Passe →", "Pass →"},
    {"cmdMvtTranches_3", Texte, "Descendre de Y", "Down by Y"},
    {"cmdMvtTranches_4", Texte, "Monter de Y", "Up by Y"},
    {"cmdMvtTranches_5", Texte, "← Passe", "← Pass"},
    {"cmdMvtTranches_0", Bulle, "Les deux bouts du fil montent de H", "Both ends of the wire go up by H"},
    {"cmdMvtTranches_1", Bulle, "Les deux bouts du fil descendent de H",
     "Both ends of the wire go down by H"},
    {"cmdMvtTranches_2", Bulle, "Le fil traverse la mousse et s'éloigne de l'origine",
     "The wire crosses the foam, away from the origin"},
    {"cmdMvtTranches_3", Bulle, "Descendre d'une épaisseur de tranche", "Down by the thickness of a slice"},
    {"cmdMvtTranches_4", Bulle, "Monter d'une épaisseur de tranche", "Up by the thickness of a slice"},
    {"cmdMvtTranches_5", Bulle, "Le fil traverse la mousse vers l'origine",
     "The wire crosses the foam towards the origin"},
    {"cmdStopTranches", Texte, "Stop", "Stop", "", "annuler"},
    {"cmdStopTranches", Bulle, "Arrêter le mouvement", "Stop the move"},
    {"lblEtatTranches", Variable},
    {"frameChauffeMatieres", Texte, "Chauffe du fil", "Heating of the wire"},
    {"optChauffeMatieres_0", Texte, "Coupée", "Off"},
    {"optChauffeMatieres_1", Texte, "En marche", "On"},
    {"hscChauffeParam", Bulle, "Chauffe en pour cent ; elle se règle aussi pendant un mouvement",
     "Heating in percent; it can be set during a move too"},
    {"lblChauffeParam", Variable},
    {"lblWarningChauffe", Texte, "Le fil chauffe !", "The wire is hot!"},
    {"chkDesactiverTimeOutMoteurs", Texte, "Tension moteurs permanente", "Motors always on"},
    {"chkDesactiverTimeOutMoteurs", Bulle,
     "Les chariots ne bougent pas entre deux mouvements : utile avec des courroies",
     "The carriages stay in place between two moves: useful with belts"},
    {"cmdAideTimeOut", Bulle, "À quoi sert la tension permanente", "What keeping the motors on is for", "",
     "aide"},
    {"frameMesure", Texte, "Mesure", "Measurement"},
    {"lblEpaisseurObtenue", Texte, "Épaisseur obtenue E", "Thickness obtained, E"},
    {"lblUniteEpaisseur", Texte, "mm", "mm"},
    {"txtEpaisseurObtenue", Bulle, "Épaisseur mesurée au pied à coulisse",
     "Thickness measured with calipers"},
    {"lblSaignee", Variable},
    {"cmdEnvoyerSaignee", Texte, "Envoyer vers la matière", "Send to the material", "", "valider"},
    {"cmdEnvoyerSaignee", Bulle,
     "Mettre cette saignée dans les valeurs de découpe : à V ou à V / 2, selon la vitesse des mouvements",
     "Put this kerf into the cut values: at V or at V / 2, by the speed of the moves"},
    {"cmdQuitter", Texte, "Fermer", "Close", "", "fermer"},
};

constexpr Libelle Import[] = {
    {"", Titre, "Importer une matière", "Import a material"},
    {"lblMatieresImport", Texte, "&Matière :", "&Material:"},
    {"comboMatieresImport", Variable},
    {"comboMatieresImport", Bulle, "Matières des autres machines", "Materials of the other machines"},
    {"lblValeursImport", Variable},
    {"lblNouveauNom", Texte, "&Nouveau nom :", "&New name:"},
    {"txtNouveauNom", Bulle, "Les noms de matières sont uniques, toutes machines confondues",
     "Names of materials are unique over all machines"},
    {"lblExplicationImport", Texte,
     "Les noms de matières sont uniques : donnez-en un autre, par exemple avec un chiffre. L'original reste "
     "à "
     "sa machine.",
     "Names of materials are unique: give another one, with a digit for instance. The original stays with "
     "its machine."},
    {"cmdValider", Texte, "Importer", "Import", "", "importer"},
    {"cmdAnnuler", Texte, "Annuler", "Cancel", "", "annuler"},
};

} // namespace

std::span<const Libelle> LibellesMatieres() {
    return Matieres;
}

std::span<const Libelle> LibellesImporterMatiere() {
    return Import;
}

} // namespace tessarel
