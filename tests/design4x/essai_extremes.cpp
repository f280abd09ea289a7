// Extents, chords, heights, wing measures and block of the design record.
#include "design4x/projet_cpx.h"
#include "design4x/projets_essai.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tessarel;
using essais::Projet;

namespace {

constexpr int A = DrapeauAlignement;
constexpr int C = DrapeauCorde;

// Root: a lozenge from trailing edge (0, 1) over (40, 9) to leading edge (100, 4) and back under by (40, -3).
// Tip: the same halved and shifted by (20, 5).
ProjetCPX Losanges() {
    return Projet({{0, 1}, {40, 9}, {100, 4}, {40, -3}, {0, 1}},
                  {{20, 5.5}, {40, 9.5}, {70, 7}, {40, 3.5}, {20, 5.5}});
}

} // namespace

TEST(Extremes, EtenduesEtIndicesDeChaqueProfil) {
    const ProjetCPX p = Losanges();
    EXPECT_EQ(p.E.Extremes, (ExtremesProfil{0, 100, -3, 9, 0, 2, 3, 1}));
    EXPECT_EQ(p.S.Extremes, (ExtremesProfil{20, 70, 3.5F, 9.5F, 0, 2, 3, 1}));
    EXPECT_EQ(p.XminGlobal, 0);
    EXPECT_EQ(p.XmaxGlobal, 100);
    EXPECT_EQ(p.YminGlobal, -3);
    EXPECT_EQ(p.YmaxGlobal, 9.5F);
}

TEST(Extremes, SansMarqueCordeEtHauteurDeToutLeProfil) {
    const ProjetCPX p = Losanges();
    EXPECT_EQ(p.E.ExtremesCorde, p.E.Extremes);
    EXPECT_EQ(p.E.Corde, 100);
    EXPECT_EQ(p.E.Hauteur, 12);
    EXPECT_EQ(p.E.YauBA, 4);
    EXPECT_EQ(p.E.YauBF, 1);
    EXPECT_EQ(p.S.Corde, 50);
    EXPECT_EQ(p.S.Hauteur, 6);
}

TEST(Extremes, DEgauxLePremierPointDansLOrdreDesIndices) {
    const ProjetCPX p = Projet({{5, 5}, {0, 0}, {10, 10}, {0, 10}, {10, 0}}, {});
    EXPECT_EQ(p.E.Extremes, (ExtremesProfil{0, 10, 0, 10, 1, 2, 1, 2}));
}

// Apart in 64 bits, the same in 32: no new extreme.
TEST(Extremes, ComparaisonsEnSimplePrecision) {
    const ProjetCPX p = Projet({{100, 10}, {100.000000001, 10.0000000001}, {99.999999999, 9.9999999999}}, {});
    EXPECT_EQ(p.E.Extremes, (ExtremesProfil{100, 100, 10, 10, 0, 0, 0, 0}));
    EXPECT_EQ(p.E.Corde, 0);
}

TEST(Extremes, UnSeulPointToutEgalCordeNulle) {
    const ProjetCPX p = Projet({{3.5, -7}}, {});
    EXPECT_EQ(p.E.Extremes, (ExtremesProfil{3.5F, 3.5F, -7, -7, 0, 0, 0, 0}));
    EXPECT_EQ(p.E.ExtremesCorde, p.E.Extremes);
    EXPECT_EQ(p.E.Corde, 0);
    EXPECT_EQ(p.E.Hauteur, 0);
    EXPECT_EQ(p.XminGlobal, 3.5F);
    EXPECT_EQ(p.YmaxGlobal, -7);
}

TEST(Extremes, ProfilsVidesDesZeros) {
    ProjetCPX p = Losanges();
    p.E.Points.clear();
    p.S.Points.clear();
    CalculerExtremesCPX(p);
    ProjetCPX attendu;
    attendu.Ecartement = 500;
    EXPECT_EQ(p, attendu);
}

TEST(Extremes, UnProfilAbsentNeCompteNiDansLEnsembleNiDansLAile) {
    const ProjetCPX p = Projet({}, {{20, 5}, {70, 9}});
    EXPECT_EQ(p.XminGlobal, 20);
    EXPECT_EQ(p.XmaxGlobal, 70);
    EXPECT_EQ(p.YminGlobal, 5);
    EXPECT_EQ(p.YmaxGlobal, 9);
    EXPECT_EQ(p.Fleche, 0);
    EXPECT_EQ(p.FlecheBF, 0);
    EXPECT_EQ(p.DiedreMm, 0);
    EXPECT_EQ(p.DiedreDeg, 0);
}

TEST(Corde, UneMarqueNeSuffitPas) {
    const ProjetCPX p = Projet({{0, 1}, {40, 9, C}, {100, 4}, {40, -3}}, {});
    EXPECT_EQ(p.E.Corde, 100);
    EXPECT_EQ(p.E.Hauteur, 12);
    EXPECT_EQ(p.E.ExtremesCorde, p.E.Extremes);
    EXPECT_EQ(p.E.YauBA, 4);
}

// Two or three marks: chord and edges are those of the marks, the height that of the whole profile.
TEST(Corde, DeuxMarquesDonnentLaCordeSeule) {
    const ProjetCPX p = Projet({{0, 1}, {10, 2, C}, {40, 9}, {90, 5, C}, {100, 4}, {40, -3}}, {});
    EXPECT_EQ(p.E.Corde, 80);
    EXPECT_EQ(p.E.Hauteur, 12);
    EXPECT_EQ(p.E.YauBA, 5);
    EXPECT_EQ(p.E.YauBF, 2);
    EXPECT_EQ(p.E.ExtremesCorde, (ExtremesProfil{10, 90, -3, 9, 1, 3, 5, 2}));
}

