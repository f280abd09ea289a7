// The block's labels and automatic settings.
#include "design4x/aile.h"
#include "design4x/bloc.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace tessarel;
using essais::Losanges;
using essais::Projet;

namespace {

std::map<std::string, float> Etiquettes(const ProjetCPX& projet) {
    std::map<std::string, float> valeurs;
    for (const EtiquetteBloc& e : EtiquettesBloc(projet)) valeurs[e.controle] = e.valeur;
    return valeurs;
}

} // namespace

TEST(Etiquettes, ChacuneAvecSaValeur) {
    ProjetCPX p = Losanges();
    DefinirChampBloc(p, "txtMargeBA_E", 1);
    DefinirChampBloc(p, "txtMargeBF_E", 2);
    DefinirChampBloc(p, "txtMargeBA_S", 3);
    DefinirChampBloc(p, "txtMargeBF_S", 4);
    const std::map<std::string, float> attendu = {
        {"lblDistProfilDessus_E", 18},                                    // 40 - 10 - 12
        {"lblDistProfilDessous_S", 16.5F},                                // 6.5 + 10
        {"lblDistProfilDessus_S", 17.5F},                                 // 40 - 16.5 - 6
        {"lblDistBADessous_E", 17},                                       // 4 - -3 + 10
        {"lblDistBADessus_E", 23},         {"lblDistBFDessous_E", 14},    // 1 - -3 + 10
        {"lblDistBFDessus_E", 26},         {"lblDistBADessous_S", 20},    // 7 - 3.5 + 16.5
        {"lblDistBADessus_S", 20},         {"lblDistBFDessous_S", 18.5F}, // 5.5 - 3.5 + 16.5
        {"lblDistBFDessus_S", 21.5F},      {"lblCorde_E", 100},           {"lblCorde_S", 50},
        {"lblEpaisseurProfil_E", 12},      {"lblEpaisseurProfil_S", 6},   {"lblLongueurBloc_E", 103},
        {"lblLongueurBloc_S", 57},         {"lblEpaisseurBloc_S", 40},
    };
    EXPECT_EQ(Etiquettes(p), attendu);
}

TEST(Etiquettes, UnDiedreChangeLeDessousDuSaumonPasLEpaisseur) {
    ProjetCPX p = Losanges();
    txtDiedreMm(p, 9);
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessous_S"], 19);
    EXPECT_EQ(p.Epaisseur, 40);
}

TEST(Etiquettes, UnDiedreNegatifGardeLeDessousDuSaumon) {
    ProjetCPX p = Losanges();
    txtDiedreMm(p, -9);
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessous_S"], 10);
    EXPECT_EQ(p.DistProfilDessousE, 19);
}

TEST(Champs, UnBlocTropMinceDonneDesCotesNegatives) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(DefinirChampBloc(p, "txtEpaisseurBloc", 15));
    EXPECT_TRUE(DefinirChampBloc(p, "txtMargeBF_S", -5));
    EXPECT_TRUE(DefinirChampBloc(p, "txtDistProfilDessous_E", 6));
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessus_E"], -3);
    EXPECT_EQ(p.S.Bloc[0].X, 25);
    EXPECT_EQ(p.E.Bloc[0].Y, -9);
    EXPECT_FALSE(DefinirChampBloc(p, "txtAutre", 1));
}

// Root reaches further forward and further back than the tip: the tip's margins follow.
TEST(BlocAuto, RectangulaireLeSaumonSuit) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(cmdBlocAuto(p, 0));
    EXPECT_EQ(p.E.MargeBa, 10);
    EXPECT_EQ(p.S.MargeBa, 40);  // 30 + 10
    EXPECT_EQ(p.E.MargeBf, -10); // XminE 0 is below XminS 20: 10 - 20
    EXPECT_EQ(p.S.MargeBf, 10);
    EXPECT_EQ(p.E.Bloc[0].X, p.S.Bloc[0].X);
    EXPECT_EQ(p.E.Bloc[1].X, p.S.Bloc[1].X);
}

