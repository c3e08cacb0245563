#include "platform/physics/BallCollision.h"

#include <btBulletDynamicsCommon.h>

#include <cmath>
#include <limits>
#include <new>

namespace vorbel {

namespace {

double radiusOf(const btCollisionObject& ball) {
    return static_cast<const btSphereShape*>(ball.getCollisionShape())->getRadius();
}

btVector3 velocityOf(const btCollisionObject& ball) {
    return btRigidBody::upcast(&ball)->getLinearVelocity();
}

// Seconds until a point at `offset` that moves with `velocity` is at `distance` from the origin: 0 when it is
// already as near as that, infinity when it never gets there.
double timeToReach(const btVector3& offset, const btVector3& velocity, double distance) {
    const double excess = offset.length2() - distance * distance;
    if (excess <= 0) {
        return 0;
    }
    const double approach = -offset.dot(velocity);
    const double speedSquared = velocity.length2();
    const double discriminant = approach * approach - speedSquared * excess;
    if (approach <= 0 || discriminant < 0) {
        return std::numeric_limits<double>::infinity();
    }
    return excess / (approach + std::sqrt(discriminant)); // the earlier root, without cancellation
}

btManifoldPoint makePoint(const btCollisionObject& a, const btCollisionObject& b, const btVector3& normal) {
    const btVector3 onA = a.getWorldTransform().getOrigin() - normal * radiusOf(a);
    const btVector3 onB = b.getWorldTransform().getOrigin() + normal * radiusOf(b);
    btManifoldPoint point(a.getWorldTransform().invXform(onA), b.getWorldTransform().invXform(onB), normal,
                          (onA - onB).dot(normal));
    point.m_positionWorldOnA = onA;
    point.m_positionWorldOnB = onB;
    point.m_combinedFriction = btManifoldResult::calculateCombinedFriction(&a, &b);
    point.m_combinedRestitution = btManifoldResult::calculateCombinedRestitution(&a, &b);
    return point;
}

} // namespace

BallCollision::BallCollision(const btCollisionAlgorithmConstructionInfo& info,
                             const btCollisionObjectWrapper* a, const btCollisionObjectWrapper* b)
    : btActivatingCollisionAlgorithm(info, a, b),
      manifold_(m_dispatcher->getNewManifold(a->getCollisionObject(), b->getCollisionObject())) {}

BallCollision::~BallCollision() {
    m_dispatcher->releaseManifold(manifold_);
}

void BallCollision::processCollision(const btCollisionObjectWrapper* a, const btCollisionObjectWrapper* b,
                                     const btDispatcherInfo& dispatchInfo, btManifoldResult* result) {
    result->setPersistentManifold(manifold_);
    manifold_->clearManifold();
    const btCollisionObject& ballA = *a->getCollisionObject();
    const btCollisionObject& ballB = *b->getCollisionObject();
    const btVector3 offset = ballA.getWorldTransform().getOrigin() - ballB.getWorldTransform().getOrigin();
    const btVector3 velocity = velocityOf(ballA) - velocityOf(ballB);
    const double time = timeToReach(offset, velocity, radiusOf(ballA) + radiusOf(ballB));
    if (time > dispatchInfo.m_timeStep) {
        return;
    }
    const btVector3 direction = offset + velocity * time;
    const btVector3 normal = direction.fuzzyZero() ? btVector3(0, 1, 0) : direction.normalized();
    manifold_->addManifoldPoint(makePoint(ballA, ballB, normal));
}

btScalar BallCollision::calculateTimeOfImpact(btCollisionObject*, btCollisionObject*, const btDispatcherInfo&,
                                              btManifoldResult*) {
    return 1; // contacts are foreseen already: there is never an impact to go back to
}

void BallCollision::getAllContactManifolds(btManifoldArray& manifolds) {
    manifolds.push_back(manifold_);
}

btCollisionAlgorithm*
BallCollision::Maker::CreateCollisionAlgorithm(btCollisionAlgorithmConstructionInfo& info,
                                               const btCollisionObjectWrapper* a,
                                               const btCollisionObjectWrapper* b) {
    void* memory = info.m_dispatcher1->allocateCollisionAlgorithm(sizeof(BallCollision));
    return new (memory) BallCollision(info, a, b);
}

} // namespace vorbel
