// The box with its ten outputs as a picture: which axis and which signal each one serves.
#pragma once

#include "machine/saisie_machine.h"
#include "platform/dessin.h"

#include <string>
#include <vector>

namespace tessarel {

// What hangs on one output: "X1 pas", "Y2 sens, inversé"; several when the capture is wrong.
struct EmploiSortie {
    std::vector<std::string> Fonctions;
    std::size_t Axe = 0; // of the last one, by Axe
    [[nodiscard]] bool Libre() const { return Fonctions.empty(); }
    [[nodiscard]] bool EnDouble() const { return Fonctions.size() > 1; }
};
inline constexpr std::size_t NombreSortiesZelko = 10;
// By output, the first is element 0, in the language in use.
std::vector<EmploiSortie> EmploisDesSorties(const SaisieMachine& saisie);

// Side of the picture in mm of its own; outputs used twice are red.
CadreDessin CadreSorties();
Dessin DessinerSorties(const SaisieMachine& saisie, bool sombre);

} // namespace tessarel
