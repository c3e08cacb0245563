#include "rules/ComputerShots.h"

#include "tests/ExpectNear.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorbel {

using test::expectNear;

namespace {

constexpr Vec3 redSpot{-1, 0.035, -0.5};
constexpr Vec3 blueSpot{1, 0.035, -0.5};

Vec3 at(double x, double z) {
    return {x, 0.035, z};
}

} // namespace

TEST(ComputerShotsTest, OnAnEmptyCourtTheDrawWins) {
    const Position position{at(0, -6), {redSpot}, {}};
    const auto shots = candidateShots(position, BallColor::red);
    ASSERT_EQ(shots.size(), 3U); // draw, raise, block
    EXPECT_NEAR(shots[0].score, 10 - 2 * 0.12, 1e-9);
    EXPECT_EQ(shots[0].powerMultiplier, 1);
    EXPECT_EQ(shots[1].target, redSpot); // the waiting ball lies short: its own spot
    EXPECT_EQ(shots[1].score, 8);
    EXPECT_EQ(shots[1].powerMultiplier, 1.3);
    EXPECT_EQ(shots[2].score, 6);
    EXPECT_EQ(shots[2].powerMultiplier, 1);
    const Target chosen = chooseShot(position, BallColor::red, AIDifficulty::medium);
    EXPECT_EQ(chosen.point, shots[0].target);
    EXPECT_EQ(chosen.powerMultiplier, 1);
}

TEST(ComputerShotsTest, AnOpponentHoldingThePointIsHitAway) {
    const Position position{at(-1, -6), {redSpot}, {at(-1, -5.7)}};
    const auto shots = candidateShots(position, BallColor::red);
    ASSERT_EQ(shots.size(), 4U);
    EXPECT_NEAR(shots[1].score, 14 + 3 - 1.5 * 0.3, 1e-9);
    expectNear(shots[1].target, at(-1, -6.05));
    EXPECT_EQ(shots[1].powerMultiplier, 1.6);
    EXPECT_EQ(chooseShot(position, BallColor::red, AIDifficulty::hard).powerMultiplier, 1.6);
}

TEST(ComputerShotsTest, EveryOpponentBallCloserThanTheBestOwnOneCounts) {
    // Blue 0.3, 0.4, 1.0 (as far as red's best) and 2.5 m from the jack.
    const Position position{
        at(0, -6), {at(0, -7), redSpot}, {at(0.3, -6), at(-0.4, -6), at(0, -5), at(-2.5, -6)}};
    EXPECT_NEAR(candidateShots(position, BallColor::red)[1].score, 14 + 3 * 2 - 1.5 * 0.3, 1e-9);
}

TEST(ComputerShotsTest, TheFirstOfEquallyCloseOpponentsIsHit) {
    const Position position{at(1, -6), {blueSpot, at(1.5, -6), at(0.5, -6)}, {at(1, -9)}};
    const auto shots = candidateShots(position, BallColor::blue);
    const double length = std::hypot(0.5, 5.5);
    expectNear(shots[1].target, blueSpot + Vec3(0.5, 0, -5.5) * ((length + 0.35) / length));
}

TEST(ComputerShotsTest, AnOpponentExactlyAsCloseAsTheBestOwnBallIsNotHit) {
    const Position position{at(0, -6), {at(0.25, -6)}, {at(-0.25, -6)}};
    const auto shots = candidateShots(position, BallColor::red);
    ASSERT_EQ(shots.size(), 2U); // draw and block: no own ball lies short either
    EXPECT_EQ(shots[1].score, 6);
}

TEST(ComputerShotsTest, ADrawMustGetCloserThanTheOpponent) {
    struct {
        double opponent, score;
    } const cases[] = {{0.1201, 10 - 0.24}, {0.1199, 2 - 0.24}};
    for (const auto& [opponent, score] : cases) {
        const Position position{at(0, -6), {at(0.05, -6)}, {at(opponent, -6)}};
        EXPECT_NEAR(candidateShots(position, BallColor::red)[0].score, score, 1e-9) << opponent;
    }
}

