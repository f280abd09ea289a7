// The current machine, the list of names, and what is computed from a table.
#include "table_machine.h"

#include "app/settings/verification_ini.h"
#include "cles_machine.h"
#include "platform/nombres.h"

#include <algorithm>

namespace tessarel {

TableMachine TableINI;
std::vector<std::string> TableauNomsMachines;

namespace {

// Bits of the function of an output; the low bits are the axis, A being 5.
constexpr std::uint8_t BitStep = 0x80;
constexpr std::uint8_t BitInverse = 0x40;

void CoderSorties(const std::array<std::uint8_t, 5>& sorties, const std::array<bool, 5>& inverses,
                  std::uint8_t genre, std::array<std::uint8_t, 10>& codes) {
    constexpr std::array<Axe, 5> ordre = {AxeX1, AxeX2, AxeY1, AxeY2, AxeA};
    for (const Axe axe : ordre) {
        const std::size_t sortie = sorties[axe];
        if (sortie < 1 || sortie > codes.size()) continue;
        codes[sortie - 1] = static_cast<std::uint8_t>(genre | (inverses[axe] ? BitInverse : 0U) | (axe + 1U));
    }
}

} // namespace

void CalculerChampsDerives(TableMachine& table) {
    CalculerChampsMoteurs(table);
    CalculerChampsGeometrie(table);
}

void CalculerChampsMoteurs(TableMachine& table) {
    // Two signals on one output: the later in this order wins.
    table.CodeDefinitionSortie = {};
    CoderSorties(table.SortieDir, table.InvSignalSortieDir, 0, table.CodeDefinitionSortie);
    CoderSorties(table.SortieStep, table.InvSignalSortieStep, BitStep, table.CodeDefinitionSortie);
    for (std::size_t axe = AxeX1; axe <= AxeA; ++axe)
        table.PasParTour[axe] = ArrondiInteger(double{table.PasParTourMoteur[axe]} * table.MicroPas[axe]);
    table.PWMmaxi0to255 = ArrondiInteger(table.ChauffeMaxiSur100 * 255 / 100.0);
}

void CalculerChampsGeometrie(TableMachine& table) {
    table.EcartementUtile =
        EnSimple(double{table.EcartementY1Y2} - table.EcartementY1Plateau - table.EcartementPlateauY2);
    for (std::size_t axe = AxeX1; axe <= AxeY2; ++axe) {
        const double mmParTour = table.MmParTour[axe];
        table.PasToOrigine[axe] =
            mmParTour == 0 ? 0 : Arrondi(table.PasParTour[axe] * double{table.MmToOrigine[axe]} / mmParTour);
    }
}

bool EstMachineConnue(const std::string& nom) {
    return EstMachineIntegree(nom) ||
           std::ranges::find(TableauNomsMachines, nom) != TableauNomsMachines.end();
}

void CreerTableauDesNomsDeMachines() {
    TableauNomsMachines = {"(Defaut)", "QT4X-m1"};
    for (std::string& nom : NomsDesSections(std::string("[") + PrefixeMachine))
        TableauNomsMachines.push_back(std::move(nom));
}

bool MemesValeurs(const TableMachine& a, TableMachine b) {
    b.NumeroMemoire = a.NumeroMemoire;
    return a == b;
}

} // namespace tessarel
