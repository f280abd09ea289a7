// Reading of a machine as a user typed it: which texts are no numbers, which values are corrected and told,
// which ones are refused.
#include "saisie_machine.h"

#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "champs_machine.h"
#include "cles_machine.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeFormat = 241;
constexpr int RangeeZeroUn = 242;
constexpr int RangeeZeroDeuxCents = 243;
constexpr int RangeeCourseX = 229;
constexpr int RangeeCourseY = 230;
constexpr int RangeeChauffeDefaut = 231;
constexpr int RangeeChauffeNettoyage = 233;
constexpr int RangeeVitesseDecoupe = 234;
constexpr int RangeeVitesseRapide = 235;
constexpr int RangeeSaignee = 236;
constexpr int RangeeNomVide = 218;
constexpr int RangeeNomReserve = 219;
constexpr int RangeeNomPris = 220;

constexpr std::int32_t CourseForcee = 300; // mm, as the boxes say of both travels
constexpr float VitesseDecoupeForcee = 4;  // mm/s

void Dire(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

bool EstSaisie(const CleMachine& cle) {
    // The origin at the top is offered no more, and the orientation is the same for all machines.
    return cle.regle != RegleCle::ToujoursFausse && cle.regle != RegleCle::EcriteSeulement;
}

std::string Afficher(double valeur) {
    return PointVersSeparateur(FormaterNombre(valeur, "#####0.###"));
}

RemarqueSaisie RemarqueLimites(const ChampMachineSaisi& champ) {
    return {champ.cle,
            TexteRempli(TexteProgramme::ChampHorsLimites,
                        {Afficher(champ.minimum), Afficher(champ.maximum), champ.unite}),
            true};
}

// What was read of a capture: the fields that make sense, and what to say of the others.
struct Lecture {
    TableMachine table;
    std::vector<RemarqueSaisie> illisibles;
    std::vector<RemarqueSaisie> horsLimites;
};

Lecture LireTextes(const SaisieMachine& saisie) {
    Lecture lecture;
    lecture.table.Nom = saisie.Nom;
    for (const CleMachine& cle : ClesMachine()) {
        if (!EstSaisie(cle)) continue;
        const std::string texte = saisie.Lire(cle.cle);
        const ChampMachineSaisi* champ = ChampMachineSaisiDe(cle.cle);
        if (champ != nullptr) {
            const std::optional<double> valeur = LireDecimal(texte);
            if (!valeur) {
                lecture.illisibles.push_back({cle.cle, Texte(TexteProgramme::ChampNombreAttendu), true});
                continue;
            }
            if (*valeur < champ->minimum || *valeur > champ->maximum) {
                lecture.horsLimites.push_back(RemarqueLimites(*champ));
                continue;
            }
        }
        PoserTexteDeCle(lecture.table, cle, texte);
    }
    return lecture;
}

// Zeros -------------------------------------------------------------------------------------------

// A 0 that can't stay: where it stands, what is said, what it becomes.
struct ZeroRemplace {
    const char* cle;
    int rangee; // 0: nothing is said
    double valeur;
};

bool SiegeSurAxeLibre(const char* cle, const TableMachine& table) {
    return std::string_view(cle).ends_with("A") && !AxeUtilise(table, AxeA);
}

std::optional<ZeroRemplace> RemplacementDe(const ChampMachineSaisi& champ) {
    switch (champ.zero) {
    case RegleZero::Admis:
        return std::nullopt;
    case RegleZero::ParUn:
        return ZeroRemplace{champ.cle, RangeeZeroUn, 1};
    case RegleZero::ParDeuxCents:
        return ZeroRemplace{champ.cle, RangeeZeroDeuxCents, 200};
    case RegleZero::CourseForcee:
        return ZeroRemplace{champ.cle,
                            std::string_view(champ.cle) == "CourseX" ? RangeeCourseX : RangeeCourseY,
                            CourseForcee};
    case RegleZero::VitesseDecoupe:
        return ZeroRemplace{champ.cle, 0, VitesseDecoupeForcee};
    }
    return std::nullopt;
}

double ValeurDe(const TableMachine& table, const char* cle) {
    return NombreDepuisTexte(TexteDeCle(*CleMachineDe(cle), table));
}

void FixerValeur(TableMachine& table, const char* cle, double valeur) {
    PoserTexteDeCle(table, *CleMachineDe(cle), FormaterNombre(valeur, "#####0.0####"));
}

std::vector<ZeroRemplace> ZerosARemplacer(const TableMachine& table) {
    std::vector<ZeroRemplace> zeros;
    for (const ChampMachineSaisi& champ : ChampsMachineSaisis()) {
        const std::optional<ZeroRemplace> remplacement = RemplacementDe(champ);
        if (!remplacement || SiegeSurAxeLibre(champ.cle, table)) continue;
        if (ValeurDe(table, champ.cle) == 0) zeros.push_back(*remplacement);
    }
    return zeros;
}

// Values that others limit ------------------------------------------------------------------------

// `cle` may not be above what `limite` gives; the row says so.
struct ValeurBridee {
    const char* cle;
    int rangee;
    double (*limite)(const TableMachine&);
};

constexpr std::array<ValeurBridee, 6> Brides = {{
    {"ChauffeParDefaut", RangeeChauffeDefaut,
     [](const TableMachine& t) -> double { return t.ChauffeMaxiSur100; }},
    {"ChauffeNettoyage", RangeeChauffeNettoyage,
     [](const TableMachine& t) -> double { return t.ChauffeMaxiSur100; }},
    {"VitesseDecoupeParDefaut", RangeeVitesseDecoupe,
     [](const TableMachine& t) -> double { return t.VmaxSansAccXY; }},
    {"VitesseRapide", RangeeVitesseRapide, [](const TableMachine& t) -> double { return t.VmaxAvecAccXY; }},
    {"SaigneeVDParDefaut", RangeeSaignee,
     [](const TableMachine&) -> double { return Parametres.SaigneeMaxiSoft; }},
    {"SaigneeVDsur2ParDefaut", RangeeSaignee,
     [](const TableMachine&) -> double { return Parametres.SaigneeMaxiSoft; }},
}};

// Axes whose steps per turn do not fit: their number is that of the enumeration.
std::vector<std::size_t> AxesTropFins(const TableMachine& table) {
    constexpr double max = 32767; // 16 signed bits
    std::vector<std::size_t> axes;
    for (std::size_t axe = AxeX1; axe <= AxeA; ++axe)
        if (double{table.PasParTourMoteur[axe]} * table.MicroPas[axe] >= max + 0.5) axes.push_back(axe);
    return axes;
}

constexpr std::array<const char*, 5> ClesMicroPas = {"MicroPasX1", "MicroPasY1", "MicroPasX2", "MicroPasY2",
                                                     "MicroPasA"};
constexpr std::array<const char*, 10> ClesSorties = {
    "SortieDirX1",  "SortieDirY1",  "SortieDirX2",  "SortieDirY2",  "SortieDirA",
    "SortieStepX1", "SortieStepY1", "SortieStepX2", "SortieStepY2", "SortieStepA"};

// The interface keeps the delay alone, and reads a delay of 0 as "never": both fields must say the same.
void AccorderArretMoteurs(TableMachine& table) {
    if (!table.AutoMoteursOff) table.DelaiMoteursOff = 0;
    if (table.AutoMoteursOff && table.DelaiMoteursOff == 0) table.DelaiMoteursOff = 1;
}

void Corriger(TableMachine& table) {
    for (const ZeroRemplace& zero : ZerosARemplacer(table)) {
        if (zero.rangee != 0) Dire(zero.rangee);
        FixerValeur(table, zero.cle, zero.valeur);
    }
}

void Brider(TableMachine& table) {
    for (const ValeurBridee& bride : Brides) {
        const double limite = bride.limite(table);
        if (ValeurDe(table, bride.cle) <= limite) continue;
        Dire(bride.rangee);
        FixerValeur(table, bride.cle, limite);
    }
    AccorderArretMoteurs(table);
}

} // namespace

