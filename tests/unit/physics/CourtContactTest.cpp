// Balls against floor and wall, and the rule for rolling friction.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr double wallFace = -12.45;

TEST(BackWallTest, StopsBallsAtItsFace) {
    for (const double speed : {0.5, 3.0, 6.0}) {
        for (int shift = 0; shift < 40; ++shift) {
            PhysicsCourt court;
            const auto ball = court.launch({0, restHeight, -12 + 0.003 * shift}, {0, 0, -speed});
            for (int ticks = 0; ticks < 80; ++ticks) {
                court.run(1);
                ASSERT_GT(ball->position().z, wallFace + ballRadius - 1e-3);
            }
            ASSERT_LT(std::abs(ball->body->velocity.z), 0.5 * speed + 0.1);
        }
    }
}

TEST(BackWallTest, ReturnsNoSpeedToABallThatDoesNotSpin) {
    PhysicsCourt court;
    court.scene.gravity = Vec3(0);
    PhysicsBody body = ballBody();
    body.velocity = {0, 0, -6};
    const auto ball = court.addBall({0, 0.5, -12}, body);
    court.run(20);
    EXPECT_NEAR(ball->body->velocity.z, 0, 1e-9);
    EXPECT_NEAR(ball->position().z, wallFace + ballRadius, 1e-6);
}

TEST(CourtFloorTest, StopsAFallWithoutABounce) {
    PhysicsCourt court;
    const auto ball = court.addBall({0, 1, -5});
    for (int ticks = 0; ticks < 100; ++ticks) {
        court.run(1);
        ASSERT_LE(ball->body->velocity.y, 1e-9);
        ASSERT_GT(ball->position().y, restHeight - 1e-3);
    }
    EXPECT_NEAR(ball->position().y, restHeight, 1e-6);
}

TEST(CourtFloorTest, KeepsABallWhereItIsReleased) {
    PhysicsCourt court;
    const auto ball = court.addBall({0.3, restHeight, -6.25});
    court.run(200);
    EXPECT_LT(glm::distance(ball->position(), Vec3(0.3, restHeight, -6.25)), 1e-9);
}

double rolledDistance(double floorCoefficient, double ballCoefficient) {
    Scene scene;
    PhysicsWorld world(scene);
    const auto add = [&scene](Shape shape, const PhysicsBody& body, const Vec3& position) {
        auto node = std::make_shared<Node>(Geometry{std::move(shape), {}});
        node->body = std::make_shared<PhysicsBody>(body);
        node->setPosition(position);
        scene.root->addChild(node);
        return node;
    };
    add(Floor{}, {.friction = 0.6, .rollingFriction = floorCoefficient, .restitution = 0}, {0, -0.015, 0});
    PhysicsBody body = ballBody();
    body.rollingFriction = ballCoefficient;
    body.damping = body.angularDamping = 0;
    body.velocity = {0, 0, -1};
    body.angularVelocity = {-1 / ballRadius, 0, 0};
    const auto ball = add(Sphere{ballRadius}, body, {0, restHeight, 0});
    for (int i = 0; i < 100; ++i) {
        world.step(tick);
    }
    return -ball->position().z;
}

TEST(RollingFrictionTest, OfAContactIsTheProductOfBothBodies) {
    EXPECT_NEAR(rolledDistance(0, 0.05), 2, 1e-3); // none on either side, none at all
    EXPECT_NEAR(rolledDistance(0.05, 0), 2, 1e-3);
    EXPECT_NEAR(rolledDistance(0.1, 0.02), rolledDistance(0.02, 0.1), 1e-9);
    EXPECT_NEAR(rolledDistance(0.1, 0.02), rolledDistance(0.04, 0.05), 1e-9);
    EXPECT_LT(rolledDistance(0.1, 0.05), rolledDistance(0.1, 0.02));
    EXPECT_LT(rolledDistance(0.1, 0.02), 1.99);
}

} // namespace

} // namespace vorbel
