// Where the balls lie.
#pragma once

#include "math/Vector.h"
#include "rules/MatchTypes.h"

#include <optional>
#include <span>
#include <vector>

namespace vorbel {

// Centres of the balls in metres, each side's in the order of its throws; a ball that waits to be thrown is
// one of them.
struct Position {
    std::optional<Vec3> jack;
    std::vector<Vec3> red{};
    std::vector<Vec3> blue{};

    [[nodiscard]] const std::vector<Vec3>& of(BallColor side) const { // red or blue
        return side == BallColor::red ? red : blue;
    }
};

struct ClosestBall {
    Vec3 position{0};
    double distance; // m between centres; +∞ without any ball
};

// The ball closest to the point; the first of equals.
[[nodiscard]] ClosestBall closestBall(std::span<const Vec3> balls, const Vec3& point);

} // namespace vorbel
