// When a throw is over, and which contacts of balls are heard.
#pragma once

#include "math/Vector.h"

namespace vorbel {

inline constexpr int fewestTicks = 26; // 0.52 s: no throw is over before
inline constexpr int mostTicks = 150;  // 3 s: every throw is over then

// Whether a thrown ball counts as resting: near the floor and slow over it, however fast it falls. A speed
// that is not a number counts as moving. Height of the centre in metres, velocity in metres a second.
[[nodiscard]] bool hasSettled(double height, const Vec3& velocity);

// Whether a throw is over that many ticks after its release.
[[nodiscard]] bool isThrowOver(int ticks, bool allSettled);

// Whether two balls that begin to touch at these speeds, metres a second, click.
[[nodiscard]] bool isAudible(double speedA, double speedB);

} // namespace vorbel
