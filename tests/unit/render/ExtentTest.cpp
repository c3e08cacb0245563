// What part of a picture things cover.
#include "platform/render/Extent.h"

#include <glm/gtc/matrix_transform.hpp>
#include <gmock/gmock.h>

namespace vorbel {
namespace {

Perspective view() {
    return perspective({glm::mat4(1), glm::radians(60.0F), 0.1F, 60}, 600, 400);
}

DrawItem box(const glm::vec3& place, const glm::vec3& size) {
    return {nullptr, Box{1, 1, 1}, {}, glm::scale(glm::translate(glm::mat4(1), place), size), 1};
}

DrawItem ball(const glm::vec3& place, float radius) {
    return {nullptr, Sphere{1}, {}, glm::scale(glm::translate(glm::mat4(1), place), glm::vec3(radius)), 1};
}

TEST(ExtentTest, BallInTheMiddleIsInTheMiddle) {
    const PixelRect bounds = view().bounds(extentOf(ball({0, 0, -5}, 0.5F)));
    const int radius = static_cast<int>(0.5 / 4.5 / std::tan(glm::radians(30.0)) * 200) + 1;
    EXPECT_EQ(bounds, (PixelRect{300 - radius, 200 - radius, 300 + radius, 200 + radius}));
}

TEST(ExtentTest, BoundsAreInsideThePicture) {
    EXPECT_EQ(view().bounds(extentOf(box({0, 0, -5}, {90, 90, 1}))), (PixelRect{0, 0, 600, 400}));
    EXPECT_TRUE(view().bounds(extentOf(ball({40, 0, -5}, 0.5F))).empty());
}

TEST(ExtentTest, WhatIsBehindTheCameraIsNotSeen) {
    EXPECT_TRUE(view().bounds(extentOf(box({0, 0, 5}, {1, 1, 1}))).empty());
    EXPECT_TRUE(view().bounds(extentOf(ball({0, 0, 5}, 0.5F))).empty());
}

TEST(ExtentTest, BoxThroughTheCameraPlaneIsCutThere) {
    // A floor board below the camera: from behind it to 5 m ahead, so it comes into view at the lower edge.
    const PixelRect bounds = view().bounds(extentOf(box({0, -1, 0}, {0.1F, 0.1F, 10})));
    EXPECT_EQ(bounds.bottom, 0);
    EXPECT_GT(bounds.top, 100);
    EXPECT_LT(bounds.top, 200);
}

TEST(ExtentTest, BallAroundTheCameraFillsThePicture) {
    EXPECT_EQ(view().bounds(extentOf(ball({0, 0, 0}, 1))), (PixelRect{0, 0, 600, 400}));
}

TEST(ExtentTest, ImageInAPlaneIsAsFarBelowIt) {
    const Extent image = mirrored(extentOf(ball({1, 2, 3}, 0.5F)), {0, 1, 0, 0.05F});
    EXPECT_FLOAT_EQ(image.points[0].y, -2.1F);
    EXPECT_FLOAT_EQ(image.points[0].x, 1);
    EXPECT_FLOAT_EQ(image.margin, 0.5F);
}

} // namespace
} // namespace vorbel
