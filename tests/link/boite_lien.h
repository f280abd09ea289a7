// A box for tests of the link: it notes what it is sent and answers with what the test sets.
#pragma once

#include "link/echange.h"
#include "link/memoires.h"
#include "outils/boites.h"
#include "platform/horloge.h"
#include "platform/pompe.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace tessarel::essais {

// In place of the library while it lives; moves are enabled, boxes recorded, time stands still.
class Lien : public ::testing::Test {
protected:
    Lien() {
        RemplacerZelkoCom({VersionMinimaleZelko, [this] { return branchee; },
                           [this](Tampon& tampon) {
                               envois.push_back(tampon);
                               return repondre ? repondre(tampon) : ResultatZelkoSucces;
                           }});
        m_horloge = InstallerHorloge([this] { return heure; });
        m_pompe = InstallerPompe([this] { ++pompages; });
        ReinitialiserEtatInterface();
        InterfaceConnectee = true;
        MouvementsActifs = true;
        TamponEchange.fill(0);
        MemoiresZelko = {};
    }
    ~Lien() override {
        InstallerPompe(std::move(m_pompe));
        InstallerHorloge(std::move(m_horloge));
        LibererZelkoCom();
        ReinitialiserEtatInterface();
        TamponEchange.fill(0);
    }

    // The bytes of the last message, from 0 to `dernier`; all behind must be 0.
    [[nodiscard]] std::vector<int> DernierEnvoi(std::size_t dernier) const {
        std::vector<int> octets;
        if (envois.empty()) return octets;
        const Tampon& tampon = envois.back();
        octets.assign(tampon.begin(), tampon.begin() + static_cast<std::ptrdiff_t>(dernier) + 1);
        for (std::size_t i = dernier + 1; i < tampon.size(); ++i) EXPECT_EQ(tampon[i], 0) << "byte " << i;
        return octets;
    }

    std::vector<Tampon> envois;
    std::function<std::int32_t(Tampon&)> repondre; // empty: success, the command as its own reply
    std::int32_t branchee = ZelkoBranchee;
    Instant heure{};
    int pompages = 0;
    BoitesEnregistrees boites;

private:
    SourceTemps m_horloge;
    Pompe m_pompe;
};

} // namespace tessarel::essais
