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

// A list of keys.
template <std::size_t keyCount>
using Names = std::array<std::string_view, keyCount>;

template <std::size_t keyCount>
[[nodiscard]] consteval bool areDistinct(Names<keyCount> names) {
    std::ranges::sort(names);
    return std::ranges::adjacent_find(names) == names.end();
}
static_assert(areDistinct(joined(keys, extraKeys)), "a key is listed twice in Keys.h");

// The texts of one language, as its file lists them.
struct LanguageTexts {
    AppLanguage language;
    std::span<const Text> texts;
};

// The texts of one language, each in the place of its key in the list of keys; empty where it has none.
template <std::size_t keyCount>
using Column = std::array<std::string_view, keyCount>;

// One column for each language, in the order of AppLanguage.
template <std::size_t keyCount>
using Table = std::array<Column<keyCount>, languageCount>;

// The exceptions are for the compiler alone: evaluated at compile time, the one that is reached stops the
// compilation and its text stands in the message. One pass over the keys, since compilers bound the steps of
// an evaluation.
template <std::size_t keyCount>
[[nodiscard]] consteval Column<keyCount> columnOf(const Names<keyCount>& names, std::span<const Text> texts) {
    Column<keyCount> column{};
    std::size_t place = 0;
    for (const Text& entry : texts) {
        if (entry.text.empty()) {
            throw "a text is empty";
        }
        while (place < names.size() && names[place] != entry.key) {
            ++place;
        }
        if (place == names.size() && std::ranges::find(names, entry.key) == names.end()) {
            throw "a key is not in Keys.h";
        }
        if (place == names.size()) {
            throw "a key has two texts in one language, or is not in the order of Keys.h";
        }
        column[place++] = entry.text;
    }
    return column;
}

template <std::size_t keyCount>
[[nodiscard]] consteval Table<keyCount> tableOf(const Names<keyCount>& names,
                                                std::span<const LanguageTexts> languages) {
    Table<keyCount> table{};
    std::array<bool, languageCount> filled{};
    for (const LanguageTexts& entry : languages) {
        const auto place = static_cast<std::size_t>(entry.language);
        if (filled[place]) {
            throw "a language is listed twice";
        }
        filled[place] = true;
        table[place] = columnOf(names, entry.texts);
    }
    return table;
}

// The table as it is, of which no language may lack a text.
template <std::size_t keyCount>
[[nodiscard]] consteval Table<keyCount> complete(const Table<keyCount>& table) {
    for (const auto& column : table) {
        if (std::ranges::find(column, std::string_view()) != column.end()) {
            throw "a language lacks a text";
        }
    }
    return table;
}

// In the program's read-only data: nothing is built at start-up.
extern const Table<keys.size()> table;
extern const Table<extraKeys.size()> extraTable;

} // namespace vorbel::L10n
