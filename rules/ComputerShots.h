// Where the computer wants its ball to stop: the shots that it considers, and which of them it takes.
#pragma once

#include "rules/Position.h"

#include <span>
#include <vector>

namespace vorbel {

// Where a ball is to come to rest, and how much more power than it takes to get there.
struct Target {
    Vec3 point{0};
    double powerMultiplier = 1; // above 1 for shots that must arrive with pace
};

// A shot that the computer considers.
struct AICandidate {
    Vec3 target{0};             // where the ball should come to rest
    double score = 0;           // desirability; the highest wins
    double powerMultiplier = 1; // as in Target
};

// The part of the court that the computer throws a jack to.
namespace jackArea {
inline constexpr double left = -1, right = 1; // x, m
inline constexpr double far = -7, near = -4;  // z, m
} // namespace jackArea

// The shot of that side in this position. On `easy` it draws straight to the jack. Needs a jack.
[[nodiscard]] Target chooseShot(const Position& position, BallColor side, AIDifficulty level);

// In this order: a draw to the free spot beside the jack; a hit on the opponent's closest ball when that
// holds the point; a raise of the first own ball that lies short of the jack; a block on the way to the jack.
// Draw and block are always there. The ball that waits to be thrown counts as an own ball like any other.
// Needs a jack.
[[nodiscard]] std::vector<AICandidate> candidateShots(const Position& position, BallColor side);

// The best of them, the earlier of equals. Needs at least one.
[[nodiscard]] const AICandidate& bestOf(std::span<const AICandidate> candidates);

// On a ring around the jack, the place that is farthest from all red and blue balls: straight behind the jack
// when there are none.
[[nodiscard]] Vec3 freeSpotNearJack(const Position& position, const Vec3& jack);

inline constexpr double onTheSpot = 0.001; // m: a throw to so near a target has no direction

// The place `beyondBy` metres further along the side's throw to the target. A target on the spot that the
// side throws from stays where it is.
[[nodiscard]] Vec3 extendTarget(const Vec3& target, double beyondBy, BallColor side);

} // namespace vorbel