std::string SaisieMachine::Lire(std::string_view cle) const {
    const auto place = Textes.find(cle);
    return place == Textes.end() ? "" : place->second;
}

SaisieMachine SaisieDepuisTable(const TableMachine& table) {
    SaisieMachine saisie;
    saisie.Nom = table.Nom;
    for (const CleMachine& cle : ClesMachine())
        if (EstSaisie(cle)) saisie.Textes[cle.cle] = TexteDeCle(cle, table);
    return saisie;
}

std::vector<int> SortiesEnDouble(const SaisieMachine& saisie) {
    std::array<int, 11> emplois = {};
    for (const char* cle : ClesSorties) {
        const std::optional<double> sortie = LireDecimal(saisie.Lire(cle));
        if (sortie && *sortie >= 1 && *sortie <= 10) ++emplois[static_cast<std::size_t>(*sortie)];
    }
    std::vector<int> doubles;
    for (std::size_t sortie = 1; sortie < emplois.size(); ++sortie)
        if (emplois[sortie] > 1) doubles.push_back(static_cast<int>(sortie));
    return doubles;
}

std::vector<RemarqueSaisie> RemarquesSaisie(const SaisieMachine& saisie) {
    const Lecture lecture = LireTextes(saisie);
    std::vector<RemarqueSaisie> remarques = lecture.illisibles;
    remarques.insert(remarques.end(), lecture.horsLimites.begin(), lecture.horsLimites.end());
    const auto dejaDite = [&remarques](std::string_view cle) {
        return std::ranges::any_of(remarques, [cle](const RemarqueSaisie& r) { return r.Cle == cle; });
    };
    const std::vector<int> doubles = SortiesEnDouble(saisie);
    for (const char* cle : ClesSorties) {
        const std::string sortie = saisie.Lire(cle);
        if (std::ranges::any_of(doubles, [&](int d) { return std::to_string(d) == sortie; }))
            remarques.push_back({cle, Texte(TexteProgramme::ChampSortieEnDouble), true});
    }
    for (const ZeroRemplace& zero : ZerosARemplacer(lecture.table)) {
        if (!dejaDite(zero.cle))
            remarques.push_back(
                {zero.cle, TexteRempli(TexteProgramme::ChampZeroRemplace, {Afficher(zero.valeur)}), false});
    }
    for (const std::size_t axe : AxesTropFins(lecture.table))
        remarques.push_back({ClesMicroPas[axe], Texte(TexteProgramme::ChampPasTropFins), true});
    for (const ValeurBridee& bride : Brides) {
        const double limite = bride.limite(lecture.table);
        if (!dejaDite(bride.cle) && ValeurDe(lecture.table, bride.cle) > limite)
            remarques.push_back(
                {bride.cle, TexteRempli(TexteProgramme::ChampSeraRamene, {Afficher(limite)}), false});
    }
    return remarques;
}

