// What SDL finds on this machine to be heard through.
#pragma once

#include <string>

namespace vorbel {

// One line: SDL's version, the sound system that it speaks to, and the sound devices there, or that there is none.
[[nodiscard]] std::string soundFacts();

} // namespace vorbel
