// The comparison of a machine with what a memory of the interface holds: it decides whether motion is
// allowed.
#include "table_machine.h"

namespace tessarel {

namespace {

class Comparaison {
public:
    void Ajouter(const std::string& nom, long memoire, long table) {
        AjouterTextes(nom, std::to_string(memoire), std::to_string(table));
    }
    void Ajouter(const std::string& nom, bool memoire, bool table) {
        AjouterTextes(nom, memoire ? "True" : "False", table ? "True" : "False");
    }
    [[nodiscard]] bool Egales() const { return m_egales; }
    [[nodiscard]] const std::string& Rapport() const { return m_rapport; }

private:
    void AjouterTextes(const std::string& nom, const std::string& memoire, const std::string& table) {
        const bool egal = memoire == table;
        m_egales = m_egales && egal;
        if (!m_rapport.empty()) m_rapport += "\r\n";
        m_rapport += "Zelko." + nom + "=" + memoire + (egal ? "  ==  " : "  <>  ") + "TableINI." + nom + "=" +
                     table + (egal ? "  OK" : "  NOK");
    }

    bool m_egales = true;
    std::string m_rapport;
};

} // namespace

bool ComparerMachineEtZelko(const TableMachine& table, const TableMachine& memoire, std::string* rapport) {
    Comparaison c;
    for (std::size_t i = 0; i < table.CodeDefinitionSortie.size(); ++i)
        c.Ajouter("CodeDefinitionSortie(" + std::to_string(i + 1) + ")",
                  long{memoire.CodeDefinitionSortie[i]}, long{table.CodeDefinitionSortie[i]});
    c.Ajouter("Frequence", long{memoire.Frequence}, long{table.Frequence});
    c.Ajouter("PenteAcceleration", long{memoire.PenteAcceleration}, long{table.PenteAcceleration});
    c.Ajouter("PWMmaxi0to255", long{memoire.PWMmaxi0to255}, long{table.PWMmaxi0to255});
    c.Ajouter("AutoMoteursOff", memoire.AutoMoteursOff, table.AutoMoteursOff);
    c.Ajouter("DelaiMoteursOff", long{memoire.DelaiMoteursOff}, long{table.DelaiMoteursOff});
    c.Ajouter("SwitchsActifs", memoire.SwitchsActifs, table.SwitchsActifs);
    c.Ajouter("OrientationX", long{memoire.OrientationX}, long{table.OrientationX});
    c.Ajouter("InversionSignalMoteurOnOff", memoire.InversionSignalMoteurOnOff,
              table.InversionSignalMoteurOnOff);
    if (rapport != nullptr) *rapport = c.Rapport();
    return c.Egales();
}

} // namespace tessarel