TEST(ComputerShotsTest, TheFirstOwnBallMoreThanTenCentimetresShortIsRaised) {
    const Position position{at(-1, -6), {at(-1, -5.91), at(-1, -5.89), at(-1, -4)}, {}};
    const auto shots = candidateShots(position, BallColor::red);
    ASSERT_EQ(shots.size(), 3U);
    expectNear(shots[1].target, at(-1, -5.89 - 0.25));
}

TEST(ComputerShotsTest, ADrawThatCannotBeatTheOpponentGivesWayToTheRaise) {
    const Position position{at(0, -6), {at(0, -6.05), redSpot}, {at(0.1, -6)}};
    const Target chosen = chooseShot(position, BallColor::red, AIDifficulty::ultra);
    EXPECT_EQ(chosen.point, redSpot);
    EXPECT_EQ(chosen.powerMultiplier, 1.3);
}

TEST(ComputerShotsTest, ABlockLiesOnTheWayToTheJack) {
    const Position position{at(1, -6.5), {redSpot}, {}};
    expectNear(candidateShots(position, BallColor::red).back().target, at(-1 + 0.85 * 2, -0.5 - 0.85 * 6));
}

TEST(ComputerShotsTest, EasyAlwaysDrawsToTheJackItself) {
    const Position position{Vec3{0.4, 0.2, -6}, {redSpot}, {at(0.5, -6)}};
    const Target chosen = chooseShot(position, BallColor::red, AIDifficulty::easy);
    EXPECT_EQ(chosen.point, at(0.4, -6));
    EXPECT_EQ(chosen.powerMultiplier, 1);
}

TEST(ComputerShotsTest, OfEquallyGoodShotsTheEarlierIsTaken) {
    const AICandidate shots[] = {{at(0, -1), 5, 1}, {at(0, -2), 7, 1}, {at(0, -3), 7, 1}};
    EXPECT_EQ(bestOf(shots).target, at(0, -2));
}

TEST(ComputerShotsTest, WithoutColouredBallsTheSpotBehindTheJackIsFree) {
    expectNear(freeSpotNearJack({}, {0.5, 0.05, -6}), at(0.5, -6.12));
}

TEST(ComputerShotsTest, TheFreeSpotIsTheOneFarthestFromTheBallsOfBothSides) {
    expectNear(freeSpotNearJack({{}, {at(0, -6.3)}, {}}, at(0, -6)), at(0, -5.88));
    expectNear(freeSpotNearJack({{}, {}, {at(0, -6.3)}}, at(0, -6)), at(0, -5.88));
    expectNear(freeSpotNearJack({{}, {at(-0.3, -6)}, {at(-0.3, -6)}}, at(0, -6)), at(0.12, -6));
    // Of the twelve, the one at 120° from straight behind the jack, turning to the right.
    expectNear(freeSpotNearJack({{}, {at(0, -6.3)}, {at(-0.25, -6)}}, at(0, -6)),
               at(0.12 * std::sqrt(0.75), -5.94));
}

TEST(ComputerShotsTest, OfEquallyFreeSpotsTheFirstTowardsTheRightIsTaken) {
    // One ball before the jack and one behind it: the places beside it are equally far from both.
    expectNear(freeSpotNearJack({{}, {at(0, -6.2), at(0, -5.8)}, {}}, at(0, -6)), at(0.12, -6));
}

TEST(ComputerShotsTest, ATargetIsExtendedAlongTheThrowOfItsSide) {
    expectNear(extendTarget(at(1, -4.5), 0.5, BallColor::blue), at(1, -5.0));
    expectNear(extendTarget(at(2, -3.5), std::sqrt(18.0), BallColor::red), at(5, -6.5));
    EXPECT_EQ(extendTarget(blueSpot, 0.5, BallColor::blue), blueSpot);
    const Vec3 almostThere = at(1, -0.5009); // within a millimetre of the spot
    EXPECT_EQ(extendTarget(almostThere, 0.5, BallColor::blue), almostThere);
    expectNear(extendTarget(at(1, -0.502), 0.5, BallColor::blue), at(1, -1.002));
}

} // namespace vorbel
