// The table of the fields, and the captions made from it.
#include "machine/ui/champs_parametres.h"

#include "machine/champs_machine.h"
#include "platform/nombres.h"

#include <array>
#include <deque>
#include <string_view>

namespace tessarel {

namespace {

constexpr ChampFenetre Vitesses[] = {
    {"txtVmaxSansAcc_0", "VmaxSansAccXY", "V max sans accélération", "Top speed without ramp",
     "Vitesse que les moteurs prennent d'un coup, sans rampe",
     "Speed that the motors take at once, without a ramp"},
    {"txtVmaxAvecAcc_0", "VmaxAvecAccXY", "V max avec accélération", "Top speed with ramp",
     "Vitesse la plus haute, au bout d'une rampe", "Highest speed, at the end of a ramp"},
    {"txtVDecoupeParDefaut", "VitesseDecoupeParDefaut", "V découpe par défaut", "Default cutting speed",
     "Vitesse de la ligne « Par défaut » des matières et de la recherche d'origine",
     "Speed of the default material and of homing"},
    {"txtVRapide", "VitesseRapide", "V rapide", "Rapid speed", "Déplacements hors de la matière",
     "Travel outside the foam"},
};
constexpr ChampFenetre Rampe[] = {
    {"slidPenteAcceleration", "PenteAcceleration", "Pente d'accélération", "Ramp slope",
     "0 la plus raide, 15 la plus douce", "0 the steepest, 15 the gentlest"},
    {"slidFrequenceZelko", "FrequenceInterpolateur", "Fréquence de l'interface", "Interface frequency",
     "Cadence à laquelle l'interface calcule les pas", "Rate at which the interface computes the steps"},
};
constexpr ChampFenetre VitessesA[] = {
    {"txtVmaxSansAcc_1", "OmegaMaxSansAccA", "Rotation max sans accélération", "Top rotation without ramp",
     "Plateau rotatif : 0 quand la machine n'en a pas", "Rotary table: 0 when the machine has none"},
    {"txtVmaxAvecAcc_1", "OmegaMaxAvecAccA", "Rotation max avec accélération", "Top rotation with ramp",
     "Rotation la plus rapide, au bout d'une rampe", "Fastest rotation, at the end of a ramp"},
};

constexpr ChampFenetre Courses[] = {
    {"txtDimensions_0", "CourseX", "Course X", "X travel", "Longueur que le fil peut parcourir",
     "Length that the wire can travel"},
    {"txtDimensions_1", "CourseY", "Course Y", "Y travel", "Hauteur que le fil peut parcourir",
     "Height that the wire can travel"},
    {"txtDimensions_2", "MargeFilPlateau", "Marge fil / plateau", "Wire to table",
     "Le fil ne descend pas plus bas au-dessus du plateau", "The wire comes no closer to the table"},
    {"txtDimensions_3", "MargeFilBloc", "Marge fil / bloc", "Wire to block",
     "Hauteur au-dessus du bloc lors d'un passage", "Height above the block when passing over it"},
    {"txtDimensions_4", "MargeOrigineBloc", "Marge origine / bloc", "Origin to block",
     "Distance de l'origine à la face du bloc", "Distance from the origin to the face of the block"},
};
constexpr ChampFenetre Ecartements[] = {
    {"txtLargeurEntreChariots", "EcartementY1Y2", "Entre les deux chariots", "Between the carriages",
     "D'une articulation du fil à l'autre", "From one end of the wire to the other"},
    {"txtEspaceChariot1Plateau", "EcartementY1Plateau", "Du chariot 1 au plateau", "Carriage 1 to table",
     "Espace libre du côté 1", "Free room on side 1"},
    {"txtEspacePlateauChariot2", "EcartementPlateauY2", "Du plateau au chariot 2", "Table to carriage 2",
     "Espace libre du côté 2", "Free room on side 2"},
    {"txtLongueurMaxiFil", "LongueurMaxiFil", "Longueur maxi du fil", "Longest wire",
     "Contrôlée avant chaque découpe oblique", "Checked before every slanted cut"},
};
constexpr ChampFenetre Plateau[] = {
    {"chkPriseEnCompteEpaisseurPlateauRotatif", "TenirCompteEpaisseurPlateauRotatif",
     "Tenir compte de son épaisseur", "Count its thickness", "Le bloc est posé sur le plateau rotatif",
     "The block stands on the rotary table"},
    {"txtPositionPlateau_0", "DistanceOrigineAxePlateauRotatif", "De l'origine à son axe",
     "From the origin to its axis", "Position de l'axe selon X", "Place of the axis along X"},
    {"txtPositionPlateau_1", "DistanceX1AxePlateauRotatif", "Du chariot 1 à son axe",
     "From carriage 1 to its axis", "Position de l'axe selon la largeur",
     "Place of the axis across the table"},
    {"txtPositionPlateau_2", "HauteurPlateauRotatif", "Hauteur", "Height",
     "Épaisseur au-dessus du plateau fixe", "Thickness above the fixed table"},
};

constexpr ChampFenetre Chauffe[] = {
    {"slidChauffeMaxi", "ChauffeMaxiSur100", "Chauffe maxi", "Maximum heating",
     "Le fil ne reçoit jamais davantage", "The wire never gets more"},
    {"txtChauffeDecoupeParDefaut", "ChauffeParDefaut", "Chauffe par défaut", "Default heating",
     "Chauffe de la ligne « Par défaut » des matières", "Heating of the default material"},
    {"txtTempoChauffe", "TempoChauffe", "Mise en température", "Warm-up pause",
     "Attente avant le premier mouvement", "Wait before the first move"},
};
constexpr ChampFenetre Saignees[] = {
    {"txtSaigneeVDParDefaut", "SaigneeVDParDefaut", "Saignée à V découpe", "Kerf at cutting speed",
     "Largeur que le fil enlève à la vitesse de découpe", "Width that the wire takes away at cutting speed"},
    {"txtSaigneeVDsur2ParDefaut", "SaigneeVDsur2ParDefaut", "Saignée à V / 2", "Kerf at half speed",
     "Plus lent, le fil enlève davantage", "Slower, the wire takes away more"},
};
constexpr ChampFenetre Nettoyage[] = {
    {"txtChauffeNettoyage", "ChauffeNettoyage", "Chauffe", "Heating", "Brûle ce qui colle au fil",
     "Burns off what sticks to the wire"},
    {"txtDecalageNettoyage", "DecalageNettoyage", "Montée du fil", "Rise of the wire",
     "Le fil s'écarte du plateau avant de chauffer", "The wire leaves the table before it heats"},
    {"txtAttenteNettoyage", "AttenteNettoyage", "Attente", "Wait", "Durée de la chauffe",
     "How long it heats"},
};

constexpr ChampFenetre Interrupteurs[] = {
    {"chkSwitchsActifs", "SwitchsActifs", "Interrupteurs présents", "Switches present",
     "L'interface arrête la machine quand un interrupteur s'ouvre",
     "The interface stops the machine when a switch opens"},
    {"chkOrigineAutomatique", "OrigineAutomatique", "Origine automatique", "Automatic homing",
     "Proposée au début de chaque découpe", "Offered at the start of each cut"},
    {"txtMmFDCOrigine_0", "MmToOrigineX1", "Interrupteur → origine X1", "Switch → origin X1",
     "Recul depuis l'interrupteur", "Way back from the switch"},
    {"txtMmFDCOrigine_1", "MmToOrigineY1", "Interrupteur → origine Y1", "Switch → origin Y1",
     "Recul depuis l'interrupteur", "Way back from the switch"},
    {"txtMmFDCOrigine_2", "MmToOrigineX2", "Interrupteur → origine X2", "Switch → origin X2",
     "Recul depuis l'interrupteur", "Way back from the switch"},
    {"txtMmFDCOrigine_3", "MmToOrigineY2", "Interrupteur → origine Y2", "Switch → origin Y2",
     "Recul depuis l'interrupteur", "Way back from the switch"},
};
constexpr ChampFenetre Rangement[] = {
    {"chkRangementAuto", "ActiverRangementAuto", "Rangement automatique", "Automatic parking",
     "Proposé à la fermeture du programme", "Offered when the program closes"},
    {"txtRangementSuivant_0", "RangementSuivantX", "Position X", "X position", "Où le fil se range",
     "Where the wire is parked"},
    {"txtRangementSuivant_1", "RangementSuivantY", "Position Y", "Y position", "Où le fil se range",
     "Where the wire is parked"},
    {"txtRangementFilSousOrigine", "DistanceRangementFilSousOrigine", "Fil rangé sous l'origine",
     "Wire below the origin", "Profondeur de la rainure où le fil se range",
     "Depth of the groove in which the wire rests"},
};

constexpr ChampFenetre Gcode[] = {
    {"txtNomAxeGcode_0", "NomAxeGcodeX1", "Axe X du chariot 1", "X axis of carriage 1",
     "Lettre écrite dans les fichiers Gcode", "Letter written to the Gcode files"},
    {"txtNomAxeGcode_1", "NomAxeGcodeY1", "Axe Y du chariot 1", "Y axis of carriage 1",
     "Lettre écrite dans les fichiers Gcode", "Letter written to the Gcode files"},
    {"txtNomAxeGcode_2", "NomAxeGcodeX2", "Axe X du chariot 2", "X axis of carriage 2",
     "Lettre écrite dans les fichiers Gcode", "Letter written to the Gcode files"},
    {"txtNomAxeGcode_3", "NomAxeGcodeY2", "Axe Y du chariot 2", "Y axis of carriage 2",
     "Lettre écrite dans les fichiers Gcode", "Letter written to the Gcode files"},
};

constexpr ChampFenetre Moteurs[] = {
    {"chkInverserSignalOnMoteurs", "InversionSignalOnOffMoteurs", "Inverser la mise sous tension",
     "Invert motors on/off", "Pour les cartes dont l'entrée d'activation est inverse",
     "For drivers whose enable input is inverted"},
    {"chkAutoMoteursOff", "AutoMoteursOff", "Couper les moteurs au repos", "Motors off when idle",
     "L'interface coupe les moteurs après le délai", "The interface switches the motors off after the delay"},
    {"slidAutoMoteursOffTimer", "DelaiAutoMoteursOff", "Délai", "Delay",
     "Compté par l'interface depuis le dernier mouvement", "Counted by the interface from the last move"},
};

// Fields that exist once per axis: control, key without its axis, words.
struct ColonneAxes {
    const char* controle;
    const char* cle;
    const char* francais;
    const char* english;
    const char* aideFrancais;
    const char* aideEnglish;
};
constexpr ColonneAxes Colonnes[] = {
    {"comboDirOut", "SortieDir", "sortie sens", "direction output", "Sortie de l'interface qui donne le sens",
     "Output of the interface that gives the direction"},
    {"chkInversionDir", "InvSignalSortieDir", "sens inversé", "direction inverted",
     "À cocher quand l'axe part à l'envers", "Tick when the axis runs the wrong way"},
    {"comboStepOut", "SortieStep", "sortie pas", "step output", "Sortie de l'interface qui donne les pas",
     "Output of the interface that gives the steps"},
    {"chkInversionPas", "InvSignalSortieStep", "pas inversés", "steps inverted",
     "Pour les cartes qui comptent le front descendant", "For drivers that count the falling edge"},
    {"txtPasParTour", "PasParTourMoteur", "pas par tour", "steps per turn",
     "Pas entiers d'un tour de moteur : 200 pour 1,8°", "Full steps of a motor turn: 200 for 1.8°"},
    {"txtMicroPas", "MicroPas", "micro-pas", "micro-steps", "Division réglée sur la carte du moteur",
     "Division set on the motor driver"},
    {"txtMmParTour", "MmParTour", "avance par tour", "travel per turn",
     "Pas de la vis, ou dents × pas de la courroie", "Pitch of the screw, or teeth × pitch of the belt"},
};
constexpr const char* Axes[] = {"X1", "Y1", "X2", "Y2", "A"};

constexpr GroupeFenetre OngletsVitesses[] = {
    {"frameVitesses", "Vitesses des chariots", "Speeds of the carriages", Vitesses},
    {"frameRampe", "Accélération", "Acceleration", Rampe},
    {"frameVitessesA", "Axe A, plateau rotatif", "A axis, rotary table", VitessesA},
};
constexpr GroupeFenetre OngletsGeometrie[] = {
    {"frameCourses", "Courses et marges", "Travel and clearances", Courses},
    {"frameEcartements", "Écartements", "Spacing", Ecartements},
    {"framePlateau", "Plateau rotatif", "Rotary table", Plateau},
};
constexpr GroupeFenetre OngletsChauffe[] = {
    {"frameChauffe", "Chauffe du fil", "Heating of the wire", Chauffe},
    {"frameSaignees", "Saignées par défaut", "Default kerfs", Saignees},
};
constexpr GroupeFenetre OngletsOrigine[] = {
    {"frameInterrupteurs", "Interrupteurs et origine", "Switches and origin", Interrupteurs},
    {"frameRangement", "Rangement", "Parking", Rangement},
    {"frameNettoyage", "Nettoyage du fil", "Wire cleaning", Nettoyage},
};
constexpr GroupeFenetre OngletsGcode[] = {
    {"frameGcode", "Noms des axes en Gcode", "Names of the axes in Gcode", Gcode},
};

// Names and keys of the fields per axis live as long as the program.
const std::vector<ChampFenetre>& ChampsParAxe() {
    static std::deque<std::string> textes;
    static const std::vector<ChampFenetre> champs = [] {
        const auto garder = [](std::string texte) {
            textes.push_back(std::move(texte));
            return textes.back().c_str();
        };
        std::vector<ChampFenetre> liste(std::begin(Moteurs), std::end(Moteurs));
        for (const ColonneAxes& colonne : Colonnes) {
            for (std::size_t axe = 0; axe < std::size(Axes); ++axe) {
                const bool rotation = axe == 4 && std::string_view(colonne.cle) == "MmParTour";
                const std::string cle = rotation ? "DegParTour" : colonne.cle;
                liste.push_back({garder(std::string(colonne.controle) + "_" + std::to_string(axe)),
                                 garder(cle + Axes[axe]),
                                 garder(std::string(Axes[axe]) + ", " + colonne.francais),
                                 garder(std::string(Axes[axe]) + ", " + colonne.english),
                                 colonne.aideFrancais, colonne.aideEnglish});
            }
        }
        return liste;
    }();
    return champs;
}

std::string Limites(const ChampMachineSaisi& champ, Langue langue) {
    const auto nombre = [](double valeur) { return FormaterNombre(valeur, "#####0.##"); };
    std::string texte = langue == Langue::English ? "From " : "De ";
    texte += nombre(champ.minimum) + (langue == Langue::English ? " to " : " à ") + nombre(champ.maximum);
    if (*champ.unite != '\0') texte += std::string(" ") + champ.unite;
    return texte;
}

// What the tool tip of a field says: its explanation, then its limits.
std::string Bulle(const ChampFenetre& champ, Langue langue) {
    std::string texte = langue == Langue::English ? champ.aideEnglish : champ.aideFrancais;
    if (const ChampMachineSaisi* limites = ChampMachineSaisiDe(champ.cle))
        texte += ".\n" + Limites(*limites, langue) + ".";
    return texte;
}

class Redaction {
public:
    std::vector<Libelle> Rediger() {
        for (const ChampFenetre& champ : ChampsDesMoteurs()) AjouterChamp(champ);
        for (int onglet = OngletVitesses; onglet <= OngletGcode; ++onglet) {
            for (const GroupeFenetre& groupe : GroupesDeLOnglet(onglet)) {
                m_libelles.push_back({groupe.cadre, Propriete::Texte, groupe.francais, groupe.english});
                for (const ChampFenetre& champ : groupe.champs) AjouterRangee(champ);
            }
        }
        for (std::size_t i = 0; i < std::size(Moteurs); ++i) AjouterRangee(Moteurs[i], false);
        return m_libelles;
    }
    std::deque<std::string> textes;

private:
    const char* Garder(std::string texte) {
        textes.push_back(std::move(texte));
        return textes.back().c_str();
    }
    void AjouterChamp(const ChampFenetre& champ) {
        m_libelles.push_back({champ.controle, Propriete::Bulle, Garder(Bulle(champ, Langue::Francais)),
                              Garder(Bulle(champ, Langue::English))});
        const std::string_view nom = champ.controle;
        if (nom.starts_with("chkInversion")) m_libelles.push_back({champ.controle, Propriete::Variable});
    }
    // Label, unit and explanation around a field in a group.
    void AjouterRangee(const ChampFenetre& champ, bool avecBulle = true) {
        const std::string nom = champ.controle;
        if (avecBulle) AjouterChamp(champ);
        const char* qui = nom.starts_with("chk") ? champ.controle : Garder("lbl" + nom);
        m_libelles.push_back({qui, Propriete::Texte, champ.francais, champ.english});
        m_libelles.push_back(
            {Garder("lblAide" + nom), Propriete::Texte, champ.aideFrancais, champ.aideEnglish});
        m_libelles.push_back({Garder("lblRemarque" + nom), Propriete::Variable});
        if (!nom.starts_with("chk")) m_libelles.push_back({Garder("lblUnite" + nom), Propriete::Variable});
    }
    std::vector<Libelle> m_libelles;
};

} // namespace

std::span<const GroupeFenetre> GroupesDeLOnglet(int onglet) {
    switch (onglet) {
    case OngletVitesses:
        return OngletsVitesses;
    case OngletGeometrie:
        return OngletsGeometrie;
    case OngletChauffe:
        return OngletsChauffe;
    case OngletOrigine:
        return OngletsOrigine;
    case OngletGcode:
        return OngletsGcode;
    default:
        return {};
    }
}

std::span<const ChampFenetre> ChampsDesMoteurs() {
    return ChampsParAxe();
}

std::vector<const ChampFenetre*> TousLesChamps() {
    std::vector<const ChampFenetre*> champs;
    for (const ChampFenetre& champ : ChampsDesMoteurs()) champs.push_back(&champ);
    for (int onglet = OngletVitesses; onglet <= OngletGcode; ++onglet)
        for (const GroupeFenetre& groupe : GroupesDeLOnglet(onglet))
            for (const ChampFenetre& champ : groupe.champs) champs.push_back(&champ);
    return champs;
}

int FacteurCurseur(const ChampFenetre& champ) {
    constexpr int pasFrequence = 10000; // Hz
    return std::string_view(champ.controle) == "slidFrequenceZelko" ? pasFrequence : 1;
}

std::span<const Libelle> LibellesDesChamps() {
    static Redaction redaction;
    static const std::vector<Libelle> libelles = redaction.Rediger();
    return libelles;
}

} // namespace tessarel
