#include "tests/unit/l10n/Utf8.h"

#include <array>
#include <cstddef>

namespace vorbel::test {

namespace {

struct Range {
    char32_t first;
    char32_t last;
    Script script;
};

// Blocks of the Unicode standard, as far as the twenty languages need them; the first that fits counts.
constexpr auto ranges = std::to_array<Range>({
    {U'\n', U'\n', Script::common},   {U' ', U'@', Script::common},
    {U'A', U'Z', Script::latin},      {U'[', U'`', Script::common},
    {U'a', U'z', Script::latin},      {U'{', U'~', Script::common},
    {0x00A0, 0x00A0, Script::common}, {0x00A1, 0x00BF, Script::common},
    {0x00D7, 0x00D7, Script::common}, {0x00C0, 0x024F, Script::latin},
    {0x0370, 0x03FF, Script::greek},  {0x0400, 0x052F, Script::cyrillic},
    {0x0600, 0x06FF, Script::arabic}, {0x0900, 0x097F, Script::devanagari},
    {0x0E00, 0x0E7F, Script::thai},   {0x1E00, 0x1EFF, Script::latin},
    {0x1F00, 0x1FFF, Script::greek},  {0x200C, 0x200D, Script::common},
    {0x2010, 0x2027, Script::common}, {0x202F, 0x202F, Script::common},
    {0x2030, 0x203A, Script::common}, {0x2066, 0x2069, Script::common},
    {0x2116, 0x2116, Script::common}, {0x2190, 0x2193, Script::common},
    {0x3001, 0x301F, Script::common}, {0x3040, 0x30FF, Script::kana},
    {0x3400, 0x9FFF, Script::han},    {0xAC00, 0xD7A3, Script::hangul},
    {0xFF01, 0xFF20, Script::common}, {0xFF3B, 0xFF40, Script::common},
    {0xFF5B, 0xFF65, Script::common},
});

// Length in bytes of the sequence that this byte leads; 0 for a byte that leads none.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead < 0xE0) {
        return 2;
    }
    if (lead >= 0xE0 && lead < 0xF0) {
        return 3;
    }
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool belongsToWord(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
}

} // namespace

std::u32string codePoints(std::string_view utf8) {
    std::u32string points;
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const std::size_t length = sequenceLength(lead);
        char32_t point = length < 2 ? lead : lead & (0xFFu >> (length + 1));
        bool valid = length > 0 && i + length <= utf8.size();
        for (std::size_t k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + k]);
            valid = (next & 0xC0u) == 0x80u;
            point = (point << 6u) | (next & 0x3Fu);
        }
        points += valid ? point : U'\uFFFD';
        i += valid ? length : 1;
    }
    return points;
}

Script scriptOf(char32_t point) {
    for (const Range& range : ranges) {
        if (point >= range.first && point <= range.last) {
            return range.script;
        }
    }
    return Script::other;
}

std::vector<std::string> latinWords(std::string_view utf8) {
    std::vector<std::string> words(1);
    for (const char c : utf8) {
        if (belongsToWord(c)) {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    std::erase_if(words, [](const std::string& word) {
        return word.find_first_not_of("0123456789-") == std::string::npos;
    });
    return words;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

std::size_t count(std::string_view text, std::string_view part) {
    std::size_t times = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++times;
    }
    return times;
}

} // namespace vorbel::test
