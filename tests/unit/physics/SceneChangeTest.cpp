// What the game changes in the scene is taken over at the next tick.
#include "tests/unit/physics/PhysicsCourt.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

TEST(SceneChangeTest, KinematicBodySwappedForADynamicOneIsThrown) {
    PhysicsCourt court;
    const auto ball = court.addBall({-1, restHeight, -0.5}, ballBody(PhysicsBody::Type::kinematic));
    court.run(50);
    EXPECT_EQ(ball->position(), Vec3(-1, restHeight, -0.5));
    EXPECT_FALSE(ball->isMoving());

    ball->body = std::make_shared<PhysicsBody>(ballBody());
    ball->body->velocity = {0, 0, -2};
    ball->body->angularVelocity = {-2 / ballRadius, 0, 0};
    court.run(1);
    EXPECT_TRUE(ball->isMoving());
    EXPECT_NEAR(ball->body->velocity.z, -2 * std::exp(-dampingRate * tick), 1e-9);
}

TEST(SceneChangeTest, KinematicBodyFollowsItsNode) {
    PhysicsCourt court;
    const auto held = court.addBall({0, restHeight, -2}, ballBody(PhysicsBody::Type::kinematic));
    court.run(2);
    held->setPosition({1, restHeight, -2});
    const auto ball = court.launch({0, restHeight, -1.5}, {0, 0, -2});
    court.run(50);
    EXPECT_LT(ball->position().z, -2.2); // nothing in its way any more
    EXPECT_EQ(held->position(), Vec3(1, restHeight, -2));
}

TEST(SceneChangeTest, MovementOfAKinematicNodeStaysShown) {
    PhysicsCourt court;
    const auto held = court.addBall({0, restHeight, -2}, ballBody(PhysicsBody::Type::kinematic));
    court.run(2);
    held->advanceTo({{0.1, restHeight, -2}, held->orientation()});
    court.run(1);
    EXPECT_TRUE(held->isMoving());
    EXPECT_DOUBLE_EQ(held->displayedPose(0.5).position.x, 0.05);
}

TEST(SceneChangeTest, RemovedNodeIsNoLongerInTheWay) {
    PhysicsCourt court;
    const auto obstacle = court.addBall({0, restHeight, -2});
    const auto ball = court.launch({0, restHeight, -1}, {0, 0, -2});
    court.run(5);
    court.scene.root->removeChild(*obstacle);
    court.run(60);
    EXPECT_LT(ball->position().z, -2.5);
    EXPECT_EQ(obstacle->position(), Vec3(0, restHeight, -2));
}

TEST(SceneChangeTest, BallFallsWhenItsSupportIsRemoved) {
    PhysicsCourt court;
    const auto table = court.add(Box{1, 0.1, 1}, {.restitution = 0}, {0, 0.5, -3});
    const auto ball = court.addBall({0, 0.6, -3});
    court.run(50);
    ASSERT_FALSE(ball->isMoving());
    court.scene.root->removeChild(*table);
    court.run(100);
    EXPECT_NEAR(ball->position().y, restHeight, 1e-6);
}

TEST(SceneChangeTest, BallFallsWhenItsSupportIsMovedAway) {
    PhysicsCourt court;
    const auto table = court.add(Box{1, 0.1, 1}, {.restitution = 0}, {0, 0.5, -3});
    const auto ball = court.addBall({0, 0.6, -3});
    court.run(50);
    table->setPosition({2, 0.5, -3});
    court.run(100);
    EXPECT_NEAR(ball->position().y, restHeight, 1e-6);
}

TEST(SceneChangeTest, VelocityAndPoseSetByTheGameAreTakenOver) {
    PhysicsCourt court;
    const auto ball = court.addBall({0, restHeight, -3});
    court.run(50);
    ball->body->velocity = {1, 0, 0};
    ball->body->angularVelocity = {0, 0, -1 / ballRadius};
    ball->setPosition({0.5, restHeight, -4});
    court.run(1);
    EXPECT_NEAR(ball->position().x, 0.5 + tick, 1e-3);
    EXPECT_DOUBLE_EQ(ball->position().z, -4);
}

TEST(SceneChangeTest, BallLiftedByTheGameFalls) {
    PhysicsCourt court;
    const auto ball = court.addBall({0, restHeight, -3});
    court.run(50);
    ball->setPosition({0, 0.5, -3});
    court.run(5);
    EXPECT_LT(ball->position().y, 0.5);
}

TEST(SceneChangeTest, GravityIsThatOfTheScene) {
    PhysicsCourt court;
    const auto ball = court.addBall({0, restHeight, -3});
    court.run(20);
    court.scene.gravity = {0, 1, 0};
    court.run(50);
    EXPECT_GT(ball->position().y, 0.3);
}

TEST(SceneChangeTest, BodyGivenToANodeThatIsAlreadyInTheSceneIsFound) {
    PhysicsCourt court;
    auto node = std::make_shared<Node>(Geometry{Sphere{ballRadius}, {}});
    node->setPosition({0, 1, -3});
    court.scene.root->addChild(node);
    court.run(10);
    EXPECT_EQ(node->position().y, 1);
    node->body = std::make_shared<PhysicsBody>(ballBody());
    court.run(10);
    EXPECT_LT(node->position().y, 1);
}

TEST(SceneChangeTest, EmptySceneAndBodiesWithoutAShapeAreHarmless) {
    Scene scene;
    PhysicsWorld world(scene);
    world.step(tick);
    scene.gravity = {0, -1, 0};
    world.step(tick);
    auto node = std::make_shared<Node>("point");
    node->body = std::make_shared<PhysicsBody>(ballBody());
    scene.root->addChild(node);
    for (int i = 0; i < 10; ++i) {
        world.step(tick);
    }
    EXPECT_LT(node->position().y, 0);
    scene.root->removeChild(*node);
    world.step(tick);
}

} // namespace

} // namespace vorbel
