// What must hold after every end of a run: the wire is cold, or the user was told that it may not be.
#pragma once

#include "link/simulateur/boite.h"

#include "outils/boites.h"

#include <algorithm>
#include <vector>

namespace tessarel::essais {

// By the box's own record. Only the two boxes that speak of the heat count as telling: that of an open switch
// or of a stop without a reason is critical too, and says nothing of it.
inline bool FilFroidOuDit(const simulateur::BoiteZelko& boite, const std::vector<Boite>& boites) {
    if (boite.Etat().pwmCommande == 0 && boite.Etat().file == simulateur::EtatFile::Repos) return true;
    return std::ranges::any_of(boites, [](const Boite& b) {
        return b.icone == IconeBoite::Critique && (b.titre == "Problème de communication avec la machine" ||
                                                   b.titre == "Le fil est encore chaud");
    });
}

} // namespace tessarel::essais
