#include "rules/Position.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace vorbel {

TEST(PositionTest, TheClosestBallIsToldWithItsDistance) {
    const std::array balls{Vec3(1, 0, 0), Vec3(0, 0.5, 0), Vec3(0, 0, -2)};
    const ClosestBall closest = closestBall(balls, {0, 0, 0});
    EXPECT_EQ(closest.position, balls[1]);
    EXPECT_EQ(closest.distance, 0.5);
}

TEST(PositionTest, OfEquallyCloseBallsTheFirstIsClosest) {
    const std::array balls{Vec3(2, 0, 0), Vec3(1, 0, 0), Vec3(-1, 0, 0)};
    EXPECT_EQ(closestBall(balls, {0, 0, 0}).position, balls[1]);
}

TEST(PositionTest, NoBallIsInfinitelyFar) {
    EXPECT_EQ(closestBall({}, {0, 0, 0}).distance, std::numeric_limits<double>::infinity());
}

TEST(PositionTest, EachSideHasItsOwnBalls) {
    const Position position{.jack = {}, .red = {Vec3(1, 0, 0)}, .blue = {Vec3(2, 0, 0), Vec3(3, 0, 0)}};
    EXPECT_EQ(position.of(BallColor::red), position.red);
    EXPECT_EQ(position.of(BallColor::blue), position.blue);
}

} // namespace vorbel
