// Another program at the same box: what it sends goes past this one.
#pragma once

#include "link/echange.h"
#include "link/simulateur/boite.h"
#include "outils_boite/trames.h"

#include <cstdint>

namespace tessarel::essais {

// The command of `tampon`, or that of its three bytes.
inline void EnvoyerPourAutrui(simulateur::BoiteZelko& boite, Tampon tampon) {
    boite.Echanger(tampon);
}
inline void EnvoyerPourAutrui(simulateur::BoiteZelko& boite, std::uint8_t code, std::uint8_t arg1,
                              std::uint8_t arg2 = 0) {
    Tampon t = {};
    t[1] = code;
    t[2] = arg1;
    t[3] = arg2;
    EnvoyerPourAutrui(boite, t);
}

// Starts a pause of 20 ms that lights the wire, unless `chauffe` is 0, and sixty frames of a second each.
inline void LancerPourAutrui(simulateur::BoiteZelko& boite, std::uint8_t chauffe) {
    EnvoyerPourAutrui(boite, CommandeFile, 0);
    EnvoyerPourAutrui(boite, CommandeFile, 1);
    if (chauffe != 0) {
        TrameEssai pause;
        pause.drapeaux = 64;
        pause.ticks = 1000;
        pause.niveauDepart = chauffe;
        EnvoyerPourAutrui(boite, EnTampon(pause));
    }
    TrameEssai trame;
    trame.drapeaux = 15;
    trame.ticks = 50000;
    trame.pas = {640, 320, 640, 320};
    for (int i = 0; i < 60; ++i) EnvoyerPourAutrui(boite, EnTampon(trame));
    EnvoyerPourAutrui(boite, CommandeSalve, 128);
    EnvoyerPourAutrui(boite, CommandeFile, 128);
}

} // namespace tessarel::essais
