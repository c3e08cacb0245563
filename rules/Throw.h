// The law of a throw: how an aim becomes a movement, and how far the movement goes.
#pragma once

#include "math/Vector.h"
#include "rules/Aim.h"

namespace vorbel {

inline constexpr double fullSpeed = 5.0; // m/s at 100 % power

struct Launch {
    Vec3 velocity{0};        // m/s
    Vec3 angularVelocity{0}; // rad/s
};

// A ball leaves the hand rolling without slipping, about the axis across its direction of travel. One that is
// thrown straight up gets no spin. The power is taken as it is, also beyond its range.
[[nodiscard]] Launch launch(const Aim& aim);

// Percent of power that rolls a ball `distance` metres before it has slowed down to the speed at which it
// counts as resting.
[[nodiscard]] double powerForDistance(double distance);

} // namespace vorbel
