// Boxes, reversing and joining of paths.
#include "paths/points.h"

#include "paths/traces.h"

#include <gtest/gtest.h>

#include <random>

using namespace tessarel;
using essais::Trace;

TEST(Bornes, UnSeulPointNAPasDeTaille) {
    Sequence s = Trace({{-3.5, 7.25}});
    CalculerBornesSequence(s);
    EXPECT_EQ(s.XMin, -3.5F);
    EXPECT_EQ(s.XMax, -3.5F);
    EXPECT_EQ(s.YMin, 7.25F);
    EXPECT_EQ(s.YMax, 7.25F);
    EXPECT_EQ(s.Largeur, 0.0F);
    EXPECT_EQ(s.Hauteur, 0.0F);
}

TEST(Bornes, SansPointDesZeros) {
    Sequence s;
    s.XMin = s.XMax = s.YMin = s.YMax = s.Largeur = s.Hauteur = 9;
    CalculerBornesSequence(s);
    EXPECT_EQ(s, Sequence());
}

TEST(Bornes, TousLesQuadrants) {
    Sequence s = Trace({{1, 2}, {-4, 8}, {6, -0.5}});
    CalculerBornesSequence(s);
    EXPECT_EQ(s.XMin, -4.0F);
    EXPECT_EQ(s.XMax, 6.0F);
    EXPECT_EQ(s.YMin, -0.5F);
    EXPECT_EQ(s.YMax, 8.0F);
    EXPECT_EQ(s.Largeur, 10.0F);
    EXPECT_EQ(s.Hauteur, 8.5F);
}

// 16777217 has no 32-bit form: it is held as 16777216, and the width is that of what is held.
TEST(Bornes, TenuesEnSimplePrecision) {
    Sequence s = Trace({{16777217.0, 0.1}, {0.1, 0}});
    CalculerBornesSequence(s);
    EXPECT_EQ(s.XMax, 16777216.0F);
    EXPECT_EQ(s.XMin, 0.1F);
    EXPECT_EQ(s.Largeur, 16777216.0F);
    EXPECT_EQ(s.YMax, 0.1F);
    EXPECT_NE(static_cast<double>(s.YMax), 0.1);
}

TEST(Inversion, UnSeulPointResteTelQuel) {
    Sequence s = Trace({{1, 2}});
    const Sequence avant = s;
    InverserSequence(s);
    EXPECT_EQ(s, avant);
}

TEST(Inversion, OrdreRenverseEtDeuxFoisIdentiqueTousChampsCompris) {
    std::mt19937 hasard(41);
    for (const std::size_t n : {2U, 3U, 50U, 51U}) {
        Sequence s;
        for (std::size_t i = 0; i < n; ++i) {
            PointProfil p;
            p.X = hasard();
            p.Y = hasard();
            p.Z = hasard();
            p.Drapeaux = static_cast<std::uint16_t>(hasard());
            p.Rapide = (hasard() & 1U) != 0;
            p.Vitesse = static_cast<float>(hasard());
            p.Vx = static_cast<float>(hasard());
            p.Vy = static_cast<float>(hasard());
            p.Duree = static_cast<float>(hasard());
            p.Decalage = static_cast<float>(hasard());
            s.Points.push_back(p);
        }
        CalculerBornesSequence(s);
        const Sequence avant = s;
        InverserSequence(s);
        for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(s.Points[i], avant.Points[n - 1 - i]);
        InverserSequence(s);
        EXPECT_EQ(s, avant);
    }
}

TEST(Concatenation, PointsBoutABoutSansFusion) {
    std::vector<Sequence> liste = {Trace({{0, 0}, {1, 0}}), Sequence(), Trace({{1, 0}, {1, -2}})};
    liste[0].Points[1].Drapeaux = 4;
    liste[2].Points[0].Vitesse = 3;
    const Sequence tout = ConcatenerSequences(liste);
    ASSERT_EQ(tout.Points.size(), 4U);
    EXPECT_EQ(tout.Points[1], liste[0].Points[1]);
    EXPECT_EQ(tout.Points[2], liste[2].Points[0]);
    EXPECT_EQ(tout.XMax, 1.0F);
    EXPECT_EQ(tout.YMin, -2.0F);
    EXPECT_EQ(tout.Hauteur, 2.0F);
    EXPECT_EQ(tout.Selection, 0);
    EXPECT_EQ(ConcatenerSequences({}), Sequence());
}

TEST(Cadrage, IgnoreLesSequencesVides) {
    std::vector<Sequence> liste = {Sequence(), Trace({{5, 6}, {7, 9}}), Trace({{6, 4}})};
    for (Sequence& s : liste) CalculerBornesSequence(s);
    const Etendue cadre = CadrageSequences(liste);
    EXPECT_EQ(cadre.XMin, 5.0F);
    EXPECT_EQ(cadre.XMax, 7.0F);
    EXPECT_EQ(cadre.YMin, 4.0F);
    EXPECT_EQ(cadre.YMax, 9.0F);
    const Etendue rien = CadrageSequences(std::span(liste).first(1));
    EXPECT_EQ(rien.XMin, 0.0F);
    EXPECT_EQ(rien.XMax, 0.0F);
}
