// The foam block around the design: automatic settings, the fields that edit it and the lengths derived from
// it. What has the block's outline computed is CalculerExtremesCPX, which every routine here calls.
#pragma once

#include "design4x/projet_cpx.h"

#include <array>
#include <string_view>

namespace tessarel {

// A field of the block window by its control's name: txtEpaisseurBloc, txtMargeBA_E, txtMargeBA_S,
// txtMargeBF_E, txtMargeBF_S, txtDistProfilDessous_E. Null for any other name.
float* ChampBloc(ProjetCPX& projet, std::string_view controle);

// Stores a length in a field, whatever its value: a block that is too thin shows as negative labels. False
// for a name that is none.
bool DefinirChampBloc(ProjetCPX& projet, std::string_view controle, double valeur);

// Index 0 ends parallel to the span, 1 margins of 10 mm, 2 margins in proportion to the chords, 3 margins of
// 5 mm, 4 foot and top 5 mm from the profiles, 5 the same with 10 mm. False without both profiles, and after
// a box when both chords are 0.
bool cmdBlocAuto(ProjetCPX& projet, int index);

// The derived lengths, mm, each under the name of its label.
struct EtiquetteBloc {
    const char* controle;
    float valeur;
};
inline constexpr std::size_t NombreEtiquettesBloc = 18;
std::array<EtiquetteBloc, NombreEtiquettesBloc> EtiquettesBloc(const ProjetCPX& projet);

} // namespace tessarel
