// What there is of the desktop's speech service.
#pragma once

#include <string>

namespace vorbel {

// One line: whether its library is installed and whether the service answers, which is not started for this and gets two
// seconds.
[[nodiscard]] std::string speechFacts();

} // namespace vorbel
