#include "platform/render/Frame.h"

#include "platform/render/ColorSpace.h"
#include "platform/scenegraph/Scene.h"

#include <cmath>

#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/quaternion.hpp>

namespace vorbel {

namespace {

using Mat4 = glm::dmat4;

// A shape taken apart: what it looks like at unit size, and its size.
struct SizedShape {
    Shape unit;
    Vec3 size{1};
};

struct UnitShape {
    SizedShape operator()(const Box& box) const {
        if (box.chamferRadius > 0) {
            return {box};
        }
        return {Box{1, 1, 1, 0}, {box.width, box.height, box.length}};
    }
    SizedShape operator()(const Plane& plane) const { return {Plane{1, 1}, {plane.width, plane.height, 1}}; }
    SizedShape operator()(const Sphere& sphere) const { return {Sphere{1}, Vec3(sphere.radius)}; }
    SizedShape operator()(const Cylinder& cylinder) const {
        return {Cylinder{1, 1}, {cylinder.radius, cylinder.height, cylinder.radius}};
    }
    SizedShape operator()(const Capsule& capsule) const { return {capsule}; }
    SizedShape operator()(const Floor& floor) const { return {floor}; }
    SizedShape operator()(const Extrusion& extrusion) const { return {extrusion}; }
};

Mat4 localMatrix(const Node& node, double fraction) {
    const Pose pose = node.displayedPose(fraction);
    return glm::translate(Mat4(1), pose.position) * glm::mat4_cast(pose.orientation);
}

std::optional<Vec3> positionBelow(const Node& node, const Mat4& parent, const Node& sought, double fraction) {
    const Mat4 world = parent * localMatrix(node, fraction);
    if (&node == &sought) {
        return Vec3(world[3]);
    }
    const Mat4 scaled = glm::scale(world, node.scale);
    for (const Node::Ptr& child : node.children()) {
        if (const auto found = positionBelow(*child, scaled, sought, fraction)) {
            return found;
        }
    }
    return std::nullopt;
}

class FrameMaker {
public:
    FrameMaker(const Scene& scene, double fraction) : scene_(scene), fraction_(fraction) {
        frame_.background = scene.background;
        addNode(*scene.root, Mat4(1), 1);
    }

    Frame take() { return std::move(frame_); }

private:
    void addNode(const Node& node, const Mat4& parent, double parentOpacity) {
        const double opacity = parentOpacity * node.opacity;
        if (opacity <= 0) {
            return;
        }
        const Mat4 world = aimed(node, parent * localMatrix(node, fraction_));
        if (node.light) {
            addLight(*node.light, world);
        }
        if (node.camera && !hasCamera_) {
            hasCamera_ = true;
            const Camera& camera = *node.camera;
            frame_.camera = {glm::mat4(world), static_cast<float>(glm::radians(camera.fieldOfView)),
                             static_cast<float>(camera.zNear), static_cast<float>(camera.zFar)};
        }
        const Mat4 scaled = glm::scale(world, node.scale);
        if (node.geometry) {
            const SizedShape shape = std::visit(UnitShape{}, node.geometry->shape);
            frame_.items.push_back({&node, shape.unit, node.geometry->material,
                                    glm::mat4(glm::scale(scaled, shape.size)), static_cast<float>(opacity)});
        }
        for (const Node::Ptr& child : node.children()) {
            addNode(*child, scaled, opacity);
        }
    }

    // Turns the node's −z axis towards its look-at target; without a target the matrix stays.
    Mat4 aimed(const Node& node, const Mat4& world) const {
        const Node::Ptr target = node.lookAtTarget.lock();
        const auto goal = target ? positionBelow(*scene_.root, Mat4(1), *target, fraction_) : std::nullopt;
        const Vec3 from(world[3]);
        if (!goal || *goal == from) {
            return world;
        }
        const Vec3 direction = glm::normalize(*goal - from);
        // Any other "up" will do for a look straight up or down.
        const Vec3 up = std::abs(direction.y) > 0.999 ? Vec3(0, 0, -1) : Vec3(0, 1, 0);
        return glm::inverse(glm::lookAt(from, *goal, up));
    }

    void addLight(const Light& light, const Mat4& world) {
        const glm::vec3 strength = linearLight(light.color) * static_cast<float>(light.intensity / 1000);
        if (light.type == Light::Type::ambient) {
            frame_.ambient += strength;
        } else if (!frame_.spot) {
            const auto halfAngle = [](double degrees) {
                return static_cast<float>(glm::radians(degrees) / 2);
            };
            frame_.spot = {glm::vec3(world[3]),
                           glm::normalize(glm::vec3(-world[2])),
                           strength,
                           halfAngle(light.spotInnerAngle),
                           halfAngle(light.spotOuterAngle),
                           light.castsShadow,
                           light.shadowMapSize,
                           light.shadowSampleCount,
                           static_cast<float>(light.shadowBias),
                           static_cast<float>(light.shadowRadius)};
        }
    }

    const Scene& scene_;
    double fraction_;
    Frame frame_;
    bool hasCamera_ = false;
};

} // namespace

Frame makeFrame(const Scene& scene, double fraction) {
    return FrameMaker(scene, fraction).take();
}

} // namespace vorbel