TEST(Corde, TroisMarquesPasEncoreDeHauteur) {
    const ProjetCPX p = Projet({{0, 1}, {10, 2, C}, {40, 8, C}, {50, 9}, {90, 5, C}, {100, 4}}, {});
    EXPECT_EQ(p.E.Corde, 80);
    EXPECT_EQ(p.E.Hauteur, 8);
    EXPECT_EQ(p.E.ExtremesCorde.IndiceYmax, 3);
}

TEST(Corde, QuatreMarquesDonnentAussiLaHauteur) {
    const ProjetCPX p =
        Projet({{0, 1}, {10, 2, C}, {40, 8, C}, {50, 9}, {90, 5, C}, {100, 4}, {40, -2, C}, {45, -3}}, {});
    EXPECT_EQ(p.E.Corde, 80);
    EXPECT_EQ(p.E.Hauteur, 10);
    EXPECT_EQ(p.E.ExtremesCorde, (ExtremesProfil{10, 90, -2, 8, 1, 4, 6, 2}));
    EXPECT_EQ(p.E.Extremes, (ExtremesProfil{0, 100, -3, 9, 0, 5, 7, 3}));
}

// The chord runs over all marked points, also those meant for the height.
TEST(Corde, ToutesLesMarquesComptent) {
    const ProjetCPX p = Projet({{10, 0, C}, {90, 0, C}, {95, 8, C}, {5, -2, C}}, {});
    EXPECT_EQ(p.E.Corde, 90);
    EXPECT_EQ(p.E.YauBA, 8);
    EXPECT_EQ(p.E.YauBF, -2);
}

TEST(Alignement, MoyenneDesPointsMarques) {
    const ProjetCPX p = Projet({{0, 1, A}, {40, 9}, {100, 4, A}}, {{20, 5.5}});
    EXPECT_EQ(p.E.NbAlign, 2);
    EXPECT_EQ(p.E.XmoyenAlign, 50);
    EXPECT_EQ(p.E.YmoyenAlign, 2.5F);
    EXPECT_EQ(p.S.NbAlign, 0);
    EXPECT_EQ(p.S.XmoyenAlign, 0);
}

TEST(MesuresAile, FlechesEtDiedreSontCeuxDesCordes) {
    const ProjetCPX p = Losanges();
    EXPECT_EQ(p.Fleche, 30);     // 100 - 70
    EXPECT_EQ(p.FlecheBF, 20);   // 20 - 0
    EXPECT_EQ(p.DiedreMm, 6.5F); // 3.5 - -3
    // Middles at (3.5 + 9.5) / 2 = 6.5 and (-3 + 9) / 2 = 3, 500 mm apart: atan(0.007) = 0.401063906 degrees.
    EXPECT_FLOAT_EQ(p.DiedreDeg, 0.401063906F);
}

TEST(MesuresAile, SansEcartementPasDAngle) {
    const ProjetCPX p = Projet({{0, 0}, {10, 10}}, {{0, 20}, {10, 30}}, 0);
    EXPECT_EQ(p.DiedreMm, 20);
    EXPECT_EQ(p.DiedreDeg, 0);
}

TEST(MesuresAile, QuarantecinqDegresParLesQuinzeChiffresDePi) {
    const ProjetCPX p = Projet({{0, 0}, {10, 10}}, {{0, 500}, {10, 510}}, 500);
    EXPECT_EQ(p.DiedreDeg, static_cast<float>(std::atan(1.0) * 180 / 3.14159265358979));
}

TEST(Bloc, PiedEtDessusPlatsDeLEmplantureEtBoutsDeChaqueCorde) {
    ProjetCPX p = Losanges();
    p.Epaisseur = 30;
    p.DistProfilDessousE = 4;
    p.E.MargeBa = 1;
    p.E.MargeBf = 2;
    p.S.MargeBa = 3;
    p.S.MargeBf = 5;
    CalculerExtremesCPX(p);
    const std::array<PointEspace, 5> e = {
        {{-2, -7, 250}, {101, -7, 250}, {101, 23, 250}, {-2, 23, 250}, {-2, -7, 250}}};
    const std::array<PointEspace, 5> s = {
        {{15, -7, -250}, {73, -7, -250}, {73, 23, -250}, {15, 23, -250}, {15, -7, -250}}};
    EXPECT_EQ(p.E.Bloc, e);
    EXPECT_EQ(p.S.Bloc, s);
}

TEST(Bloc, UnSaumonSeulDonneSonPropreNiveau) {
    const ProjetCPX p = Projet({}, {{20, 5}, {70, 9}});
    EXPECT_EQ(p.S.Bloc[0], (PointEspace{10, -5, -250}));
    EXPECT_EQ(p.S.Bloc[2], (PointEspace{80, 35, -250}));
    EXPECT_EQ(p.E.Bloc[2], PointEspace());
}

TEST(EcrireZ, MoitieDeLEcartementDeChaqueCote) {
    ProjetCPX p = Projet({{0, 0}, {1, 1}}, {{0, 0}}, 333);
    EXPECT_EQ(p.E.Points[1].Z, 166.5);
    EXPECT_EQ(p.S.Points[0].Z, -166.5);
}
