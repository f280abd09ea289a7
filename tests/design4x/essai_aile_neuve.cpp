// A wing from two profiles, its measures by name, and wing files as designs.
#include "design4x/aile_neuve.h"
#include "design4x/mesures_cpx.h"
#include "design4x/projets_essai.h"
#include "design4x/synchronisation.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace tessarel;
using essais::Points;

namespace {

// Trailing edge at (0, 0), over the top to the nose at (100, 0), back underneath.
ProfilLu Racine() {
    return {"racine.dat", Points({{0, 0}, {40, 10}, {100, 0}, {40, -6}, {0, 0}})};
}
ProfilLu Bout() {
    return {"bout.dat", Points({{0, 0}, {20, 4}, {50, 5}, {100, 0}, {50, -5}, {0, 0}})};
}

PlanAile Plan() {
    PlanAile plan;
    plan.Corde = 250;
    plan.CordeSaumon = 200;
    plan.Ecartement = 500;
    return plan;
}

} // namespace

TEST(AileNeuve, CordesEcartementEtBordsDAttaqueEnLigne) {
    ProjetCPX p;
    ASSERT_TRUE(ConstruireAile(Racine(), Bout(), Plan(), p));
    EXPECT_EQ(p.E.NomFichier, "racine.dat");
    EXPECT_EQ(p.S.NomFichier, "bout.dat");
    EXPECT_EQ(p.E.Corde, 250);
    EXPECT_EQ(p.S.Corde, 200);
    EXPECT_EQ(p.Ecartement, 500);
    EXPECT_EQ(p.E.Points[1].X, 100);
    EXPECT_EQ(p.E.Points[1].Y, 25);
    EXPECT_EQ(p.E.Points[1].Z, 250);
    EXPECT_EQ(p.Fleche, 0);
    EXPECT_EQ(p.S.Points[3].X, 250);
    EXPECT_EQ(p.S.Points[3].Y, 0); // heights as drawn
    EXPECT_EQ(p.Epaisseur, 40);
}

TEST(AileNeuve, FlecheDiedreEtBloc) {
    PlanAile plan = Plan();
    plan.Fleche = 30;
    plan.DiedreMm = 12;
    plan.BlocAuto = 4;
    ProjetCPX p;
    ASSERT_TRUE(ConstruireAile(Racine(), Bout(), plan, p));
    EXPECT_EQ(p.Fleche, 30);
    EXPECT_EQ(p.DiedreMm, 12);
    EXPECT_EQ(p.DistProfilDessousE, 5);
    EXPECT_EQ(p.Epaisseur, 50); // root 40 high over 5, 5 above: its top stays above the tip's
}

// The tip turns about its nose: at 90 degrees nose up the trailing edge hangs below it.
TEST(AileNeuve, LeVrillageTourneAutourDuBordDAttaque) {
    PlanAile plan = Plan();
    plan.Vrillage = 90;
    ProjetCPX p;
    ASSERT_TRUE(ConstruireAile(Racine(), Bout(), plan, p));
    EXPECT_NEAR(p.S.Points[3].Y, 0, 1e-9);
    EXPECT_NEAR(p.S.Points[0].Y, -200, 1e-9);
    EXPECT_NEAR(p.S.Points[0].X, p.S.Points[3].X, 1e-9);
}

TEST(AileNeuve, RefusDesOutils) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p;
    PlanAile plan = Plan();
    plan.Ecartement = 0;
    EXPECT_FALSE(ConstruireAile(Racine(), Bout(), plan, p));
    EXPECT_FALSE(ConstruireAile({"x.dat", Points({{5, 5}})}, Bout(), Plan(), p));
    plan = Plan();
    plan.CordeSaumon = -200;
    EXPECT_FALSE(ConstruireAile(Racine(), Bout(), plan, p));
    ASSERT_EQ(b.boites.size(), 3U);
    EXPECT_EQ(b.boites[2].texte, "Une corde doit être supérieure à zéro.");
    EXPECT_EQ(b.boites[0].texte, "Il n'est pas possible d'entrer un écartement négatif ou nul.");
    EXPECT_EQ(b.boites[1].texte, "L'opération demandée est impossible, une dimension est égale à zéro.");
}

TEST(Sens, ParLeDessusDepuisLeBordDeFuiteADroite) {
    EXPECT_TRUE(TourneADroite(Racine().Points));
    std::vector<PointProfil> envers = Racine().Points;
    std::reverse(envers.begin(), envers.end());
    EXPECT_FALSE(TourneADroite(envers));
    EXPECT_FALSE(TourneADroite({}));
}

TEST(Synchronisation, DeSensContraireLeSaumonSeRetourneNezContreNez) {
    const essais::BoitesEnregistrees b;
    ProfilLu bout = Bout();
    std::reverse(bout.Points.begin(), bout.Points.end());
    ProjetCPX p;
    ASSERT_TRUE(ConstruireAile(Racine(), bout, Plan(), p));
    PreparerSynchronisation(p);
    EXPECT_TRUE(TourneADroite(p.S.Points));
    ASSERT_TRUE(cmdSynchroOptimale(p));
    ASSERT_EQ(p.E.Points.size(), p.S.Points.size());
    EXPECT_EQ(p.E.Extremes.IndiceXmax, p.S.Extremes.IndiceXmax);
}

TEST(Mesures, SousLeursNoms) {
    const ProjetCPX p =
        essais::Projet({{0, 1}, {40, 9}, {100, 4}, {40, -3}}, {{20, 5.5}, {70, 7}, {40, 3.5}});
    std::map<std::string, MesureCPX> m;
    for (const MesureCPX& mesure : MesuresCPX(p))
        EXPECT_TRUE(m.emplace(mesure.nom, mesure).second) << mesure.nom;
    const auto reel = [&](const char* nom) { return std::get<float>(m.at(nom).valeur); };
    const auto entier = [&](const char* nom) { return std::get<std::int32_t>(m.at(nom).valeur); };
    EXPECT_EQ(entier("NbPointsE"), 4);
    EXPECT_EQ(entier("NbPointsS"), 3);
    EXPECT_EQ(entier("IndiceXmaxE"), 3);
    EXPECT_EQ(entier("IndiceYminS"), 3);
    EXPECT_EQ(entier("IndiceXminCordeE"), 1);
    EXPECT_EQ(reel("XmaxS"), 70);
    EXPECT_EQ(reel("YminCordeS"), 3.5F);
    EXPECT_EQ(reel("CordeE"), 100);
    EXPECT_EQ(reel("HauteurE"), 12);
    EXPECT_EQ(reel("YauBAE"), 4);
    EXPECT_EQ(reel("YauBFS"), 5.5F);
    EXPECT_EQ(reel("Fleche"), 30);
    EXPECT_EQ(reel("DiedreMm"), 6.5F);
    EXPECT_EQ(reel("YmaxGlobal"), 9);
    EXPECT_EQ(reel("lblDistProfilDessous_S"), 16.5F);
}

TEST(Mesures, UnProfilVideALIndiceZero) {
    for (const MesureCPX& m : MesuresCPX(essais::Projet({{0, 0}}, {})))
        if (m.nom == "IndiceXminS") {
            EXPECT_EQ(std::get<std::int32_t>(m.valeur), 0);
        }
}
