// Boxes recorded for a test instead of shown, answered from a list.
#pragma once

#include "platform/dialogue.h"

#include <deque>
#include <vector>

namespace tessarel::essais {

// While it lives, every box goes into `boites`; answers come from `reponses` in turn, then from the default
// (Ok, else Cancel, else No).
class BoitesEnregistrees {
public:
    BoitesEnregistrees();
    ~BoitesEnregistrees();
    BoitesEnregistrees(const BoitesEnregistrees&) = delete;
    BoitesEnregistrees& operator=(const BoitesEnregistrees&) = delete;

    std::vector<Boite> boites;
    std::deque<ReponseBoite> reponses;

private:
    AfficheurBoite m_ancien;
};

} // namespace tessarel::essais
