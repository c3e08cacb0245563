#include "platform/physics/PhysicsWorld.h"

#include "platform/physics/Approach.h"
#include "platform/physics/BulletVectors.h"
#include "platform/physics/RigidWorld.h"
#include "platform/physics/SceneBodies.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

// Chosen by measurement: see docs/physics.md.
constexpr double longestSubStep = 0.01; // s

} // namespace

class PhysicsWorld::Impl final : RigidWorld::ContactListener {
public:
    explicit Impl(Scene& scene) : scene_(scene) {}

    void step(double seconds);
    [[nodiscard]] bool isAnythingMoving() const;

    ContactBegan contactBegan;

private:
    void takeOverChanges();
    [[nodiscard]] bool isSetChanged(); // bodies that came, went or were replaced
    void rebuild();
    void applyGravity();

    void contactFound(btPersistentManifold& manifold, double seconds) override;
    void tellContact(const btPersistentManifold& manifold);

    Scene& scene_;
    SceneBodies bodies_;
    RigidWorldTools tools_;
    std::unique_ptr<RigidWorld> world_; // after the bodies: it refers to them as long as it lives
    Vec3 gravity_{0};

    // When the scene's nodes were last looked at.
    Node::Ptr root_;
    std::uint64_t bodyChanges_ = 0;
};

void PhysicsWorld::Impl::step(double seconds) {
    takeOverChanges();
    if (bodies_.isAnyAwake()) {
        const int count = std::max(1, static_cast<int>(std::ceil(seconds / longestSubStep - 1e-9)));
        for (int done = 0; done < count; ++done) {
            world_->advance(seconds / count, *this);
        }
        bodies_.endTouchesOfSeparated();
    }
    for (const auto& body : bodies_) {
        body->writeBack();
    }
}

bool PhysicsWorld::Impl::isAnythingMoving() const {
    return std::any_of(bodies_.begin(), bodies_.end(),
                       [](const auto& body) { return body->node().isMoving(); });
}

void PhysicsWorld::Impl::takeOverChanges() {
    bool isAnyMoved = false;
    for (const auto& body : bodies_) {
        if (body->takeOver()) {
            world_->updateSingleAabb(&body->rigid());
            isAnyMoved = true;
        }
    }
    if (isAnyMoved) {
        bodies_.wakeAll(); // it may have held another one
    }
    if (isSetChanged()) {
        rebuild();
    }
    if (gravity_ != scene_.gravity) {
        applyGravity();
    }
}

bool PhysicsWorld::Impl::isSetChanged() {
    const std::uint64_t changes = scene_.root->childBodyChanges();
    if (root_ == scene_.root && bodyChanges_ == changes) {
        return false;
    }
    root_ = scene_.root;
    bodyChanges_ = changes;
    return !bodies_.areThoseOf(root_->children());
}

// A new world whenever the set of bodies changes: what happens next then depends on the scene alone, and not
// on the order in which Bullet met bodies that came and went before.
void PhysicsWorld::Impl::rebuild() {
    SceneBodies bodies(scene_.root->children());
    bodies.continueFrom(bodies_);
    world_ = nullptr;
    bodies_ = std::move(bodies);
    world_ = std::make_unique<RigidWorld>(tools_);
    world_->setGravity(toBullet(gravity_));
    for (const auto& body : bodies_) {
        world_->addRigidBody(&body->rigid());
        world_->updateSingleAabb(&body->rigid());
    }
}

void PhysicsWorld::Impl::applyGravity() {
    gravity_ = scene_.gravity;
    bodies_.wakeAll(); // before Bullet is told, which leaves out bodies at rest
    if (world_) {
        world_->setGravity(toBullet(gravity_));
    }
}

void PhysicsWorld::Impl::contactFound(btPersistentManifold& manifold, double seconds) {
    const SceneBody& a = bodies_.of(*manifold.getBody0());
    const SceneBody& b = bodies_.of(*manifold.getBody1());
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        // Bullet would add each coefficient times the other body's friction.
        manifold.getContactPoint(i).m_combinedRollingFriction = a.rollingFriction() * b.rollingFriction();
    }
    const Approach approach = measureApproach(manifold);
    if (bodies_.beginsTouch(manifold, approach.gap, approach.speed * seconds)) {
        tellContact(manifold);
    }
}

void PhysicsWorld::Impl::tellContact(const btPersistentManifold& manifold) {
    if (!contactBegan) {
        return;
    }
    SceneBody& a = bodies_.of(*manifold.getBody0());
    SceneBody& b = bodies_.of(*manifold.getBody1());
    a.writeVelocity();
    b.writeVelocity();
    contactBegan(a.node(), b.node());
}

PhysicsWorld::PhysicsWorld(Scene& scene) : impl_(std::make_unique<Impl>(scene)) {}
PhysicsWorld::~PhysicsWorld() = default;
void PhysicsWorld::setContactDelegate(ContactBegan delegate) {
    impl_->contactBegan = std::move(delegate);
}
void PhysicsWorld::step(double seconds) {
    impl_->step(seconds);
}
bool PhysicsWorld::isAnythingMoving() const {
    return impl_->isAnythingMoving();
}

} // namespace vorbel
