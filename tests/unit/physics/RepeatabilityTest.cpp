// Same scene, same calls: the same positions to the last bit.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace vorbel {

namespace {

// Plays an end of throws at a jack as a game does: a held ball is swapped for a thrown one, all balls are
// frozen when time is up, and the balls are cleared at the end. Returns every position after every tick.
std::vector<Vec3> playEnd(PhysicsCourt& court, unsigned seed) {
    std::mt19937 random(seed);
    const auto uniform = [&random](double low, double high) {
        return low + (high - low) * static_cast<double>(random()) / 4294967296.0;
    };
    std::vector<Node::Ptr> balls;
    std::vector<Vec3> positions;
    const auto run = [&](int ticks) {
        for (int i = 0; i < ticks; ++i) {
            court.run(1);
            for (const auto& ball : balls) {
                positions.push_back(ball->position());
            }
        }
    };
    for (int thrown = 0; thrown < 13; ++thrown) {
        balls.push_back(court.addBall({thrown % 2 ? 1.0 : -1.0, restHeight, -0.5},
                                      ballBody(PhysicsBody::Type::kinematic)));
        run(3);
        const double speed = uniform(2.0, 3.5);
        const Vec3 velocity(speed * uniform(-0.05, 0.05) + (thrown % 2 ? -0.4 : 0.4), 0, -speed);
        balls.back()->body = std::make_shared<PhysicsBody>(ballBody());
        balls.back()->body->velocity = velocity;
        balls.back()->body->angularVelocity = glm::cross(Vec3(0, 1, 0), velocity) / ballRadius;
        run(120);
        for (const auto& ball : balls) {
            ball->body->velocity = Vec3(0);
            ball->body->angularVelocity = Vec3(0);
        }
    }
    for (const auto& ball : balls) {
        court.scene.root->removeChild(*ball);
    }
    court.run(1);
    return positions;
}

TEST(RepeatabilityTest, TwoWorldsSideBySideAgreeExactly) {
    PhysicsCourt first;
    // Memory in between moves the second world's objects to other addresses.
    const std::vector<std::unique_ptr<std::vector<double>>> clutter = [] {
        std::vector<std::unique_ptr<std::vector<double>>> blocks;
        for (std::size_t size = 1; size < 200; size += 3) {
            blocks.push_back(std::make_unique<std::vector<double>>(size));
        }
        return blocks;
    }();
    PhysicsCourt second;
    EXPECT_EQ(playEnd(first, 1), playEnd(second, 1));
}

TEST(RepeatabilityTest, AUsedAndClearedWorldIsLikeANewOne) {
    PhysicsCourt used;
    playEnd(used, 1);
    playEnd(used, 2);
    PhysicsCourt fresh;
    EXPECT_EQ(playEnd(used, 3), playEnd(fresh, 3));
}

TEST(RepeatabilityTest, OtherThrowsEndElsewhere) {
    PhysicsCourt first;
    PhysicsCourt second;
    EXPECT_NE(playEnd(first, 1), playEnd(second, 2));
}

} // namespace

} // namespace vorbel
