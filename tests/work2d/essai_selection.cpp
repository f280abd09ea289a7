// Which paths are selected, the box around them, and what a place on it means.
#include "work2d/selection.h"

#include "outils_decoupe.h"
#include "work2d/transformations.h"

using namespace tessarel;
using namespace tessarel::essais;

namespace {

std::vector<Sequence> Trois() {
    return {Chemin({{0, 0}, {10, 5}}), Chemin({{20, 20}, {40, 30}}), Chemin({{-5, 50}, {0, 60}})};
}

std::vector<bool> Choisies(const std::vector<Sequence>& sequences) {
    std::vector<bool> choisies;
    for (const Sequence& s : sequences) choisies.push_back(EstSelectionnee(s));
    return choisies;
}

std::vector<bool> Apres(std::vector<Sequence>& sequences, std::vector<std::size_t> rangs,
                        ModeSelection mode) {
    Selectionner(sequences, rangs, mode);
    return Choisies(sequences);
}

} // namespace

TEST(Selection, SeuleRemplaceAjouterAjouteBasculerRetourne) {
    std::vector<Sequence> s = Trois();
    EXPECT_EQ(Apres(s, {1}, ModeSelection::Seule), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(Apres(s, {0}, ModeSelection::Ajouter), (std::vector<bool>{true, true, false}));
    EXPECT_EQ(Apres(s, {1, 2}, ModeSelection::Basculer), (std::vector<bool>{true, false, true}));
    EXPECT_EQ(CompterSelections(s), 2U);
    EXPECT_EQ(Apres(s, {}, ModeSelection::Seule), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(Apres(s, {7}, ModeSelection::Ajouter), (std::vector<bool>{false, false, false}));
}

TEST(Selection, DitSiQuelqueChoseAChange) {
    std::vector<Sequence> s = Trois();
    const std::vector<std::size_t> un = {1};
    EXPECT_TRUE(Selectionner(s, un, ModeSelection::Seule));
    EXPECT_FALSE(Selectionner(s, un, ModeSelection::Seule));
    EXPECT_TRUE(ToutSelectionner(s, true));
    EXPECT_FALSE(ToutSelectionner(s, true));
}

TEST(Selection, LesAutresBitsDuMasqueRestent) {
    std::vector<Sequence> s = Trois();
    s[0].Selection = 6;
    ToutSelectionner(s, true);
    EXPECT_EQ(s[0].Selection, 7);
    ToutSelectionner(s, false);
    EXPECT_EQ(s[0].Selection, 6);
}

TEST(BoiteSelection, EntoureLesSeulesSelectionnees) {
    std::vector<Sequence> s = Trois();
    Apres(s, {1, 2}, ModeSelection::Seule);
    const Sequence boite = CalculerBoiteSelection(s);
    EXPECT_EQ(boite.XMin, -5);
    EXPECT_EQ(boite.XMax, 40);
    EXPECT_EQ(boite.YMin, 20);
    EXPECT_EQ(boite.YMax, 60);
    EXPECT_EQ(boite.Largeur, 45);
    EXPECT_EQ(boite.Hauteur, 40);
    EXPECT_TRUE(boite.Points.empty());
}

TEST(BoiteSelection, SansSelectionEstVide) {
    std::vector<Sequence> s = Trois();
    EXPECT_EQ(CalculerBoiteSelection(s), Sequence());
    s.emplace_back();
    s.back().Selection = SelectionSequence; // without a point
    EXPECT_EQ(CalculerBoiteSelection(s), Sequence());
}

TEST(SurvolBoite, DistingueDedansPoigneeRotationEtDehors) {
    std::vector<Sequence> s = {Chemin({{0, 0}, {100, 60}})};
    ToutSelectionner(s, true);
    const Sequence boite = CalculerBoiteSelection(s);
    const double echelle = 2; // the drawn box stands off by 5 mm, the ring reaches 15 mm further
    EXPECT_EQ(SurvolerBoite(boite, {50, 30}, echelle).zone, ZoneBoite::Dedans);
    EXPECT_EQ(SurvolerBoite(boite, {-3.5, 63.5}, echelle).HandleCourant, "HG");
    EXPECT_EQ(SurvolerBoite(boite, {50, 64}, echelle).HandleCourant, "HM");
    EXPECT_EQ(SurvolerBoite(boite, {103, 63}, echelle).HandleCourant, "HD");
    EXPECT_EQ(SurvolerBoite(boite, {-4, 30}, echelle).HandleCourant, "MG");
    EXPECT_EQ(SurvolerBoite(boite, {104, 30}, echelle).HandleCourant, "MD");
    EXPECT_EQ(SurvolerBoite(boite, {-4, -4}, echelle).HandleCourant, "BG");
    EXPECT_EQ(SurvolerBoite(boite, {50, -3}, echelle).HandleCourant, "BM");
    EXPECT_EQ(SurvolerBoite(boite, {103, -3}, echelle).HandleCourant, "BD");
    EXPECT_EQ(SurvolerBoite(boite, {25, 75}, echelle).zone, ZoneBoite::Rotation);
    EXPECT_EQ(SurvolerBoite(boite, {25, 81}, echelle).zone, ZoneBoite::Dehors);
    EXPECT_EQ(SurvolerBoite(Sequence(), {0, 0}, echelle).zone, ZoneBoite::Dehors);
}

TEST(PoigneesMontrees, SeulesCellesQuiOntUnSensEtDeLaPlace) {
    std::vector<Sequence> s = {Chemin({{0, 0}, {100, 60}})};
    ToutSelectionner(s, true);
    EXPECT_EQ(PoigneesMontrees(CalculerBoiteSelection(s), 2).size(), 8U);
    EXPECT_EQ(PoigneesMontrees(CalculerBoiteSelection(s), 0.1).size(), 4U) << "ten pixels by six";
    std::vector<Sequence> plat = {Chemin({{0, 7}, {100, 7}})};
    ToutSelectionner(plat, true);
    EXPECT_EQ(PoigneesMontrees(CalculerBoiteSelection(plat), 2), (std::vector<std::string_view>{"MG", "MD"}));
    std::vector<Sequence> point = {Chemin({{3, 3}})};
    ToutSelectionner(point, true);
    EXPECT_TRUE(PoigneesMontrees(CalculerBoiteSelection(point), 2).empty());
}

TEST(CoinSegment, NommeLeBoutLePlusProche) {
    // A left, B right, C high, D low.
    EXPECT_EQ(CoinSegment({0, 0}, {10, 5}, {1, 1}), "AD");
    EXPECT_EQ(CoinSegment({0, 0}, {10, 5}, {9, 4}), "BC");
    EXPECT_EQ(CoinSegment({0, 5}, {10, 0}, {1, 4}), "AC");
    EXPECT_EQ(CoinSegment({0, 5}, {10, 0}, {9, 1}), "BD");
    EXPECT_EQ(CoinSegment({10, 0}, {0, 5}, {9, 1}), "BD") << "whichever way it runs";
    EXPECT_EQ(CoinSegment({0, 0}, {10, 0}, {1, 0}), "AC") << "level: the first end is the high one";
    EXPECT_EQ(CoinSegment({0, 0}, {10, 0}, {9, 0}), "BD");
    EXPECT_EQ(CoinSegment({0, 0}, {0, 9}, {0, 8}), "BC") << "vertical: the first end is the left one";
}
