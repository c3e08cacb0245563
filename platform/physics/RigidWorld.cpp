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

} // namespace

btPersistentManifold* ForeseeingDispatcher::getNewManifold(const btCollisionObject* a,
                                                           const btCollisionObject* b) {
    btPersistentManifold* manifold = btCollisionDispatcher::getNewManifold(a, b);
    manifold->setContactBreakingThreshold(contactDistance);
    return manifold;
}

RigidWorldTools::RigidWorldTools() : configuration(smallPools()), dispatcher(&configuration) {
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
    calculateSimulationIslands();
    reportContacts(part, listener);
    getSolverInfo().m_timeStep = part;
    solveConstraints(getSolverInfo());
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
    for (int i = 0; i < tools_.dispatcher.getNumManifolds(); ++i) {
        btPersistentManifold& manifold = *tools_.dispatcher.getManifoldByIndexInternal(i);
        if (manifold.getBody0()->isActive() || manifold.getBody1()->isActive()) {
            listener.contactFound(manifold, seconds);
        }
    }
}

// Half of the damping before and half after the move: the distance then agrees with the law to second order.
void RigidWorld::applyForces(double seconds) {
    for (int i = 0; i < m_nonStaticRigidBodies.size(); ++i) {
        btRigidBody& body = *m_nonStaticRigidBodies[i];
        if (body.isActive()) {
            body.applyGravity();
            body.applyDamping(seconds / 2);
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
            body.applyDamping(seconds / 2);
            body.proceedToTransform(next);
            body.clearForces();
        }
    }
}

} // namespace vorbel
