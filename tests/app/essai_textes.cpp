// The text tables: both sets are twins, the rows are the told ones, and no French is left in the English set.
#include "app/texts/rangees.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace tessarel;

namespace {

// Read while the program starts, before any test can load a language.
const std::string RANGEE5_AU_DEPART = TextesDoubles(5, 1);
const std::string RANGEE7_AU_DEPART = TextesDoubles(7, 1);

// Loads a language and puts French back, so that the order of the cases doesn't matter.
class AvecLangue {
public:
    explicit AvecLangue(Langue langue) { ChargerMessages(langue); }
    ~AvecLangue() { ChargerMessages(Langue::Francais); }
    AvecLangue(const AvecLangue&) = delete;
    AvecLangue& operator=(const AvecLangue&) = delete;
};

// A text of a table: the table's letter (M, D, E, P), row, column.
struct Cellule {
    char table;
    int rangee;
    int colonne;
    std::string francais;
    std::string english;

    [[nodiscard]] std::string Nom() const {
        return std::string(1, table) + std::to_string(rangee) + "." + std::to_string(colonne);
    }
};

std::string LireCellule(char table, int rangee, int colonne) {
    switch (table) {
    case 'M':
        return colonne == 1 ? TextesMessages(rangee) : TitresMessages(rangee);
    case 'D':
        return TextesDoubles(rangee, colonne);
    case 'E':
        return TextesEtats(rangee);
    default:
        return Texte(static_cast<TexteProgramme>(rangee));
    }
}

std::vector<Cellule> ToutesLesCellules() {
    std::vector<Cellule> cellules;
    for (int r = 1; r <= 255; ++r) {
        for (int c = 1; c <= 2; ++c) cellules.push_back({'M', r, c, {}, {}});
    }
    for (int r = 1; r <= 64; ++r) {
        for (int c = 1; c <= 2; ++c) cellules.push_back({'D', r, c, {}, {}});
    }
    for (int r = 1; r <= 64; ++r) cellules.push_back({'E', r, 1, {}, {}});
    for (int r = 0; r < static_cast<int>(TexteProgramme::Fin); ++r) cellules.push_back({'P', r, 1, {}, {}});
    for (Cellule& c : cellules) c.francais = LireCellule(c.table, c.rangee, c.colonne);
    const AvecLangue english(Langue::English);
    for (Cellule& c : cellules) c.english = LireCellule(c.table, c.rangee, c.colonne);
    return cellules;
}

int Compter(std::string_view texte, std::string_view motif) {
    int n = 0;
    for (std::size_t p = texte.find(motif); p != std::string_view::npos; p = texte.find(motif, p + 1)) ++n;
    return n;
}

} // namespace

TEST(Textes, UneLangueInconnueDonneLeFrancais) {
    EXPECT_EQ(LangueDepuisTexte("English"), Langue::English);
    EXPECT_EQ(LangueDepuisTexte("Francais"), Langue::Francais);
    for (const char* valeur : {"", "english", "USA", "Deutsch", "ENGLISH", " English"}) {
        EXPECT_EQ(LangueDepuisTexte(valeur), Langue::Francais) << valeur;
    }
}

TEST(Textes, RemplirDesMarques) {
    EXPECT_EQ(RemplirMarques("%1 = %2 (%1)", {"a", "%1"}), "a = %1 (a)");
    EXPECT_EQ(RemplirMarques("65% - %2%", {"x", "y"}), "65% - y%");
    EXPECT_EQ(RemplirMarques("%1 et %2", {"x"}), "x et %2");
    EXPECT_EQ(RemplirMarques("%0 %", {"x"}), "%0 %");
    EXPECT_EQ(TexteRempli(TexteProgramme::ReparationTexte, {"CourseX", "300"}),
              "CourseX modifiée à 300 dans Tessarel.ini pour éviter les erreurs de calcul.");
}

