// One stored value, and its form as the content of a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vorbel {

struct Bytes {
    std::string data; // any bytes

    bool operator==(const Bytes&) const = default;
};

using DefaultsValue = std::variant<int, bool, std::string, Bytes>;

// The name of the type in a line of its own ("integer", "boolean", "text" or "bytes"), then the value. A text
// that ends with a line break has one more, so that those of text editors can be told from its own.
[[nodiscard]] std::string encoded(const DefaultsValue& value);

// None when the content is not the encoding of any value. Lines may end as Windows ends them, and the line
// break that text editors add at the end is no part of an integer, a boolean or a text.
[[nodiscard]] std::optional<DefaultsValue> decoded(std::string_view content);

} // namespace vorbel
