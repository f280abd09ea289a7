// The picture of a 4-axis cut: guilty segments in bold, both views in the frame, nothing on an empty cut.
#include "cut4x/dessin_decoupe4x.h"

#include "cut4x/outils_d4x.h"

#include <algorithm>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::size_t TraitsGras(const Dessin& dessin) {
    return static_cast<std::size_t>(std::ranges::count_if(
        dessin.traits, [](const TraitDessin& t) { return t.epaisseur == 5 && t.couleur == CouleurFaute; }));
}

Poste Coupe() {
    Poste p;
    p.parametres.OffsetBlocX = 40;
    p.Calculer();
    return p;
}

} // namespace

TEST(Dessin4x, SansFauteRienNEstGras) {
    const Poste p = Coupe();
    Dessin dessin;
    DessinerDecoupe4x(dessin, p.Contexte(), p.decoupe, {});
    EXPECT_EQ(TraitsGras(dessin), 0U);
}

TEST(Dessin4x, ChaqueSegmentCoupableEstGrasDansLesDeuxVues) {
    Poste p = Coupe();
    p.decoupe.PaireChariots.E[2].Vx = 99;
    p.decoupe.PaireChariots.S[4].Vy = 99;
    Dessin dessin;
    DessinerDecoupe4x(dessin, p.Contexte(), p.decoupe, {});
    EXPECT_EQ(TraitsGras(dessin), 4U);
}

TEST(Dessin4x, ToutTientDansLeCadre) {
    const Poste p = Coupe();
    for (const bool sombre : {false, true}) {
        Dessin dessin;
        OptionsDessin4x options;
        options.sombre = sombre;
        options.voirPoints = true;
        DessinerDecoupe4x(dessin, p.Contexte(), p.decoupe, options);
        const CadreDessin cadre = CadreDecoupe4x(p.table, p.decoupe);
        for (const PointDessin& point : dessin.points) {
            EXPECT_GE(point.X, cadre.XMin);
            EXPECT_LE(point.X, cadre.XMax);
            EXPECT_GE(point.Y, cadre.YMin);
            EXPECT_LE(point.Y, cadre.YMax);
        }
        for (const TexteDessin& texte : dessin.textes) {
            EXPECT_FALSE(texte.texte.empty());
            EXPECT_GE(texte.ou.Y, cadre.YMin);
        }
    }
}

TEST(Dessin4x, UneDecoupeVideMontreLaTable) {
    const Poste p;
    Dessin dessin;
    DessinerDecoupe4x(dessin, p.Contexte(), p.decoupe, {});
    EXPECT_FALSE(dessin.traits.empty());
    const EtendueVue vue = EtendueDesVues(p.table, p.decoupe);
    EXPECT_EQ(vue.X, 600);
    EXPECT_EQ(vue.Y, 300);
}
