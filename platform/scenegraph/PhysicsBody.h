// A rigid body as plain data. Its collision shape is that of its node's geometry.
#pragma once

#include "math/Vector.h"

namespace vorbel {

struct PhysicsBody {
    enum class Type {
        fixed,     // never moves
        kinematic, // moved only by the game, pushed by nothing
        dynamic,   // moved by gravity, contacts and its velocity
    };

    Type type = Type::fixed;
    double mass = 1; // kg, dynamic bodies only

    // Coefficients ≥ 0. Those of a contact are the products of both bodies' values.
    double friction = 0.5;
    double rollingFriction = 0;
    double restitution = 0.5; // 0…1

    // Rates in 1/s: dv/dt = −damping·v, dω/dt = −angularDamping·ω.
    double damping = 0.1;
    double angularDamping = 0.1;

    // Written by the game to set the body in motion, and by the physics world after every step.
    Vec3 velocity{0};        // m/s
    Vec3 angularVelocity{0}; // rad/s, along the rotation axis
};

} // namespace vorbel