TEST(Textes, LesDeuxJeuxSontJumeauxRangeeParRangee) {
    for (const Cellule& c : ToutesLesCellules()) {
        SCOPED_TRACE(c.Nom());
        EXPECT_EQ(c.francais.empty(), c.english.empty());
        EXPECT_EQ(Compter(c.francais, "\r\n"), Compter(c.english, "\r\n"));
        EXPECT_EQ(Compter(c.francais, "\n"), Compter(c.english, "\r\n"));
        EXPECT_EQ(Compter(c.francais, TESSAREL_COURRIEL_SUPPORT),
                  Compter(c.english, TESSAREL_COURRIEL_SUPPORT));
        for (const char* marque : {"%1", "%2", "%3", "%4", "%5", "%6", "%7", "%8", "%9"}) {
            EXPECT_EQ(Compter(c.francais, marque), Compter(c.english, marque)) << marque;
        }
    }
}

TEST(Textes, LesRangees5Et7ExistentAvantToutChargement) {
    EXPECT_EQ(RANGEE5_AU_DEPART, "Le fichier ZelkoComm.dll présent sur votre ordinateur est trop vieux.\r\n"
                                 "Tessarel ne peut pas fonctionner.\r\n"
                                 "Veuillez télécharger la dernière version et relancer.");
    EXPECT_EQ(RANGEE7_AU_DEPART, "Le fichier ZelkoCom.dll n'a pas été trouvé,\r\n"
                                 "veuillez l'installer sur votre ordinateur, à la bonne place.\r\n"
                                 "La découpe sera désactivée.");
}

TEST(Textes, ToutesLesRangeesDuesSontLaEtLesAutresVides) {
    const std::set<int> messagesVides = {37, 169, 245, 246, 252, 255};
    const std::set<int> doublesVides = {49, 63, 64};
    const std::set<int> titreSeul = {142, 166, 180, 254};
    for (const Langue langue : {Langue::Francais, Langue::English}) {
        const AvecLangue chargee(langue);
        int messages = 0;
        for (int r = 1; r <= 255; ++r) {
            const bool presente = !TextesMessages(r).empty() || !TitresMessages(r).empty();
            EXPECT_EQ(presente, !messagesVides.contains(r)) << r;
            EXPECT_EQ(presente && TextesMessages(r).empty(), titreSeul.contains(r)) << r;
            messages += presente ? 1 : 0;
        }
        EXPECT_EQ(messages, 249);
        for (int r = 1; r <= 64; ++r) {
            EXPECT_EQ(TextesDoubles(r, 1).empty(), doublesVides.contains(r)) << r;
            EXPECT_EQ(TextesDoubles(r, 2).empty(), doublesVides.contains(r)) << r;
        }
        for (int r = 1; r <= EtatSimulation; ++r) EXPECT_FALSE(TextesEtats(r).empty()) << r;
        EXPECT_TRUE(TextesEtats(EtatSimulation + 1).empty());
        for (int cle = 0; cle < static_cast<int>(TexteProgramme::Fin); ++cle) {
            EXPECT_FALSE(Texte(static_cast<TexteProgramme>(cle)).empty()) << cle;
        }
    }
}

TEST(Textes, HorsDesTablesToutEstVide) {
    for (const int r : {-1, 0, 256, 1000000}) {
        EXPECT_TRUE(TextesMessages(r).empty()) << r;
        EXPECT_TRUE(TitresMessages(r).empty()) << r;
    }
    for (const int r : {-1, 0, 65}) {
        EXPECT_TRUE(TextesDoubles(r, 1).empty()) << r;
        EXPECT_TRUE(TextesEtats(r).empty()) << r;
    }
    EXPECT_TRUE(TextesDoubles(5, 0).empty());
    EXPECT_TRUE(TextesDoubles(5, 3).empty());
}

