// The arena with all balls of an end, thrown at once.
#pragma once

#include "platform/physics/PhysicsWorld.h"
#include "platform/render/Frame.h"

namespace vorbel {

class RollingBalls {
public:
    static constexpr double tick = 0.02; // s

    RollingBalls();

    // Thrown anew from behind the throwing line: jack, six red and six blue balls in a row, each on its way
    // and with its own speed; the middle ones meet further down.
    void throwAll();

    void step() { world_.step(tick); }
    [[nodiscard]] Frame frame(double fraction) const { return makeFrame(scene, fraction); }

    Scene scene;
    std::vector<Node::Ptr> balls; // the jack first

private:
    PhysicsWorld world_;
};

} // namespace vorbel
