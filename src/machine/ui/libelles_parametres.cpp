// The words of the parameter window in both languages.
#include "machine/ui/libelles_parametres.h"

#include "app/texts/textes_programme.h"
#include "machine/dessin_sorties.h"
#include "machine/ui/champs_parametres.h"
#include "ui/theme.h"

#include <vector>

namespace tessarel {

namespace {

using enum Propriete;

constexpr Libelle Fixes[] = {
    {"", Titre, "Paramètres de la machine", "Machine parameters"},

    {"lblMachines", Texte, "&Machine :", "&Machine:"},
    {"comboMachines", Variable},
    {"comboMachines", Bulle, "La machine choisie devient la machine en cours",
     "The machine chosen becomes the one in use"},
    {"cmdNouvelleTable", Texte, "Nouvelle…", "New…", "Ctrl+N", "nouveau"},
    {"cmdNouvelleTable", Bulle, "Créer une machine avec les valeurs affichées",
     "Make a machine with the values shown"},
    {"cmdEffacerTable", Texte, "Supprimer", "Delete", "", "supprimer"},
    {"lblNomReserve", Texte,
     "Machine réservée : ses valeurs ne s'enregistrent pas. « Nouvelle » les reprend sous un autre nom.",
     "Built-in machine: its values are not stored. \"New\" takes them over under another name."},
    {"lblEtatInterface", Variable},
    {"cmdRafraichirUsb", Bulle, "Chercher l'interface et relire ses mémoires",
     "Look for the interface and read its memories again", "F5", "rafraichir"},
    {"optReglagesVersManu_0", Texte, "Réglages", "Settings"},
    {"optReglagesVersManu_0", Bulle, "Les paramètres de la machine", "The parameters of the machine"},
    {"optReglagesVersManu_1", Texte, "Essais des moteurs et du fil", "Test of motors and wire"},
    {"optReglagesVersManu_1", Bulle, "Possible quand une mémoire de l'interface contient cette machine",
     "Possible when a memory of the interface holds this machine"},

    {"ssTabParametres", Elements,
     "Moteurs et sorties|Vitesses|Géométrie|Chauffe et matière|Origine et rangement|Gcode|Mémoires",
     "Motors and outputs|Speeds|Geometry|Heating and material|Origin and parking|Gcode|Memories"},
    {"frameAxes", Texte, "Axes", "Axes"},
    {"lblColonne_0", Texte, "Axe", "Axis"},
    {"lblColonne_1", Texte, "Sortie\nsens", "Direction\noutput"},
    {"lblColonne_2", Texte, "Inv.", "Inv."},
    {"lblColonne_3", Texte, "Sortie\npas", "Step\noutput"},
    {"lblColonne_4", Texte, "Inv.", "Inv."},
    {"lblColonne_5", Texte, "Pas entiers\npar tour", "Full steps\nper turn"},
    {"lblColonne_6", Texte, "Micro-pas", "Micro-steps"},
    {"lblColonne_7", Texte, "Avance par\ntour, mm ou °", "Travel per\nturn, mm or °"},
    {"lblColonne_8", Texte, "Pas", "Steps"},
    {"lblAxe_0", Variable},
    {"lblAxe_1", Variable},
    {"lblAxe_2", Variable},
    {"lblAxe_3", Variable},
    {"lblAxe_4", Variable},
    {"lblPasParMm_0", Variable},
    {"lblPasParMm_1", Variable},
    {"lblPasParMm_2", Variable},
    {"lblPasParMm_3", Variable},
    {"lblPasParMm_4", Variable},
    {"lblRemarqueAxe_0", Variable},
    {"lblRemarqueAxe_1", Variable},
    {"lblRemarqueAxe_2", Variable},
    {"lblRemarqueAxe_3", Variable},
    {"lblRemarqueAxe_4", Variable},
    {"frameMoteurs", Texte, "Mise sous tension des moteurs", "Power of the motors"},
    {"frameSorties", Texte, "Sorties de l'interface", "Outputs of the interface"},
    {"lblEcartementUtile", Variable},
    {"cmdAideEcartements", Texte, "Mesurer les écartements", "Measuring the spacing", "", "aide"},
    {"cmdAideEcartements", Bulle, "Comment mesurer la largeur et les espaces",
     "How to measure the width and the free room"},
    {"cmdAideLongueurFil", Texte, "Mesurer la longueur du fil", "Measuring the wire", "", "aide"},
    {"cmdAideLongueurFil", Bulle, "Comment mesurer la plus grande longueur du fil",
     "How to measure the longest wire"},
    {"lblExplicationMemoires", Texte,
     "L'interface garde trois machines. Elle ne bouge que si l'une d'elles est la machine en cours, avec les "
     "mêmes valeurs.",
     "The interface keeps three machines. It moves only if one of them is the machine in use, with the same "
     "values."},
    {"ssTabZelko", Variable},
    {"lblContenuMemoire_0", Variable},
    {"lblContenuMemoire_1", Variable},
    {"lblContenuMemoire_2", Variable},

    {"frameChoixMemoire", Texte, "Mémoire de l'interface", "Interface memory"},
    {"optChoixMemoire_0", Variable},
    {"optChoixMemoire_1", Variable},
    {"optChoixMemoire_2", Variable},
    {"optChoixMemoire_0", Bulle, "Envoyer dans la première mémoire", "Send to the first memory"},
    {"optChoixMemoire_1", Bulle, "Envoyer dans la deuxième mémoire", "Send to the second memory"},
    {"optChoixMemoire_2", Bulle, "Envoyer dans la troisième mémoire", "Send to the third memory"},
    {"lblEtat", Variable},
    {"cmdValider_0", Texte, "Valider", "Save", "Ctrl+S", "enregistrer"},
    {"cmdValider_0", Bulle, "Enregistrer la machine dans le fichier des réglages",
     "Store the machine in the settings file"},
    {"cmdValider_1", Texte, "Valider et envoyer", "Save and send", "Ctrl+Return", "valider"},
    {"cmdValider_1", Bulle, "Enregistrer la machine et l'écrire dans la mémoire choisie de l'interface",
     "Store the machine and write it to the chosen memory of the interface"},
    {"cmdQuitter", Texte, "Fermer", "Close", "", "fermer"},

    // Test moves
    {"frameIncrements", Texte, "Déplacement relatif", "Relative move"},
    {"lblIncrements_0", Texte, "X1", "X1"},
    {"lblIncrements_1", Texte, "Y1", "Y1"},
    {"lblIncrements_2", Texte, "X2", "X2"},
    {"lblIncrements_3", Texte, "Y2", "Y2"},
    {"optMMPas_0", Texte, "mm", "mm"},
    {"optMMPas_1", Texte, "pas", "steps"},
    {"cmdGoIncrements", Texte, "Déplacer", "Move", "", "approche-rapide"},
    {"cmdGoIncrements", Bulle, "Déplacer les chariots de ces valeurs", "Move the carriages by these values"},
    {"cmdStopIncrements", Texte, "Stop", "Stop", "", "annuler"},
    {"cmdStopIncrements", Bulle, "Arrêter le mouvement", "Stop the move"},
    {"frameValeurs", Texte, "Aller à une position", "Go to a position"},
    {"lblValeurs_0", Texte, "X1", "X1"},
    {"lblValeurs_1", Texte, "Y1", "Y1"},
    {"lblValeurs_2", Texte, "X2", "X2"},
    {"lblValeurs_3", Texte, "Y2", "Y2"},
    {"lblPosition_0", Variable},
    {"lblPosition_1", Variable},
    {"lblPosition_2", Variable},
    {"lblPosition_3", Variable},
    {"optMmPasValeurs_0", Texte, "mm", "mm"},
    {"optMmPasValeurs_1", Texte, "pas", "steps"},
    {"chkMvtValeurs1egal2", Texte, "Chariot 2 comme chariot 1", "Carriage 2 as carriage 1"},
    {"chkMvtValeurs1egal2", Bulle, "Les valeurs du chariot 1 valent aussi pour le chariot 2",
     "The values of carriage 1 count for carriage 2 too"},
    {"cmdGoValeurs", Texte, "Aller", "Go", "", "approche-rapide"},
    {"cmdGoValeurs", Bulle, "Aller à ces positions, comptées depuis la remise à zéro",
     "Go to these positions, counted from the zero"},
    {"cmdStopValeurs", Texte, "Stop", "Stop", "", "annuler"},
    {"cmdStopValeurs", Bulle, "Arrêter le mouvement", "Stop the move"},
    {"cmdRemiseAZero", Texte, "Zéro ici", "Zero here", "", "centrer-x"},
    {"cmdRemiseAZero", Bulle, "Compter les positions depuis l'endroit où sont les chariots",
     "Count the positions from where the carriages are"},
    {"frameVitesseEssai", Texte, "Vitesse", "Speed"},
    {"optVitesseRelManu_0", Texte, "Choisie", "Chosen"},
    {"optVitesseRelManu_1", Texte, "Découpe", "Cutting"},
    {"optVitesseRelManu_2", Texte, "Rapide", "Rapid"},
    {"lblUniteVitesseEssai", Texte, "mm/s", "mm/s"},
    {"txtVitesseChoisieParam", Bulle, "De 0 à la vitesse max avec accélération",
     "From 0 to the top speed with ramp"},
    {"frameChauffeEssai", Texte, "Chauffe du fil", "Heating of the wire"},
    {"optChauffeParam_0", Texte, "Coupée", "Off"},
    {"optChauffeParam_1", Texte, "En marche", "On"},
    {"hscChauffeParam", Bulle, "Chauffe en pour cent, jamais plus que le maximum de la machine",
     "Heating in percent, never above the maximum of the machine"},
    {"lblChauffeParam", Variable},
    {"lblWarningChauffe", Texte, "Le fil chauffe !", "The wire is hot!"},
    {"frameMoteursEssai", Texte, "Moteurs", "Motors"},
    {"cmdMoteursOff", Texte, "Couper les moteurs", "Motors off", "", "fermer"},
    {"cmdMoteursOff", Bulle, "Arrêter le mouvement et couper le courant des moteurs",
     "Stop the move and switch the motors off"},
    {"lblEtatMouvement", Variable},
};

constexpr Libelle NouvelleTable[] = {
    {"", Titre, "Nouvelle machine", "New machine"},
    {"lblNomTable", Texte, "&Nom de la machine :", "&Name of the machine:"},
    {"lblLimiteNom", Texte,
     "8 caractères au plus : les mémoires de l'interface n'en gardent pas davantage. La machine prend les "
     "valeurs affichées.",
     "8 characters at most: the interface memories hold no more. The machine takes the values shown."},
    {"cmdValider", Texte, "Créer", "Create", "", "valider"},
    {"cmdAnnuler", Texte, "Annuler", "Cancel", "", "annuler"},
};

QString Cellule(const QString& texte, bool differe) {
    if (!differe) return texte;
    return QStringLiteral("<b style='color:%1'>%2</b>").arg(CouleurAlerte().name(), texte);
}

QString Ligne(const QString& nom, const QString& texte, bool differe) {
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(nom, Cellule(texte, differe));
}

// "3: X1 step" of the functions that the codes of a memory mean.
QString TexteSorties(const TableMachine& memoire) {
    constexpr const char* axes[] = {"X1", "Y1", "X2", "Y2", "A"};
    QStringList sorties;
    for (std::size_t i = 0; i < memoire.CodeDefinitionSortie.size(); ++i) {
        const unsigned code = memoire.CodeDefinitionSortie[i];
        const unsigned axe = code & 0x3FU;
        if (axe < 1 || axe > 5) continue;
        std::string fonction =
            TexteRempli((code & 0x80U) != 0 ? TexteProgramme::SortiePas : TexteProgramme::SortieDirection,
                        {axes[axe - 1]});
        if ((code & 0x40U) != 0) fonction = TexteRempli(TexteProgramme::SortieInversee, {fonction});
        sorties << QStringLiteral("%1: %2").arg(i + 1).arg(QString::fromStdString(fonction));
    }
    return sorties.join(QStringLiteral("<br>"));
}

} // namespace

std::span<const Libelle> LibellesParametresTables() {
    static const std::vector<Libelle> libelles = [] {
        std::vector<Libelle> tous(std::begin(Fixes), std::end(Fixes));
        const std::span<const Libelle> champs = LibellesDesChamps();
        tous.insert(tous.end(), champs.begin(), champs.end());
        return tous;
    }();
    return libelles;
}

std::span<const Libelle> LibellesNouvelleTable() {
    return NouvelleTable;
}

QString TexteContenuMemoire(const TableMachine& memoire, const TableMachine& table) {
    const bool english = LangueCourante() == Langue::English;
    const auto mots = [english](const char* francais, const char* anglais) {
        return QString::fromUtf8(english ? anglais : francais);
    };
    if (memoire.Nom.empty()) return mots("Mémoire vide", "Empty memory");
    const auto ouiNon = [&mots](bool oui) { return oui ? mots("oui", "yes") : mots("non", "no"); };
    QString texte = QStringLiteral("<table cellspacing='4'>");
    texte += Ligne(mots("Nom", "Name"), QString::fromStdString(memoire.Nom).toHtmlEscaped(),
                   memoire.Nom != table.Nom);
    texte += Ligne(mots("Sorties", "Outputs"), TexteSorties(memoire),
                   memoire.CodeDefinitionSortie != table.CodeDefinitionSortie);
    texte += Ligne(mots("Fréquence", "Frequency"), QStringLiteral("%1 Hz").arg(memoire.Frequence),
                   memoire.Frequence != table.Frequence);
    texte += Ligne(mots("Pente d'accélération", "Ramp slope"), QString::number(memoire.PenteAcceleration),
                   memoire.PenteAcceleration != table.PenteAcceleration);
    texte += Ligne(mots("Chauffe maxi, 0 à 255", "Maximum heating, 0 to 255"),
                   QString::number(memoire.PWMmaxi0to255), memoire.PWMmaxi0to255 != table.PWMmaxi0to255);
    texte += Ligne(
        mots("Délai d'arrêt des moteurs", "Motors-off delay"),
        memoire.AutoMoteursOff ? QString::number(memoire.DelaiMoteursOff) : mots("jamais", "never"),
        memoire.AutoMoteursOff != table.AutoMoteursOff || memoire.DelaiMoteursOff != table.DelaiMoteursOff);
    texte += Ligne(mots("Interrupteurs présents", "Switches present"), ouiNon(memoire.SwitchsActifs),
                   memoire.SwitchsActifs != table.SwitchsActifs);
    texte += Ligne(mots("Mise sous tension inversée", "Motors on/off inverted"),
                   ouiNon(memoire.InversionSignalMoteurOnOff),
                   memoire.InversionSignalMoteurOnOff != table.InversionSignalMoteurOnOff);
    texte += QStringLiteral("</table><p>");
    texte += memoire.Nom == table.Nom && ComparerMachineEtZelko(table, memoire)
                 ? mots("C'est la machine en cours.", "It is the machine in use.")
                 : mots("Ce qui est en couleur diffère de la machine en cours.",
                        "What is colored differs from the machine in use.");
    return texte + QStringLiteral("</p>");
}

} // namespace tessarel