TEST(Textes, ChaqueRangeeEstEcriteUneFoisEtDansSonFichier) {
    std::set<int> vues;
    const std::vector<std::pair<int, int>> bornes = {{1, 60}, {61, 120}, {121, 190}, {191, 255}};
    const auto plages = PlagesMessages();
    ASSERT_EQ(plages.size(), bornes.size());
    for (std::size_t p = 0; p < plages.size(); ++p) {
        for (const RangeeTexte& r : plages[p]) {
            EXPECT_TRUE(vues.insert(r.rangee).second) << r.rangee;
            EXPECT_GE(r.rangee, bornes[p].first);
            EXPECT_LE(r.rangee, bornes[p].second);
        }
    }
    vues.clear();
    for (const RangeeTexte& r : Doubles01a64()) EXPECT_TRUE(vues.insert(r.rangee).second) << r.rangee;
}

// Typing errors, trailing and double blanks, quotes and backslashes of the French set are deliberate: these
// are the texts that users know, and that support asks for.
TEST(Textes, RangeesFrancaisesALaLettre) {
    EXPECT_EQ(TextesDoubles(3, 1),
              "Le fichier \"Tessarel.ini\" contient des clés qui commencent par \"NbrPasToOri...\".\r\n"
              "Ces clés ne sont plus valides et vont être remplacées par les \r\n"
              "nouvelles clés de type \"MmToOri...\" pour que Tessarel puisse fonctionner correctement.");
    EXPECT_EQ(TextesDoubles(2, 1),
              "Le répertoire \\Bibliotheque n'est pas présent, il va être créé mais il sera "
              "vide : à vous de le remplir!");
    EXPECT_EQ(TextesDoubles(6, 2), "Problème de communication avec l'interpolateur.");
    EXPECT_EQ(TextesDoubles(38, 1),
              "Faut-il remplacer les valeurs mémorisée pour cette matière par les valeurs "
              "affichées?");
    EXPECT_EQ(
        TextesDoubles(12, 1),
        "Extension de fichier non valide. Tessarel sait ouvrir les .tsr, .qnt, .cpx, .fc, .dxf, .dat, .plt, "
        ".eps (et les .txt avec les coordonnées des points séparées par un double-point).");
    EXPECT_EQ(TextesMessages(35), "Malgré tout mes soins, Tessarel vient de planter! Les caractéristiques de "
                                  "l'erreur sont les suivantes :");
    EXPECT_EQ(TextesMessages(36), "N° erreur : ");
    EXPECT_TRUE(TitresMessages(36).empty());
    EXPECT_EQ(TextesMessages(39), "Je vous invite à me retourner un rapport de circonstances du plantage "
                                  "à " TESSAREL_COURRIEL_SUPPORT);
    EXPECT_EQ(TextesMessages(47), "Découpe impossible, l'écartement est plus large que la table.\r\n"
                                  "Retournez dans l'onglet Conception 4 axes,\r\n"
                                  "l'outil Profil Intermédiaire permet de découper en deux fois.");
    EXPECT_EQ(TextesMessages(76),
              "Une erreur est survenue dans la procédure CalculerCoordonneesPerspectiveCPX.\r\n"
              "Si vous arrivez à la reproduire, merci de la signaler par mail à " TESSAREL_COURRIEL_SUPPORT
              "\r\n"
              "Si vous n'arrivez pas à la reproduire, elle ne pourra pas être corrigée facilement, mais "
              "signalez-là "
              "quand même en donnant le maximum d'informations sur la façon dont elle est apparue.");
    EXPECT_NE(TextesMessages(95).find("(épaisseur demandée)-(épaissseur obtenue)"), std::string::npos);
    EXPECT_NE(TextesMessages(103).find("Cela  évite"), std::string::npos);
    EXPECT_EQ(TextesMessages(112), " Point n°");
    EXPECT_EQ(TextesMessages(129), "Les points ");
    EXPECT_EQ(TitresMessages(129), " et ");
    EXPECT_EQ(TitresMessages(138), "mm n'est pas possible, cela dépasse la largeur du plateau.\r\n"
                                   "La valeur sera limitéé au maximum possible.");
    EXPECT_EQ(TitresMessages(157), " Dressage du bloc ");
    EXPECT_EQ(TextesMessages(161),
              ". Il vaut mieux annuler la découpe et signaler le problème à " TESSAREL_COURRIEL_SUPPORT);
    EXPECT_EQ(TextesMessages(173), "Erreur, NBRt=0, division impossible => " TESSAREL_COURRIEL_SUPPORT);
    EXPECT_TRUE(TextesMessages(166).empty());
    EXPECT_EQ(TitresMessages(166), "Lancer la découpe ?");
    EXPECT_EQ(TextesMessages(210), "La chauffe de la matière importée (");
    EXPECT_EQ(TitresMessages(210), "%)est supérieure à la chauffe maxi de la machine courante (");
    EXPECT_NE(TextesMessages(223).find("\r\nExemple : \r\n- J'ai un plateau"), std::string::npos);
    EXPECT_NE(TextesMessages(217).find("\"\\Tessarel\\Datas\" (voir fenêtre Information).\r\n- Déplacer"),
              std::string::npos);
    EXPECT_EQ(TextesMessages(248), "Interface détectée\r\n(Zelko)");
    EXPECT_EQ(TitresMessages(254), "Découpe 4 axes > Calibrer une matière");
}

