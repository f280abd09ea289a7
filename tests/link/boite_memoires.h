// A small box for tests of the link: three memories, a heat, a queue without end; and a fault at one
// exchange.
#pragma once

#include "link/echange.h"

#include <array>
#include <cstdint>
#include <random>

namespace tessarel::essais {

enum class Panne {
    Aucune,
    ReponsePerdue,  // heard, and its reply gone; a late one looks the same
    CommandePerdue, // not heard
    Corrompue,      // heard, and its reply full of chance
    Debranchee,     // gone from there on; what heats goes on heating
};

struct BoiteMemoires {
    std::array<Tampon, 3> memoires{}; // part 1 as it was written
    int enRam = -1;
    int pwm = 0;
    bool chauffe = false;
    int recus = 0;
    bool mouvementInterdit = false; // something moved or heated while moves were not enabled
    Panne panne = Panne::Aucune;
    int echangeEnPanne = 0; // counts from 1; 0 for none
    std::mt19937 hasard{1};

    [[nodiscard]] bool Branchee() const { return !(panne == Panne::Debranchee && Atteinte(recus + 1)); }

    std::int32_t Envoyer(Tampon& tampon) {
        if (!Branchee()) return -200;
        ++recus;
        const bool ici = recus == echangeEnPanne;
        if (ici && panne == Panne::CommandePerdue) return -202;
        if (!MouvementsActifs && EstCommandeDeMouvement(tampon)) mouvementInterdit = true;
        Repondre(tampon);
        if (ici && panne == Panne::ReponsePerdue) return -203;
        if (ici && panne == Panne::Corrompue)
            for (std::uint8_t& octet : tampon) octet = static_cast<std::uint8_t>(hasard());
        return ResultatZelkoSucces;
    }

private:
    [[nodiscard]] bool Atteinte(int echange) const { return echangeEnPanne > 0 && echange >= echangeEnPanne; }

    void Repondre(Tampon& t) {
        const std::uint8_t code = t[1];
        const std::uint8_t arg = t[2];
        const std::uint8_t valeur = t[3];
        const Tampon commande = t;
        t.fill(0);
        if (code == CommandeChauffe) {
            chauffe = arg != 0;
            pwm = chauffe ? valeur : 0;
            t[2] = chauffe ? 1 : 0;
            t[4] = static_cast<std::uint8_t>(pwm);
        } else if (code == CommandeTable && valeur < memoires.size()) {
            if (arg == 1) enRam = valeur;
            if (arg == 3) t = memoires[valeur];
            if (arg == 4) memoires[valeur] = commande;
        } else if (code == CommandeOrigine) {
            t[2] = 2;
        } else if (code == CommandeSalve) {
            t[2] = 1;
        }
    }
};

} // namespace tessarel::essais
