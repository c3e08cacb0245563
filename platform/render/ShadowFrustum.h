// What the spot light sees.
#pragma once

#include "platform/render/LightBounds.h"

namespace vorbel {

struct ShadowFrustum {
    glm::mat4 view{1};      // from the arena's frame to the light's, which looks along −z
    glm::vec2 middle{0};    // of the map: tangents of angles at the light
    glm::vec2 halfWidth{1}; // from there to the map's edges
    float zNear = 1;        // metres
    float zFar = 2;         // metres
    [[nodiscard]] glm::mat4 viewProjection() const;
    bool operator==(const ShadowFrustum&) const = default;
};

[[nodiscard]] glm::mat4 lightView(const SpotLight& spot);

// As wide as all that is lit and seen, but not wider than the cone of light; as deep as the casters need. In
// whole steps, so that a moving ball seldom changes it.
[[nodiscard]] ShadowFrustum shadowFrustum(const SpotLight& spot, const LightBounds& bounds);

// The radius over which shadows are softened, as a tangent at the light: of the samples and of their filtering.
[[nodiscard]] float blurOf(const SpotLight& spot, const ShadowFrustum& frustum);

// Something and its shadow, which ends on the floor (its plane as in DrawList), and when there is none, at the
// end of the frustum. `blur` is the radius over which shadows are
// softened, a tangent at the light.
[[nodiscard]] Extent shadowExtent(const Extent& caster, const SpotLight& spot, const ShadowFrustum& frustum,
                                  float blur, const std::optional<glm::vec4>& floor);

} // namespace vorbel
