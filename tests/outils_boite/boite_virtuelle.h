// The virtual box in place of the link library, under a clock that the test drives.
#pragma once

#include "link/etat_interface.h"
#include "link/simulateur/boite.h"
#include "link/simulateur/memoires_machine.h"
#include "machine/table_machine.h"
#include "platform/horloge.h"
#include "platform/zelkocom.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace tessarel::essais {

// While it lives: the clock stands still but for PasParEchange at each exchange and Attendre(); Zelko_Send
// goes to `boite`; memory 0 and the RAM hold the machine, which is also TableINI; MouvementsActifs and
// InterfaceConnectee are true. At its end everything is as before, and no library is loaded.
class BoiteVirtuelle {
public:
    explicit BoiteVirtuelle(const std::string& machine = "(Defaut)",
                            std::size_t capacite = simulateur::CapaciteFileUsuelle)
        : m_horloge([this] { return m_temps; }), boite(capacite) {
        m_ancienneTable = TableINI;
        ChargerMachine(machine);
        PreparerMachine(TableINI);
        boite.SurAttente = [this](Instant duree) { Attendre(duree); };
        FonctionsZelkoCom fonctions;
        fonctions.EstBranchee = [this] { return boite.Branchee() ? ZelkoBranchee : 0; };
        fonctions.Envoyer = [this](Tampon& tampon) {
            Attendre(PasParEchange);
            if (AvantEchange) AvantEchange(tampon);
            const std::int32_t resultat = boite.Echanger(tampon);
            if (ApresEchange) ApresEchange(tampon, resultat);
            return resultat;
        };
        RemplacerZelkoCom(std::move(fonctions));
        ReinitialiserEtatInterface();
        InterfaceConnectee = true;
        MouvementsActifs = true;
    }
    ~BoiteVirtuelle() {
        LibererZelkoCom();
        ReinitialiserEtatInterface();
        TableINI = m_ancienneTable;
    }
    BoiteVirtuelle(const BoiteVirtuelle&) = delete;
    BoiteVirtuelle& operator=(const BoiteVirtuelle&) = delete;

    // Another machine, or the same with other values: into TableINI, memory 0 and the RAM.
    void PreparerMachine(const TableMachine& table) {
        TableINI = table;
        simulateur::MemoiresBoite memoires = boite.Memoires();
        memoires[0] = simulateur::MemoireDeMachine(table);
        boite.EcrireMemoires(memoires);
        boite.ChargerEnRam(0);
        boite.FixerMecanique(simulateur::MecaniqueDeMachine(table));
    }
    void Attendre(Instant duree) { m_temps += duree; }
    [[nodiscard]] Instant Temps() const { return m_temps; }

private:
    // Set before the box reads the time, put back after it is gone.
    struct HorlogeMenee {
        explicit HorlogeMenee(SourceTemps source) : ancienne(InstallerHorloge(std::move(source))) {}
        ~HorlogeMenee() { InstallerHorloge(std::move(ancienne)); }
        HorlogeMenee(const HorlogeMenee&) = delete;
        HorlogeMenee& operator=(const HorlogeMenee&) = delete;
        SourceTemps ancienne;
    };

    Instant m_temps{0};
    HorlogeMenee m_horloge;
    TableMachine m_ancienneTable;

public:
    simulateur::BoiteZelko boite;
    // Time that each exchange takes.
    Instant PasParEchange = std::chrono::milliseconds(1);
    // Called around each exchange: to press Stop at the n-th, to keep what went by.
    std::function<void(const Tampon&)> AvantEchange;
    std::function<void(const Tampon&, std::int32_t)> ApresEchange;
};

} // namespace tessarel::essais
