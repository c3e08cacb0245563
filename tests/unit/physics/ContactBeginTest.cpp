// When the delegate is told of a contact, how often, and what it can read then.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorbel {

namespace {

struct Contacts {
    Contacts() {
        court.world.setContactDelegate([this](const Node& a, const Node& b) {
            if (isBall(a) && isBall(b)) {
                impactSpeeds.push_back(
                    std::max(glm::length(a.body->velocity), glm::length(b.body->velocity)));
            } else {
                ++courtContacts;
            }
        });
    }

    static bool isBall(const Node& node) { return std::holds_alternative<Sphere>(node.geometry->shape); }

    PhysicsCourt court;
    std::vector<double> impactSpeeds; // m/s, of contacts between balls
    int courtContacts = 0;
};

TEST(ContactBeginTest, ReadsTheSpeedBeforeTheImpact) {
    for (const double speed : {0.1, 0.2, 1.0, 5.0}) {
        Contacts given;
        given.court.launch({0, restHeight, -2}, {0, 0, -speed});
        given.court.addBall({0, restHeight, -2 - 2 * ballRadius - 0.001});
        given.court.run(20);
        ASSERT_EQ(given.impactSpeeds.size(), 1U);
        EXPECT_NEAR(given.impactSpeeds[0], speed, 0.01 * speed);
    }
}

TEST(ContactBeginTest, OfAPairInContactIsNotRepeated) {
    Contacts given;
    given.court.launch({0, restHeight, -1}, {0, 0, -2});
    given.court.addBall({0, restHeight, -2});
    given.court.run(200);
    EXPECT_EQ(given.impactSpeeds.size(), 1U);
}

TEST(ContactBeginTest, ComesAgainAfterTheBallsHaveParted) {
    Contacts given;
    const auto striker = given.court.launch({0, restHeight, -1}, {0, 0, -2});
    const auto target = given.court.addBall({0, restHeight, -2});
    given.court.run(60);
    ASSERT_EQ(given.impactSpeeds.size(), 1U);
    striker->setPosition({0, restHeight, -1});
    striker->body->velocity = {0, 0, -1};
    target->setPosition({0, restHeight, -1.5});
    target->body->velocity = Vec3(0);
    for (const auto& ball : {striker, target}) {
        ball->body->angularVelocity = ball->body->velocity.z / ballRadius * Vec3(1, 0, 0);
    }
    given.court.run(60);
    ASSERT_EQ(given.impactSpeeds.size(), 2U);
    EXPECT_NEAR(given.impactSpeeds[1], std::exp(-dampingRate * 0.5), 0.15);
}

TEST(ContactBeginTest, OfRestingNeighboursIsNotRepeatedWhenBodiesComeAndGo) {
    Contacts given;
    given.court.launch({0, restHeight, -1}, {0, 0, -1});
    given.court.addBall({0, restHeight, -1.2});
    given.court.run(10);
    ASSERT_EQ(given.impactSpeeds.size(), 1U);
    const auto other = given.court.addBall({2, restHeight, -2});
    given.court.run(10);
    other->body = std::make_shared<PhysicsBody>(ballBody(PhysicsBody::Type::kinematic));
    given.court.run(10);
    given.court.scene.root->removeChild(*other);
    given.court.run(10);
    EXPECT_EQ(given.impactSpeeds.size(), 1U);
}

TEST(ContactBeginTest, ToldForFloorAndWallOnceEach) {
    Contacts given;
    PhysicsBody body = ballBody();
    body.friction = 0; // or it would climb the wall and come down on the floor again
    body.velocity = {0, 0, -2};
    given.court.addBall({0, restHeight, -12}, body);
    given.court.run(5);
    EXPECT_EQ(given.courtContacts, 1);
    given.court.run(100);
    EXPECT_EQ(given.courtContacts, 2);
}

TEST(ContactBeginTest, NoneForBallsThatPassEachOther) {
    Contacts given;
    given.court.launch({0, restHeight, -1}, {0, 0, -5});
    given.court.addBall({2 * ballRadius + 0.0005, restHeight, -2});
    given.court.run(60);
    EXPECT_TRUE(given.impactSpeeds.empty());
}

TEST(ContactBeginTest, WithoutADelegateNothingIsTold) {
    PhysicsCourt court;
    court.launch({0, restHeight, -1}, {0, 0, -2});
    const auto target = court.addBall({0, restHeight, -1.3});
    court.run(20);
    EXPECT_LT(target->position().z, -1.3);
}

} // namespace

} // namespace vorbel
