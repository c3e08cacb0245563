#include "platform/render/Frame.h"

#include "platform/render/ColorSpace.h"
#include "platform/scenegraph/Scene.h"

#include <cmath>
#include <utility>

#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/quaternion.hpp>

namespace vorbel {

namespace {

using Mat4 = glm::dmat4;

// Takes the size out of a simple shape, which is of unit size then, and returns it.
struct TakeSize {
    Vec3 operator()(Box& box) const {
        if (box.chamferRadius > 0) {
            return Vec3(1);
        }
        const Vec3 size(box.width, box.height, box.length);
        box = {1, 1, 1, 0};
        return size;
    }
    Vec3 operator()(Plane& plane) const {
        const Vec3 size(plane.width, plane.height, 1);
        plane = {1, 1};
        return size;
    }
    Vec3 operator()(Sphere& sphere) const { return Vec3(std::exchange(sphere.radius, 1)); }
    Vec3 operator()(Cylinder& cylinder) const {
        const Vec3 size(cylinder.radius, cylinder.height, cylinder.radius);
        cylinder = {1, 1};
        return size;
    }
    template <typename Other>
    Vec3 operator()(Other& /*shape*/) const {
        return Vec3(1);
    }
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

class SceneCopier {
public:
    SceneCopier(const Scene& scene, double fraction, Frame& frame)
        : scene_(scene), fraction_(fraction), frame_(frame) {
        frame_.ambient = glm::vec3(0);
        frame_.spot.reset();
        frame_.camera = {};
        frame_.background = scene.background;
        frame_.balls.clear();
        addNode(*scene.root, Mat4(1), 1);
        frame_.items.resize(itemCount_);
    }

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
        if (node.geometry && !addBall(node, *node.geometry, scaled, opacity)) {
            addItem(node, *node.geometry, scaled, opacity);
        }
        for (const Node::Ptr& child : node.children()) {
            addNode(*child, scaled, opacity);
        }
    }

    // False when it is none.
    bool addBall(const Node& node, const Geometry& geometry, const Mat4& world, double opacity) {
        const Material& material = geometry.material;
        const auto* sphere = std::get_if<Sphere>(&geometry.shape);
        const bool isOpaque = opacity * static_cast<double>(material.diffuse.alpha) >= 1;
        if (sphere == nullptr || !material.seams || !isOpaque || !material.picture.empty() ||
            frame_.balls.size() == mostBalls) {
            return false;
        }
        const double scale = glm::length(Vec3(world[0]));
        DrawnBall& ball = frame_.balls.emplace_back();
        ball = {&node, glm::vec3(world[3]), static_cast<float>(sphere->radius * scale),
                glm::mat3(glm::dmat3(world) / scale)};
        (material.unlit ? ball.emission : ball.diffuse) = linearLight(material.diffuse);
        ball.emission += linearLight(material.emission);
        ball.mark = material.mark;
        ball.outlined = material.outlined;
        return true;
    }

    // Over the item that was there before, so that its memory is used again.
    void addItem(const Node& node, const Geometry& geometry, const Mat4& world, double opacity) {
        if (itemCount_ == frame_.items.size()) {
            frame_.items.emplace_back();
        }
        DrawItem& item = frame_.items[itemCount_++];
        item.node = &node;
        item.shape = geometry.shape;
        item.material = geometry.material;
        item.world = glm::mat4(glm::scale(world, std::visit(TakeSize{}, item.shape)));
        item.opacity = static_cast<float>(opacity);
    }

    // Turns the node's −z axis towards its look-at target; without a target the matrix stays.
    [[nodiscard]] Mat4 aimed(const Node& node, const Mat4& world) const {
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
            frame_.spot = {glm::vec3(world[3]),
                           glm::normalize(glm::vec3(-world[2])),
                           strength,
                           static_cast<float>(glm::radians(light.spotInnerAngle)),
                           static_cast<float>(glm::radians(light.spotOuterAngle)),
                           light.castsShadow,
                           light.shadowMapSize,
                           light.shadowSampleCount,
                           static_cast<float>(light.shadowBias),
                           static_cast<float>(light.shadowRadius)};
        }
    }

    const Scene& scene_;
    double fraction_;
    Frame& frame_;
    std::size_t itemCount_ = 0;
    bool hasCamera_ = false;
};

} // namespace

void copyScene(const Scene& scene, double fraction, Frame& frame) {
    SceneCopier(scene, fraction, frame);
}

Frame makeFrame(const Scene& scene, double fraction) {
    Frame frame;
    copyScene(scene, fraction, frame);
    return frame;
}

} // namespace vorbel
