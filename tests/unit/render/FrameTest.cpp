// The copy of a scene that is drawn.
#include "platform/render/Frame.h"
#include "platform/scenegraph/Scene.h"

#include <numbers>

#include <glm/geometric.hpp>
#include <gmock/gmock.h>

namespace vorbel {
namespace {

Node::Ptr add(Scene& scene, Shape shape, const Vec3& position = Vec3(0)) {
    auto node = std::make_shared<Node>(Geometry{std::move(shape), Material{}});
    node->setPosition(position);
    scene.root->addChild(node);
    return node;
}

glm::vec3 placeOf(const DrawItem& item) {
    return glm::vec3(item.world[3]);
}

TEST(FrameTest, OpacityIsMultipliedDownTheTree) {
    Scene scene;
    const auto parent = add(scene, Box{});
    auto child = std::make_shared<Node>(Geometry{Sphere{}, Material{}});
    parent->opacity = 0.5;
    child->opacity = 0.5;
    parent->addChild(child);
    const Frame frame = makeFrame(scene, 1);
    ASSERT_EQ(frame.items.size(), 2U);
    EXPECT_EQ(frame.items[0].opacity, 0.5F);
    EXPECT_EQ(frame.items[1].opacity, 0.25F);
}

TEST(FrameTest, HiddenNodeHidesItsChildren) {
    Scene scene;
    const auto parent = add(scene, Box{});
    parent->addChild(std::make_shared<Node>(Geometry{Sphere{}, Material{}}));
    parent->opacity = 0;
    EXPECT_TRUE(makeFrame(scene, 1).items.empty());
}

TEST(FrameTest, ScaleReachesChildrenAndTheirPositions) {
    Scene scene;
    const auto head = add(scene, Sphere{0.5}, {0, 1, 0});
    head->scale = {1, 2, 1};
    auto hair = std::make_shared<Node>(Geometry{Sphere{0.25}, Material{}});
    hair->setPosition({0, 0.5, 0});
    head->addChild(hair);
    const Frame frame = makeFrame(scene, 1);
    EXPECT_EQ(placeOf(frame.items[1]), glm::vec3(0, 2, 0));
    EXPECT_FLOAT_EQ(glm::length(glm::vec3(frame.items[1].world[1])), 0.5F);
    EXPECT_FLOAT_EQ(glm::length(glm::vec3(frame.items[1].world[0])), 0.25F);
}

TEST(FrameTest, SimpleShapesOfAllSizesAreOfOneUnitShape) {
    Scene scene;
    add(scene, Box{6, 0.1, 12.5});
    add(scene, Box{2, 0.01, 0.05});
    const Frame frame = makeFrame(scene, 1);
    EXPECT_EQ(frame.items[0].shape, frame.items[1].shape);
    EXPECT_FLOAT_EQ(frame.items[0].world[2][2], 12.5F);
}

TEST(FrameTest, MovingNodeIsShownBetweenItsLastTwoPoses) {
    Scene scene;
    const auto ball = add(scene, Sphere{}, {0, 0, 0});
    ball->advanceTo({{0, 0, -1}, {1, 0, 0, 0}});
    EXPECT_EQ(placeOf(makeFrame(scene, 0).items[0]), glm::vec3(0, 0, 0));
    EXPECT_EQ(placeOf(makeFrame(scene, 0.25).items[0]), glm::vec3(0, 0, -0.25));
    EXPECT_EQ(placeOf(makeFrame(scene, 1).items[0]), glm::vec3(0, 0, -1));
}

TEST(FrameTest, LaterChangesOfTheSceneDoNotReachIt) {
    Scene scene;
    const auto ball = add(scene, Sphere{}, {1, 0, 0});
    const Frame frame = makeFrame(scene, 1);
    ball->setPosition({5, 0, 0});
    ball->geometry->material.picture = "Other";
    EXPECT_EQ(placeOf(frame.items[0]), glm::vec3(1, 0, 0));
    EXPECT_TRUE(frame.items[0].material.picture.empty());
}

TEST(FrameTest, SpotLightLooksAtItsTarget) {
    Scene scene;
    const auto target = add(scene, Sphere{}, {0, 0, -6.25});
    auto lamp = std::make_shared<Node>();
    lamp->light = Light{.type = Light::Type::spot, .spotInnerAngle = 35, .spotOuterAngle = 65};
    lamp->lookAtTarget = target;
    scene.root->addChild(lamp);
    for (const Vec3& place : {Vec3(0, 12, -6.25), Vec3(3, 4, -6.25), Vec3(0, -2, -6.25)}) {
        lamp->setPosition(place);
        const Frame frame = makeFrame(scene, 1);
        ASSERT_TRUE(frame.spot);
        const glm::vec3 wanted = glm::normalize(glm::vec3(Vec3(0, 0, -6.25) - place));
        EXPECT_LT(glm::distance(frame.spot->direction, wanted), 1e-6F);
        EXPECT_FLOAT_EQ(frame.spot->outerHalfAngle, 65 * std::numbers::pi_v<float> / 180);
    }
}

TEST(FrameTest, LookAtWithoutATargetKeepsTheOrientation) {
    Scene scene;
    auto lamp = std::make_shared<Node>();
    lamp->light = Light{.type = Light::Type::spot};
    lamp->lookAtTarget = std::make_shared<Node>(); // gone at once
    scene.root->addChild(lamp);
    EXPECT_EQ(makeFrame(scene, 1).spot->direction, glm::vec3(0, 0, -1));
}

TEST(FrameTest, AmbientLightsAddUpInThousandths) {
    Scene scene;
    for (const double intensity : {150.0, 100.0}) {
        auto node = std::make_shared<Node>();
        node->light = Light{.intensity = intensity};
        scene.root->addChild(node);
    }
    EXPECT_FLOAT_EQ(makeFrame(scene, 1).ambient.g, 0.25F);
    EXPECT_FALSE(makeFrame(scene, 1).spot);
}

TEST(FrameTest, ViewIsThatOfTheFirstCamera) {
    Scene scene;
    auto node = std::make_shared<Node>();
    node->camera = Camera{};
    node->setPosition({0, 1.2, 1});
    node->setEulerAngles({-std::numbers::pi / 16, 0, 0});
    scene.root->addChild(node);
    const Frame frame = makeFrame(scene, 1);
    EXPECT_EQ(glm::vec3(frame.camera.world[3]), glm::vec3(0, 1.2F, 1));
    EXPECT_LT(-frame.camera.world[2][1], 0) << "it looks down";
    EXPECT_FLOAT_EQ(frame.camera.fieldOfView, std::numbers::pi_v<float> / 3);
}

} // namespace
} // namespace vorbel
