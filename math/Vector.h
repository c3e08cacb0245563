// Vectors and rotations of the scene: double precision, metres, radians, y up, right-handed.
#pragma once

#include <glm/gtc/quaternion.hpp>
#include <glm/vec3.hpp>

namespace vorbel {

using Vec3 = glm::dvec3;
using Quat = glm::dquat;

// Rotation from Euler angles in radians: roll about z first, then pitch about x, then yaw about y, each about
// the parent's fixed axis. With this order a bar along −z that is pitched by p and yawed by −a points along
// (sin a·cos p, sin p, −cos a·cos p), the direction of a throw with that aim.
inline Quat rotationFromEuler(const Vec3& angles) {
    const Quat pitch = glm::angleAxis(angles.x, Vec3(1, 0, 0));
    const Quat yaw = glm::angleAxis(angles.y, Vec3(0, 1, 0));
    const Quat roll = glm::angleAxis(angles.z, Vec3(0, 0, 1));
    return yaw * pitch * roll;
}

} // namespace vorbel
