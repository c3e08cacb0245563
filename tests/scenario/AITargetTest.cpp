// Where the computer wants its ball to stop.
#include "tests/scenario/Match.h"

#include <cmath>

namespace vorbel::test {

class AITargetTest : public MatchTest {
protected:
    AITargetTest() {
        humanAgainstHuman();
        emptyCourt();
        level(AIDifficulty::medium);
    }
    // Red to play; call after the other balls are placed, as the waiting ball is the last one.
    std::vector<AICandidate> redsCandidates() {
        playingWith(BallColor::red);
        return game.generateAdvancedCandidates(jack()->position());
    }
};

TEST_F(AITargetTest, OnAnEmptyCourtTheDrawWins) {
    jackAt(0, -6);
    const auto candidates = redsCandidates();
    ASSERT_EQ(candidates.size(), 3U); // draw, raise, block
    EXPECT_NEAR(candidates[0].score, 10 - 2 * 0.12, 1e-9);
    EXPECT_EQ(candidates[1].score, 8.0);
    EXPECT_EQ(candidates[1].target, Vec3(-1, 0.035, -0.5)); // the waiting ball lies short: its own spot
    EXPECT_EQ(candidates[1].powerMultiplier, 1.3);
    EXPECT_EQ(candidates[2].score, 6.0);
    EXPECT_EQ(game.computeAITarget().point, candidates[0].target);
}

TEST_F(AITargetTest, AnOpponentHoldingThePointIsHitAway) {
    jackAt(-1, -6);
    blueAt(-1, -5.7);
    const auto candidates = redsCandidates();
    ASSERT_EQ(candidates.size(), 4U);
    EXPECT_NEAR(candidates[1].score, 14 + 3 - 1.5 * 0.3, 1e-9);
    EXPECT_EQ(candidates[1].powerMultiplier, 1.6);
    EXPECT_NEAR(candidates[1].target.z, -6.05, 1e-9);
    const auto chosen = game.computeAITarget();
    EXPECT_EQ(chosen.point, candidates[1].target);
    EXPECT_EQ(chosen.powerMultiplier, 1.6);
}

TEST_F(AITargetTest, EveryOpponentBallNearerThanTheBestOwnOneCounts) {
    jackAt(0, -6);
    blueAt(0.3, -6);
    blueAt(-0.4, -6);
    blueAt(-2.5, -6);
    redAt(0, -7);
    EXPECT_NEAR(redsCandidates()[1].score, 14 + 6 - 1.5 * 0.3, 1e-9);
}

TEST_F(AITargetTest, AGoodDrawBeatsRaiseAndBlock) {
    jackAt(0, -6);
    redAt(0, -5.5);
    const auto candidates = redsCandidates();
    ASSERT_EQ(candidates.size(), 3U);
    EXPECT_NEAR(candidates[0].score, 9.76, 1e-9);
    EXPECT_NEAR(candidates[1].target.z, -0.5 - 5.0 * (1 + 0.25 / std::hypot(1, 5.0)), 1e-9); // its short ball
    EXPECT_EQ(game.computeAITarget().point, candidates[0].target);
}

TEST_F(AITargetTest, ADrawThatCannotBeatTheOpponentGivesWayToTheRaise) {
    jackAt(0, -6);
    redAt(0, -6.05);
    blueAt(0.1, -6);
    const auto candidates = redsCandidates();
    ASSERT_EQ(candidates.size(), 3U); // no hit: red holds the point
    EXPECT_NEAR(candidates[0].score, 2 - 2 * 0.12, 1e-9);
    const auto chosen = game.computeAITarget();
    EXPECT_EQ(chosen.point, Vec3(-1, 0.035, -0.5));
    EXPECT_EQ(chosen.powerMultiplier, 1.3);
}

TEST_F(AITargetTest, ABlockLiesInFrontOfTheJack) {
    jackAt(1, -6.5);
    const AICandidate block = redsCandidates().back();
    EXPECT_NEAR(block.target.x, -1 + 0.85 * 2, 1e-12);
    EXPECT_NEAR(block.target.z, -0.5 - 0.85 * 6, 1e-12);
    EXPECT_EQ(block.target.y, 0.035);
}

TEST_F(AITargetTest, EasyAlwaysAimsAtTheJack) {
    level(AIDifficulty::easy);
    jackAt(0.4, -6);
    blueAt(0.5, -6);
    playingWith(BallColor::red);
    EXPECT_EQ(game.computeAITarget().point, Vec3(0.4, 0.035, -6));
    EXPECT_EQ(game.computeAITarget().powerMultiplier, 1.0);
}

TEST_F(AITargetTest, WithoutAJackInPlayTheTargetIsThatOfAJackThrow) {
    playingWith(BallColor::red);
    const Vec3 target = game.computeAITarget().point;
    EXPECT_LE(std::abs(target.x), 1);
    EXPECT_LE(target.z, -4);
    EXPECT_GE(target.z, -7);
}

TEST_F(AITargetTest, WithoutColouredBallsTheSpotBehindTheJackIsFree) {
    const Vec3 spot = game.freeSpotNearJack({0.5, 0.05, -6});
    EXPECT_NEAR(spot.x, 0.5, exactly);
    EXPECT_NEAR(spot.z, -6.12, exactly);
    EXPECT_EQ(spot.y, 0.035);
}

TEST_F(AITargetTest, TheFreeSpotIsTheOneFarthestFromAllBalls) {
    redAt(0, -6.3);
    const Vec3 spot = game.freeSpotNearJack({0, 0.035, -6});
    EXPECT_NEAR(spot.x, 0, 1e-9);
    EXPECT_NEAR(spot.z, -5.88, 1e-9);
}

TEST_F(AITargetTest, ATargetIsExtendedAlongTheThrow) {
    state.currentTurn = BallColor::blue;
    const Vec3 extended = game.extendTarget({1, 0.035, -4.5}, 0.5);
    EXPECT_NEAR(extended.x, 1, exactly);
    EXPECT_NEAR(extended.z, -5.0, exactly);
    EXPECT_EQ(game.extendTarget({1, 0.035, -0.5}, 0.5), Vec3(1, 0.035, -0.5));
}

} // namespace vorbel::test
