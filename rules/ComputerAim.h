// How the computer aims at a target, and how far its levels miss.
#pragma once

#include "rules/Aim.h"
#include "rules/ComputerShots.h"

namespace vorbel {

// Metres at the target, seen from the spot of the throw.
struct AimingError {
    double sideways = 0;   // to the right of the throw
    double lengthwise = 0; // beyond the target
};

// The largest errors of a level, to both sides of none.
[[nodiscard]] AimingError largestError(AIDifficulty level);

// Throws go long rather than short: what a level adds to its error in length.
[[nodiscard]] double lengthBias(AIDifficulty level);

// The aim that rolls a ball of that side to the target missed by that error, within the limits of an aim. A
// target beyond the limit of the angle is thrown at along the limit, as far as it lies in that direction.
[[nodiscard]] Aim aimAt(const Target& target, BallColor side, const AimingError& error);

} // namespace vorbel
