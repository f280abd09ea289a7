// What the program knows of one cutting machine.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessarel {

// Order of the axes in every array of five (or, without A, of four).
enum Axe : std::size_t { AxeX1 = 0, AxeY1 = 1, AxeX2 = 2, AxeY2 = 3, AxeA = 4 };

struct TableMachine {
    std::string Nom;
    std::uint8_t NumeroMemoire = 0; // memory of the interface, 0 to 2
    std::array<std::uint8_t, 5> CodesEntrees = {5, 9, 6, 10, 16};
    std::uint8_t OrientationX = 0;
    std::array<std::uint8_t, 10> CodeDefinitionSortie = {}; // output 1 is element 0
    std::array<std::uint8_t, 5> SortieDir = {};             // by Axe; output 1 to 10, 0 none
    std::array<std::uint8_t, 5> SortieStep = {};
    std::array<bool, 5> InvSignalSortieDir = {};
    std::array<bool, 5> InvSignalSortieStep = {};
    std::array<float, 5> PasParTourMoteur = {}; // full steps per motor turn
    std::array<std::int16_t, 5> MicroPas = {};
    std::array<std::int16_t, 5> PasParTour = {}; // computed
    std::array<float, 4> MmParTour = {};         // mm of travel per motor turn
    float DegParTourA = 0;
    bool InversionSignalMoteurOnOff = false;
    float VmaxSansAccXY = 0; // mm/s
    float VmaxAvecAccXY = 0;
    float OmegaMaxSansAccA = 0; // degrees/s
    float OmegaMaxAvecAccA = 0;
    std::uint8_t PenteAcceleration = 0; // 0 to 15
    std::int32_t Frequence = 0;         // Hz
    std::int16_t ChauffeMaxiSur100 = 0; // percent
    std::int16_t PWMmaxi0to255 = 0;     // computed
    bool AutoMoteursOff = false;
    std::uint8_t DelaiMoteursOff = 0;
    std::string NomAxeGcodeX1 = "X";
    std::string NomAxeGcodeY1 = "Y";
    std::string NomAxeGcodeX2 = "A";
    std::string NomAxeGcodeY2 = "Z";
    std::int32_t CourseX = 0; // mm
    std::int32_t CourseY = 0;
    bool OrigineEnHaut = false;
    bool TenirCompteEpaisseurPlateauRotatif = false;
    float MargeFilPlateau = 0; // mm
    float MargeFilBloc = 0;
    float MargeOrigineBloc = 0;
    std::int16_t TempoChauffe = 1;     // s
    std::int16_t ChauffeParDefaut = 0; // percent
    float VitesseDecoupeParDefaut = 0; // mm/s
    float SaigneeVDParDefaut = 0;      // mm
    float SaigneeVDsur2ParDefaut = 0;
    float VitesseRapide = 0;  // mm/s
    float EcartementY1Y2 = 0; // mm
    float EcartementY1Plateau = 0;
    float EcartementPlateauY2 = 0;
    float EcartementUtile = 0; // computed
    float LongueurMaxiFil = 0;
    float DistanceRangementFilSousOrigine = 0;
    float DistanceOrigineAxePlateauRotatif = 0;
    float DistanceX1AxePlateauRotatif = 0;
    float HauteurPlateauRotatif = 0;
    std::int16_t ChauffeNettoyage = 0;
    std::int16_t DecalageNettoyage = 0;
    std::int16_t AttenteNettoyage = 0;
    bool SwitchsActifs = false;
    bool OrigineAutomatique = false;
    std::array<float, 4> MmToOrigine = {};   // mm
    std::array<double, 4> PasToOrigine = {}; // computed, whole numbers
    bool ActiverRangementAuto = false;
    std::int32_t RangementSuivantX = 0; // mm
    std::int32_t RangementSuivantY = 0;
    friend bool operator==(const TableMachine&, const TableMachine&) = default;
};

// The current machine: one per program, replaced whole by ChargerMachine.
extern TableMachine TableINI;
// All names: "(Defaut)", "QT4X-m1", then the machines of the settings file in file order.
extern std::vector<std::string> TableauNomsMachines;

// The same machine in all its values; the memory that holds it does not count.
bool MemesValeurs(const TableMachine& a, TableMachine b);

// Statuses of the told operations.
inline constexpr int StatutSucces = 1;
inline constexpr int StatutRefus = -100;

// Fills TableINI from a built-in column or from [Machine_<nom>]; repairs impossible values in the file, with
// their boxes. Returns StatutSucces, or StatutRefus after the failure box.
int ChargerMachine(const std::string& nom);
// The same without touching TableINI.
int LireMachine(const std::string& nom, TableMachine& table);
// Writes the keys of a machine into its section, in one step. False for a built-in name, which is never in
// the file, and when the file can't be written.
bool EcrireMachine(const TableMachine& table);
// Fills what is computed: PasParTour, PWMmaxi0to255, EcartementUtile, PasToOrigine, CodeDefinitionSortie.
// FauteDepassement when a product does not fit its width.
void CalculerChampsDerives(TableMachine& table);
// Its two parts: what follows from outputs, motors and heat; what follows from the geometry.
void CalculerChampsMoteurs(TableMachine& table);
void CalculerChampsGeometrie(TableMachine& table);
// True for the reserved names, whatever the case of their letters.
bool EstMachineIntegree(const std::string& nom);
// True for a built-in machine and for one of TableauNomsMachines: loading any other name makes its section.
bool EstMachineConnue(const std::string& nom);
// Fills TableauNomsMachines from the settings file.
void CreerTableauDesNomsDeMachines();
// True when the interface's memory agrees with the table in everything that motion depends on.
bool ComparerMachineEtZelko(const TableMachine& table, const TableMachine& memoire,
                            std::string* rapport = nullptr);

} // namespace tessarel
