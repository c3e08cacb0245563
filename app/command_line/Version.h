// Which version of the game this is.
#pragma once

#include <string_view>

namespace vorbel {

// As semver.org numbers them: "1.1.0".
[[nodiscard]] std::string_view version();

} // namespace vorbel