TEST(Textes, RangeesAnglaisesALaLettre) {
    const AvecLangue english(Langue::English);
    EXPECT_EQ(
        TextesDoubles(12, 1),
        "Invalid file extension. Tessarel can open .tsr, .qnt, .cpx, .fc, .dxf, .dat, .plt, .eps files (and "
        ".txt files with the coordinates of the points separated by a colon).");
    EXPECT_EQ(TextesMessages(3), "Import files not found");
    EXPECT_EQ(TitresMessages(3), "TempE.dat or/and TempS.dat not found");
    EXPECT_EQ(TextesMessages(40),
              "Before the app close, do you want to create the Rescue_Tessarel file with current job?");
    EXPECT_EQ(TextesMessages(91), "Launch a synchronous cleanup after synchronization?");
    EXPECT_EQ(TextesMessages(132), "Error, angle greater than 360°, value :");
    EXPECT_EQ(TextesMessages(105), "Default");
    EXPECT_EQ(TextesMessages(247), "No interface");
}

// What a G-code file says in its comments is read by other programs: the letters count.
TEST(Textes, CommentairesDuGcodeEnAnglais) {
    const AvecLangue english(Langue::English);
    EXPECT_EQ(TextesMessages(159), "Breakpoint, Manually restart the move");
    EXPECT_EQ(TitresMessages(159), "Following the cut");
    EXPECT_EQ(TitresMessages(162), "d");
    EXPECT_EQ(TextesMessages(163), "h");
    EXPECT_EQ(TitresMessages(163), "min");
    EXPECT_EQ(TextesMessages(164), "s");
    EXPECT_EQ(TitresMessages(164), "Cutting time : ");
    EXPECT_EQ(TextesMessages(165), "Max cutting speed : ");
    EXPECT_EQ(TitresMessages(165), "Heating : ");
    EXPECT_EQ(TextesMessages(167), "Heating stop");
    EXPECT_EQ(TitresMessages(167), "End of program");
    EXPECT_EQ(TextesMessages(168), "Gcode file (.gcode) exported as : ");
    EXPECT_EQ(TextesMessages(176), "Gcode cutting file");
    EXPECT_EQ(TitresMessages(176), "File generated by Tessarel");
    EXPECT_EQ(TextesMessages(177), "Tessarel file of project : ");
    EXPECT_EQ(TitresMessages(177),
              "Tessarel file of project : non-existent, there was no backup prior to exporting "
              "the Gcode");
    EXPECT_EQ(TextesMessages(178), "Cutting table : ");
    EXPECT_EQ(TitresMessages(178), "Chord Side 1 : ");
    EXPECT_EQ(TextesMessages(179), "Chord Side 2 : ");
    EXPECT_EQ(TitresMessages(179), "Distance Side1<-->Side2 : ");
    EXPECT_EQ(TitresMessages(180), "Units in mm");
    EXPECT_EQ(TextesMessages(181), "Inverse time mode - More accurate for taper cuts");
    EXPECT_EQ(TitresMessages(181), "Starting the heating");
    EXPECT_EQ(TextesMessages(182), "Wire heating time before movement, in seconds");
    EXPECT_EQ(TitresMessages(182), "Axis movements");
    EXPECT_EQ(TextesMessages(183),
              "Note: If the wire is stored in a groove, the origin is lower than the table top "
              "and the Ys take this into account");
    EXPECT_EQ(TitresMessages(183), "Absolute displacements - More precise");
    EXPECT_EQ(
        TextesMessages(184),
        "Starting point: 0 0 0 0 - Can be below the level of the table if the wire is stored in a groove");
    EXPECT_EQ(TitresMessages(194), "Projet 2D");
}

