// How far things reach, in the arena and in pictures of it.
#pragma once

#include "platform/render/Frame.h"
#include "platform/render/PixelRect.h"

#include <array>
#include <span>

namespace vorbel {

// The convex hull of the points, and all that is within `margin` of it.
struct Extent {
    static constexpr std::size_t mostPoints = 40; // a box and its shadow
    std::array<glm::vec3, mostPoints> points{};   // in the arena's frame, metres
    std::size_t count = 0;
    float margin = 0; // metres

    void add(const glm::vec3& point) { points[count++] = point; }
    [[nodiscard]] std::span<const glm::vec3> corners() const { return {points.data(), count}; }
};

// Holds the whole item, not always tightly. A floor counts as a point, as it has no end.
[[nodiscard]] Extent extentOf(const DrawItem& item);

// Of its image in the plane (xyz: normal of unit length, w: −normal·point).
[[nodiscard]] Extent mirrored(Extent extent, const glm::vec4& plane);

// A view in perspective, as a camera or a light has it.
struct Perspective {
    glm::mat4 toView{1};       // from the arena's frame to that of the eye, which looks along −z
    glm::vec2 halfWidth{1, 1}; // half of what is seen, as tangents of angles at the eye
    int width = 1;             // of the picture, pixels
    int height = 1;
    float zNear = 0.1F;     // metres: nothing nearer is seen
    glm::vec2 middle{0, 0}; // of what is seen, as tangents of its angles from straight ahead

    // Holds all pixels that the extent touches, and is inside the picture.
    [[nodiscard]] PixelRect bounds(const Extent& extent) const;
};

// What the camera sees in a picture of that size.
[[nodiscard]] Perspective perspective(const Viewpoint& camera, int width, int height);

} // namespace vorbel
