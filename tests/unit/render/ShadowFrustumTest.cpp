// What the shadow map covers.
#include "platform/render/ShadowFrustum.h"

#include <cmath>

#include <glm/gtc/matrix_transform.hpp>
#include <gmock/gmock.h>

namespace vorbel {
namespace {

DrawItem ballAt(const glm::vec3& place) {
    return {nullptr, Sphere{1}, {}, glm::scale(glm::translate(glm::mat4(1), place), glm::vec3(0.05F)), 1};
}

DrawItem boxAt(const glm::vec3& place, const glm::vec3& size) {
    return {nullptr, Box{1, 1, 1}, {}, glm::scale(glm::translate(glm::mat4(1), place), size), 1};
}

SpotLight courtLight() {
    SpotLight spot;
    spot.position = {0, 12, -6.25F};
    spot.outerHalfAngle = glm::radians(65.0F);
    spot.castsShadow = true;
    return spot;
}

// Level, 1.2 m above the ground, looking along −z; 90 degrees across.
Perspective camera() {
    return {glm::translate(glm::mat4(1), {0, -1.2F, 0}), {1, 1}, 600, 400, 0.1F};
}

ShadowFrustum frustumFor(const std::vector<DrawItem>& items) {
    LightBounds all;
    for (const DrawItem& item : items) {
        all.add(lightBounds(item, lightView(courtLight()), camera()));
    }
    return shadowFrustum(courtLight(), all);
}

// Where the point is in the map: from −1 to 1 along each axis when it is inside.
glm::vec3 placeIn(const ShadowFrustum& frustum, const glm::vec3& point) {
    const glm::vec4 clip = frustum.viewProjection() * glm::vec4(point, 1);
    return glm::vec3(clip) / clip.w;
}

TEST(ShadowFrustumTest, EndsWithTheConeOfLight) {
    const ShadowFrustum frustum = frustumFor({boxAt({0, -0.05F, 0}, {400, 0.1F, 400})});
    const float edge = 12 * std::tan(glm::radians(65.0F));
    EXPECT_NEAR(std::abs(placeIn(frustum, {edge, 0, -6.25F}).x), 1, 1e-4);
}

TEST(ShadowFrustumTest, EndsWithWhatIsLitAndSeen) {
    const glm::vec3 left{-2, 0.05F, -9};
    const glm::vec3 right{1, 0.05F, -4};
    const ShadowFrustum frustum = frustumFor({ballAt(left), ballAt(right)});
    EXPECT_LT(placeIn(frustum, left - glm::vec3(0.05F, 0, 0)).x, -0.8F);
    EXPECT_GT(placeIn(frustum, left - glm::vec3(0.05F, 0, 0)).x, -1);
    EXPECT_GT(placeIn(frustum, right + glm::vec3(0.05F, 0, 0)).x, 0.8F);
    EXPECT_LT(placeIn(frustum, right + glm::vec3(0.05F, 0, 0)).x, 1);
    EXPECT_GT(std::abs(placeIn(frustum, left).y), 0.8F);
    EXPECT_GT(std::abs(placeIn(frustum, right).y), 0.8F);
}

TEST(ShadowFrustumTest, LeavesOutWhatIsBesideAndBehindTheCamera) {
    const DrawItem court = boxAt({0, -0.05F, -5}, {6, 0.1F, 30});
    const ShadowFrustum frustum = frustumFor({court});
    EXPECT_GT(std::abs(placeIn(frustum, {0, 0, -1.1F}).y), 1) << "below the picture";
    EXPECT_LT(std::abs(placeIn(frustum, {0, 0, -1.3F}).y), 1);
    EXPECT_LT(std::abs(placeIn(frustum, {3, 0, -19.9F}).y), 1);
    const ShadowFrustum withMore = frustumFor({court, ballAt({0, 0.05F, 4}), ballAt({-20, 0.05F, -6})});
    EXPECT_EQ(withMore.middle, frustum.middle);
    EXPECT_EQ(withMore.halfWidth, frustum.halfWidth);
}

TEST(ShadowFrustumTest, LeavesOutSidesThatTurnAway) {
    const DrawItem step = boxAt({5, 1, -8}, {2, 2, 40}); // its top is higher than the eye
    const ShadowFrustum frustum = frustumFor({step});
    EXPECT_LT(placeIn(frustum, {4, 2, -8}).x, 1.0F);
    EXPECT_GT(placeIn(frustum, {6, 2, -8}).x, 1.1F);
}

TEST(ShadowFrustumTest, LeavesOutWhatIsNotLit) {
    DrawItem lamp = ballAt({-5, 0.05F, -9});
    lamp.material.unlit = true;
    EXPECT_EQ(frustumFor({ballAt({0, 0.05F, -6}), lamp}), frustumFor({ballAt({0, 0.05F, -6})}));
}

TEST(ShadowFrustumTest, IsDeepEnoughForAllCasters) {
    const ShadowFrustum frustum = frustumFor({ballAt({0, 0.035F, -6}), ballAt({2, 3.2F, -9})});
    EXPECT_LT(std::abs(placeIn(frustum, {0, -0.015F, -6}).z), 1);
    EXPECT_LT(std::abs(placeIn(frustum, {2, 3.25F, -9}).z), 1);
}

TEST(ShadowFrustumTest, StaysTheSameWhileABallRolls) {
    const DrawItem court = boxAt({0, -0.05F, -6.25F}, {6, 0.1F, 12.5F});
    EXPECT_EQ(frustumFor({court, ballAt({0, 0.035F, -6})}), frustumFor({court, ballAt({2, 0.035F, -3})}));
}

TEST(ShadowFrustumTest, FloorsAndSeeThroughItemsCastNoShadow) {
    DrawItem tint = ballAt({});
    tint.material.diffuse.alpha = 0.25F;
    EXPECT_FALSE(castsShadow(tint));
    DrawItem faded = ballAt({});
    faded.opacity = 0.5F;
    EXPECT_FALSE(castsShadow(faded));
    EXPECT_FALSE(castsShadow({nullptr, Floor{}, {}, glm::mat4(1), 1}));
    EXPECT_TRUE(castsShadow(ballAt({})));
}

TEST(ShadowFrustumTest, ShadowReachesTheFloorAwayFromTheLight) {
    const Extent ball = extentOf(ballAt({3, 1, -6.25F}));
    const SpotLight spot = courtLight();
    const Extent shadow =
        shadowExtent(ball, spot, frustumFor({ballAt({3, 1, -6.25F})}), 0, glm::vec4(0, 1, 0, 0.05F));
    glm::vec3 low(1e9F);
    glm::vec3 high(-1e9F);
    for (const glm::vec3& corner : shadow.corners()) {
        low = glm::min(low, corner);
        high = glm::max(high, corner);
    }
    const float middle = 3 * 12.05F / 11;
    EXPECT_NEAR(low.y, -0.05F, 1e-4F);
    EXPECT_LT(low.x, middle - 0.05F);
    EXPECT_GT(high.x, middle + 0.05F);
    EXPECT_LT(high.x, middle + 0.1F);
}

} // namespace
} // namespace vorbel
