#include "platform/render/LightBounds.h"

#include <array>

#include <glm/common.hpp>
#include <glm/geometric.hpp>
#include <glm/matrix.hpp>

namespace vorbel {

namespace {

// Corners of the faces of a box whose corners are numbered as in Extent, counter-clockwise from outside.
constexpr std::array<std::array<std::size_t, 4>, 6> boxFaces = {
    {{0, 4, 6, 2}, {1, 3, 7, 5}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 2, 3, 1}, {4, 5, 7, 6}}};

// A convex polygon; each of five planes adds one corner at most.
struct Polygon {
    std::array<glm::vec3, 9> points{};
    std::size_t count = 0;
    void add(const glm::vec3& point) { points[count++] = point; }
};

// The part on the side that the normal points to; the plane goes through the origin moved by `offset`.
Polygon clipped(const Polygon& polygon, const glm::vec3& normal, float offset) {
    Polygon part;
    for (std::size_t i = 0; i < polygon.count; ++i) {
        const glm::vec3& from = polygon.points[i];
        const glm::vec3& to = polygon.points[(i + 1) % polygon.count];
        const float before = glm::dot(normal, from) - offset;
        const float after = glm::dot(normal, to) - offset;
        if (before >= 0) {
            part.add(from);
        }
        if ((before > 0 && after < 0) || (before < 0 && after > 0)) {
            part.add(glm::mix(from, to, before / (before - after)));
        }
    }
    return part;
}

// In the camera's frame.
Polygon seenPart(Polygon polygon, const Perspective& camera) {
    polygon = clipped(polygon, {0, 0, -1}, camera.zNear);
    for (const float side : {-1.0F, 1.0F}) {
        polygon = clipped(polygon, {side, 0, -camera.halfWidth.x}, 0);
        polygon = clipped(polygon, {0, side, -camera.halfWidth.y}, 0);
    }
    return polygon;
}

// Whether the side of it that is seen can be lit: of bodies only the outside.
bool facesCamera(const Polygon& polygon) {
    const glm::vec3& corner = polygon.points[0];
    return glm::dot(glm::cross(polygon.points[1] - corner, polygon.points[3] - corner), corner) < 0;
}

class LitPart {
public:
    LitPart(const glm::mat4& toLight, const Perspective& camera, LightBounds& bounds)
        : toLight_(toLight), toArena_(glm::inverse(camera.toView)), camera_(camera), bounds_(bounds) {}

    void addBox(const Extent& box, bool isClosed) {
        for (const auto& face : boxFaces) {
            Polygon polygon;
            for (const std::size_t corner : face) {
                polygon.add(glm::vec3(camera_.toView * glm::vec4(box.points[corner], 1)));
            }
            if (isClosed && !facesCamera(polygon)) {
                continue;
            }
            const Polygon part = seenPart(polygon, camera_);
            for (std::size_t i = 0; i < part.count; ++i) {
                add(glm::vec3(toArena_ * glm::vec4(part.points[i], 1)), 0);
            }
        }
    }

    void add(const glm::vec3& point, float margin) {
        constexpr float closest = 0.5F; // metres: nearer to the light nothing is expected
        const glm::vec3 seen(toLight_ * glm::vec4(point, 1));
        const float depth = std::max(-seen.z - margin, closest);
        bounds_.low = glm::min(bounds_.low, (glm::vec2(seen) - margin) / depth);
        bounds_.high = glm::max(bounds_.high, (glm::vec2(seen) + margin) / depth);
    }

private:
    const glm::mat4& toLight_;
    glm::mat4 toArena_;
    const Perspective& camera_;
    LightBounds& bounds_;
};

void addDepths(const Extent& extent, const glm::mat4& toLight, LightBounds& bounds) {
    for (const glm::vec3& corner : extent.corners()) {
        const float depth = -(toLight * glm::vec4(corner, 1)).z;
        bounds.nearest = std::min(bounds.nearest, depth - extent.margin);
        bounds.farthest = std::max(bounds.farthest, depth + extent.margin);
    }
}

} // namespace

void LightBounds::add(const LightBounds& other) {
    low = glm::min(low, other.low);
    high = glm::max(high, other.high);
    nearest = std::min(nearest, other.nearest);
    farthest = std::max(farthest, other.farthest);
}

bool castsShadow(const DrawItem& item) {
    return !isFloor(item) && !isSeeThrough(item);
}

LightBounds lightBounds(const DrawItem& item, const glm::mat4& toLight, const Perspective& camera) {
    LightBounds bounds;
    if (isFloor(item)) { // has no end; what shades it counts
        return bounds;
    }
    const Extent extent = extentOf(item);
    if (castsShadow(item)) {
        addDepths(extent, toLight, bounds);
    }
    if (item.material.unlit || camera.bounds(extent).empty()) {
        return bounds;
    }
    LitPart lit(toLight, camera, bounds);
    if (extent.count == 8) {
        lit.addBox(extent, std::holds_alternative<Box>(item.shape) && !item.material.doubleSided);
    } else {
        lit.add(extent.points[0], extent.margin);
    }
    return bounds;
}

} // namespace vorbel
