// Spars and profiles inserted into the path.
#include "design4x/compteurs.h"
#include "design4x/longerons.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tessarel;
using essais::Projet;

namespace {

constexpr int Lien = DrapeauOutil | DrapeauSansDecalage;

ProjetCPX Aile() {
    return Projet({{0, 0}, {50, -8, 1}, {100, 0}}, {{10, 0}, {40, -5, 1}, {80, 0}});
}

PointProfil Lieu() {
    return essais::Points({{50, -8, 1}})[0];
}

std::vector<std::array<double, 3>> Etat(const std::vector<PointProfil>& points) {
    std::vector<std::array<double, 3>> etat;
    for (const PointProfil& p : points) etat.push_back({p.X, p.Y, static_cast<double>(p.Drapeaux)});
    return etat;
}

} // namespace

// Radius 3, centre 10 above the place, at (50, 2). Thirty points of a circle, from 276 degrees to 264, then
// the place again.
TEST(Longeron, RondParLeBasTrenteCordesOuvertesEnBas) {
    const std::vector<PointProfil> t = GenererTrajet(TypeTrajet::RondParLeBas, {3, 10, 0}, Lieu());
    ASSERT_EQ(t.size(), 31U);
    for (std::size_t k = 0; k < 30; ++k) {
        const double angle = (276.0 + 12.0 * static_cast<double>(k)) * 3.14159265358979 / 180;
        EXPECT_NEAR(t[k].X, 50 + 3 * std::cos(angle), 1e-9) << k;
        EXPECT_NEAR(t[k].Y, 2 + 3 * std::sin(angle), 1e-9) << k;
        EXPECT_EQ(t[k].Drapeaux, k == 0 || k == 29 ? Lien : DrapeauOutil) << k;
    }
    EXPECT_EQ(t[30].X, 50);
    EXPECT_EQ(t[30].Y, -8);
    EXPECT_EQ(t[30].Drapeaux, Lien);
}

TEST(Longeron, RondParLeHautOuvertEnHautSousLeLieu) {
    const std::vector<PointProfil> t = GenererTrajet(TypeTrajet::RondParLeHaut, {3, 10, 0}, Lieu());
    ASSERT_EQ(t.size(), 31U);
    for (std::size_t k = 0; k < 30; ++k) {
        const double angle = (96.0 + 12.0 * static_cast<double>(k)) * 3.14159265358979 / 180;
        EXPECT_NEAR(t[k].X, 50 + 3 * std::cos(angle), 1e-9) << k;
        EXPECT_NEAR(t[k].Y, -18 + 3 * std::sin(angle), 1e-9) << k;
    }
}

// Width 6, centre 10 above, height 4: from 0 to 4 in height, 47 to 53 across.
TEST(Longeron, CarreParLeBas) {
    EXPECT_EQ(
        Etat(GenererTrajet(TypeTrajet::CarreParLeBas, {6, 10, 4}, Lieu())),
        (std::vector<std::array<double, 3>>{
            {50, 0, Lien}, {53, 0, 1}, {53, 4, 1}, {47, 4, 1}, {47, 0, 1}, {50, 0, Lien}, {50, -8, Lien}}));
}

TEST(Longeron, CarreParLeHaut) {
    EXPECT_EQ(Etat(GenererTrajet(TypeTrajet::CarreParLeHaut, {6, 10, 4}, Lieu())),
              (std::vector<std::array<double, 3>>{{50, -16, Lien},
                                                  {53, -16, 1},
                                                  {53, -20, 1},
                                                  {47, -20, 1},
                                                  {47, -16, 1},
                                                  {50, -16, Lien},
                                                  {50, -8, Lien}}));
}

TEST(Longeron, SortieADroiteEtRetour) {
    EXPECT_EQ(Etat(GenererTrajet(TypeTrajet::SortieADroite, {25, 0, 0}, Lieu())),
              (std::vector<std::array<double, 3>>{{75, -8, Lien}, {50, -8, Lien}}));
    EXPECT_TRUE(GenererTrajet(TypeTrajet::ProfilFichier, {1, 1, 1}, Lieu()).empty());
}

TEST(Insertion, AutantDePointsDesDeuxCotes) {
    for (const TypeTrajet type :
         {TypeTrajet::RondParLeBas, TypeTrajet::RondParLeHaut, TypeTrajet::CarreParLeBas,
          TypeTrajet::CarreParLeHaut, TypeTrajet::SortieADroite}) {
        ProjetCPX p = Aile();
        ASSERT_TRUE(InsererLongeron(p, type, {3, 5, 4}));
        EXPECT_EQ(p.E.Points.size(), p.S.Points.size());
        EXPECT_TRUE(RegleComptes(p).chkFil);
        EXPECT_GT(p.E.Points.size(), 4U);
    }
}

// The segment from place to slot and the one back have 16 at both ends, and no two points stand at one place.
TEST(Insertion, LesLiensSontSansDecalageEtSansPointDouble) {
    for (const TypeTrajet type :
         {TypeTrajet::RondParLeBas, TypeTrajet::CarreParLeHaut, TypeTrajet::SortieADroite}) {
        ProjetCPX p = Aile();
        ASSERT_TRUE(InsererLongeron(p, type, {3, 5, 4}));
        for (const ProfilCPX* profil : {&p.E, &p.S}) {
            const std::size_t fin = profil->Points.size() - 2; // the place again
            for (const std::size_t k : {std::size_t{1}, std::size_t{2}, fin - 1, fin})
                EXPECT_TRUE(profil->Points[k].Drapeaux & DrapeauSansDecalage) << k;
            EXPECT_EQ(profil->Points[fin].X, profil->Points[1].X);
            EXPECT_EQ(profil->Points[fin].Y, profil->Points[1].Y);
            for (std::size_t k = 1; k < profil->Points.size(); ++k)
                EXPECT_GT(std::hypot(profil->Points[k].X - profil->Points[k - 1].X,
                                     profil->Points[k].Y - profil->Points[k - 1].Y),
                          0.01);
            EXPECT_EQ(profil->Points.back().Drapeaux, 0);
        }
    }
}

