// What SDL finds on this machine.
#pragma once

#include <string>
#include <vector>

namespace vorbel {

// One line: SDL's version, the sound system that it speaks to, and the sound devices there, or that there is none.
[[nodiscard]] std::string soundFacts();

// The controllers' names, each with whether SDL knows its buttons.
[[nodiscard]] std::vector<std::string> controllerNames();

} // namespace vorbel
