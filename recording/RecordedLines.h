// The lines of a recording's file, each a JSON object: written here, and read here.
#pragma once

#include "recording/Recording.h"

#include <optional>

namespace vorbel::recording {

// Each ends with a line break.
[[nodiscard]] std::string lineOf(const Heading& heading);
[[nodiscard]] std::string lineOf(const Entry& entry);

struct Foreign {}; // no recording of a match
struct Newer {
    int version = 0;
}; // one that a newer game wrote

[[nodiscard]] std::variant<Heading, Foreign, Newer> headingIn(std::string_view line);
[[nodiscard]] std::optional<Entry> entryIn(std::string_view line); // none: no such line was ever written

} // namespace vorbel::recording
