// Who throws next.
#pragma once

#include "rules/Position.h"

namespace vorbel {

// Colour balls that the sides still have to throw.
struct BallsLeft {
    int red = ballsPerSide;
    int blue = ballsPerSide;
};

// The side that is not closest to the jack throws, as long as it has balls left. Red throws when the
// distances cannot tell: without a jack, without a ball in play, at equal distances.
[[nodiscard]] BallColor nextToThrow(const Position& position, BallsLeft left);

} // namespace vorbel
