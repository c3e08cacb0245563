// What is needed to draw a scene once: a copy, so that it can be drawn while the game goes on.
#pragma once

#include "platform/scenegraph/Geometry.h"

#include <optional>
#include <vector>

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/vec3.hpp>

namespace vorbel {

class Scene;

// One shape at one place. Simple shapes are of unit size and have their size in `world`, so that all boxes
// without chamfer, all planes, all spheres and all cylinders share one mesh each.
struct DrawItem {
    const void* node = nullptr; // tells the items of one node from those of others; never followed
    Shape shape;
    Material material;
    glm::mat4 world{1}; // from the shape's frame to the arena's, metres
    float opacity = 1;  // above 0, at most 1: those of the node and of its ancestors multiplied
    bool operator==(const DrawItem&) const = default;
};

[[nodiscard]] inline bool isFloor(const DrawItem& item) {
    return std::holds_alternative<Floor>(item.shape);
}

// Whether what is behind the item is seen through all of it: a tint, or something that fades.
[[nodiscard]] inline bool isSeeThrough(const DrawItem& item) {
    return item.opacity * item.material.diffuse.alpha < 1;
}

// An opaque sphere with seams. Balls are drawn over the finished picture of all the rest, in closed form.
struct DrawnBall {
    const void* node = nullptr; // as that of an item
    glm::vec3 centre{0};        // metres
    float radius = 0;           // metres
    glm::mat3 orientation{1};   // from the ball's frame to the arena's
    glm::vec3 diffuse{0};       // linear light
    glm::vec3 emission{0};      // linear light
    Mark mark = Mark::none;
    bool outlined = false;
    bool operator==(const DrawnBall&) const = default;
};

inline constexpr std::size_t mostBalls = 64; // further spheres with seams are items, without seams

// The one spot light that is drawn.
struct SpotLight {
    glm::vec3 position{0};         // metres
    glm::vec3 direction{0, -1, 0}; // unit length
    glm::vec3 strength{1};    // linear light; 1 lights a white surface that faces the light to full white
    float innerHalfAngle = 0; // radians from the axis: full strength inside it
    float outerHalfAngle = 0.785F; // radians from the axis: none outside it
    bool castsShadow = false;
    int shadowMapSize = 2048;
    int shadowSampleCount = 1;
    float shadowBias = 0;   // metres
    float shadowRadius = 0; // texels
    bool operator==(const SpotLight&) const = default;
};

// Where the picture is taken from.
struct Viewpoint {
    glm::mat4 world{1};         // from the camera's frame (looks along −z, +y up) to the arena's
    float fieldOfView = 1.047F; // vertical, radians
    float zNear = 0.1F;         // metres
    float zFar = 60;            // metres
    bool operator==(const Viewpoint&) const = default;
};

struct Frame {
    std::vector<DrawItem> items; // in the order of the scene, depth first
    std::vector<DrawnBall> balls;
    glm::vec3 ambient{0}; // linear light that reaches every surface; all ambient lights added
    std::optional<SpotLight> spot;
    Viewpoint camera;
    Color background = colors::black;
};

// Makes the frame a copy of what is to be seen of the scene, a fraction in 0…1 of a tick after its newest
// state (0 shows the state before it; see Node::displayedPose). Nodes of opacity 0 are left out with all
// below them. Of several spot lights or cameras the first is taken; without a camera the view is from the
// origin. No memory is allocated while the scene has the same shapes in the same order.
void copyScene(const Scene& scene, double fraction, Frame& frame);

// The same, as a new frame.
[[nodiscard]] Frame makeFrame(const Scene& scene, double fraction);

} // namespace vorbel
