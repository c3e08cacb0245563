// Bullet's world, set up and stepped for balls on a court.
#pragma once

#include "platform/physics/BallCollision.h"
#include "platform/physics/Damping.h"

#include <btBulletDynamicsCommon.h>

namespace vorbel {

// Sees contacts with floor and walls ahead of time: a ball that lands or hits the wall does not sink in.
class ForeseeingDispatcher final : public btCollisionDispatcher {
public:
    using btCollisionDispatcher::btCollisionDispatcher;
    btPersistentManifold* getNewManifold(const btCollisionObject* a, const btCollisionObject* b) override;
};

// What keeps nothing of a world once that is gone, and is dear to make: one world after another uses it.
struct RigidWorldTools {
    RigidWorldTools();

    BallCollision::Maker ballCollisionMaker;
    btDefaultCollisionConfiguration configuration;
    ForeseeingDispatcher dispatcher;
    btSequentialImpulseConstraintSolver solver;
};

// Kept alive before and after Bullet's world.
struct RigidWorldPlace {
    btDbvtBroadphase broadphase;
};

class RigidWorld final : private RigidWorldPlace, public btDiscreteDynamicsWorld {
public:
    // Called in every part of a sub-step, after finding the contacts and before changing velocities because
    // of them, for each pair of bodies near each other of which at least one is awake.
    class ContactListener {
    public:
        virtual void contactFound(btPersistentManifold& manifold, double seconds) = 0;

    protected:
        ~ContactListener() = default;
    };

    // The tools must outlive the world, and serve no other one meanwhile.
    explicit RigidWorld(RigidWorldTools& tools);

    // One sub-step, cut in parts where balls meet: each impact happens at its
    // own time. Bodies at rest (state ISLAND_SLEEPING) are left out until an
    // awake body comes near. Nothing puts a body to rest but the caller.
    void advance(double seconds, ContactListener& listener);

private:
    double advanceToNextImpact(double seconds, ContactListener& listener); // returns the time it took
    void foreseeMoves(double seconds);
    void reportContacts(double seconds, ContactListener& listener);
    void findAwake();
    [[nodiscard]] bool isApart(const btCollisionObject& body) const;
    void findIslands();
    void solve(double seconds);
    void applyForces(double seconds);
    void moveBodies(double seconds);

    RigidWorldTools& tools_;
    Damping damping_;

    // In this part of a sub-step.
    btCollisionObjectArray awake_;
    btManifoldArray near_; // of two bodies near each other of which at least one is awake
    bool areAllApart_ = false;
};

} // namespace vorbel
