// One number for how matches go.
#pragma once

#include <cstdint>

namespace vorbel::sim {

// Plays a fixed set of matches at all levels and hashes every throw, resting place and score, rounded to
// millimetres. It changes only when the behaviour of the rules, the computer or the physics does.
[[nodiscard]] std::uint64_t matchSignature();

} // namespace vorbel::sim
