// The crossing of two selected segments: each outcome on each side, and the boxes that tell it.
#include "design4x/intersection.h"
#include "design4x/projets_essai.h"
#include "outils/boites.h"

#include <gtest/gtest.h>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

struct Dit {
    std::string texte;
    std::string titre;
    IconeBoite icone;
    friend bool operator==(const Dit&, const Dit&) = default;
};

std::vector<Dit> Dits(const BoitesEnregistrees& boites) {
    std::vector<Dit> dits;
    for (const Boite& b : boites.boites) dits.push_back({b.texte, b.titre, b.icone});
    return dits;
}

constexpr auto Stop = IconeBoite::Critique;
constexpr auto Info = IconeBoite::Information;
const std::initializer_list<PointEssai> Croix = {{0, 0, 1}, {10, 10, 1}, {0, 10, 1}, {10, 0, 1}};
const std::initializer_list<PointEssai> Libre = {{0, 0}, {1, 0}};

} // namespace

TEST(Intersection, LePointVaDansLeSecondSegment) {
    ProjetCPX projet = Projet(Croix, Libre);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(Places(projet.E.Points), (Coordonnees{{0, 0}, {10, 10}, {0, 10}, {5, 5}, {10, 0}}));
    EXPECT_EQ(projet.E.Points[3].Drapeaux, 0);
    EXPECT_EQ(projet.E.Points[4].Drapeaux, 1);
    EXPECT_TRUE(boites.boites.empty());
    EXPECT_EQ(projet.S.Points.size(), 2U);
}

TEST(Intersection, LesDeuxProfilsDUnCoup) {
    ProjetCPX projet = Projet(Croix, {{0, 0, 1}, {4, 4, 1}, {9, 9}, {0, 4, 1}, {4, 0, 1}});
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(projet.E.Points.size(), 5U);
    EXPECT_EQ(Places(projet.S.Points), (Coordonnees{{0, 0}, {4, 4}, {9, 9}, {0, 4}, {2, 2}, {4, 0}}));
}

TEST(Intersection, SansSelectionRienNeSePasse) {
    ProjetCPX projet = Projet(Libre, Libre);
    const ProjetCPX avant = projet;
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::RienChoisi);
    EXPECT_EQ(projet, avant);
    EXPECT_TRUE(boites.boites.empty());
}

// Crossing at (10,0), the end of the first segment, inside the second: a copy of point 2 in the second.
TEST(Intersection, EnBoutDuPremierSegment) {
    ProjetCPX projet = Projet({{0, 0, 1}, {10, 0, 1}, {10, -5, 1}, {10, 5, 1}}, Libre);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(Places(projet.E.Points), (Coordonnees{{0, 0}, {10, 0}, {10, -5}, {10, 0}, {10, 5}}));
    EXPECT_EQ(Dits(boites),
              (std::vector<Dit>{{"Attention, vous venez de créer un point superposé à un point existant",
                                 "Intersection en bout de segment à l'emplanture", Info}}));
}

TEST(Intersection, AuDebutDuPremierSegment) {
    ProjetCPX projet = Projet({{10, 0, 1}, {0, 0, 1}, {10, -5, 1}, {10, 5, 1}}, Libre);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(Places(projet.E.Points), (Coordonnees{{10, 0}, {0, 0}, {10, -5}, {10, 0}, {10, 5}}));
    EXPECT_EQ(boites.boites.size(), 1U);
}

TEST(Intersection, EnBoutDuSecondSegmentLePointVaDansLePremier) {
    const Coordonnees attendus = {{0, -5}, {0, 0}, {0, 5}, {0, 0}, {10, 0}};
    ProjetCPX projet = Projet(Libre, {{0, -5, 1}, {0, 5, 1}, {0, 0, 1}, {10, 0, 1}});
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(Places(projet.S.Points), attendus);
    EXPECT_EQ(Dits(boites),
              (std::vector<Dit>{{"Attention, vous venez de créer un point superposé à un point existant",
                                 "Intersection en bout de segment au saumon", Info}}));
    projet = Projet(Libre, {{0, -5, 1}, {0, 5, 1}, {10, 0, 1}, {0, 0, 1}});
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(Places(projet.S.Points), (Coordonnees{{0, -5}, {0, 0}, {0, 5}, {10, 0}, {0, 0}}));
}

