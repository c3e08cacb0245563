// Which physics, rules and computer a match was played with.
#pragma once

#include <string_view>

namespace vorbel::recording {

// The signature of `vorbel-sim --signature`: who changes how matches go changes it here as well, and recordings of
// before are refused by name instead of going astray.
inline constexpr std::string_view physicsId = "6bdfeb174eb60fe6";

} // namespace vorbel::recording
