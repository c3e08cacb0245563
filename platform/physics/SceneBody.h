// One rigid body of the scene and its counterpart in Bullet.
#pragma once

#include "platform/physics/RigidWorld.h"
#include "platform/scenegraph/Node.h"

#include <memory>

namespace vorbel {

class SceneBody {
public:
    // The node must have a body. Shape, type, mass and coefficients are read now, once.
    explicit SceneBody(const Node::Ptr& node);

    [[nodiscard]] const Node& node() const { return *node_; }
    [[nodiscard]] btRigidBody& rigid() { return rigid_; }
    [[nodiscard]] const btRigidBody& rigid() const { return rigid_; }
    [[nodiscard]] bool isDynamic() const { return body_->type == PhysicsBody::Type::dynamic; }
    [[nodiscard]] bool isOf(const Node& node) const {
        return node_.get() == &node && body_ == node.body.pointer();
    }
    [[nodiscard]] bool isSameAs(const SceneBody& other) const {
        return node_ == other.node_ && body_ == other.body_;
    }
    [[nodiscard]] bool isAwake() const { return isDynamic() && rigid_.isActive(); }
    [[nodiscard]] double rollingFriction() const { return body_->rollingFriction; }

    // Bounds that overlap or nearly do: bodies that may be touching, or leaning on each other.
    [[nodiscard]] bool isNear(const SceneBody& other) const;

    void wake(); // does nothing unless dynamic
    void rest();

    // Takes over a pose or velocity that the game has set
    // since the last write-back; says whether there was one.
    bool takeOver();

    // Bullet's state into the scene. `writeBack` ends a tick:
    // the node moves, and a body that came to rest sleeps.
    void writeVelocity();
    void writeBack();

private:
    void settle();

    Node::Ptr node_;
    std::shared_ptr<PhysicsBody> body_;
    std::unique_ptr<btCollisionShape> shape_;
    btRigidBody rigid_;

    // What the scene held after the last exchange: any difference was made by the game.
    Pose pose_;
    Vec3 velocity_{0};
    Vec3 angularVelocity_{0};
};

} // namespace vorbel
