#include "platform/scenegraph/Scene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

namespace vorbel {

namespace {

void expectNear(const Vec3& actual, const Vec3& expected) {
    EXPECT_NEAR(glm::distance(actual, expected), 0, 1e-12) << actual.x << ' ' << actual.y << ' ' << actual.z;
}

} // namespace

TEST(NodeTest, ChildrenKeepTheirOrderAndAreFoundByNameAtAnyDepth) {
    Node root;
    const auto parent = std::make_shared<Node>("parent");
    const auto inner = std::make_shared<Node>("wanted");
    const auto later = std::make_shared<Node>("wanted");
    parent->addChild(inner);
    root.addChild(parent);
    root.addChild(later);
    EXPECT_EQ(root.findChild("wanted"), inner); // depth first
    EXPECT_EQ(root.findChild("missing"), nullptr);
    root.removeChild(*parent);
    EXPECT_EQ(root.findChild("wanted"), later);
    root.removeChild(*parent);
    EXPECT_EQ(root.children().size(), 1U);
}

TEST(NodeTest, CountsWhatMayChangeTheBodiesOfItsChildren) {
    Node root;
    const auto ball = std::make_shared<Node>();
    auto countsOn = [&root, former = root.childBodyChanges()]() mutable {
        return std::exchange(former, root.childBodyChanges()) < root.childBodyChanges();
    };
    root.addChild(ball);
    EXPECT_TRUE(countsOn());
    ball->body = std::make_shared<PhysicsBody>();
    EXPECT_TRUE(countsOn());
    ball->body = std::make_shared<PhysicsBody>();
    EXPECT_TRUE(countsOn());
    ball->body->velocity = {1, 0, 0};
    ball->setPosition({1, 0, 0});
    EXPECT_FALSE(countsOn());
    ball->body = nullptr;
    EXPECT_TRUE(countsOn());
    root.removeChild(*ball);
    EXPECT_TRUE(countsOn());
}

TEST(NodeTest, APlacedNodeJumps) {
    Node node;
    node.setPosition({1, 2, 3});
    expectNear(node.displayedPose(0).position, {1, 2, 3});
    EXPECT_FALSE(node.isMoving());
}

TEST(NodeTest, AnAdvancedNodeIsShownOnItsWay) {
    Node node;
    node.setPosition({1, 0, 0});
    node.advanceTo({{3, 0, 0}, node.orientation()});
    EXPECT_TRUE(node.isMoving());
    expectNear(node.position(), {3, 0, 0});
    expectNear(node.displayedPose(0).position, {1, 0, 0});
    expectNear(node.displayedPose(0.5).position, {2, 0, 0});
    expectNear(node.displayedPose(1).position, {3, 0, 0});
}

TEST(NodeTest, APitchedAndYawedBarPointsAlongTheThrow) {
    Node node;
    constexpr double pitch = 0.4;
    constexpr double aim = 0.6;
    node.setEulerAngles({pitch, -aim, 0});
    expectNear(node.orientation() * Vec3(0, 0, -1),
               {std::sin(aim) * std::cos(pitch), std::sin(pitch), -std::cos(aim) * std::cos(pitch)});
}

TEST(SceneTest, AnAnimatedNodeTurnsWithinTheTime) {
    Scene scene;
    const auto node = std::make_shared<Node>();
    scene.root->addChild(node);
    const Quat target = rotationFromEuler({0, std::numbers::pi / 2, 0});
    scene.animateOrientation(node, target, 0.1);
    scene.advanceAnimations(0.05);
    expectNear(node->orientation() * Vec3(1, 0, 0), {std::sqrt(0.5), 0, -std::sqrt(0.5)});
    EXPECT_TRUE(node->isMoving());
    EXPECT_TRUE(scene.isAnythingTurning());
    scene.advanceAnimations(0.05);
    expectNear(node->orientation() * Vec3(1, 0, 0), {0, 0, -1});
    scene.advanceAnimations(0.05);
    EXPECT_FALSE(node->isMoving());
    EXPECT_FALSE(scene.isAnythingTurning());
}

TEST(SceneTest, ANewAnimationReplacesTheFormerOne) {
    Scene scene;
    const auto node = std::make_shared<Node>();
    scene.animateOrientation(node, rotationFromEuler({0, 1, 0}), 0.1);
    scene.advanceAnimations(0.05);
    scene.animateOrientation(node, rotationFromEuler({0, 0, 0}), 0.1);
    scene.advanceAnimations(0.2);
    expectNear(node->orientation() * Vec3(1, 0, 0), {1, 0, 0});
}

TEST(SceneTest, AnAnimationOfARemovedNodeEnds) {
    Scene scene;
    auto node = std::make_shared<Node>();
    scene.animateOrientation(node, rotationFromEuler({0, 1, 0}), 0.1);
    node.reset();
    scene.advanceAnimations(0.02);
    SUCCEED() << "nothing to turn, nothing touched";
}

} // namespace vorbel
