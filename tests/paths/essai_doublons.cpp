// What counts as a path that is there twice.
#include "paths/doublons.h"

#include "paths/traces.h"

#include <gtest/gtest.h>

#include <utility>

using namespace tessarel;
using essais::Trace;

TEST(Doublons, UnContourRepeteCompteUneFoisParRepetition) {
    const Sequence carre = Trace({{0, 0}, {4, 0}, {4, 4}, {0, 0}});
    const std::vector<Sequence> trois = {carre, Trace({{9, 9}, {8, 8}}), carre, carre};
    EXPECT_EQ(CompterDoublons(trois), 2U);
}

TEST(Doublons, LeSensDeParcoursNeChangeRien) {
    const std::vector<Sequence> aller_retour = {Trace({{0, 0}, {4, 0}, {4, 4}}),
                                                Trace({{4, 4}, {4, 0}, {0, 0}})};
    EXPECT_EQ(CompterDoublons(aller_retour), 1U);
}

TEST(Doublons, LesMemesSommetsDansUnAutreOrdreSontUnAutreTrace) {
    // Same sum of vertices, another path: 0 1 2 3 and 0 2 1 3.
    const std::vector<Sequence> deux = {Trace({{0, 0}, {1, 0}, {2, 5}, {3, 0}}),
                                        Trace({{0, 0}, {2, 5}, {1, 0}, {3, 0}})};
    EXPECT_EQ(CompterDoublons(deux), 0U);
}

TEST(Doublons, UnZeroNegatifEstUnZero) {
    const std::vector<Sequence> deux = {Trace({{0.0, 1}, {2, 3}}), Trace({{-0.0, 1}, {2, 3}})};
    EXPECT_EQ(CompterDoublons(deux), 1U);
}

TEST(Doublons, UnPointSeulNeCompteJamais) {
    const std::vector<Sequence> points = {Trace({{1, 1}}), Trace({{1, 1}}), Trace({}), Trace({})};
    EXPECT_EQ(CompterDoublons(points), 0U);
}
