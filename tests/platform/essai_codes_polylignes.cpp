// The two-character codes that part the polylines of one array.
#include "platform/gabar/gabar.h"

#include <gtest/gtest.h>

using namespace tessarel;

TEST(CodesPolylignes, LePremierEstAuDessusDuDernierDesQuIlYEnADeux) {
    for (const std::size_t n : {2U, 3U, 35U, 36U, 37U, 1295U, 1296U, 1297U, 1298U, 2591U, 2592U, 1'000'000U})
        EXPECT_GT(CodePolyligne(0, n), CodePolyligne(n - 1, n)) << n;
}

TEST(CodesPolylignes, DeuxVoisinesDifferent) {
    for (const std::size_t n : {2U, 3U, 1296U, 1297U, 5000U})
        for (std::size_t i = 0; i + 1 < n; ++i)
            ASSERT_NE(CodePolyligne(i, n), CodePolyligne(i + 1, n)) << n << ' ' << i;
}

TEST(CodesPolylignes, IlsDescendentTantQuIlYEnAAssez) {
    for (std::size_t i = 0; i + 1 < 1296; ++i) ASSERT_GT(CodePolyligne(i, 1296), CodePolyligne(i + 1, 1296));
    EXPECT_EQ(CodePolyligne(0, 1), (std::array<char, 2>{'0', '0'}));
    EXPECT_EQ(CodePolyligne(0, 2), (std::array<char, 2>{'0', '1'}));
}
