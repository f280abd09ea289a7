// Projection, fit, zoom and mouse moves of the design view.
#include "design4x/projets_essai.h"
#include "design4x/vue_cpx.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

namespace {

// Middles at cx = 50, cy = 5; planes at +250 and -250.
ProjetCPX Aile() {
    return Projet({{0, 0}, {100, 10}}, {{20, 2}, {70, 8}});
}

VueCPX Vue(VueNommee nommee) {
    VueCPX vue;
    PlacerVue(vue, nommee.Omega, nommee.Alpha);
    DimensionnerVue(vue, 440, 240);
    vue.MargeVue = 20;
    return vue;
}

} // namespace

TEST(Projection, VueDeCoteXMoinsCxEtYMoinsCyZSEfface) {
    VueCPX vue = Vue(VueCote);
    EXPECT_TRUE(EstVueCote(vue));
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    // The table's cosine of -90 degrees with fifteen digits of pi is 1.6e-15: what 250 mm leave of it.
    EXPECT_NEAR(vue.E.Projete[1].X, 50, 1e-12);
    EXPECT_EQ(vue.E.Projete[1].Y, 5);
    EXPECT_NEAR(vue.S.Projete[0].X, -30, 1e-12);
    EXPECT_EQ(vue.S.Projete[0].Y, -3);
}

TEST(Projection, VueDeDessusXMoinsCxEtMoinsZ) {
    VueCPX vue = Vue(VueDessus);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    EXPECT_NEAR(vue.E.Projete[1].X, 50, 1e-12);
    EXPECT_NEAR(vue.E.Projete[1].Y, -250, 1e-11);
    EXPECT_NEAR(vue.S.Projete[0].Y, 250, 1e-11);
}

// Omega 180 takes sin 0 and cos 0: the wing is seen along its chord.
TEST(Projection, Omega180DeFace) {
    VueCPX vue = Vue({180, 180});
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    EXPECT_EQ(vue.E.Projete[1].X, 250);
    EXPECT_EQ(vue.E.Projete[1].Y, 5);
    EXPECT_EQ(vue.S.Projete[1].X, -250);
}

// sin(-60) = -0.8660254, cos(-60) = 0.5, A = 360 - 217 = 143: sin(-37) = -0.6018150, cos(-37) = 0.7986355.
// Xp = -50 x -0.8660254 + 250 x 0.5; Yp = -50 x 0.5 x -0.6018150 + 5 x 0.7986355 - 250 x 0.5211871.
TEST(Projection, Perspective) {
    VueCPX vue = Vue(VuePerspective);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    EXPECT_NEAR(vue.E.Projete[1].X, 168.301270, 1e-5);
    EXPECT_NEAR(vue.E.Projete[1].Y, 15.0453756 + 3.9931776 - 130.2967746, 1e-4);
}

TEST(Projection, LesBlocsDansLeursPlansLIntermediaireDansLeSien) {
    VueCPX vue = Vue(VueDessus);
    const ProjetCPX aile = Aile();
    ProfilIntermediaire milieu;
    ASSERT_TRUE(CalculerProfilIntermediaire(aile, 100, milieu));
    CalculerCoordonneesPerspectiveCPX(vue, aile, false, &milieu);
    ASSERT_EQ(vue.BlocE.Projete.size(), 5U);
    EXPECT_NEAR(vue.BlocE.Projete[0].X, -60, 1e-11);
    EXPECT_NEAR(vue.BlocS.Projete[1].X, 30, 1e-11); // 70 + 10 - 50
    EXPECT_NEAR(vue.BlocS.Projete[1].Y, 250, 1e-11);
    ASSERT_EQ(vue.Intermediaire.Projete.size(), 2U);
    EXPECT_NEAR(vue.Intermediaire.Projete[0].Y, -150, 1e-11);
    CalculerCoordonneesPerspectiveCPX(vue, aile, false);
    EXPECT_TRUE(vue.Intermediaire.Projete.empty());
}

// The block of the root reaches to -10, further than that of the tip; its foot stands at -10.
TEST(Projection, LaMarqueCinqMillimetresAuDelaDesPlans) {
    VueCPX vue = Vue(VueDessus);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    const std::vector<PointEspace> marque = MarqueEntree(Aile());
    EXPECT_EQ(marque, (std::vector<PointEspace>{{-20, -10, 0}, {-12, -10, 0}, {-12, -2, 0}}));
    ASSERT_EQ(vue.MarqueE.Projete.size(), 3U);
    EXPECT_NEAR(vue.MarqueE.Projete[0].X, -70, 1e-11);
    EXPECT_NEAR(vue.MarqueE.Projete[0].Y, -255, 1e-11);
    EXPECT_NEAR(vue.MarqueS.Projete[2].Y, 255, 1e-11);
    EXPECT_TRUE(MarqueEntree(ProjetCPX()).empty());
}

