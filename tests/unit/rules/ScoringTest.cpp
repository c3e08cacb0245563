#include "rules/Scoring.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace vorbel {

namespace {

constexpr Vec3 jack{0, 0.035, -6};

// Red's balls to the right of the jack and blue's to the left, that far from it.
Position balls(std::initializer_list<double> red, std::initializer_list<double> blue) {
    Position position{.jack = jack};
    for (const double distance : red) {
        position.red.push_back(jack + Vec3(distance, 0, 0));
    }
    for (const double distance : blue) {
        position.blue.push_back(jack - Vec3(distance, 0, 0));
    }
    return position;
}

} // namespace

TEST(ScoringTest, BallsCloserThanTheOtherSidesBestCount) {
    struct {
        Position position;
        Points points;
    } const cases[] = {
        {balls({0.30, 0.10}, {0.25, 0.20}), {1, 0}},
        {balls({0.19, 0.10, 0.15}, {0.20}), {3, 0}},
        {balls({0.20}, {0.19, 0.10, 0.15, 0.5}), {0, 3}},
        {balls({}, {0.3, 4.0, 0.5, 1.0, 2.0, 20.0}), {0, 6}}, // every ball counts, wherever it lies
        {balls({0.3, 9.0}, {}), {2, 0}},
        {balls({}, {}), {0, 0}},
        {balls({0.10, 0.25}, {0.25}), {1, 0}}, // as far as the other side's best is not closer
        {balls({0.25}, {0.10, 0.25}), {0, 1}},
    };
    for (const auto& [position, points] : cases) {
        EXPECT_EQ(pointsOfEnd(position), points);
    }
}

TEST(ScoringTest, EquallyCloseBestBallsScoreForBothSides) {
    EXPECT_EQ(pointsOfEnd(balls({0.25}, {0.25})), (Points{1, 1}));
    EXPECT_EQ(pointsOfEnd(balls({0.25, 0.2503}, {0.25, 0.26})), (Points{2, 1}));
}

TEST(ScoringTest, BallsWithinHalfAMillimetreOfAnEqualPairCountAsEquallyClose) {
    EXPECT_EQ(pointsOfEnd(balls({0.25, 0.25049}, {0.25, 0.25049})), (Points{2, 2}));
    EXPECT_EQ(pointsOfEnd(balls({0.25, 0.25051}, {0.25, 0.25051})), (Points{1, 1}));
}

TEST(ScoringTest, TheBestBallsMustBeExactlyEqual) {
    EXPECT_EQ(pointsOfEnd(balls({0.25}, {0.2501})), (Points{1, 0}));
    EXPECT_EQ(pointsOfEnd(balls({0.2501}, {0.25})), (Points{0, 1}));
}

TEST(ScoringTest, DistancesAreMeasuredInSpace) {
    Position position{.jack = jack, .red = {jack + Vec3(0.1, 0.2, 0.2)}, .blue = {jack + Vec3(0, 0.29, 0)}};
    EXPECT_EQ(pointsOfEnd(position), (Points{0, 1})); // 0.30 m against 0.29 m
}

TEST(ScoringTest, AMatchHasFourEndsAndThenExtraOnesUntilItIsDecided) {
    struct Case {
        int end = 0;
        Points score;
        AfterEnd next{};
    };
    const Case cases[] = {
        {1, {3, 0}, AfterEnd::nextEnd},   {3, {3, 0}, AfterEnd::nextEnd},   {3, {2, 2}, AfterEnd::nextEnd},
        {4, {3, 2}, AfterEnd::matchOver}, {4, {2, 3}, AfterEnd::matchOver}, {4, {3, 3}, AfterEnd::extraEnd},
        {5, {3, 3}, AfterEnd::extraEnd},  {5, {3, 4}, AfterEnd::matchOver}, {6, {0, 0}, AfterEnd::extraEnd},
    };
    for (const auto& [end, score, next] : cases) {
        EXPECT_EQ(afterEnd(end, score), next) << "end " << end;
    }
}

TEST(ScoringTest, TheWinnerHasMorePointsAndAnUndecidedMatchNamesBlue) {
    EXPECT_EQ(winner({3, 2}), BallColor::red);
    EXPECT_EQ(winner({2, 3}), BallColor::blue);
    EXPECT_EQ(winner({2, 2}), BallColor::blue);
}

} // namespace vorbel
