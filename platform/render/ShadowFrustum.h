// What the spot light sees.
#pragma once

#include "platform/render/Extent.h"

namespace vorbel {

struct ShadowFrustum {
    glm::mat4 view{1};   // from the arena's frame to the light's, which looks along −z
    float halfWidth = 1; // tangent of the half angle of the square view
    float zNear = 1;     // metres
    float zFar = 2;      // metres
    [[nodiscard]] glm::mat4 viewProjection() const;
    bool operator==(const ShadowFrustum&) const = default;
};

// Whether the item stops light: opaque ones do, the floor has nothing below it.
[[nodiscard]] bool castsShadow(const DrawItem& item);

// As wide as the cone of light, and as deep as the casters need, in whole metres so that a ball in flight
// does not change it.
[[nodiscard]] ShadowFrustum shadowFrustum(const SpotLight& spot, const std::vector<DrawItem>& items);

// Where the shadow of something ends: on the floor (its plane as in DrawList), and when there is none, at the
// end of the frustum. The shadow is between there and the thing. `blur` is the radius over which shadows are
// softened, a tangent at the light.
[[nodiscard]] Extent shadowExtent(const Extent& caster, const SpotLight& spot, const ShadowFrustum& frustum,
                                  float blur, const std::optional<glm::vec4>& floor);

} // namespace vorbel
