// The colours of the 2D pictures: as told on a light ground, and seen on both.
#include "work2d/couleurs_table.h"

#include "outils_decoupe.h"
#include "work2d/dessin_outils.h"
#include "work2d/dessin_table.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Relative luminance and contrast of the rule of web accessibility.
double Luminance(Couleur c) {
    const auto lineaire = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lineaire(c.rouge / 255.0) + 0.7152 * lineaire(c.vert / 255.0) +
           0.0722 * lineaire(c.bleu / 255.0);
}

double Contraste(Couleur a, Couleur b) {
    const double x = Luminance(a) + 0.05;
    const double y = Luminance(b) + 0.05;
    return std::max(x, y) / std::min(x, y);
}

Couleur Sur(Couleur dessus, Couleur fond) {
    const auto meler = [&](int a, int b) {
        return static_cast<std::uint8_t>((a * dessus.opacite + b * (255 - dessus.opacite) + 127) / 255);
    };
    return {meler(dessus.rouge, fond.rouge), meler(dessus.vert, fond.vert), meler(dessus.bleu, fond.bleu)};
}

struct Nommee {
    const char* nom;
    Couleur couleur;
};

// What a path may lie on: the window's ground beside the table, the table, the foam.
std::vector<Nommee> Fonds(bool sombre) {
    const Couleur fenetre = sombre ? Couleur{0x2a, 0x30, 0x38} : Couleur{255, 255, 255};
    const Couleur table = Sur(PaletteDuFond(sombre).fondTable, fenetre);
    return {{"ground", fenetre}, {"table", table}, {"foam", Sur(PaletteDuFond(sombre).fondBloc, table)}};
}

std::vector<Nommee> CouleursDesTraces() {
    return {{"entry", CouleurEntree},
            {"exit", CouleurSortie},
            {"first", CouleurPremiereSequence},
            {"other 1", CouleursAutresSequences[0]},
            {"other 2", CouleursAutresSequences[1]},
            {"other 3", CouleursAutresSequences[2]},
            {"other 4", CouleursAutresSequences[3]},
            {"selected 1", CouleursSelection[0]},
            {"selected 2", CouleursSelection[1]},
            {"already cut", CouleurDejaCoupe},
            {"hover", CouleurSurvol}};
}

} // namespace

TEST(CouleursTable, SurFondClairChacuneEstCelleQuiEstDite) {
    for (const Nommee& c : CouleursDesTraces())
        EXPECT_EQ(CouleurSurFond(c.couleur, false), c.couleur) << c.nom;
    EXPECT_EQ(CouleurPremiereSequence, (Couleur{144, 0, 82}));
    EXPECT_EQ(CouleurEntree, (Couleur{255, 0, 0}));
    EXPECT_EQ(CouleurSortie, (Couleur{0, 144, 61}));
}

TEST(CouleursTable, SurFondSombreSeulesLesFonceesChangent) {
    std::vector<std::string> changees;
    for (const Nommee& c : CouleursDesTraces())
        if (!(CouleurSurFond(c.couleur, true) == c.couleur)) changees.emplace_back(c.nom);
    EXPECT_EQ(changees, (std::vector<std::string>{"first", "other 1", "other 2", "other 4"}));
}

// 3 to 1 is what a line needs. The told colours are kept on light foam though two of them stay below.
TEST(CouleursTable, TouteCouleurDeTraceSeVoitSurChaqueFond) {
    for (const bool sombre : {false, true}) {
        for (const Nommee& fond : Fonds(sombre)) {
            for (const Nommee& c : CouleursDesTraces()) {
                const double contraste = Contraste(CouleurSurFond(c.couleur, sombre), fond.couleur);
                EXPECT_GE(contraste, sombre ? 3 : 2.4) << c.nom << " on " << fond.nom;
            }
            EXPECT_GE(Contraste(PaletteDuFond(sombre).traceUni, fond.couleur), 7) << fond.nom;
        }
        EXPECT_GE(Contraste(CouleurTable, Fonds(sombre)[0].couleur), 3);
        EXPECT_GE(Contraste(PaletteDuFond(sombre).texte, Fonds(sombre)[0].couleur), 4.5);
    }
    for (const Nommee& fond : Fonds(false))
        EXPECT_GE(Contraste(CouleurPremiereSequence, fond.couleur), 7) << fond.nom;
}

// What makes the twins needed: without them the dark ones would be lost.
TEST(CouleursTable, SansJumelleLesFonceesSePerdraient) {
    for (const Couleur c : {CouleurPremiereSequence, CouleursAutresSequences[0], CouleursAutresSequences[1],
                            CouleursAutresSequences[3]})
        EXPECT_LT(Contraste(c, Fonds(true)[1].couleur), 3);
}

TEST(CouleursTable, LesCouleursRestentDistinctes) {
    for (const bool sombre : {false, true}) {
        const std::vector<Nommee> couleurs = CouleursDesTraces();
        for (std::size_t i = 0; i < couleurs.size(); ++i) {
            for (std::size_t j = i + 1; j < couleurs.size(); ++j) {
                const Couleur a = CouleurSurFond(couleurs[i].couleur, sombre);
                const Couleur b = CouleurSurFond(couleurs[j].couleur, sombre);
                const int ecart =
                    std::abs(a.rouge - b.rouge) + std::abs(a.vert - b.vert) + std::abs(a.bleu - b.bleu);
                EXPECT_GE(ecart, 50) << couleurs[i].nom << " and " << couleurs[j].nom;
            }
        }
    }
}

TEST(CouleursTable, LesTracesEtLaDecoupePrennentLeurJumelle) {
    OptionsDessin sombre;
    sombre.sombre = true;
    const std::vector<Sequence> sequences(5, CarreDe20());
    Dessin dessin;
    DessinerSequences(dessin, sequences, sombre);
    const std::vector<Couleur> attendues = {
        {240, 92, 168}, {40, 170, 60}, {178, 110, 172}, {220, 114, 228}, {170, 106, 240}};
    ASSERT_EQ(dessin.traits.size(), attendues.size());
    for (std::size_t i = 0; i < attendues.size(); ++i) EXPECT_EQ(dessin.traits[i].couleur, attendues[i]) << i;
    EXPECT_EQ(dessin.marques[0].couleur, attendues[0]) << "arrows and first points are of the same colour";
    const Decoupe2D decoupe = AssemblerDecoupe2D({&sequences[0], 1}, OptionsEssai(), MachineEssai());
    DessinerDecoupe(dessin = {}, decoupe, sombre);
    const auto chemin = [&](Couleur couleur) {
        return std::any_of(dessin.traits.begin(), dessin.traits.end(),
                           [&](const TraitDessin& t) { return t.couleur == couleur; });
    };
    EXPECT_TRUE(chemin({240, 92, 168}));
    EXPECT_TRUE(chemin({255, 0, 0}));
    EXPECT_TRUE(chemin({0, 144, 61}));
    EXPECT_FALSE(chemin({144, 0, 82}));
}
