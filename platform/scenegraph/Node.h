// A node of the scene: a named place in space that may carry a shape, a light, a camera or a rigid body.
#pragma once

#include "math/Vector.h"
#include "platform/scenegraph/BodySlot.h"
#include "platform/scenegraph/Geometry.h"
#include "platform/scenegraph/Light.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

struct Pose {
    Vec3 position{0};
    Quat orientation{1, 0, 0, 0};
    bool operator==(const Pose&) const = default;
};

class Node {
public:
    using Ptr = std::shared_ptr<Node>; // shared by the parent and whoever still holds a removed node

    Node() = default;
    explicit Node(std::string nodeName) : name(std::move(nodeName)) {}
    explicit Node(Geometry nodeGeometry) : geometry(std::move(nodeGeometry)) {}

    std::string name; // empty: no name
    std::optional<Geometry> geometry;
    std::optional<Light> light;
    std::optional<Camera> camera;
    BodySlot body;                    // replacing it swaps the body in the physics world at its next step
    std::weak_ptr<Node> lookAtTarget; // when set, the node's −z axis always points at the target
    Vec3 scale{1};
    double opacity = 1; // 0 hides the node, its children too

    // In the parent's frame. Setting a value is a jump: no movement towards it is ever shown.
    [[nodiscard]] const Pose& pose() const { return current_; }
    [[nodiscard]] const Vec3& position() const { return current_.position; }
    [[nodiscard]] const Quat& orientation() const { return current_.orientation; }
    void setPosition(const Vec3& position);
    void setOrientation(const Quat& orientation);
    void setEulerAngles(const Vec3& angles) { setOrientation(rotationFromEuler(angles)); }

    // Called once a tick by what moves the node (physics, animations): the pose until now becomes the start
    // of the movement that is shown until the next tick.
    void advanceTo(const Pose& next);

    // Pose to draw, a fraction in 0…1 of a tick after the newest one was reached: 0 shows the pose before the
    // last advance, 1 the newest. Movement is thus shown one tick late and without jerks.
    [[nodiscard]] Pose displayedPose(double fraction) const;
    [[nodiscard]] bool isMoving() const { return previous_ != current_; }

    [[nodiscard]] const std::vector<Ptr>& children() const { return children_; } // in order of insertion
    void addChild(Ptr child);
    void removeChild(const Node& child); // does nothing when it is not a child

    // Grows whenever a child comes or goes, or the body of one is replaced.
    [[nodiscard]] std::uint64_t childBodyChanges() const { return *childBodyChanges_; }

    // First node with that name below this one, depth first; null when there is none.
    [[nodiscard]] Ptr findChild(std::string_view childName) const;

private:
    Pose current_;
    Pose previous_;
    std::vector<Ptr> children_;
    BodySlot::Count childBodyChanges_ = std::make_shared<std::uint64_t>(0);
};

} // namespace vorbel
