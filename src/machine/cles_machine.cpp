// The rows of the machine keys.
#include "cles_machine.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tessarel {

namespace {

using T = TableMachine;

template <auto Membre>
auto& Champ(T& table) {
    return table.*Membre;
}
template <auto Membre, std::size_t Indice>
auto& Case(T& table) {
    return (table.*Membre)[Indice];
}

constexpr const char* Entier = "#####0";
constexpr const char* Reel = "#####0.0##";
constexpr const char* PetitReel = "#####0.0###"; // mm per turn: a pitch needs the fourth decimal

const std::array<CleMachine, 83> Table = {{
    {"InvSignalSortieDirX1", Case<&T::InvSignalSortieDir, AxeX1>},
    {"SortieDirX1", Case<&T::SortieDir, AxeX1>, Entier},
    {"InvSignalSortieDirX2", Case<&T::InvSignalSortieDir, AxeX2>},
    {"SortieDirX2", Case<&T::SortieDir, AxeX2>, Entier},
    {"InvSignalSortieDirY1", Case<&T::InvSignalSortieDir, AxeY1>},
    {"SortieDirY1", Case<&T::SortieDir, AxeY1>, Entier},
    {"InvSignalSortieDirY2", Case<&T::InvSignalSortieDir, AxeY2>},
    {"SortieDirY2", Case<&T::SortieDir, AxeY2>, Entier},
    {"InvSignalSortieDirA", Case<&T::InvSignalSortieDir, AxeA>},
    {"SortieDirA", Case<&T::SortieDir, AxeA>, Entier},
    {"InvSignalSortieStepX1", Case<&T::InvSignalSortieStep, AxeX1>},
    {"SortieStepX1", Case<&T::SortieStep, AxeX1>, Entier},
    {"InvSignalSortieStepX2", Case<&T::InvSignalSortieStep, AxeX2>},
    {"SortieStepX2", Case<&T::SortieStep, AxeX2>, Entier},
    {"InvSignalSortieStepY1", Case<&T::InvSignalSortieStep, AxeY1>},
    {"SortieStepY1", Case<&T::SortieStep, AxeY1>, Entier},
    {"InvSignalSortieStepY2", Case<&T::InvSignalSortieStep, AxeY2>},
    {"SortieStepY2", Case<&T::SortieStep, AxeY2>, Entier},
    {"InvSignalSortieStepA", Case<&T::InvSignalSortieStep, AxeA>},
    {"SortieStepA", Case<&T::SortieStep, AxeA>, Entier},
    {"PasParTourMoteurX1", Case<&T::PasParTourMoteur, AxeX1>, Reel},
    {"PasParTourMoteurY1", Case<&T::PasParTourMoteur, AxeY1>, Reel},
    {"PasParTourMoteurX2", Case<&T::PasParTourMoteur, AxeX2>, Reel},
    {"PasParTourMoteurY2", Case<&T::PasParTourMoteur, AxeY2>, Reel},
    {"PasParTourMoteurA", Case<&T::PasParTourMoteur, AxeA>, Reel},
    {"MicroPasX1", Case<&T::MicroPas, AxeX1>, Entier},
    {"MicroPasY1", Case<&T::MicroPas, AxeY1>, Entier},
    {"MicroPasX2", Case<&T::MicroPas, AxeX2>, Entier},
    {"MicroPasY2", Case<&T::MicroPas, AxeY2>, Entier},
    {"MicroPasA", Case<&T::MicroPas, AxeA>, Entier},
    {"MmParTourX1", Case<&T::MmParTour, AxeX1>, PetitReel},
    {"MmParTourY1", Case<&T::MmParTour, AxeY1>, PetitReel},
    {"MmParTourX2", Case<&T::MmParTour, AxeX2>, PetitReel},
    {"MmParTourY2", Case<&T::MmParTour, AxeY2>, PetitReel},
    {"DegParTourA", Champ<&T::DegParTourA>, PetitReel},
    {"InversionSignalOnOffMoteurs", Champ<&T::InversionSignalMoteurOnOff>},
    {"OrientationX", Champ<&T::OrientationX>, Entier, "", nullptr, RegleCle::EcriteSeulement},
    {"VmaxSansAccXY", Champ<&T::VmaxSansAccXY>, Reel},
    {"VmaxAvecAccXY", Champ<&T::VmaxAvecAccXY>, Reel},
    {"OmegaMaxSansAccA", Champ<&T::OmegaMaxSansAccA>, Reel},
    {"OmegaMaxAvecAccA", Champ<&T::OmegaMaxAvecAccA>, Reel},
    {"PenteAcceleration", Champ<&T::PenteAcceleration>, Entier},
    {"FrequenceInterpolateur", Champ<&T::Frequence>, Entier},
    {"ChauffeMaxiSur100", Champ<&T::ChauffeMaxiSur100>, Entier, "", nullptr, RegleCle::PartieEntiere},
    {"AutoMoteursOff", Champ<&T::AutoMoteursOff>},
    {"DelaiAutoMoteursOff", Champ<&T::DelaiMoteursOff>, Entier},
    {"NomAxeGcodeX1", Champ<&T::NomAxeGcodeX1>, nullptr, "X"},
    {"NomAxeGcodeX2", Champ<&T::NomAxeGcodeX2>, nullptr, "A"},
    {"NomAxeGcodeY1", Champ<&T::NomAxeGcodeY1>, nullptr, "Y"},
    {"NomAxeGcodeY2", Champ<&T::NomAxeGcodeY2>, nullptr, "Z"},
    {"CourseX", Champ<&T::CourseX>, Entier, "", "300.0"},
    {"CourseY", Champ<&T::CourseY>, Entier, "", "200.0"},
    {"TenirCompteEpaisseurPlateauRotatif", Champ<&T::TenirCompteEpaisseurPlateauRotatif>},
    {"MargeFilPlateau", Champ<&T::MargeFilPlateau>, Reel},
    {"MargeFilBloc", Champ<&T::MargeFilBloc>, Reel},
    {"MargeOrigineBloc", Champ<&T::MargeOrigineBloc>, Reel},
    {"TempoChauffe", Champ<&T::TempoChauffe>, Entier},
    {"ChauffeParDefaut", Champ<&T::ChauffeParDefaut>, Entier},
    {"VitesseDecoupeParDefaut", Champ<&T::VitesseDecoupeParDefaut>, Reel, "", "4.0"},
    {"SaigneeVDParDefaut", Champ<&T::SaigneeVDParDefaut>, Reel},
    {"SaigneeVDsur2ParDefaut", Champ<&T::SaigneeVDsur2ParDefaut>, Reel},
    {"VitesseRapide", Champ<&T::VitesseRapide>, Reel, "", "8.0"},
    {"EcartementY1Y2", Champ<&T::EcartementY1Y2>, Reel, "", "500.0"},
    {"EcartementY1Plateau", Champ<&T::EcartementY1Plateau>, Reel},
    {"EcartementPlateauY2", Champ<&T::EcartementPlateauY2>, Reel},
    {"LongueurMaxiFil", Champ<&T::LongueurMaxiFil>, Reel, "", "="},
    // After the repairs: its box comes last.
    {"OrigineEnHaut", Champ<&T::OrigineEnHaut>, nullptr, "", nullptr, RegleCle::ToujoursFausse},
    {"DistanceRangementFilSousOrigine", Champ<&T::DistanceRangementFilSousOrigine>, Reel},
    {"DistanceOrigineAxePlateauRotatif", Champ<&T::DistanceOrigineAxePlateauRotatif>, Reel},
    {"DistanceX1AxePlateauRotatif", Champ<&T::DistanceX1AxePlateauRotatif>, Reel},
    {"HauteurPlateauRotatif", Champ<&T::HauteurPlateauRotatif>, Reel},
    {"ChauffeNettoyage", Champ<&T::ChauffeNettoyage>, Entier},
    {"DecalageNettoyage", Champ<&T::DecalageNettoyage>, Entier},
    {"AttenteNettoyage", Champ<&T::AttenteNettoyage>, Entier},
    {"SwitchsActifs", Champ<&T::SwitchsActifs>},
    {"OrigineAutomatique", Champ<&T::OrigineAutomatique>},
    {"MmToOrigineX1", Case<&T::MmToOrigine, AxeX1>, Reel},
    {"MmToOrigineX2", Case<&T::MmToOrigine, AxeX2>, Reel},
    {"MmToOrigineY1", Case<&T::MmToOrigine, AxeY1>, Reel},
    {"MmToOrigineY2", Case<&T::MmToOrigine, AxeY2>, Reel},
    {"ActiverRangementAuto", Champ<&T::ActiverRangementAuto>},
    {"RangementSuivantX", Champ<&T::RangementSuivantX>, Entier},
    {"RangementSuivantY", Champ<&T::RangementSuivantY>, Entier},
}};

constexpr std::string_view PremiereCleGeometrie = "CourseX";

std::size_t NombreClesMoteurs() {
    std::size_t nombre = 0;
    while (Table[nombre].cle != PremiereCleGeometrie) ++nombre;
    return nombre;
}

} // namespace

std::span<const CleMachine> ClesMachine() {
    return Table;
}

std::span<const CleMachine> ClesMoteurs() {
    return ClesMachine().first(NombreClesMoteurs());
}

std::span<const CleMachine> ClesGeometrie() {
    return ClesMachine().subspan(NombreClesMoteurs());
}

const CleMachine* CleMachineDe(std::string_view cle) {
    const auto* const place =
        std::ranges::find_if(Table, [cle](const CleMachine& rangee) { return rangee.cle == cle; });
    return place == Table.end() ? nullptr : place;
}

} // namespace tessarel