TEST(BlocAuto, RectangulaireLEmplantureSuit) {
    ProjetCPX p = Losanges();
    std::swap(p.E, p.S);
    EcrireZ(p);
    CalculerExtremesCPX(p);
    EXPECT_TRUE(cmdBlocAuto(p, 0));
    EXPECT_EQ(p.E.MargeBa, 40); // 10 - -30
    EXPECT_EQ(p.S.MargeBa, 10);
    EXPECT_EQ(p.S.MargeBf, -10); // -20 + 10
    EXPECT_EQ(p.E.MargeBf, 10);
    EXPECT_EQ(p.E.Bloc[0].X, p.S.Bloc[0].X);
    EXPECT_EQ(p.E.Bloc[1].X, p.S.Bloc[1].X);
}

TEST(BlocAuto, MargesA10EtA5) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(cmdBlocAuto(p, 3));
    for (const ProfilCPX* profil : {&p.E, &p.S}) {
        EXPECT_EQ(profil->MargeBa, 5);
        EXPECT_EQ(profil->MargeBf, 5);
    }
    EXPECT_TRUE(cmdBlocAuto(p, 1));
    EXPECT_EQ(p.E.MargeBa, 10);
    EXPECT_EQ(p.S.MargeBf, 10);
}

TEST(BlocAuto, ProportionnellesAuxCordes) {
    ProjetCPX p = Losanges();
    DefinirChampBloc(p, "txtMargeBA_E", 8);
    DefinirChampBloc(p, "txtMargeBF_E", 6);
    EXPECT_TRUE(cmdBlocAuto(p, 2));
    EXPECT_EQ(p.S.MargeBa, 4);
    EXPECT_EQ(p.S.MargeBf, 3);
    EXPECT_EQ(p.E.MargeBa, 8);
    std::swap(p.E, p.S);
    EcrireZ(p);
    CalculerExtremesCPX(p);
    DefinirChampBloc(p, "txtMargeBA_S", 20);
    EXPECT_TRUE(cmdBlocAuto(p, 2));
    EXPECT_EQ(p.E.MargeBa, 10);
}

TEST(BlocAuto, ProportionnellesCordesEgalesLesMargesDeLEmplanture) {
    ProjetCPX p = Projet({{0, 0}, {100, 5}}, {{30, 0}, {130, 5}});
    p.E.MargeBa = 7;
    p.S.MargeBa = 9;
    EXPECT_TRUE(cmdBlocAuto(p, 2));
    EXPECT_EQ(p.S.MargeBa, 7);
}

TEST(BlocAuto, ProportionnellesSansCordeRefuse) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}}, {{3, 3}});
    EXPECT_FALSE(cmdBlocAuto(p, 2));
    EXPECT_EQ(b.boites.size(), 1U);
}

// Tip above the root: foot 5 under the root, top 5 over the tip: 6.5 + 5 + 6 + 5.
TEST(BlocAuto, HauteursA5LeSaumonAuDessus) {
    ProjetCPX p = Losanges();
    EXPECT_TRUE(cmdBlocAuto(p, 4));
    EXPECT_EQ(p.DistProfilDessousE, 5);
    EXPECT_EQ(p.Epaisseur, 22.5F);
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessus_S"], 5);
}

// Tip below the root at dihedral -4: foot 10 under the tip, top 10 over the root: 12 + 14 + 10.
TEST(BlocAuto, HauteursA10LeSaumonAuDessous) {
    ProjetCPX p = Losanges();
    txtDiedreMm(p, -4);
    EXPECT_TRUE(cmdBlocAuto(p, 5));
    EXPECT_EQ(p.DistProfilDessousE, 14);
    EXPECT_EQ(p.Epaisseur, 36);
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessous_S"], 10);
    EXPECT_EQ(Etiquettes(p)["lblDistProfilDessus_E"], 10);
}

TEST(BlocAuto, SansLesDeuxProfilsRien) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}}, {});
    for (int i = 0; i < 6; ++i) EXPECT_FALSE(cmdBlocAuto(p, i));
}
