// Sees each throw of a match, tick by tick.
#pragma once

#include "engine/GameLogic.h"

#include <functional>
#include <vector>

namespace vorbel::sim {

// One throw, from its release to the moment when all balls had come to rest.
struct Throw {
    BallColor ball = BallColor::jack; // what was thrown
    BallColor side = BallColor::red;  // by whom
    int end = 1;
    double angle = 0;               // rad, as in GameLogic::aimAngle
    double power = 0;               // percent
    std::vector<Node::Ptr> balls{}; // all on the court, in the order of their throws, at their last places
};

class ThrowWatch {
public:
    using Observer = std::function<void(const Throw&, const GameLogic&)>;

    // The observer is called after every throw, when the rules have judged it. The match must outlive this.
    ThrowWatch(const GameLogic& match, Observer observer);

    void look(); // after each tick

private:
    void beginThrow();

    const GameLogic& match_;
    Observer observer_;
    AimState before_;
    Throw throw_;
};

} // namespace vorbel::sim
