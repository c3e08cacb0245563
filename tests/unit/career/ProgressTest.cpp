#include "career/Progress.h"

#include <gtest/gtest.h>

#include <climits>

namespace vorbel {

TEST(ProgressTest, TheFirstRankTakesThreeMatches) {
    EXPECT_EQ(rankKey(2).name(), "rank.novice");
    EXPECT_EQ(gamesToNextRank(2), 1);
    EXPECT_EQ(rankKey(3).name(), "rank.thirdYouth");
    EXPECT_EQ(gamesToNextRank(3), 3);
}

TEST(ProgressTest, TheLastRankIsReachedWithSixtyMatches) {
    EXPECT_EQ(rankKey(59).name(), "rank.cms");
    EXPECT_EQ(gamesToNextRank(59), 1);
    EXPECT_EQ(rankKey(60).name(), "rank.ms");
    EXPECT_EQ(gamesToNextRank(60), std::nullopt);
    EXPECT_EQ(rankKey(INT_MAX).name(), "rank.ms");
}

TEST(ProgressTest, EveryThresholdOfTheLadderChangesTheRank) {
    for (const int threshold : {3, 6, 10, 15, 20, 30, 45, 60}) {
        EXPECT_NE(rankKey(threshold - 1), rankKey(threshold));
        EXPECT_EQ(gamesToNextRank(threshold - 1), 1);
    }
}

TEST(ProgressTest, ADamagedCountReadsAsTheLowestRank) {
    EXPECT_EQ(rankKey(-5).name(), "rank.novice");
    EXPECT_EQ(gamesToNextRank(-5), 5);
    EXPECT_EQ(gamesToNextRank(-INT_MAX), INT_MAX);
    EXPECT_EQ(gamesToNextRank(INT_MIN), INT_MAX);
}

} // namespace vorbel
