// Points picked and moved with the mouse.
#include "design4x/pointage.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

namespace {

struct Image {
    ProjetCPX projet = Projet({{0, 0}, {100, 10}}, {{20, 2}, {70, 8}});
    VueCPX vue;
    Image() {
        PlacerVue(vue, VueCote.Omega, VueCote.Alpha);
        DimensionnerVue(vue, 440, 240); // 4 pixels per mm, (50, 5) in the middle
        vue.MargeVue = 20;
        CalculerCoordonneesPerspectiveCPX(vue, projet, true);
    }
};

} // namespace

TEST(Pointage, LePlusProcheDesDeuxProfils) {
    const Image i;
    EXPECT_EQ(PointLePlusProche(i.vue, {22, 138}).index, 0);
    EXPECT_EQ(PointLePlusProche(i.vue, {22, 138}).indice, 0);
    EXPECT_EQ(PointLePlusProche(i.vue, {298, 110}).index, 1); // (70, 8) stands at (300, 108)
    EXPECT_EQ(PointLePlusProche(i.vue, {298, 110}).indice, 1);
    EXPECT_FALSE(PointLePlusProche(i.vue, {200, 40}).Trouve());
}

TEST(Pointage, UnProfilCacheNEstPasVise) {
    Image i;
    i.vue.chkAfficherProfil = {true, false};
    EXPECT_FALSE(PointLePlusProche(i.vue, {300, 108}).Trouve());
}

TEST(Pointage, UnClicBasculeLeDrapeauDuMode) {
    Image i;
    EXPECT_TRUE(BasculerPoint(i.projet, i.vue, {300, 108}, 4));
    EXPECT_EQ(i.projet.S.Points[1].Drapeaux, 4);
    EXPECT_TRUE(BasculerPoint(i.projet, i.vue, {300, 108}, 2));
    EXPECT_EQ(i.projet.S.Points[1].Drapeaux, 6);
    EXPECT_EQ(i.projet.S.NbAlign, 1);
    EXPECT_TRUE(BasculerPoint(i.projet, i.vue, {300, 108}, 4));
    EXPECT_EQ(i.projet.S.Points[1].Drapeaux, 2);
    EXPECT_FALSE(BasculerPoint(i.projet, i.vue, {10, 10}, 4));
}

TEST(Pointage, UnCadreBasculeTousSesPoints) {
    Image i;
    i.projet.E.Points[0].Drapeaux = 1;
    EXPECT_TRUE(BasculerCadre(i.projet, i.vue, {150, 10}, {5, 230}, 1)); // left part: (0, 0) and (20, 2)
    EXPECT_EQ(i.projet.E.Points[0].Drapeaux, 0);
    EXPECT_EQ(i.projet.E.Points[1].Drapeaux, 0);
    EXPECT_EQ(i.projet.S.Points[0].Drapeaux, 1);
    EXPECT_EQ(i.projet.S.Points[1].Drapeaux, 0);
    EXPECT_FALSE(BasculerCadre(i.projet, i.vue, {0, 0}, {5, 5}, 1));
}

TEST(Pointage, LePointDuCompteur) {
    Image i;
    i.projet.E.PointCourant = 1;
    EXPECT_TRUE(BasculerPointCourant(i.projet, 0, 8));
    EXPECT_EQ(i.projet.E.Points[1].Drapeaux, 8);
    ProjetCPX vide;
    EXPECT_FALSE(BasculerPointCourant(vide, 0, 8));
}

TEST(DeplacerALaSouris, DesPixelsAuxMillimetres) {
    Image i;
    i.projet.E.Points[1].Drapeaux = 1;
    i.projet.S.Points[0].Drapeaux = 1;
    EXPECT_TRUE(DeplacerALaSouris(i.projet, i.vue, 40, -8, 1));
    EXPECT_EQ(i.projet.E.Points[1].X, 110);
    EXPECT_EQ(i.projet.E.Points[1].Y, 12);
    EXPECT_EQ(i.projet.S.Points[0].X, 30);
    EXPECT_EQ(i.projet.S.Points[0].Y, 4);
    EXPECT_EQ(i.projet.E.Points[0].X, 0);
    EXPECT_EQ(i.projet.E.Corde, 110);
}

TEST(DeplacerALaSouris, SansSelectionRienNiBoite) {
    const essais::BoitesEnregistrees b;
    Image i;
    EXPECT_FALSE(DeplacerALaSouris(i.projet, i.vue, 40, -8, 1));
    EXPECT_TRUE(b.boites.empty());
}

TEST(DeplacerALaSouris, DansUnAutreModeLaBoiteNommeLeBouton) {
    const essais::BoitesEnregistrees b;
    Image i;
    EXPECT_FALSE(DeplacerALaSouris(i.projet, i.vue, 40, -8, 2));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].titre, "Opération impossible");
    EXPECT_TRUE(
        b.boites[0].texte.ends_with("pour pouvoir utiliser la touche Ctrl pour déplacer des points."));
}

TEST(DeplacerALaSouris, HorsVueDeCoteLaBoiteDemandeLaVue) {
    const essais::BoitesEnregistrees b;
    Image i;
    PlacerVue(i.vue, 120, 217);
    EXPECT_FALSE(DeplacerALaSouris(i.projet, i.vue, 40, -8, 1));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_TRUE(
        b.boites[0].texte.ends_with("Appuyez sur le bouton 'Vue de côté' pour avoir accès à cette fonction"));
}
