// A virtual box on a socket: connecting, one packet out, one packet back.
#pragma once

#include "canal.h"

namespace tessarel {

class CanalPrise {
public:
    CanalPrise() = default;
    ~CanalPrise() { Fermer(); }
    CanalPrise(const CanalPrise&) = delete;
    CanalPrise& operator=(const CanalPrise&) = delete;

    // True when somebody listens, and goes on listening to us: connects where that isn't done yet.
    bool Presente();
    // CanalSucces when a connection stands, else why not.
    std::int32_t Ouvrir();
    void Fermer();
    // The report goes out and the reply takes its place; untouched after a failure. A box that went away and
    // came back since the last exchange is found again.
    std::int32_t Echanger(Rapport& rapport);

private:
    bool EstVivante();
    std::int32_t Recevoir(Rapport& rapport, Horodatage fin);

    int m_prise = -1;
};

} // namespace tessarel
