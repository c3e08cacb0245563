// Contacts between two balls, found before they overlap.
#pragma once

#include <BulletCollision/CollisionDispatch/btActivatingCollisionAlgorithm.h>
#include <BulletCollision/CollisionDispatch/btCollisionCreateFunc.h>

namespace vorbel {

// Bullet's own test of two spheres sees a contact only once they overlap, with a normal that is turned by
// then: a glancing ball would leave at a wrong angle. This one computes where the balls meet within the
// coming sub-step.
class BallCollision final : public btActivatingCollisionAlgorithm {
public:
    BallCollision(const btCollisionAlgorithmConstructionInfo& info, const btCollisionObjectWrapper* a,
                  const btCollisionObjectWrapper* b);
    ~BallCollision() override;

    void processCollision(const btCollisionObjectWrapper* a, const btCollisionObjectWrapper* b,
                          const btDispatcherInfo& dispatchInfo, btManifoldResult* result) override;
    btScalar calculateTimeOfImpact(btCollisionObject*, btCollisionObject*, const btDispatcherInfo&,
                                   btManifoldResult*) override;
    void getAllContactManifolds(btManifoldArray& manifolds) override;

    struct Maker final : btCollisionAlgorithmCreateFunc {
        btCollisionAlgorithm* CreateCollisionAlgorithm(btCollisionAlgorithmConstructionInfo& info,
                                                       const btCollisionObjectWrapper* a,
                                                       const btCollisionObjectWrapper* b) override;
    };

private:
    btPersistentManifold* manifold_;
};

} // namespace vorbel
