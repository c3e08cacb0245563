// How the texts of the program are put together, at compile time, into one table.
#pragma once

#include "l10n/AppLanguage.h"
#include "l10n/Keys.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace vorbel::L10n {

struct Text {
    std::string_view key;
    std::string_view text; // UTF-8; never empty
};

// The texts of one language, as its file lists them.
struct LanguageTexts {
    AppLanguage language;
    std::span<const Text> texts;
};

// The texts of one language, each in the place of its key in `keys`; empty where the language has none.
using Column = std::array<std::string_view, keys.size()>;

// One column for each language, in the order of AppLanguage.
using Table = std::array<Column, languageCount>;

// The exceptions are for the compiler alone: evaluated at compile time, the one that is reached stops the
// compilation and its text stands in the message. One pass over the keys, since compilers bound the steps of
// an evaluation.
[[nodiscard]] consteval Column columnOf(std::span<const Text> texts) {
    Column column{};
    std::size_t place = 0;
    for (const Text& entry : texts) {
        if (entry.text.empty()) {
            throw "a text is empty";
        }
        while (place < keys.size() && keys[place] != entry.key) {
            ++place;
        }
        if (place == keys.size() && std::ranges::find(keys, entry.key) == keys.end()) {
            throw "a key is not in Keys.h";
        }
        if (place == keys.size()) {
            throw "a key has two texts in one language, or is not in the order of Keys.h";
        }
        column[place++] = entry.text;
    }
    return column;
}

[[nodiscard]] consteval Table tableOf(std::span<const LanguageTexts> languages) {
    Table table{};
    std::array<bool, languageCount> filled{};
    for (const LanguageTexts& entry : languages) {
        const auto place = static_cast<std::size_t>(entry.language);
        if (filled[place]) {
            throw "a language is listed twice";
        }
        filled[place] = true;
        table[place] = columnOf(entry.texts);
    }
    return table;
}

// The whole table, in the program's read-only data: nothing is built at start-up.
extern const Table table;

} // namespace vorbel::L10n
