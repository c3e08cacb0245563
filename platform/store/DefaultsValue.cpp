#include "platform/store/DefaultsValue.h"

#include <charconv>

namespace vorbel {

namespace {

struct Encoder {
    std::string operator()(int value) const { return "integer\n" + std::to_string(value); }
    std::string operator()(bool value) const { return std::string("boolean\n") + (value ? "true" : "false"); }
    std::string operator()(const std::string& value) const {
        return "text\n" + value + (value.ends_with('\n') ? "\n" : "");
    }
    std::string operator()(const Bytes& value) const { return "bytes\n" + value.data; }
};

// Without the line break at its end, if there is one.
std::string_view chomped(std::string_view line) {
    if (line.ends_with('\n')) {
        line.remove_suffix(line.ends_with("\r\n") ? 2 : 1);
    }
    return line;
}

std::optional<DefaultsValue> decodedInteger(std::string_view digits) {
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    return value;
}

std::optional<DefaultsValue> decodedBoolean(std::string_view word) {
    if (word != "true" && word != "false") {
        return std::nullopt;
    }
    return word == "true";
}

} // namespace

std::string encoded(const DefaultsValue& value) {
    return std::visit(Encoder{}, value);
}

std::optional<DefaultsValue> decoded(std::string_view content) {
    const std::size_t tagEnd = content.find('\n') + 1; // 0 when there is no line end
    const std::string_view tag = chomped(content.substr(0, tagEnd));
    const std::string_view rest = content.substr(tagEnd);
    if (tag == "integer") {
        return decodedInteger(chomped(rest));
    }
    if (tag == "boolean") {
        return decodedBoolean(chomped(rest));
    }
    if (tag == "text") {
        return std::string(chomped(rest));
    }
    if (tag == "bytes") {
        return Bytes{std::string(rest)};
    }
    return std::nullopt;
}

} // namespace vorbel
