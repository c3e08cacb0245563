// Which controllers SDL finds on this machine.
#pragma once

#include <string>
#include <vector>

namespace vorbel {

// Their names, each with whether SDL knows its buttons.
[[nodiscard]] std::vector<std::string> controllerNames();

} // namespace vorbel
