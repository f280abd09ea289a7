// The colours of the 2D pictures on a light and on a dark ground.
#include "work2d/couleurs_table.h"

namespace tessarel {

namespace {

// A dark foam is dim enough for every told colour but these, which keep their hue and become lighter: apart
// from one another, from the selection and from the magenta of what the pointer is on.
struct Jumelle {
    Couleur dite;
    Couleur surSombre;
};
constexpr std::array<Jumelle, 4> Jumelles = {{{CouleurPremiereSequence, {240, 92, 168}},
                                              {CouleursAutresSequences[0], {40, 170, 60}},
                                              {CouleursAutresSequences[1], {178, 110, 172}},
                                              {CouleursAutresSequences[3], {170, 106, 240}}}};

constexpr PaletteTable PaletteClaire = {{110, 110, 219, 26}, CouleurTable,    {255, 238, 196, 235},
                                        {186, 140, 58},      {128, 128, 140}, {110, 110, 130},
                                        {70, 70, 90},        {40, 40, 48}};
constexpr PaletteTable PaletteSombre = {{110, 110, 219, 12}, CouleurTable,    {54, 46, 30, 240},
                                        {214, 172, 92},      {150, 150, 165}, {165, 165, 185},
                                        {205, 205, 220},     {225, 225, 232}};

} // namespace

Couleur CouleurSurFond(Couleur dite, bool sombre) {
    if (!sombre) return dite;
    for (const Jumelle& jumelle : Jumelles)
        if (jumelle.dite == dite) return jumelle.surSombre;
    return dite;
}

const PaletteTable& PaletteDuFond(bool sombre) {
    return sombre ? PaletteSombre : PaletteClaire;
}

} // namespace tessarel
