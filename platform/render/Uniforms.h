// The uniform blocks of the shaders, laid out as std140 wants them.
#pragma once

#include "platform/render/DrawList.h"
#include "platform/render/ShadowFrustum.h"

namespace vorbel {

// The shaders always take as many; a light that wants fewer has its samples repeated, so that a divisor of
// this number is exact.
inline constexpr int shadowSamples = 16;

struct ViewUniforms {
    glm::mat4 viewProjection{1};
    glm::vec4 background{0, 0, 0, 0}; // linear light; w: reflectivity of the floor
    glm::vec4 eye{0, 0, 0, 1};        // position; w: far plane, metres
};

struct LightUniforms {
    glm::mat4 lightView{1};
    glm::vec4 ambient{0};
    glm::vec4 position{0};
    glm::vec4 direction{0, -1, 0, 0};
    glm::vec4 strength{0};
    glm::vec4 cone{0};
    glm::vec4 shadowPlace{0};
    glm::vec4 shadowDepth{0};
    glm::vec4 shadowOffset[shadowSamples]{};
};

[[nodiscard]] ViewUniforms sceneView(const Frame& frame, const DrawList& list, float aspectRatio);

// The same view of the scene turned upside down below the floor, which there must be. What lies below the
// floor is cut off.
[[nodiscard]] ViewUniforms mirroredView(const Frame& frame, const DrawList& list, float aspectRatio);

[[nodiscard]] LightUniforms lightUniforms(const Frame& frame, const ShadowFrustum& frustum);

} // namespace vorbel
