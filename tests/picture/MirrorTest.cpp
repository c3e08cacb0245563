// The floor of the arena and what it mirrors.
#include "tests/picture/PictureTest.h"

#include "platform/render/ColorSpace.h"

namespace vorbel {
namespace {

class MirrorTest : public PictureTest {
protected:
    MirrorTest() { floor = add(Floor{0.05}, {.diffuse = colors::black}); }

    static Material glowing() { return {.diffuse = colors::black, .emission = colors::white}; }

    Node::Ptr floor;
};

TEST_F(MirrorTest, BallIsFaintlySeenInTheFloor) {
    add(Sphere{0.4}, glowing(), {0, 0.8, 0});
    // The image of the ball is as far below the floor as the ball is above it.
    EXPECT_NEAR(lightAt(draw(), {0, -0.8, 0}), 0.05, 0.004);
}

TEST_F(MirrorTest, BallWithSeamsIsFaintlySeenInTheFloor) {
    Material material = glowing();
    material.seams = true;
    add(Sphere{0.4}, material, {0, 0.8, 0});
    const QImage image = draw();
    EXPECT_NEAR(lightAt(image, {0, -0.8, 0}), 0.05, 0.012);
    EXPECT_LT(lightAt(image, {0, -1.4, 0}), 0.001);
}

TEST_F(MirrorTest, FloorWithoutReflectivityMirrorsNothing) {
    floor->geometry->shape = Floor{0};
    add(Sphere{0.4}, glowing(), {0, 0.8, 0});
    EXPECT_LT(lightAt(draw(), {0, -0.8, 0}), 0.001);
}

TEST_F(MirrorTest, WhatLiesBelowTheFloorIsNeitherSeenNorMirrored) {
    add(Sphere{0.4}, glowing(), {0, -0.8, 0});
    const QImage image = draw();
    EXPECT_LT(lightAt(image, {0, -0.8, 0}), 0.001);
    EXPECT_LT(lightAt(image, {0, 0.8, 0}), 0.001);
}

TEST_F(MirrorTest, FrontHidesBackInTheMirrorToo) {
    add(Box{2, 2, 0.1}, {.diffuse = colors::black}, {0, 1, 0});
    add(Sphere{0.4}, glowing(), {0, 0.8, -0.6});
    EXPECT_LT(lightAt(draw(), {0, -0.8, -0.6}), 0.001);
}

TEST_F(MirrorTest, ThingsStandInFrontOfTheFloorAndItsImages) {
    add(Sphere{0.4}, glowing(), {0, 0.8, 0});
    add(Box{1, 1, 1}, {.emission = {0.5F, 0.5F, 0.5F}}, {0, 0, 1.5});
    EXPECT_NEAR(encodedAt(draw(), {0, 0.2, 2}), 0.5, colorStep);
}

TEST_F(MirrorTest, FloorIsLitAndShadedLikeOtherSurfaces) {
    addLights();
    floor->geometry->shape = Floor{0};
    floor->geometry->material.diffuse = {0.5F, 0.5F, 0.5F};
    add(Sphere{0.3}, {.diffuse = colors::black}, {0, 1.2, 0});
    const auto grey = static_cast<double>(linearLight(0.5F));
    const QImage image = draw();
    EXPECT_NEAR(lightAt(image, {0, 0, 0}), grey * 0.15, 0.01);
    EXPECT_GT(lightAt(image, {1, 0, 0}), grey * 1.5);
}

TEST_F(MirrorTest, FloorFadesIntoTheBackgroundBeforeItEnds) {
    scene.background = {0.05F, 0.05F, 0.08F};
    floor->geometry->material = {.emission = colors::white};
    scene.root->children().front()->setEulerAngles({0, 0, 0});
    const QImage image = draw();
    EXPECT_GT(encodedAt(image, {0, 0, 0}), 0.9);
    EXPECT_NEAR(encodedAt(image, {0, 0, -55}), 0.05, 2 * colorStep);
}

} // namespace
} // namespace vorbel
