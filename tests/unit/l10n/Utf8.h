// Code points and letters of the texts under test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorbel::test {

// The code points of a UTF-8 text; U+FFFD stands for each byte that is not UTF-8.
[[nodiscard]] std::u32string codePoints(std::string_view utf8);

enum class Script { common, latin, greek, cyrillic, arabic, devanagari, thai, kana, han, hangul, other };

// `common` is punctuation, digits, blanks and arrows; `other` is whatever no text should contain.
[[nodiscard]] Script scriptOf(char32_t point);

// The runs of Latin letters, digits and inner hyphens that
// begin with an ASCII letter or digit and hold a letter.
[[nodiscard]] std::vector<std::string> latinWords(std::string_view utf8);

// The parts of the text between the separators; at least one.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

// Number of times that the part stands in the text.
[[nodiscard]] std::size_t count(std::string_view text, std::string_view part);

} // namespace vorbel::test
