#include "platform/store/DefaultsValue.h"

#include <charconv>

namespace vorbel {

namespace {

constexpr std::string_view integerTag = "integer\n";
constexpr std::string_view booleanTag = "boolean\n";
constexpr std::string_view textTag = "text\n";
constexpr std::string_view bytesTag = "bytes\n";

struct Encoder {
    std::string operator()(int value) const { return std::string(integerTag) + std::to_string(value); }
    std::string operator()(bool value) const { return std::string(booleanTag) + (value ? "true" : "false"); }
    std::string operator()(const std::string& value) const { return std::string(textTag) + value; }
    std::string operator()(const Bytes& value) const { return std::string(bytesTag) + value.data; }
};

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
    const std::string_view tag = content.substr(0, tagEnd);
    const std::string_view rest = content.substr(tagEnd);
    if (tag == integerTag) {
        return decodedInteger(rest);
    }
    if (tag == booleanTag) {
        return decodedBoolean(rest);
    }
    if (tag == textTag) {
        return std::string(rest);
    }
    if (tag == bytesTag) {
        return Bytes{std::string(rest)};
    }
    return std::nullopt;
}

} // namespace vorbel
