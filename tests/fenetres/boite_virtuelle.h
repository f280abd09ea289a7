// The virtual box in place of the link library, for tests of windows: every exchange lets a little of its
// time pass, so that runs end without any waiting.
#pragma once

#include "link/echange.h"
#include "link/simulateur/boite.h"
#include "link/simulateur/memoires_machine.h"
#include "platform/horloge.h"
#include "platform/pompe.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tessarel::essais {

class BoiteVirtuelle {
public:
    explicit BoiteVirtuelle(Instant parEchange = std::chrono::milliseconds(20)) : m_parEchange(parEchange) {
        m_horloge = InstallerHorloge([this] { return m_heure; });
        boite = std::make_unique<simulateur::BoiteZelko>();
        m_pompe = InstallerPompe([this] {
            if (SurPompe) SurPompe();
            QCoreApplication::processEvents();
        });
        RemplacerZelkoCom({VersionMinimaleZelko, [this] { return boite->Branchee() ? ZelkoBranchee : 0; },
                           [this](Tampon& tampon) {
                               m_heure += m_parEchange;
                               commandes.push_back(tampon);
                               return boite->Echanger(tampon);
                           }});
        ReinitialiserEtatInterface();
    }
    ~BoiteVirtuelle() {
        LibererZelkoCom();
        InstallerPompe(std::move(m_pompe));
        InstallerHorloge(std::move(m_horloge));
        ReinitialiserEtatInterface();
    }
    BoiteVirtuelle(const BoiteVirtuelle&) = delete;
    BoiteVirtuelle& operator=(const BoiteVirtuelle&) = delete;

    // The machine lies in a memory, as a save leaves it.
    void Memoriser(std::size_t memoire, const TableMachine& table) {
        simulateur::MemoiresBoite memoires = boite->Memoires();
        memoires[memoire] = simulateur::MemoireDeMachine(table);
        boite->EcrireMemoires(memoires);
        boite->FixerMecanique(simulateur::MecaniqueDeMachine(table));
    }
    // How often a command went out, with its first argument.
    [[nodiscard]] std::size_t Compter(std::uint8_t code, std::uint8_t argument) const {
        return static_cast<std::size_t>(std::ranges::count_if(
            commandes, [&](const Tampon& t) { return t[1] == code && t[2] == argument; }));
    }

    std::unique_ptr<simulateur::BoiteZelko> boite;
    std::vector<Tampon> commandes;
    std::function<void()> SurPompe; // called whenever a loop lets events run

private:
    Instant m_heure{std::chrono::hours(1)};
    Instant m_parEchange;
    SourceTemps m_horloge;
    Pompe m_pompe;
};

} // namespace tessarel::essais
