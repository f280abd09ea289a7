// The colours of the 2D pictures: the told ones, what they become on a dark ground, and the grounds
// themselves.
#pragma once

#include "platform/dessin.h"

#include <array>

namespace tessarel {

// Colours that users know. On a light ground each is shown as it stands here.
inline constexpr Couleur CouleurEntree = {255, 0, 0};
inline constexpr Couleur CouleurSortie = {0, 144, 61};
inline constexpr Couleur CouleurTable = {110, 110, 219};
inline constexpr Couleur CouleurPremiereSequence = {144, 0, 82};
inline constexpr std::array<Couleur, 4> CouleursAutresSequences = {
    {{0, 122, 11}, {112, 0, 105}, {220, 114, 228}, {156, 86, 228}}};
// Selected sequences take these two in turn, so that neighbours can be told apart.
inline constexpr std::array<Couleur, 2> CouleursSelection = {{{255, 107, 107}, {230, 61, 61}}};

// The colour that a told one is drawn in. The four too dark for a dark ground have a light twin of
// their own there; all others stay.
Couleur CouleurSurFond(Couleur dite, bool sombre);

// What a background asks for. `fondTable` and `fondBloc` are laid over it, and let it through.
struct PaletteTable {
    Couleur fondTable;
    Couleur bordTable;
    Couleur fondBloc;
    Couleur bordBloc;
    Couleur zone;
    Couleur regle; // rulers and axes
    Couleur texte;
    Couleur traceUni; // paths that have no colour of their own
};
const PaletteTable& PaletteDuFond(bool sombre);

} // namespace tessarel
