// Which fonts this machine has for the texts of each language.
#pragma once

#include <string>

namespace vorbel {

// A line for each language: its code, the family that is meant for it, and, when that is missing, what is shown
// instead. Needs the application object.
[[nodiscard]] std::string fontFacts();

} // namespace vorbel
