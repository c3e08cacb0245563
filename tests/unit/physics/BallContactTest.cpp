// Balls striking each other: momentum, energy, direction, no passing through.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorbel {

namespace {

// Balls without drag far from everything and without weight.
struct WeightlessBalls {
    WeightlessBalls() { court.scene.gravity = Vec3(0); }

    Node::Ptr add(const Vec3& position, const Vec3& velocity, double friction = 0) {
        PhysicsBody body = ballBody();
        body.damping = body.angularDamping = 0;
        body.friction = friction;
        body.velocity = velocity;
        balls.push_back(court.addBall(position + Vec3(0, 5, 0), body));
        return balls.back();
    }

    [[nodiscard]] Vec3 momentum() const {
        Vec3 sum(0);
        for (const auto& ball : balls) {
            sum += ball->body->mass * ball->body->velocity;
        }
        return sum;
    }

    [[nodiscard]] double energy() const {
        double sum = 0;
        for (const auto& ball : balls) {
            sum += kineticEnergy(*ball);
        }
        return sum;
    }

    PhysicsCourt court;
    std::vector<Node::Ptr> balls;
};

TEST(BallContactTest, HeadOnShareTheSpeed) {
    WeightlessBalls given;
    const auto striker = given.add({0, 0, 0}, {0, 0, -3});
    const auto target = given.add({0, 0, -0.5}, {0, 0, 0});
    given.court.run(20);
    EXPECT_NEAR(striker->body->velocity.z, -1.5, 1e-9);
    EXPECT_NEAR(target->body->velocity.z, -1.5, 1e-9);
    EXPECT_NEAR(glm::distance(striker->position(), target->position()), 2 * ballRadius, 1e-6);
}

// Without friction the struck ball leaves along the line of centres at the moment of contact, with half of
// the striker's speed along that line; the striker keeps the rest.
TEST(BallContactTest, ObliqueFollowsTheLineOfCentres) {
    for (const double speed : {0.5, 2.0, 6.0}) {
        for (const double offset : {0.02, 0.05, 0.08, 0.095}) {
            WeightlessBalls given;
            const auto striker = given.add({offset, 0, 0}, {0, 0, -speed});
            const auto target = given.add({0, 0, -0.5}, {0, 0, 0});
            given.court.run(80);
            const double sine = offset / (2 * ballRadius);
            const double cosine = std::sqrt(1 - sine * sine);
            const Vec3 line(-sine, 0, -cosine);
            const Vec3 expected = line * (speed * cosine / 2);
            EXPECT_LT(glm::distance(target->body->velocity, expected), 0.01 * speed)
                << speed << ' ' << offset;
            EXPECT_LT(glm::distance(striker->body->velocity, Vec3(0, 0, -speed) - expected), 0.01 * speed);
        }
    }
}

TEST(BallContactTest, KeepsMomentumAndGainsNoEnergy) {
    for (const double friction : {0.0, 0.8}) {
        for (const double offset : {0.0, 0.03, 0.07, 0.099}) {
            WeightlessBalls given;
            given.add({offset, 0, 0}, {0, 0, -4}, friction);
            given.add({0, 0, -0.5}, {0.2, 0, 1}, friction);
            given.add({0.05, 0.02, -0.8}, {0, 0, 0}, friction);
            const Vec3 momentum = given.momentum();
            double energy = given.energy();
            for (int ticks = 0; ticks < 50; ++ticks) {
                given.court.run(1);
                ASSERT_LT(glm::distance(given.momentum(), momentum), 1e-9);
                ASSERT_LE(given.energy(), energy * (1 + 1e-9));
                energy = given.energy();
            }
        }
    }
}

TEST(BallContactTest, PassingByTouchesNothing) {
    WeightlessBalls given;
    const auto striker = given.add({2 * ballRadius + 1e-4, 0, 0}, {0, 0, -6});
    const auto target = given.add({0, 0, -0.5}, {0, 0, 0});
    given.court.run(20);
    EXPECT_EQ(target->body->velocity, Vec3(0));
    EXPECT_EQ(striker->body->velocity, Vec3(0, 0, -6));
}

TEST(BallContactTest, NoTunnellingAtSixMetresPerSecond) {
    for (int shift = 0; shift < 40; ++shift) { // every phase of the sub-step against the place of the contact
        PhysicsCourt court;
        const auto striker = court.launch({0, restHeight, -1 + 0.003 * shift}, {0, 0, -6});
        const auto target = court.addBall({0.01, restHeight, -3});
        for (int ticks = 0; ticks < 30; ++ticks) {
            court.run(1);
            ASSERT_GT(glm::distance(striker->position(), target->position()), 2 * ballRadius - 1e-3);
        }
        ASSERT_LT(target->position().z, -3.1);
    }
}

TEST(BallContactTest, OnTheFloorMovesTheTargetForwards) {
    PhysicsCourt court;
    const auto striker = court.launch({0, restHeight, -1}, {0, 0, -2});
    const auto target = court.addBall({0, restHeight, -2});
    double energy = kineticEnergy(*striker);
    for (int ticks = 0; ticks < 100; ++ticks) {
        court.run(1);
        const double now = kineticEnergy(*striker) + kineticEnergy(*target);
        ASSERT_LE(now, energy * (1 + 1e-9));
        energy = now;
        ASSERT_NEAR(target->position().x, 0, 1e-9);
    }
    EXPECT_LT(target->position().z, -2.3);
    EXPECT_NEAR(striker->position().y, restHeight, 1e-3);
}

// With twenty times finer steps a struck ball ends at nearly the same place.
TEST(BallContactTest, ResultHardlyDependsOnTheSubStep) {
    for (const double offset : {0.0, 0.03, -0.06}) {
        const auto restOfTarget = [offset](int stepsPerTick) {
            PhysicsCourt court;
            court.launch({offset, restHeight, -1}, {0, 0, -2.5});
            const auto target = court.addBall({0, restHeight, -3});
            for (int i = 0; i < 150 * stepsPerTick; ++i) {
                court.world.step(tick / stepsPerTick);
            }
            return target->position();
        };
        EXPECT_LT(glm::distance(restOfTarget(1), restOfTarget(40)), 0.03) << offset;
    }
}

// A ball that rolls against a held one climbs or stops; it
// is never pushed through and the held one never moves.
TEST(BallContactTest, KinematicBallIsNotPushed) {
    PhysicsCourt court;
    const auto held = court.addBall({0, restHeight, -2}, ballBody(PhysicsBody::Type::kinematic));
    const auto striker = court.launch({0, restHeight, -1}, {0, 0, -4});
    court.run(60);
    EXPECT_EQ(held->position(), Vec3(0, restHeight, -2));
    EXPECT_GT(striker->position().z, -2 + 2 * ballRadius - 1e-3);
}

} // namespace

} // namespace vorbel
