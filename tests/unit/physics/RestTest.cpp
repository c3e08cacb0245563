// Balls that have come to rest, alone and in piles, and what sets them in motion again.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorbel {

namespace {

TEST(RestingBallTest, IsNotMovingAndHasNoVelocity) {
    PhysicsCourt court;
    const auto ball = court.launch({0, restHeight, -3}, {0, 0, -1});
    court.run(10);
    EXPECT_TRUE(ball->isMoving());
    EXPECT_TRUE(court.world.isAnythingMoving());
    ball->body->velocity = Vec3(0);
    ball->body->angularVelocity = Vec3(0);
    const Vec3 frozenAt = ball->position();
    court.run(3);
    EXPECT_FALSE(ball->isMoving());
    EXPECT_FALSE(court.world.isAnythingMoving());
    EXPECT_EQ(ball->body->velocity, Vec3(0));
    EXPECT_LT(glm::distance(ball->position(), frozenAt), 1e-6);
}

// Bodies that are apart are not searched for others that they hold; two that meet must be.
TEST(RestingBallTest, IsWokenThroughTheOneThatIsStruckWhileAnotherRollsApart) {
    PhysicsCourt court;
    const auto struck = court.addBall({0, restHeight, -3});
    const auto behind = court.addBall({0, restHeight, -3.1});
    court.launch({0, restHeight, -2}, {0, 0, -2});
    const auto apart = court.launch({2, restHeight, -1}, {0, 0, -2});
    court.run(20);
    ASSERT_FALSE(struck->isMoving());
    ASSERT_FALSE(behind->isMoving());
    court.run(50);
    EXPECT_LT(behind->position().z, -3.2);
    EXPECT_NEAR(apart->body->velocity.z, -2 * std::exp(-dampingRate * 70 * tick), 1e-6);
}

TEST(RestingBallTest, StaysWhereItIsToTheLastBit) {
    PhysicsCourt court;
    const auto ball = court.addBall({0.3, restHeight, -3});
    court.run(5);
    const Pose resting = ball->pose();
    court.run(500);
    EXPECT_EQ(ball->pose(), resting);
}

TEST(RestingBallTest, SlowRollIsNeverTakenForRest) {
    PhysicsCourt court;
    const auto ball = court.launch({0, restHeight, -3}, {0, 0, -0.05});
    court.run(100);
    EXPECT_NEAR(ball->body->velocity.z, -0.05 * std::exp(-dampingRate * 2), 1e-6);
}

TEST(FrozenBallTest, FallsAgainFromTheAir) {
    PhysicsCourt court;
    const auto ball = court.launch({0, 0.5, -3}, {0, 2, -2});
    court.run(10);
    ball->body->velocity = Vec3(0);
    ball->body->angularVelocity = Vec3(0);
    const double height = ball->position().y;
    court.run(10);
    EXPECT_LT(ball->position().y, height - 0.1);
    court.run(100);
    EXPECT_NEAR(ball->position().y, restHeight, 1e-6);
}

TEST(ThrownBallTest, DoesNotHangAtTheTopOfItsArc) {
    PhysicsCourt court;
    PhysicsBody body = ballBody();
    body.damping = body.angularDamping = 0;
    body.velocity = {0, 9.8 * 10 * tick, 0}; // stands still exactly at the end of the tenth tick
    const auto ball = court.addBall({0, 1, -3}, body);
    court.run(10);
    EXPECT_NEAR(ball->body->velocity.y, 0, 1e-9);
    court.run(100);
    EXPECT_NEAR(ball->position().y, restHeight, 1e-6);
}

// The closest packing of a dozen balls around a jack, all touching.
std::vector<Node::Ptr> addPile(PhysicsCourt& court) {
    std::vector<Node::Ptr> balls;
    for (int row = -2; row <= 2; ++row) {
        for (int column = 0; column < 3 - row * row % 2; ++column) {
            const double x = (column + 0.5 * (row * row % 2)) * 2 * ballRadius;
            balls.push_back(court.addBall({x, restHeight, -6 + row * std::sqrt(3.0) * ballRadius}));
        }
    }
    return balls;
}

TEST(PileTest, OfThirteenTouchingBallsStaysAtRest) {
    PhysicsCourt court;
    const auto balls = addPile(court);
    ASSERT_EQ(balls.size(), 13U);
    std::vector<Vec3> before;
    for (const auto& ball : balls) {
        before.push_back(ball->position());
    }
    court.run(200);
    for (std::size_t i = 0; i < balls.size(); ++i) {
        EXPECT_LT(glm::distance(balls[i]->position(), before[i]), 1e-5);
        EXPECT_FALSE(balls[i]->isMoving());
    }
}

TEST(PileTest, IsScatteredByAFastBallWithoutGainingEnergy) {
    PhysicsCourt court;
    auto balls = addPile(court);
    court.run(10);
    balls.push_back(court.launch({0.1, restHeight, -4}, {0, 0, -5}));
    double energy = kineticEnergy(*balls.back());
    int movedBalls = 0;
    for (int ticks = 0; ticks < 100; ++ticks) {
        court.run(1);
        double now = 0;
        for (const auto& ball : balls) {
            now += kineticEnergy(*ball) + 0.2 * 9.8 * (ball->position().y - restHeight);
        }
        ASSERT_LE(now, energy + 1e-6) << ticks;
        energy = now;
    }
    for (const auto& ball : balls) {
        movedBalls += ball->isMoving() ? 1 : 0;
        EXPECT_GT(ball->position().y, restHeight - 1e-3);
    }
    EXPECT_GT(movedBalls, 3);
}

// A jack put back on the cross may land inside a ball that lies there.
TEST(OverlapTest, IsResolvedWithoutAKick) {
    PhysicsCourt court;
    const auto lower = court.addBall({0, restHeight, -6.25});
    court.run(5);
    const auto upper = court.addBall({0.03, restHeight, -6.25});
    for (int ticks = 0; ticks < 100; ++ticks) {
        court.run(1);
        ASSERT_LT(glm::length(lower->body->velocity), 0.05);
        ASSERT_LT(glm::length(upper->body->velocity), 0.05);
    }
    EXPECT_NEAR(glm::distance(lower->position(), upper->position()), 2 * ballRadius, 1e-3);
    EXPECT_FALSE(upper->isMoving());
}

} // namespace

} // namespace vorbel