std::optional<TableMachine> ControlerSaisie(const SaisieMachine& saisie) {
    Lecture lecture = LireTextes(saisie);
    if (!lecture.illisibles.empty()) {
        Dire(RangeeFormat);
        return std::nullopt;
    }
    const std::string& titre = TitresMessages(RangeeFormat);
    if (!lecture.horsLimites.empty()) {
        const RemarqueSaisie& premiere = lecture.horsLimites.front();
        AfficherExclamation(premiere.Cle + SelonLangue(" : ", ": ") + premiere.Texte, titre);
        return std::nullopt;
    }
    TableMachine& table = lecture.table;
    Corriger(table);
    if (!SortiesEnDouble(saisie).empty()) {
        AfficherExclamation(Texte(TexteProgramme::SortiesIdentiques), titre);
        return std::nullopt;
    }
    if (const std::vector<std::size_t> axes = AxesTropFins(table); !axes.empty()) {
        AfficherExclamation(std::string(ClesMicroPas[axes.front()]) + SelonLangue(" : ", ": ") +
                                Texte(TexteProgramme::ChampPasTropFins),
                            titre);
        return std::nullopt;
    }
    Brider(table);
    CalculerChampsDerives(table);
    return table;
}

// Names -------------------------------------------------------------------------------------------

namespace {

// Characters of a UTF-8 text.
std::size_t NombreCaracteres(std::string_view texte) {
    return static_cast<std::size_t>(std::ranges::count_if(
        texte, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

// A header of a section ends at a bracket, and a memory holds a byte per character.
bool CaractereImpossible(char c) {
    const auto code = static_cast<unsigned char>(c);
    return c == '[' || c == ']' || code < 0x20 || code > 0x7E;
}

} // namespace

RefusNom ExaminerNomMachine(const std::string& nom) {
    const std::string rogne(Rogner(nom));
    if (rogne.empty()) return RefusNom::Vide;
    if (EstMachineIntegree(rogne)) return RefusNom::Reserve;
    const auto pris = [&rogne](const std::string& autre) { return EgalSansCasse(autre, rogne); };
    if (std::ranges::any_of(TableauNomsMachines, pris)) return RefusNom::Pris;
    if (NombreCaracteres(rogne) > LongueurNomMachine) return RefusNom::TropLong;
    if (std::ranges::any_of(rogne, CaractereImpossible)) return RefusNom::Impossible;
    return RefusNom::Aucun;
}

bool AccepterNomMachine(const std::string& nom) {
    switch (ExaminerNomMachine(nom)) {
    case RefusNom::Aucun:
        return true;
    case RefusNom::Vide:
        Dire(RangeeNomVide);
        break;
    case RefusNom::Reserve:
        Dire(RangeeNomReserve);
        break;
    case RefusNom::Pris:
        Dire(RangeeNomPris);
        break;
    case RefusNom::TropLong:
        AfficherExclamation(Texte(TexteProgramme::NomMachineTropLong), TitresMessages(RangeeNomPris));
        break;
    case RefusNom::Impossible:
        AfficherExclamation(Texte(TexteProgramme::NomMachineImpossible), TitresMessages(RangeeNomPris));
        break;
    }
    return false;
}

} // namespace tessarel
