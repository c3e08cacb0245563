#include "scene/Ball.h"

#include <gtest/gtest.h>

namespace vorbel {

TEST(BallTest, EachKindHasItsNameAndItsColour) {
    struct Case {
        BallColor kind{};
        const char* name = "";
        Color color;
    };
    const Case cases[] = {{BallColor::red, "red", colors::systemRed},
                          {BallColor::blue, "blue", colors::systemBlue},
                          {BallColor::jack, "jack", colors::white}};
    for (const auto& [kind, name, color] : cases) {
        const Node::Ptr ball = makeBall(kind, {1, 2, 3}, PhysicsBody::Type::kinematic);
        EXPECT_EQ(ball->name, name);
        EXPECT_EQ(ball->geometry->material.diffuse, color);
        EXPECT_TRUE(ball->geometry->material.seams);
        EXPECT_EQ(std::get<Sphere>(ball->geometry->shape).radius, 0.05);
        EXPECT_EQ(ball->position(), Vec3(1, 2, 3));
        EXPECT_EQ(ball->body->type, PhysicsBody::Type::kinematic);
        EXPECT_TRUE(isBall(*ball));
    }
    EXPECT_FALSE(isBall(Node("pointer")));
    EXPECT_FALSE(isBall(Node()));
}

TEST(BallTest, RedOnesCarryRingsAndBlueOnesCrossesByALook) {
    Scene scene;
    for (const BallColor kind : {BallColor::red, BallColor::blue, BallColor::jack}) {
        scene.root->addChild(makeBall(kind, {}, PhysicsBody::Type::dynamic));
    }
    scene.root->addChild(std::make_shared<Node>(Geometry{Sphere{1}, {}}));
    const auto material = [&](std::size_t node) { return scene.root->children()[node]->geometry->material; };
    const Material red = material(0);
    setBallLook(scene, {.marked = true});
    EXPECT_EQ(material(0).mark, Mark::ring);
    EXPECT_EQ(material(1).mark, Mark::cross);
    EXPECT_EQ(material(2).mark, Mark::none);
    EXPECT_FALSE(material(0).outlined);
    setBallLook(scene, {.outlined = true});
    EXPECT_EQ(material(0).mark, Mark::none);
    EXPECT_TRUE(material(0).outlined && material(1).outlined && material(2).outlined);
    EXPECT_EQ(material(3), Material{}) << "no ball";
    setBallLook(scene, {});
    EXPECT_EQ(material(0), red);
}

TEST(BallTest, ItsBodyIsThatOfALeatherBall) {
    const auto body = makeBallBody(PhysicsBody::Type::dynamic);
    EXPECT_EQ(body->mass, 0.2);
    EXPECT_EQ(body->friction, 0.8);
    EXPECT_EQ(body->rollingFriction, 0.05);
    EXPECT_EQ(body->restitution, 0);
    EXPECT_EQ(body->damping, 0.4);
    EXPECT_EQ(body->angularDamping, 0.4);
    EXPECT_EQ(body->velocity, Vec3(0));
}

TEST(BallTest, ARestingJackIsFreeToRoll) {
    const Node::Ptr jack = makeRestingJack({0, 0.035, -6.25});
    EXPECT_EQ(jack->name, "jack");
    EXPECT_EQ(jack->body->type, PhysicsBody::Type::dynamic);
    EXPECT_EQ(jack->position(), Vec3(0, 0.035, -6.25));
}

} // namespace vorbel
