// The measuring tool.
#include "design4x/mesurer.h"
#include "design4x/projets_essai.h"

#include <gtest/gtest.h>

using namespace tessarel;
using essais::Projet;

TEST(Mesurer, UnPointDeChaqueCoteLaDistanceDansLEspace) {
    const ProjetCPX p = Projet({{0, 0, 1}, {9, 9}}, {{3, 4, 1}}, 12);
    EXPECT_EQ(cmdMesurerCPX(p, 1), "Mesure entre les deux points sélectionnés : 13.0mm");
}

TEST(Mesurer, DeuxPointsDUnCote) {
    const ProjetCPX p = Projet({{0, 0, 2}, {1, 1, 2}, {5, 5}}, {{3, 4, 2}});
    EXPECT_EQ(cmdMesurerCPX(p, 2), "Distance 2 points Emplanture : 1.414mm");
}

TEST(Mesurer, DeuxPointsDesDeuxCotes) {
    const ProjetCPX p = Projet({{0, 0, 1}, {3, 4, 1}}, {{0, 0, 1}, {0, 2.25, 1}});
    EXPECT_EQ(cmdMesurerCPX(p, 1),
              "Distance 2 points Emplanture : 5.0mm - Distance 2 points Saumon : 2.25mm");
}

TEST(Mesurer, AutreSelectionRienADire) {
    EXPECT_EQ(cmdMesurerCPX(Projet({{0, 0, 1}, {1, 1, 1}, {2, 2, 1}}, {{0, 0, 1}}), 1), "");
    EXPECT_EQ(cmdMesurerCPX(Projet({{0, 0, 1}, {3, 4, 1}}, {}), 2), "");
}
