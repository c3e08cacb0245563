// Rolling and flight of a single ball against closed forms.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

struct RollingBallTest : testing::TestWithParam<double> {};

TEST_P(RollingBallTest, FollowsTheDampingLaw) {
    const double speed = GetParam();
    PhysicsCourt court;
    const auto ball = court.launch({0, restHeight, 0}, {0, 0, -speed});
    for (int ticks = 1; ticks <= 120; ++ticks) {
        court.run(1);
        const double left = std::exp(-dampingRate * ticks * tick);
        ASSERT_NEAR(ball->body->velocity.z, -speed * left, 1e-9 * speed);
        ASSERT_NEAR(ball->position().z, -speed / dampingRate * (1 - left),
                    0.001 * speed / dampingRate * (1 - left));
        ASSERT_NEAR(ball->position().x, 0, 1e-12);
        ASSERT_NEAR(ball->position().y, restHeight, 1e-9);
        ASSERT_NEAR(ball->body->angularVelocity.x, ball->body->velocity.z / ballRadius, 1e-6);
    }
}
INSTANTIATE_TEST_SUITE_P(Launches, RollingBallTest, testing::Values(0.5, 1.0, 2.5, 5.0));

// The law behind the power of a throw: 0.4·D + 0.25 is the
// speed that rolls D metres until it is down to 0.25 m/s.
TEST(RollingDistanceTest, IsThatOfThePowerModel) {
    for (const double distance : {1.0, 4.0, 8.0, 11.0}) {
        PhysicsCourt court;
        const auto ball = court.launch({0, restHeight, 0}, {0, 0, -(dampingRate * distance + 0.25)});
        while (-ball->body->velocity.z > 0.25) {
            court.run(1);
        }
        const double lastTick = 0.25 * tick;
        EXPECT_NEAR(-ball->position().z, distance, lastTick + 0.001 * distance);
    }
}

TEST(RollingBallTest, PassesTheSideLineAndRollsOn) {
    PhysicsCourt court;
    const auto ball = court.launch({2.5, restHeight, -6}, {2, 0, 0});
    court.run(150);
    EXPECT_GT(ball->position().x, 4);
    EXPECT_NEAR(ball->position().y, restHeight, 1e-9);
}

TEST(SlidingBallTest, GripsUntilItRolls) {
    PhysicsCourt court;
    PhysicsBody body = ballBody();
    body.damping = body.angularDamping = 0;
    body.velocity = {0, 0, -2};
    const auto ball = court.addBall({0, restHeight, 0}, body);
    court.run(100);
    EXPECT_NEAR(ball->body->velocity.z, -2 * 5.0 / 7, 1e-3); // a solid ball keeps 5/7 of its speed
    EXPECT_NEAR(ball->body->angularVelocity.x, ball->body->velocity.z / ballRadius, 1e-3);
}

TEST(FlyingBallTest, FollowsTheClosedFormWithDrag) {
    PhysicsCourt court;
    const double pitch = std::numbers::pi / 3;
    const Vec3 launch = 5.0 * Vec3(0, std::sin(pitch), -std::cos(pitch));
    const auto ball = court.launch({0, restHeight, 0}, launch);
    const Vec3 terminal = court.scene.gravity / dampingRate;
    for (int ticks = 1; ticks * tick < 0.75; ++ticks) {
        court.run(1);
        const double time = ticks * tick;
        const double lost = 1 - std::exp(-dampingRate * time);
        const Vec3 velocity = launch + (terminal - launch) * lost;
        const Vec3 position =
            Vec3(0, restHeight, 0) + terminal * time + (launch - terminal) * (lost / dampingRate);
        ASSERT_LT(glm::distance(ball->body->velocity, velocity), 0.02) << time;
        ASSERT_LT(glm::distance(ball->position(), position), 0.02) << time;
    }
}

TEST(FlyingBallTest, LandsWithoutABounceAndRollsOn) {
    PhysicsCourt court;
    const auto ball = court.launch({0, restHeight, 0}, {0, 4.33, -2.5});
    court.run(35);
    bool hasLanded = false;
    for (int ticks = 0; ticks < 60; ++ticks) {
        court.run(1);
        hasLanded = hasLanded || ball->position().y < restHeight + 1e-4;
        if (hasLanded) {
            ASSERT_NEAR(ball->position().y, restHeight, 1e-4);
        }
    }
    EXPECT_TRUE(hasLanded);
    EXPECT_LT(ball->body->velocity.z, -1);
}

} // namespace

} // namespace vorbel
