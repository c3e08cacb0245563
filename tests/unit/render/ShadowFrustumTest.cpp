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

SpotLight courtLight() {
    SpotLight spot;
    spot.position = {0, 12, -6.25F};
    spot.outerHalfAngle = glm::radians(32.5F);
    spot.castsShadow = true;
    return spot;
}

TEST(ShadowFrustum, IsAsWideAsTheConeOfLight) {
    const ShadowFrustum frustum = shadowFrustum(courtLight(), {ballAt({0, 0.035F, -6})});
    const float edge = 12 * std::tan(glm::radians(32.5F));
    const glm::vec4 clip = frustum.viewProjection() * glm::vec4(edge, 0, -6.25F, 1);
    EXPECT_NEAR(std::abs(clip.x / clip.w), 1, 1e-4);
}

TEST(ShadowFrustum, HoldsAllCasters) {
    const std::vector<DrawItem> items = {ballAt({0, 0.035F, -6}), ballAt({2, 3.2F, -9})};
    const ShadowFrustum frustum = shadowFrustum(courtLight(), items);
    for (const DrawItem& item : items) {
        const glm::vec4 clip = frustum.viewProjection() * item.world[3];
        EXPECT_LT(std::abs(clip.z), clip.w);
    }
}

TEST(ShadowFrustum, StaysTheSameWhileABallRolls) {
    const DrawItem court = {nullptr, Box{1, 1, 1}, {}, glm::scale(glm::mat4(1), {6, 0.1F, 12.5F}), 1};
    EXPECT_EQ(shadowFrustum(courtLight(), {court, ballAt({0, 0.035F, -6})}),
              shadowFrustum(courtLight(), {court, ballAt({2, 0.035F, -3})}));
}

TEST(ShadowFrustum, FloorsAndSeeThroughItemsCastNoShadow) {
    DrawItem tint = ballAt({});
    tint.material.diffuse.alpha = 0.25F;
    EXPECT_FALSE(castsShadow(tint));
    DrawItem faded = ballAt({});
    faded.opacity = 0.5F;
    EXPECT_FALSE(castsShadow(faded));
    EXPECT_FALSE(castsShadow({nullptr, Floor{}, {}, glm::mat4(1), 1}));
    EXPECT_TRUE(castsShadow(ballAt({})));
}

TEST(ShadowFrustum, ShadowReachesTheFloorAwayFromTheLight) {
    const Extent ball = extentOf(ballAt({3, 1, -6.25F}));
    const SpotLight spot = courtLight();
    const Extent shadow = shadowExtent(ball, spot, shadowFrustum(spot, std::vector{ballAt({3, 1, -6.25F})}),
                                       0, glm::vec4(0, 1, 0, 0.05F));
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
