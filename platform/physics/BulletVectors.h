// The scene's vectors and rotations as Bullet's, and back.
#pragma once

#include "platform/scenegraph/Node.h"

#include <LinearMath/btTransform.h>

namespace vorbel {

inline btVector3 toBullet(const Vec3& v) {
    return {v.x, v.y, v.z};
}
inline Vec3 fromBullet(const btVector3& v) {
    return {v.x(), v.y(), v.z()};
}

inline btTransform toBullet(const Pose& pose) {
    const Quat& q = pose.orientation;
    return btTransform(btQuaternion(q.x, q.y, q.z, q.w), toBullet(pose.position));
}

inline Pose fromBullet(const btTransform& transform) {
    const btQuaternion q = transform.getRotation();
    return {fromBullet(transform.getOrigin()), Quat(q.w(), q.x(), q.y(), q.z())};
}

} // namespace vorbel