// Equal in both languages, each on purpose: pieces of numbers and units, names, and the line of a G-code file
// that has one form only.
TEST(Textes, SeulesLesEgalitesVouluesSontEgales) {
    const std::set<std::string> permises = {
        "Zoom",          "Simulation",    "h",     "min",       "s",
        "%1 h.",         "%1 min.",       "%1 s.", "Projet 2D", "Tessarel - 4 axes",
        "Tessarel - 2D", "X %1   Y %2 mm"};
    std::set<std::string> egales;
    for (const Cellule& c : ToutesLesCellules()) {
        if (!c.francais.empty() && c.francais == c.english) egales.insert(c.francais);
    }
    EXPECT_EQ(egales, permises);
}

TEST(Textes, AucunMotFrancaisDansLeJeuAnglais) {
    const std::set<std::string, std::less<>> mots = {
        "le",    "la",   "les",    "des",     "du",      "un",         "une",    "et",     "est",
        "pas",   "vous", "dans",   "pour",    "sur",     "avec",       "sont",   "erreur", "fichier",
        "au",    "aux",  "ce",     "cette",   "que",     "qui",        "ou",     "fil",    "voulez",
        "votre", "bloc", "projet", "chauffe", "matiere", "emplanture", "saumon", "trajet", "vitesse"};
    for (const Cellule& c : ToutesLesCellules()) {
        if (c.Nom() == "M194.2") continue;
        SCOPED_TRACE(c.Nom() + " " + c.english);
        for (const char* lettre :
             {"é", "è", "ê", "à", "ç", "ô", "î", "û", "ù", "â", "É", "À", "«", "»", "œ"}) {
            EXPECT_EQ(c.english.find(lettre), std::string::npos) << lettre;
        }
        std::string mot;
        for (const char lettre : c.english + " ") {
            const auto octet = static_cast<unsigned char>(lettre);
            if (std::isalpha(octet) != 0) {
                mot += static_cast<char>(std::tolower(octet));
                continue;
            }
            EXPECT_FALSE(mots.contains(mot)) << mot;
            mot.clear();
        }
    }
}

