#include "platform/physics/Approach.h"

#include <btBulletDynamicsCommon.h>

#include <algorithm>
#include <limits>

namespace vorbel {

namespace {

// Impacts that follow each other more closely are one, for otherwise a scattered pile could take for ever.
// One this close to the end of a sub-step is left to the next.
constexpr double shortestPart = 1e-4; // s

const btSphereShape* ballShape(const btCollisionObject& object) {
    const btCollisionShape* shape = object.getCollisionShape();
    return shape->getShapeType() == SPHERE_SHAPE_PROXYTYPE ? static_cast<const btSphereShape*>(shape)
                                                           : nullptr;
}

// Balls that do not meet have no contact to measure, yet may be as close as after a touch.
double gapWithoutContact(const btCollisionObject& a, const btCollisionObject& b) {
    const btSphereShape* ballA = ballShape(a);
    const btSphereShape* ballB = ballShape(b);
    if (!ballA || !ballB) {
        return std::numeric_limits<double>::infinity();
    }
    return a.getWorldTransform().getOrigin().distance(b.getWorldTransform().getOrigin()) -
           ballA->getRadius() - ballB->getRadius();
}

bool isBallImpact(const btPersistentManifold& manifold) {
    return ballShape(*manifold.getBody0()) != nullptr && ballShape(*manifold.getBody1()) != nullptr &&
           manifold.getNumContacts() > 0 && manifold.getContactPoint(0).getDistance() > 0;
}

} // namespace

Approach measureApproach(const btPersistentManifold& manifold) {
    const btRigidBody& a = *btRigidBody::upcast(manifold.getBody0());
    const btRigidBody& b = *btRigidBody::upcast(manifold.getBody1());
    if (manifold.getNumContacts() == 0) {
        return {gapWithoutContact(a, b), 0};
    }
    Approach nearest{std::numeric_limits<double>::infinity(), 0};
    for (int i = 0; i < manifold.getNumContacts(); ++i) {
        const btManifoldPoint& point = manifold.getContactPoint(i);
        if (point.getDistance() < nearest.gap) {
            nearest.gap = point.getDistance();
            nearest.speed = point.m_normalWorldOnB.dot(b.getLinearVelocity() - a.getLinearVelocity());
        }
    }
    return nearest;
}

double stopAtNextImpact(btDispatcher& dispatcher, double seconds) {
    double next = seconds;
    for (int i = 0; i < dispatcher.getNumManifolds(); ++i) {
        btPersistentManifold& manifold = *dispatcher.getManifoldByIndexInternal(i);
        if (!isBallImpact(manifold)) {
            continue;
        }
        const Approach approach = measureApproach(manifold);
        const double time = approach.gap / approach.speed;
        if (time < shortestPart) {
            manifold.getContactPoint(0).setDistance(0);
        } else {
            manifold.clearManifold();
            next = time < seconds - shortestPart ? std::min(next, time) : next;
        }
    }
    return next;
}

} // namespace vorbel