TEST(Intersection, SegmentsParalleles) {
    const auto paralleles = {PointEssai{0, 0, 1}, {10, 0, 1}, {10, 5, 1}, {0, 5, 1}};
    ProjetCPX projet = Projet(paralleles, paralleles);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Refusee);
    EXPECT_EQ(Dits(boites), (std::vector<Dit>{{"Les deux segments de l'emplanture sont parallèles.",
                                               "Pas d'intersection à l'emplanture", Stop},
                                              {"Les deux segments du saumon sont parallèles.",
                                               "Pas d'intersection au saumon", Stop}}));
    EXPECT_EQ(projet.E.Points.size(), 4U);
    EXPECT_EQ(projet.S.Points.size(), 4U);
}

TEST(Intersection, SegmentsQuiNeSeTouchentPas) {
    const auto ecartes = {PointEssai{0, 0, 1}, {10, 0, 1}, {11, -5, 1}, {11, 5, 1}};
    ProjetCPX projet = Projet(ecartes, ecartes);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Refusee);
    EXPECT_EQ(Dits(boites), (std::vector<Dit>{{"Les deux segments de l'emplanture ne se touchent pas.",
                                               "Pas d'intersection à l'emplanture", Stop},
                                              {"Les deux segments du saumon ne se touchent pas.",
                                               "Pas d'intersection au saumon", Stop}}));
}

TEST(Intersection, IlFautQuatrePointsConsecutifsDeuxADeux) {
    const Dit emplanture = {"Il faut sélectionner quatre points consécutifs deux à deux.",
                            "Erreur de sélection à l'emplanture", Stop};
    const Dit saumon = {emplanture.texte, "Erreur de sélection au saumon", Stop};
    for (const auto& points : {
             Points({{0, 0, 1}, {10, 10, 1}, {0, 10, 1}, {10, 0}}),
             Points({{0, 0, 1}, {10, 10, 1}, {0, 10, 1}, {10, 0, 1}, {9, 9, 1}}),
             Points({{0, 0, 1}, {10, 10, 1}, {0, 10, 1}, {3, 3}, {10, 0, 1}}),
             Points({{0, 0, 1}, {3, 3}, {10, 10, 1}, {0, 10, 1}, {10, 0, 1}}),
         }) {
        ProjetCPX projet;
        projet.E.Points = points;
        projet.S.Points = points;
        BoitesEnregistrees boites;
        EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Refusee);
        EXPECT_EQ(Dits(boites), (std::vector<Dit>{emplanture, saumon}));
        EXPECT_EQ(projet.E.Points, points);
    }
}

// 0.0099 mm on both axes is no segment; 0.01 mm on one of them is one.
TEST(Intersection, UnSegmentDoitAvoirUneLongueur) {
    const auto confondus = {PointEssai{0, 0, 1}, {0.0099, -0.0099, 1}, {0, 10, 1}, {10, 0, 1}};
    ProjetCPX projet = Projet(confondus, confondus);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Refusee);
    const std::string texte =
        "Deux points consécutifs sont confondus, impossible de définir un des deux segments.";
    EXPECT_EQ(Dits(boites), (std::vector<Dit>{{texte, "Erreur de sélection à l'emplanture", Stop},
                                              {texte, "Erreur de sélection au saumon", Stop}}));
    projet = Projet({{0, 5, 1}, {10, 5, 1}, {5, 5, 1}, {5, 5.01, 1}}, Libre);
    BoitesEnregistrees ensuite;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
}

TEST(Intersection, UneFauteALEmplantureNEmpechePasLeSaumon) {
    ProjetCPX projet = Projet({{0, 0, 1}, {10, 10, 1}}, Croix);
    BoitesEnregistrees boites;
    EXPECT_EQ(cmdIntersection(projet), IssueIntersection::Faite);
    EXPECT_EQ(boites.boites.size(), 1U);
    EXPECT_EQ(projet.E.Points.size(), 2U);
    EXPECT_EQ(projet.S.Points.size(), 5U);
}