TEST(Insertion, SansPointChoisiLaBoitePuisLeDernierPoint) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}, {50, -8}}, {{10, 0, 1}, {40, -5}});
    EXPECT_TRUE(InsererLongeron(p, TypeTrajet::SortieADroite, {7, 0, 0}));
    ASSERT_EQ(b.boites.size(), 1U);
    EXPECT_EQ(b.boites[0].titre, "Pas de sélection sur un profil");
    EXPECT_EQ(Etat(p.E.Points),
              (std::vector<std::array<double, 3>>{{0, 0, 0}, {50, -8, 16}, {57, -8, Lien}, {50, -8, Lien}}));
    EXPECT_EQ(Etat(p.S.Points),
              (std::vector<std::array<double, 3>>{{10, 0, Lien}, {17, 0, Lien}, {10, 0, Lien}, {40, -5, 0}}));
    EXPECT_EQ(p.E.Extremes.Xmax, 57);
}

TEST(Insertion, UneValeurNulleDevient1ApresLaBoite) {
    const essais::BoitesEnregistrees b;
    DimensionsLongeron d = {0, 5, 0};
    RemplacerZeros(TypeTrajet::RondParLeBas, d);
    EXPECT_EQ(d, (DimensionsLongeron{1, 5, 0}));
    d = {0, 0, 0};
    RemplacerZeros(TypeTrajet::SortieADroite, d);
    EXPECT_EQ(d, (DimensionsLongeron{1, 0, 0}));
    d = {1, 2, 3};
    RemplacerZeros(TypeTrajet::CarreParLeBas, d);
    ASSERT_EQ(b.boites.size(), 2U);
    EXPECT_EQ(b.boites[0].texte, "Les valeurs égales à 0 seront remplacée par 1.");
    EXPECT_EQ(b.boites[1].texte, "d=0 sera remplacé par d=1.");
    EXPECT_EQ(b.boites[1].titre, "Valeur nulle impossible.");
}

TEST(Insertion, UnProfilDeFichierSurLeLieu) {
    ProjetCPX p = Aile();
    EXPECT_TRUE(InsererProfil(p, essais::Points({{200, 200}, {205, 201}, {203, 207}})));
    EXPECT_EQ(Etat(p.E.Points), (std::vector<std::array<double, 3>>{
                                    {0, 0, 0}, {50, -8, 1}, {55, -7, 1}, {53, -1, 1}, {100, 0, 0}}));
    EXPECT_EQ(Etat(p.S.Points), (std::vector<std::array<double, 3>>{
                                    {10, 0, 0}, {40, -5, 1}, {45, -4, 1}, {43, 2, 1}, {80, 0, 0}}));
    EXPECT_FALSE(InsererProfil(p, {}));
}

TEST(Insertion, DansUnProjetSansPointsRien) {
    const essais::BoitesEnregistrees b;
    ProjetCPX p = Projet({{0, 0}}, {});
    EXPECT_FALSE(InsererLongeron(p, TypeTrajet::RondParLeBas, {1, 1, 1}));
    EXPECT_FALSE(InsererLongeron(p, TypeTrajet::ProfilFichier, {1, 1, 1}));
    EXPECT_TRUE(b.boites.empty());
}

TEST(ModeInsertion, ConserveToutCompteUnEtatEtLesNomsLeDisent) {
    ProjetCPX p = Aile();
    p.E.NomFichier = "racine.dat";
    p.S.NomFichier = "bout.dat";
    const ProjetCPX avant = p;
    HistoriqueCPX h;
    MemoPourUndo(h, p);
    ModeInsertion mode;
    EntrerModeInsertion(mode, h);
    for (int k = 0; k < 3; ++k) {
        InsererLongeron(p, TypeTrajet::SortieADroite, {7, 0, 0});
        MemoPourUndo(h, p);
    }
    QuitterModeInsertion(mode, h, p, true);
    EXPECT_FALSE(mode.actif);
    EXPECT_EQ(h.PositionUndo, 2);
    EXPECT_EQ(p.E.NomFichier, "racine.dat-mod");
    EXPECT_EQ(p.S.NomFichier, "bout.dat-mod");
    EXPECT_EQ(p.E.Points.size(), 9U);
    cmdUndoCPX(h, p, 0);
    EXPECT_EQ(p, avant);
}

TEST(ModeInsertion, AbandonneLeProjetRevient) {
    ProjetCPX p = Aile();
    const ProjetCPX avant = p;
    HistoriqueCPX h;
    for (int k = 0; k < 40; ++k) MemoPourUndo(h, p);
    ModeInsertion mode;
    EntrerModeInsertion(mode, h);
    InsererLongeron(p, TypeTrajet::CarreParLeBas, {7, 2, 3});
    MemoPourUndo(h, p);
    QuitterModeInsertion(mode, h, p, false);
    EXPECT_EQ(p, avant);
    EXPECT_EQ(h.PositionUndo, 40);
    QuitterModeInsertion(mode, h, p, true); // not in the mode any more: nothing
    EXPECT_EQ(p, avant);
}
