// The virtual box for tests of windows: blank at first, every command kept, and the window system's events
// let run as the desktop program does.
#pragma once

#include "link/echange.h"
#include "outils_boite/boite_virtuelle.h"
#include "platform/pompe.h"
#include "ui/pompe_qt.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

namespace tessarel::essais {

class BoiteDesFenetres {
public:
    // By default a run ends after a few polls.
    explicit BoiteDesFenetres(Instant parEchange = std::chrono::milliseconds(20),
                              std::size_t capaciteFile = simulateur::CapaciteFileUsuelle)
        : m_virtuelle("(Defaut)", capaciteFile) {
        m_virtuelle.boite.EcrireMemoires({});
        m_virtuelle.PasParEchange = parEchange;
        m_virtuelle.AvantEchange = [this](const Tampon& tampon) { commandes.push_back(tampon); };
        m_pompe = InstallerPompe([this] {
            if (SurPompe) SurPompe();
            QCoreApplication::processEvents();
        });
        ReinitialiserEtatInterface();
    }
    ~BoiteDesFenetres() { InstallerPompe(std::move(m_pompe)); }
    BoiteDesFenetres(const BoiteDesFenetres&) = delete;
    BoiteDesFenetres& operator=(const BoiteDesFenetres&) = delete;

    // The machine lies in memory 1, as a save leaves it, and runs.
    void Memoriser(const TableMachine& table) { m_virtuelle.PreparerMachine(TableMachine(table)); }
    // Time that each exchange takes from here on.
    void FixerParEchange(Instant duree) { m_virtuelle.PasParEchange = duree; }
    // Lets the driven clock go on.
    void Attendre(Instant duree) { m_virtuelle.Attendre(duree); }
    // How often a command went out, with its first argument.
    [[nodiscard]] std::size_t Compter(std::uint8_t code, std::uint8_t argument) const {
        return static_cast<std::size_t>(std::ranges::count_if(
            commandes, [&](const Tampon& t) { return t[1] == code && t[2] == argument; }));
    }
    // Exchanges from the `depuis`-th on to the first Stop; all there were where none was sent.
    [[nodiscard]] std::size_t EchangesAvantArret(std::size_t depuis) const {
        const auto debut = commandes.begin() + static_cast<std::ptrdiff_t>(depuis);
        const auto arret =
            std::find_if(debut, commandes.end(), [](const Tampon& t) { return t[1] == CommandeArret; });
        return static_cast<std::size_t>(arret - debut);
    }

private:
    BoiteVirtuelle m_virtuelle;
    Pompe m_pompe;

public:
    simulateur::BoiteZelko* boite = &m_virtuelle.boite;
    std::vector<Tampon> commandes;
    std::function<void()> SurPompe; // called whenever a loop lets events run
};

// The desktop program's own pump, with a place to act in before each turn.
class PompeDuProgramme {
public:
    explicit PompeDuProgramme(BoiteDesFenetres& virtuelle) {
        InstallerPompeQt();
        Pompe qt = InstallerPompe({});
        InstallerPompe([&virtuelle, qt = std::move(qt)] {
            if (virtuelle.SurPompe) virtuelle.SurPompe();
            qt();
        });
    }
};

} // namespace tessarel::essais
