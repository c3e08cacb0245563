#include "platform/physics/RigidWorld.h"

#include "platform/physics/Approach.h"

namespace vorbel {

namespace {

constexpr double contactDistance = 0.1;       // m; contacts are foreseen up to here
constexpr double freeMotionTolerance = 1e-20; // (m/s)²

// A dozen balls need far less than Bullet's default pools of 4096 each.
btDefaultCollisionConstructionInfo smallPools() {
    btDefaultCollisionConstructionInfo info;
    info.m_defaultMaxPersistentManifoldPoolSize = 64;
    info.m_defaultMaxCollisionAlgorithmPoolSize = 64;
    info.m_customCollisionAlgorithmMaxElementSize = sizeof(BallCollision);
    return info;
}

void configureSolver(btContactSolverInfo& info) {
    info.m_numIterations = 10;
    info.m_leastSquaresResidualThreshold = 1e-16; // stop as soon as an iteration changes nothing that matters
    // Overlap is corrected in the positions only: no contact ever adds energy.
    info.m_splitImpulse = 1;
    info.m_splitImpulsePenetrationThreshold = 0;
    info.m_restitutionVelocityThreshold = 0;
}

// What has to be added to a move with the velocity after the forces, so that a flying ball follows its
// parabola. A ball that something holds or hits gets its velocity from there and keeps to the surface.
btVector3 moveCorrection(const btRigidBody& body, double seconds) {
    const btVector3 before = body.getInterpolationLinearVelocity();
    const btVector3 after = body.getLinearVelocity();
    const btVector3 gained = body.getGravity() * seconds;
    const bool isFree = (after - before - gained).length2() < freeMotionTolerance;
    return isFree ? gained * (-seconds / 2) : btVector3(0, 0, 0);
}

// Most pairs are balls at rest and the floor below them. Bullet finds that out too, but only after looking up the
// rules of collision for the two.
void meetUnlessAsleep(btBroadphasePair& pair, btCollisionDispatcher& dispatcher,
                      const btDispatcherInfo& info) {
    const auto* a = static_cast<const btCollisionObject*>(pair.m_pProxy0->m_clientObject);
    const auto* b = static_cast<const btCollisionObject*>(pair.m_pProxy1->m_clientObject);
    if (a->isActive() || b->isActive()) {
        btCollisionDispatcher::defaultNearCallback(pair, dispatcher, info);
    }
}

} // namespace

btPersistentManifold* ForeseeingDispatcher::getNewManifold(const btCollisionObject* a,
                                                           const btCollisionObject* b) {
    btPersistentManifold* manifold = btCollisionDispatcher::getNewManifold(a, b);
    manifold->setContactBreakingThreshold(contactDistance);
    return manifold;
}

RigidWorldTools::RigidWorldTools() : configuration(smallPools()), dispatcher(&configuration) {
    dispatcher.setNearCallback(meetUnlessAsleep);
    dispatcher.registerCollisionCreateFunc(SPHERE_SHAPE_PROXYTYPE, SPHERE_SHAPE_PROXYTYPE,
                                           &ballCollisionMaker);
}

RigidWorld::RigidWorld(RigidWorldTools& tools)
    : btDiscreteDynamicsWorld(&tools.dispatcher, &broadphase, &tools.solver, &tools.configuration),
      tools_(tools) {
    tools.solver.reset();
    configureSolver(getSolverInfo());
    setForceUpdateAllAabbs(false);
    getDispatchInfo().m_useContinuous = true;
}

void RigidWorld::advance(double seconds, ContactListener& listener) {
    for (double left = seconds; left > 0;) {
        left -= advanceToNextImpact(left, listener);
    }
}

double RigidWorld::advanceToNextImpact(double seconds, ContactListener& listener) {
    foreseeMoves(seconds);
    getDispatchInfo().m_timeStep = seconds;
    performDiscreteCollisionDetection();
    const double part = stopAtNextImpact(tools_.dispatcher, seconds);
    applyForces(part);
    findIslands();
    reportContacts(part, listener);
    solve(part);
    moveBodies(part);
    return part;
}

// Where bodies would be without forces bounds the search for contacts.
void RigidWorld::foreseeMoves(double seconds) {
    for (int i = 0; i < m_nonStaticRigidBodies.size(); ++i) {
        btRigidBody& body = *m_nonStaticRigidBodies[i];
        if (body.isActive()) {
            body.setActivationState(ACTIVE_TAG); // one that was woken stays awake
            btTransform next = body.getWorldTransform();
            next.getOrigin() += body.getLinearVelocity() * seconds;
            body.setInterpolationWorldTransform(next);
        }
    }
}

void RigidWorld::reportContacts(double seconds, ContactListener& listener) {
    for (int i = 0; i < near_.size(); ++i) {
        listener.contactFound(*near_[i], seconds);
    }
}

void RigidWorld::findAwake() {
    awake_.resize(0);
    for (int i = 0; i < m_nonStaticRigidBodies.size(); ++i) {
        if (m_nonStaticRigidBodies[i]->isActive()) {
            awake_.push_back(m_nonStaticRigidBodies[i]);
        }
    }
    near_.resize(0);
    for (int i = 0; i < tools_.dispatcher.getNumManifolds(); ++i) {
        btPersistentManifold* manifold = tools_.dispatcher.getManifoldByIndexInternal(i);
        if (manifold->getBody0()->isActive() || manifold->getBody1()->isActive()) {
            near_.push_back(manifold);
        }
    }
}

// Touching one thing at most, which cannot be pushed, and near no body that would have to wake.
bool RigidWorld::isApart(const btCollisionObject& body) const {
    int touched = 0;
    for (int i = 0; i < near_.size(); ++i) {
        const btPersistentManifold& manifold = *near_[i];
        const btCollisionObject& a = *manifold.getBody0();
        const btCollisionObject& b = *manifold.getBody1();
        if (&a != &body && &b != &body) {
            continue;
        }
        const btCollisionObject& other = &a == &body ? b : a;
        const bool isTouching = manifold.getNumContacts() > 0;
        if (!other.isStaticOrKinematicObject() && (isTouching || !other.isActive())) {
            return false;
        }
        touched += isTouching ? 1 : 0;
    }
    return touched <= 1 && !body.isStaticOrKinematicObject();
}

// Bullet looks for islands of bodies that hold each other, wakes them and sorts their contacts. While balls roll
// each by itself, as they do most of the time, there is nothing to find, and no order that could matter.
void RigidWorld::findIslands() {
    findAwake();
    areAllApart_ = awake_.size() > 0;
    for (int i = 0; i < awake_.size() && areAllApart_; ++i) {
        areAllApart_ = isApart(*awake_[i]);
    }
    if (!areAllApart_) {
        calculateSimulationIslands();
    }
}

void RigidWorld::solve(double seconds) {
    getSolverInfo().m_timeStep = seconds;
    if (areAllApart_) {
        tools_.solver.solveGroup(&awake_[0], awake_.size(), near_.size() > 0 ? &near_[0] : nullptr,
                                 near_.size(), nullptr, 0, getSolverInfo(), nullptr, &tools_.dispatcher);
    } else {
        solveConstraints(getSolverInfo());
    }
}

// Half of the damping before and half after the move: the distance then agrees with the law to second order.
void RigidWorld::applyForces(double seconds) {
    for (int i = 0; i < m_nonStaticRigidBodies.size(); ++i) {
        btRigidBody& body = *m_nonStaticRigidBodies[i];
        if (body.isActive()) {
            body.applyGravity();
            damping_.apply(body, seconds / 2);
            body.setInterpolationLinearVelocity(body.getLinearVelocity()); // kept for comparison
        }
    }
}

void RigidWorld::moveBodies(double seconds) {
    for (int i = 0; i < m_nonStaticRigidBodies.size(); ++i) {
        btRigidBody& body = *m_nonStaticRigidBodies[i];
        if (body.isActive() && !body.isStaticOrKinematicObject()) {
            btTransform next;
            body.predictIntegratedTransform(seconds, next);
            next.getOrigin() += moveCorrection(body, seconds);
            damping_.apply(body, seconds / 2);
            body.proceedToTransform(next);
            body.clearForces();
        }
    }
}

} // namespace vorbel