TEST(Ecran, LeYDeLImageDescend) {
    VueCPX vue = Vue(VueCote);
    vue.Echelle = 2;
    vue.CentreVueX = 10;
    vue.CentreVueY = 1;
    EXPECT_EQ(VersEcran(vue, {10, 1, 0}), (PointEcran{220, 120}));
    EXPECT_EQ(VersEcran(vue, {15, 4, 0}), (PointEcran{230, 114}));
}

TEST(Cadrage, LePlusPetitDesDeuxRapports) {
    VueCPX vue = Vue(VueCote);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), true);
    EXPECT_EQ(vue.Echelle, 4); // (440 - 40) / 100 against (240 - 40) / 10
    EXPECT_NEAR(vue.CentreVueX, 0, 1e-12);
    EXPECT_EQ(vue.CentreVueY, 0);
    EXPECT_NEAR(vue.E.Ecran[0].X, 20, 1e-9);
    EXPECT_NEAR(vue.E.Ecran[1].X, 420, 1e-9);
    EXPECT_NEAR(vue.E.Ecran[1].Y, 100, 1e-9);
}

TEST(Cadrage, LeSaumonSeul) {
    VueCPX vue = Vue(VueCote);
    vue.chkAfficherProfil = {false, true};
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), true);
    EXPECT_EQ(vue.Echelle, 8); // 400 / 50 against 200 / 6
    EXPECT_NEAR(vue.CentreVueX, -5, 1e-12);
}

TEST(Cadrage, UnSeulPointEchelle1) {
    VueCPX vue = Vue(VueCote);
    vue.Echelle = 7;
    CalculerCoordonneesPerspectiveCPX(vue, Projet({{12, 3}}, {}), true);
    EXPECT_EQ(vue.Echelle, 1);
}

TEST(Cadrage, SansLargeurLaHauteurSeuleCompte) {
    VueCPX vue = Vue({180, 180});
    CalculerCoordonneesPerspectiveCPX(vue, Projet({{3, 0}, {3, 50}}, {}), true);
    EXPECT_EQ(vue.Echelle, 4);
}

TEST(Cadrage, LEchelleResteSansCadrage) {
    VueCPX vue = Vue(VueCote);
    vue.Echelle = 7;
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), false);
    EXPECT_EQ(vue.Echelle, 7);
    CalculerCoordonneesPerspectiveCPX(vue, ProjetCPX(), true);
    EXPECT_EQ(vue.Echelle, 7);
}

TEST(Zoom, UnPasEnAvantOuEnArriere) {
    VueCPX vue = Vue(VueCote);
    vue.Echelle = 2;
    ChangerZoom(vue, 10000, 10001);
    EXPECT_EQ(vue.Echelle, 2.2F);
    vue.Echelle = 2;
    ChangerZoom(vue, 10000, 9999);
    EXPECT_EQ(vue.Echelle, 1.8F);
    ChangerZoom(vue, 9999, 9999);
    EXPECT_EQ(vue.Echelle, 1.8F);
}

// Three steps are three times 1.1, not 1.1 three times over.
TEST(Zoom, LeNombreDePasEstLeFacteur) {
    VueCPX vue = Vue(VueCote);
    vue.Echelle = 2;
    ChangerZoom(vue, 10000, 10003);
    EXPECT_FLOAT_EQ(vue.Echelle, 6.6F);
    vue.Echelle = 2;
    ChangerZoom(vue, 10000, 9998);
    EXPECT_FLOAT_EQ(vue.Echelle, 3.6F);
}

TEST(Zoom, SurUnCadre) {
    VueCPX vue = Vue(VueCote);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), true);
    ZoomerSurCadre(vue, {220, 120}, {440, 0}); // the right upper quarter
    EXPECT_EQ(vue.Echelle, 8);
    EXPECT_NEAR(vue.CentreVueX, 27.5, 1e-9);
    EXPECT_NEAR(vue.CentreVueY, 15, 1e-9);
    ZoomerSurCadre(vue, {3, 3}, {3, 9});
    EXPECT_EQ(vue.Echelle, 8);
}

TEST(Souris, GlisserSuitLaMain) {
    VueCPX vue = Vue(VueCote);
    CalculerCoordonneesPerspectiveCPX(vue, Aile(), true);
    const PointEcran avant = vue.E.Ecran[1];
    GlisserVue(vue, 12, -8);
    EXPECT_NEAR(vue.E.Ecran[1].X, avant.X + 12, 1e-9);
    EXPECT_NEAR(vue.E.Ecran[1].Y, avant.Y - 8, 1e-9);
}

TEST(Souris, TournerUnDegrePour30PixelsEtBoucler) {
    VueCPX vue = Vue({359, 1});
    TournerVue(vue, 90, -60);
    EXPECT_EQ(vue.Omega, 2);
    EXPECT_EQ(vue.Alpha, 359);
    PlacerVue(vue, 360, 0);
    EXPECT_EQ(vue.Omega, 360);
    EXPECT_EQ(vue.Alpha, 0);
    PlacerVue(vue, -725, 100000);
    EXPECT_EQ(vue.Omega, 355);
    EXPECT_EQ(vue.Alpha, 280);
}
