#include "platform/render/Uniforms.h"

#include "platform/render/ColorSpace.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <glm/gtc/matrix_transform.hpp>
#include <glm/matrix.hpp>

namespace vorbel {

namespace {

// Evenly spread over the unit disc: a sunflower's spiral.
glm::vec2 discSample(int index, int count) {
    const double goldenAngle = std::numbers::pi * (3 - std::sqrt(5.0));
    const double radius = std::sqrt((index + 0.5) / count);
    return {radius * std::cos(index * goldenAngle), radius * std::sin(index * goldenAngle)};
}

glm::mat4 reflection(const glm::vec4& plane) {
    const glm::vec3 normal(plane);
    glm::mat4 matrix(1);
    for (int column = 0; column < 3; ++column) {
        matrix[column] -= glm::vec4(2.0F * normal * normal[column], 0);
    }
    matrix[3] -= glm::vec4(2.0F * plane.w * normal, 0);
    return matrix;
}

glm::mat4 projection(const Viewpoint& camera, float aspectRatio) {
    return glm::perspective(camera.fieldOfView, aspectRatio, camera.zNear, camera.zFar);
}

// The projection with the plane (in the camera's frame, positive on the side that is kept) in place of its
// near plane; Lengyel, "Oblique View Frustum Depth Projection and Clipping", 2005.
glm::mat4 clippedAt(glm::mat4 matrix, const glm::vec4& plane) {
    const glm::vec4 farCorner((glm::sign(plane.x) + matrix[2][0]) / matrix[0][0],
                              (glm::sign(plane.y) + matrix[2][1]) / matrix[1][1], -1,
                              (1 + matrix[2][2]) / matrix[3][2]);
    const glm::vec4 scaled = plane * (2 / glm::dot(plane, farCorner));
    for (int column = 0; column < 4; ++column) {
        matrix[column][2] = scaled[column] - matrix[column][3];
    }
    return matrix;
}

} // namespace

ViewUniforms sceneView(const Frame& frame, const DrawList& list, float aspectRatio) {
    const Viewpoint& camera = frame.camera;
    ViewUniforms view;
    view.viewProjection = projection(camera, aspectRatio) * glm::inverse(camera.world);
    view.background = glm::vec4(linearLight(frame.background), list.floor ? list.floor->reflectivity : 0);
    view.eye = glm::vec4(glm::vec3(camera.world[3]), camera.zFar);
    return view;
}

ViewUniforms mirroredView(const Frame& frame, const DrawList& list, float aspectRatio) {
    const glm::vec4& plane = list.floor->plane;
    const glm::mat4 toCamera = glm::inverse(frame.camera.world) * reflection(plane);
    const glm::vec4 planeInCamera = glm::transpose(glm::inverse(toCamera)) * plane;
    ViewUniforms view = sceneView(frame, list, aspectRatio);
    view.viewProjection = clippedAt(projection(frame.camera, aspectRatio), planeInCamera) * toCamera;
    return view;
}

LightUniforms lightUniforms(const Frame& frame, const ShadowFrustum& frustum) {
    LightUniforms lights;
    lights.ambient = glm::vec4(frame.ambient, 0);
    if (!frame.spot) {
        return lights;
    }
    const SpotLight& spot = *frame.spot;
    lights.lightView = frustum.view;
    lights.position = glm::vec4(spot.position, 1);
    lights.direction = glm::vec4(spot.direction, 0);
    lights.strength = glm::vec4(spot.strength, 0);
    const glm::vec2 width = 2.0F * frustum.halfWidth;
    lights.cone = {std::cos(spot.innerHalfAngle), std::cos(spot.outerHalfAngle),
                   width / static_cast<float>(spot.shadowMapSize)};
    lights.shadowPlace = {1.0F / width, 0.5F - frustum.middle / width};
    const float inverseNear = 1 / frustum.zNear;
    lights.shadowDepth = {inverseNear, 1 / (inverseNear - 1 / frustum.zFar), spot.shadowBias,
                          spot.castsShadow ? blurOf(spot, frustum) : 0};
    const int count = std::clamp(spot.shadowSampleCount, 1, shadowSamples);
    for (int i = 0; i < shadowSamples; ++i) {
        const glm::vec2 offset =
            discSample(i % count, count) * spot.shadowRadius / static_cast<float>(spot.shadowMapSize);
        lights.shadowOffset[i] = glm::vec4(offset, offset * width);
    }
    return lights;
}

} // namespace vorbel
