// The rows of the numeric fields that a user enters for a machine.
#include "champs_machine.h"

#include <algorithm>
#include <array>

namespace tessarel {

namespace {

constexpr double PasMax = 32767;      // full steps times micro-steps go into 16 signed bits
constexpr double MicroPasMax = 512;   // beyond what any driver offers
constexpr double MmMax = 100000;      // travel, spacing: a table of 100 m
constexpr double VitesseMax = 10000;  // mm/s or degrees/s
constexpr double SecondesMax = 32767; // 16 signed bits
constexpr double SortieMax = 10;      // outputs of the box; 0 is none
constexpr double PenteMax = 15;       // four bits of the frame builder
constexpr double OctetMax = 255;
constexpr double FrequenceMin = 10000; // Hz, by 10000
constexpr double FrequenceMax = 50000;
constexpr double PourcentMax = 100;

constexpr auto Un = RegleZero::ParUn;
constexpr auto DeuxCents = RegleZero::ParDeuxCents;
constexpr auto Course = RegleZero::CourseForcee;

constexpr std::array<ChampMachineSaisi, 61> Champs = {{
    {"SortieDirX1", 0, SortieMax, "", true},
    {"SortieDirY1", 0, SortieMax, "", true},
    {"SortieDirX2", 0, SortieMax, "", true},
    {"SortieDirY2", 0, SortieMax, "", true},
    {"SortieDirA", 0, SortieMax, "", true},
    {"SortieStepX1", 0, SortieMax, "", true},
    {"SortieStepY1", 0, SortieMax, "", true},
    {"SortieStepX2", 0, SortieMax, "", true},
    {"SortieStepY2", 0, SortieMax, "", true},
    {"SortieStepA", 0, SortieMax, "", true},
    {"PasParTourMoteurX1", 0, PasMax, "", false, DeuxCents},
    {"PasParTourMoteurY1", 0, PasMax, "", false, DeuxCents},
    {"PasParTourMoteurX2", 0, PasMax, "", false, DeuxCents},
    {"PasParTourMoteurY2", 0, PasMax, "", false, DeuxCents},
    {"PasParTourMoteurA", 0, PasMax, "", false, DeuxCents},
    {"MicroPasX1", 0, MicroPasMax, "", true, Un},
    {"MicroPasY1", 0, MicroPasMax, "", true, Un},
    {"MicroPasX2", 0, MicroPasMax, "", true, Un},
    {"MicroPasY2", 0, MicroPasMax, "", true, Un},
    {"MicroPasA", 0, MicroPasMax, "", true, Un},
    {"MmParTourX1", 0, MmMax, "mm", false, Un},
    {"MmParTourY1", 0, MmMax, "mm", false, Un},
    {"MmParTourX2", 0, MmMax, "mm", false, Un},
    {"MmParTourY2", 0, MmMax, "mm", false, Un},
    {"DegParTourA", 0, MmMax, "°", false, Un},
    {"VmaxSansAccXY", 0, VitesseMax, "mm/s", false, Un},
    {"VmaxAvecAccXY", 0, VitesseMax, "mm/s", false, Un},
    {"OmegaMaxSansAccA", 0, VitesseMax, "°/s"},
    {"OmegaMaxAvecAccA", 0, VitesseMax, "°/s"},
    {"PenteAcceleration", 0, PenteMax, "", true},
    {"FrequenceInterpolateur", FrequenceMin, FrequenceMax, "Hz", true},
    {"VitesseRapide", 0, VitesseMax, "mm/s"},
    {"VitesseDecoupeParDefaut", 0, VitesseMax, "mm/s", false, RegleZero::VitesseDecoupe},
    {"CourseX", 0, MmMax, "mm", true, Course},
    {"CourseY", 0, MmMax, "mm", true, Course},
    {"MargeFilPlateau", 0, MmMax, "mm"},
    {"MargeFilBloc", 0, MmMax, "mm"},
    {"MargeOrigineBloc", 0, MmMax, "mm"},
    {"EcartementY1Y2", 0, MmMax, "mm"},
    {"EcartementY1Plateau", 0, MmMax, "mm"},
    {"EcartementPlateauY2", 0, MmMax, "mm"},
    {"LongueurMaxiFil", 0, MmMax, "mm"},
    {"DistanceOrigineAxePlateauRotatif", -MmMax, MmMax, "mm"},
    {"DistanceX1AxePlateauRotatif", -MmMax, MmMax, "mm"},
    {"HauteurPlateauRotatif", -MmMax, MmMax, "mm"},
    {"ChauffeMaxiSur100", 0, PourcentMax, "%", true},
    {"ChauffeParDefaut", 0, PourcentMax, "%", true},
    {"TempoChauffe", 1, SecondesMax, "s", true},
    {"SaigneeVDParDefaut", 0, MmMax, "mm"},
    {"SaigneeVDsur2ParDefaut", 0, MmMax, "mm"},
    {"DelaiAutoMoteursOff", 0, OctetMax, "", true},
    {"MmToOrigineX1", -MmMax, MmMax, "mm"},
    {"MmToOrigineY1", -MmMax, MmMax, "mm"},
    {"MmToOrigineX2", -MmMax, MmMax, "mm"},
    {"MmToOrigineY2", -MmMax, MmMax, "mm"},
    {"DistanceRangementFilSousOrigine", 0, MmMax, "mm"},
    {"RangementSuivantX", 0, MmMax, "mm", true},
    {"RangementSuivantY", 0, MmMax, "mm", true},
    {"ChauffeNettoyage", 0, PourcentMax, "%", true},
    {"DecalageNettoyage", 0, SecondesMax, "mm", true},
    {"AttenteNettoyage", 0, SecondesMax, "s", true},
}};

} // namespace

std::span<const ChampMachineSaisi> ChampsMachineSaisis() {
    return Champs;
}

const ChampMachineSaisi* ChampMachineSaisiDe(std::string_view cle) {
    const auto* const place =
        std::ranges::find_if(Champs, [cle](const ChampMachineSaisi& champ) { return champ.cle == cle; });
    return place == Champs.end() ? nullptr : place;
}

bool AxeUtilise(const TableMachine& table, Axe axe) {
    return table.SortieDir[axe] != 0 || table.SortieStep[axe] != 0;
}

} // namespace tessarel
