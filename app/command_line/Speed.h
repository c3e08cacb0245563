// How fast the game's clock runs.
#pragma once

namespace vorbel {

// How much faster than real time the game runs: the environment variable VORBEL_SPEED, 1 when it is not set
// or not a number from 0.1 to 100. Its decimal sign is a point in every country.
[[nodiscard]] double speedFromEnvironment();

} // namespace vorbel
