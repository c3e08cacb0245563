#include "platform/render/ShadowFrustum.h"

#include <algorithm>
#include <cmath>

#include <glm/gtc/matrix_transform.hpp>

namespace vorbel {

namespace {

constexpr float nearest = 0.5F;         // metres: casters closer to the light than this are cut off
constexpr float widestHalfAngle = 1.3F; // radians: one flat map cannot hold half the space
constexpr float step = 1.0F / 64;       // of the tangents: a hand's width on the court

} // namespace

glm::mat4 ShadowFrustum::viewProjection() const {
    const glm::vec2 low = (middle - halfWidth) * zNear;
    const glm::vec2 high = (middle + halfWidth) * zNear;
    return glm::frustum(low.x, high.x, low.y, high.y, zNear, zFar) * view;
}

glm::mat4 lightView(const SpotLight& spot) {
    const glm::vec3 up = std::abs(spot.direction.y) > 0.999F ? glm::vec3(0, 0, -1) : glm::vec3(0, 1, 0);
    return glm::lookAt(spot.position, spot.position + spot.direction, up);
}

float blurOf(const SpotLight& spot, const ShadowFrustum& frustum) {
    const float texel =
        2 * std::max(frustum.halfWidth.x, frustum.halfWidth.y) / static_cast<float>(spot.shadowMapSize);
    return (spot.shadowRadius + 1) * texel;
}

ShadowFrustum shadowFrustum(const SpotLight& spot, const LightBounds& bounds) {
    ShadowFrustum frustum;
    frustum.view = lightView(spot);
    const glm::vec2 widest(std::tan(std::min(spot.outerHalfAngle, widestHalfAngle)));
    const glm::vec2 low = glm::max(glm::floor(bounds.low / step) * step, -widest);
    const glm::vec2 high = glm::min(glm::ceil(bounds.high / step) * step, widest);
    if (bounds.empty() || low.x >= high.x || low.y >= high.y) {
        frustum.halfWidth = widest;
    } else {
        frustum.middle = (low + high) / 2.0F;
        frustum.halfWidth = (high - low) / 2.0F;
    }
    frustum.zNear = std::max(std::floor(bounds.nearest), nearest);
    frustum.zFar = std::max(std::ceil(bounds.farthest), frustum.zNear + 1);
    return frustum;
}

namespace {

// How much farther than the point its shadow falls, as a factor on the distance from the light.
float reach(const glm::vec3& point, const SpotLight& spot, const ShadowFrustum& frustum,
            const std::optional<glm::vec4>& floor) {
    const float depth = std::max(glm::dot(point - spot.position, spot.direction), nearest);
    const float end = std::max(frustum.zFar / depth, 1.0F);
    if (!floor) {
        return end;
    }
    const float lightHeight = glm::dot(glm::vec3(*floor), spot.position) + floor->w;
    const float fall = -glm::dot(glm::vec3(*floor), point - spot.position);
    constexpr float shallow = 0.05F; // metres of fall: such a shadow goes on to the horizon
    return lightHeight > 0 && fall > shallow ? std::max(lightHeight / fall, 1.0F) : end;
}

// Without margin: of something round, the box around it.
Extent hull(const Extent& extent) {
    if (extent.margin == 0) {
        return extent;
    }
    Extent box;
    for (const float x : {-extent.margin, extent.margin}) {
        for (const float y : {-extent.margin, extent.margin}) {
            for (const float z : {-extent.margin, extent.margin}) {
                box.add(extent.points[0] + glm::vec3(x, y, z)); // only what is round has a margin
            }
        }
    }
    return box;
}

} // namespace

Extent shadowExtent(const Extent& caster, const SpotLight& spot, const ShadowFrustum& frustum, float blur,
                    const std::optional<glm::vec4>& floor) {
    Extent extent = floor ? hull(caster) : caster;
    for (const glm::vec3& corner : caster.corners()) {
        const float factor = reach(corner, spot, frustum, floor);
        const glm::vec3 path = (corner - spot.position) * factor;
        const float length = glm::length(path);
        const glm::vec3 end = spot.position + path;
        const float radius = caster.margin * factor + blur * length;
        if (!floor) {
            extent.margin = std::max(extent.margin, radius);
            extent.add(end);
            continue;
        }
        // On a slanting floor the round shadow of a round margin is longer than wide.
        const glm::vec3 normal(*floor);
        const float slant = std::max(std::abs(glm::dot(normal, path)) / length, 0.1F);
        const glm::vec3 along = glm::normalize(glm::cross(normal, glm::vec3(normal.z, normal.x, normal.y)));
        const glm::vec3 across = glm::cross(normal, along);
        for (const glm::vec2 side : {glm::vec2(-1, -1), {1, -1}, {-1, 1}, {1, 1}}) {
            extent.add(end + radius / slant * (side.x * along + side.y * across));
        }
    }
    return extent;
}

} // namespace vorbel