TEST(Textes, TextesNommesALaLettre) {
    EXPECT_EQ(Texte(TexteProgramme::InstanceUniqueTitre), "Tessarel est déjà en route");
    EXPECT_EQ(Texte(TexteProgramme::InstanceUnique),
              "Tessarel ne peut avoir qu'une seule instance, l'instance que "
              "vous venez de lancer va se fermer.");
    EXPECT_EQ(
        TexteRempli(TexteProgramme::ErreurEtape, {"6", "Dépassement", "0", "Form_Load", "frmSplashScreen"}),
        "Erreur 6 (Dépassement) à la ligne 0, de la procédure Form_Load de Feuille frmSplashScreen");
    EXPECT_EQ(TexteRempli(TexteProgramme::ProcedureErreurTitre, {"cmdLancerLaDecoupeTS2D"}),
              "Procédure de l'erreur :cmdLancerLaDecoupeTS2D");
    EXPECT_EQ(TexteRempli(TexteProgramme::ChargementMachineImpossible, {"Ma table"}),
              "Problème : impossible de charger la table Ma table\r\n"
              "Merci de remonter le problème à " TESSAREL_COURRIEL_SUPPORT);
    EXPECT_EQ(TexteRempli(TexteProgramme::ReparationTitre, {"CourseX"}), "CourseX=0, valeur impossible");
    EXPECT_EQ(
        Texte(TexteProgramme::ReparationLongueurFil),
        "LongueurMaxiFil modifiée à la valeur EcartementY1Y2 dans Tessarel.ini pour éviter les erreurs de "
        "calcul.");
    const std::string haut =
        TexteRempli(TexteProgramme::OrigineEnHautTexte, {"Vieille", "https://site.example"});
    EXPECT_NE(haut.find("\r\nLa machine Vieille est enregistrée avec l'origine en haut dans le fichier "
                        "Tessarel.ini.\r\n"),
              std::string::npos);
    EXPECT_TRUE(haut.ends_with("il faut utiliser le logiciel Tessarel2D https://site.example"));
    EXPECT_EQ(Texte(TexteProgramme::CommentaireTropLong),
              "Commentaire trop long, il sera limité à 256 caractères.");
    EXPECT_EQ(
        Texte(TexteProgramme::AncienneVersion),
        "Attention, ce fichier provient d'une ancienne version de Tessarel, il peut y avoir un erreur sur le "
        "placement en Z.\r\n"
        "Une fois le fichier ouvert, corrigez le placement et réenregistrez (clic sur le bouton Enregistrer) "
        "pour supprimer ce message à la prochaine ouverture.");
    EXPECT_EQ(Texte(TexteProgramme::IniSansRetourChariotTitre), TitresMessages(244));
    EXPECT_EQ(Compter(Texte(TexteProgramme::IniSansRetourChariot), "\r\n"), 2);
    EXPECT_NE(Texte(TexteProgramme::IniSansRetourChariotMatieres).find("(attention, pas avec le bloc-notes)"),
              std::string::npos);
    EXPECT_EQ(Texte(TexteProgramme::FiltreGcode),
              "Fichier Gcode(*.gcode)|*.gcode|Tous les fichiers (*.*)|*.*");
    EXPECT_EQ(Texte(TexteProgramme::VitesseTropBasse), "ATTENTION, vitesse < 0.05mm/s, découpe impossible");
    EXPECT_EQ(TexteRempli(TexteProgramme::ResumeChauffe, {"65.0", "0.5"}),
              "Chauffe : 65.0% - Décalage : 0.5mm");
}

// The dialogs pair labels with patterns: both languages must offer the same patterns in the same order.
TEST(Textes, LesFiltresOntLesMemesMotifsDansLesDeuxLangues) {
    const auto motifs = [](const std::string& filtre) {
        std::vector<std::string> trouves;
        std::size_t rang = 0;
        for (std::size_t debut = 0; debut <= filtre.size(); ++rang) {
            const std::size_t fin = std::min(filtre.find('|', debut), filtre.size());
            if (rang % 2 == 1) trouves.push_back(filtre.substr(debut, fin - debut));
            debut = fin + 1;
        }
        EXPECT_EQ(rang % 2, 0U) << filtre;
        return trouves;
    };
    for (const TexteProgramme cle : {TexteProgramme::FiltreProjet, TexteProgramme::FiltreDessins,
                                     TexteProgramme::FiltreExportDxf, TexteProgramme::FiltreGcode}) {
        const auto francais = motifs(Texte(cle));
        const AvecLangue english(Langue::English);
        EXPECT_EQ(motifs(Texte(cle)), francais);
    }
    EXPECT_EQ(
        motifs(Texte(TexteProgramme::FiltreDessins)),
        (std::vector<std::string>{"*.tsr", "*.qnt", "*.dxf", "*.txt", "*.dat", "*.plt", "*.eps", "*.cpx",
                                  "*.fc", "*.tsr;*.qnt;*.dxf;*.txt;*.dat;*.plt;*.eps;*.cpx;*.fc", "*.*"}));
}
