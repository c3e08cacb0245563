#include "platform/render/Extent.h"

#include <cmath>

#include <glm/common.hpp>
#include <glm/geometric.hpp>
#include <glm/matrix.hpp>

namespace vorbel {

namespace {

// Half the edges of the box around a shape's origin that holds it.
struct HalfExtent {
    glm::dvec3 operator()(const Box& box) const { return {box.width / 2, box.height / 2, box.length / 2}; }
    glm::dvec3 operator()(const Plane& plane) const { return {plane.width / 2, plane.height / 2, 0}; }
    glm::dvec3 operator()(const Sphere& sphere) const { return glm::dvec3(sphere.radius); }
    glm::dvec3 operator()(const Capsule& capsule) const {
        return {capsule.capRadius, std::max(capsule.height / 2, capsule.capRadius), capsule.capRadius};
    }
    glm::dvec3 operator()(const Cylinder& cylinder) const {
        return {cylinder.radius, cylinder.height / 2, cylinder.radius};
    }
    glm::dvec3 operator()(const Floor&) const { return {0, 0, 0}; }
    glm::dvec3 operator()(const Extrusion& extrusion) const {
        glm::dvec3 half(0, 0, extrusion.depth / 2);
        for (const glm::dvec2& point : extrusion.outline) {
            half.x = std::max(half.x, std::abs(point.x));
            half.y = std::max(half.y, std::abs(point.y));
        }
        return half;
    }
};

// Grows around the picture, one unit to each side of the middle, of what is seen.
class ViewBounds {
public:
    explicit ViewBounds(float margin) : margin_(margin) {}

    // A point in the eye's frame, which is farther than the margin in front of the eye.
    void add(const glm::vec3& point) {
        for (const float depth : {-point.z - margin_, -point.z + margin_}) {
            low_ = glm::min(low_, (glm::vec2(point) - margin_) / depth);
            high_ = glm::max(high_, (glm::vec2(point) + margin_) / depth);
        }
    }

    [[nodiscard]] PixelRect pixels(const Perspective& view) const {
        const glm::vec2 size(view.width, view.height);
        const glm::vec2 low =
            glm::clamp(((low_ - view.middle) / view.halfWidth + 1.0F) / 2.0F * size, glm::vec2(0), size);
        const glm::vec2 high =
            glm::clamp(((high_ - view.middle) / view.halfWidth + 1.0F) / 2.0F * size, glm::vec2(0), size);
        return {static_cast<int>(std::floor(low.x)), static_cast<int>(std::floor(low.y)),
                static_cast<int>(std::ceil(high.x)), static_cast<int>(std::ceil(high.y))};
    }

private:
    float margin_;
    glm::vec2 low_{1e9F};
    glm::vec2 high_{-1e9F};
};

} // namespace

Extent extentOf(const DrawItem& item) {
    Extent extent;
    if (const auto* sphere = std::get_if<Sphere>(&item.shape)) {
        float scale = 0;
        for (int axis = 0; axis < 3; ++axis) {
            scale = std::max(scale, glm::length(glm::vec3(item.world[axis])));
        }
        extent.margin = static_cast<float>(sphere->radius) * scale;
        extent.add(glm::vec3(item.world[3]));
        return extent;
    }
    const glm::vec3 half(std::visit(HalfExtent{}, item.shape));
    const std::size_t corners = half == glm::vec3(0) ? 1 : 8;
    for (std::size_t i = 0; i < corners; ++i) {
        const glm::vec3 corner((i & 1U) != 0 ? half.x : -half.x, (i & 2U) != 0 ? half.y : -half.y,
                               (i & 4U) != 0 ? half.z : -half.z);
        extent.add(glm::vec3(item.world * glm::vec4(corner, 1)));
    }
    return extent;
}

Extent mirrored(Extent extent, const glm::vec4& plane) {
    const glm::vec3 normal(plane);
    for (std::size_t i = 0; i < extent.count; ++i) {
        extent.points[i] -= 2 * (glm::dot(normal, extent.points[i]) + plane.w) * normal;
    }
    return extent;
}

PixelRect Perspective::bounds(const Extent& extent) const {
    std::array<glm::vec3, Extent::mostPoints> seen{};
    std::array<glm::vec3, Extent::mostPoints> hidden{};
    std::size_t seenCount = 0;
    std::size_t hiddenCount = 0;
    const float closest = -(zNear + extent.margin);
    for (const glm::vec3& corner : extent.corners()) {
        const glm::vec3 point(toView * glm::vec4(corner, 1));
        (point.z < closest ? seen[seenCount++] : hidden[hiddenCount++]) = point;
    }
    ViewBounds bounds(extent.margin);
    for (std::size_t i = 0; i < seenCount; ++i) {
        bounds.add(seen[i]);
        for (std::size_t k = 0; k < hiddenCount; ++k) { // where the edge between them comes into view
            const float share = (closest - seen[i].z) / (hidden[k].z - seen[i].z);
            bounds.add(glm::mix(seen[i], hidden[k], std::min(share, 1.0F)));
        }
    }
    if (seenCount == 0) {
        // A margin may still reach into view; a hull without one cannot.
        return extent.margin > 0 && !extent.corners().empty() && -hidden[0].z + extent.margin > zNear
                   ? PixelRect{0, 0, width, height}
                   : PixelRect{};
    }
    return bounds.pixels(*this);
}

Perspective perspective(const Viewpoint& camera, int width, int height) {
    const float tangent = std::tan(camera.fieldOfView / 2);
    const float aspectRatio = static_cast<float>(width) / static_cast<float>(height);
    return {glm::inverse(camera.world), {tangent * aspectRatio, tangent}, width, height, camera.zNear};
}

} // namespace vorbel
