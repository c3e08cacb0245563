#include "platform/physics/SceneBody.h"

#include "platform/physics/BodyShape.h"
#include "platform/physics/BulletVectors.h"

#include <cmath>

#include <LinearMath/btAabbUtil2.h>

namespace vorbel {

namespace {

constexpr double nearDistance = 0.02; // m

// A body at rest: slower than this after a tick in which it moved less than this. Far below what an eye or a
// rule can tell; both together, because a thrown ball stands still for a moment at the top of its arc.
constexpr double restingSpeed = 1e-5;        // m/s; rad/s for the spin
constexpr double restingDisplacement = 1e-6; // m

btRigidBody::btRigidBodyConstructionInfo describe(const Node& node, btCollisionShape* shape) {
    const PhysicsBody& body = *node.body;
    const bool isDynamic = body.type == PhysicsBody::Type::dynamic;
    btVector3 inertia(0, 0, 0);
    if (isDynamic && node.geometry) {
        shape->calculateLocalInertia(body.mass, inertia);
    }
    btRigidBody::btRigidBodyConstructionInfo info(isDynamic ? body.mass : 0, nullptr, shape, inertia);
    info.m_startWorldTransform = toBullet(node.pose());
    info.m_friction = body.friction;
    info.m_restitution = body.restitution;
    // Bullet takes the fraction lost in a second.
    info.m_linearDamping = -std::expm1(-body.damping);
    info.m_angularDamping = -std::expm1(-body.angularDamping);
    return info;
}

} // namespace

SceneBody::SceneBody(const Node::Ptr& node)
    : node_(node),
      body_(node->body.pointer()),
      shape_(makeBodyShape(node->geometry)),
      rigid_(describe(*node, shape_.get())),
      pose_(node->pose()),
      velocity_(body_->velocity),
      angularVelocity_(body_->angularVelocity) {
    rigid_.setFlags(0); // no gyroscopic torque: a ball has none
    switch (body_->type) {
    case PhysicsBody::Type::fixed:
        rigid_.setCollisionFlags(btCollisionObject::CF_STATIC_OBJECT);
        break;
    case PhysicsBody::Type::kinematic:
        rigid_.setCollisionFlags(btCollisionObject::CF_KINEMATIC_OBJECT);
        rigid_.setActivationState(ISLAND_SLEEPING);
        break;
    case PhysicsBody::Type::dynamic:
        rigid_.setCollisionFlags(0);
        rigid_.setLinearVelocity(toBullet(velocity_));
        rigid_.setAngularVelocity(toBullet(angularVelocity_));
        break;
    }
}

void SceneBody::wake() {
    if (isDynamic()) {
        rigid_.setActivationState(ACTIVE_TAG);
    }
}

void SceneBody::rest() {
    rigid_.setActivationState(ISLAND_SLEEPING);
}

bool SceneBody::isNear(const SceneBody& other) const {
    btVector3 low, high, otherLow, otherHigh;
    rigid_.getAabb(low, high);
    other.rigid_.getAabb(otherLow, otherHigh);
    const btVector3 margin(nearDistance, nearDistance, nearDistance);
    return TestAabbAgainstAabb2(low - margin, high + margin, otherLow, otherHigh);
}

bool SceneBody::takeOver() {
    const bool isMoved = node_->pose() != pose_;
    const bool isPushed = body_->velocity != velocity_ || body_->angularVelocity != angularVelocity_;
    if (isMoved) {
        pose_ = node_->pose();
        rigid_.setCenterOfMassTransform(toBullet(pose_));
    }
    if (isPushed) {
        velocity_ = body_->velocity;
        angularVelocity_ = body_->angularVelocity;
        if (isDynamic()) {
            rigid_.setLinearVelocity(toBullet(velocity_));
            rigid_.setAngularVelocity(toBullet(angularVelocity_));
            wake();
        }
    }
    return isMoved;
}

void SceneBody::writeVelocity() {
    if (!isDynamic()) {
        return;
    }
    velocity_ = fromBullet(rigid_.getLinearVelocity());
    angularVelocity_ = fromBullet(rigid_.getAngularVelocity());
    body_->velocity = velocity_;
    body_->angularVelocity = angularVelocity_;
}

void SceneBody::writeBack() {
    if (!isAwake()) {
        if (isDynamic() && node_->isMoving()) {
            node_->advanceTo(pose_);
        }
        return;
    }
    const Pose next = fromBullet(rigid_.getCenterOfMassTransform());
    const Vec3 moved = next.position - pose_.position;
    writeVelocity();
    const double speedSquared = glm::dot(velocity_, velocity_) + glm::dot(angularVelocity_, angularVelocity_);
    if (speedSquared < restingSpeed * restingSpeed &&
        glm::dot(moved, moved) < restingDisplacement * restingDisplacement) {
        settle();
    } else {
        pose_ = next;
    }
    node_->advanceTo(pose_);
}

// The pose stays the one before the tick, so that the node does not move any more.
void SceneBody::settle() {
    rigid_.setLinearVelocity(btVector3(0, 0, 0));
    rigid_.setAngularVelocity(btVector3(0, 0, 0));
    rigid_.setCenterOfMassTransform(toBullet(pose_));
    rest();
    writeVelocity();
}

} // namespace vorbel
