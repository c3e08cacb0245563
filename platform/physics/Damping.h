// What damping leaves of a velocity.
#pragma once

class btRigidBody;

namespace vorbel {

// Bullet's own damping takes a power for each body, velocity and part of a sub-step, though all balls are damped
// alike and hardly a sub-step is cut in parts. This gives the same to the last bit, and keeps the last power.
class Damping {
public:
    void apply(btRigidBody& body, double seconds);

private:
    double factor(double lostPerSecond, double seconds);

    double lostPerSecond_ = 0; // 0…1
    double seconds_ = 0;
    double factor_ = 1;
};

} // namespace vorbel
