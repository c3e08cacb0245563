// Test fixture that runs once for each language.
#pragma once

#include "l10n/Table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

namespace vorbel::test {

[[nodiscard]] inline std::string nameOf(const testing::TestParamInfo<AppLanguage>& info) {
    return std::string(rawValue(info.param));
}

// Texts of signs, placeholders and "XP" alone, which may read the same in every language.
[[nodiscard]] inline bool isPlaceholdersAlone(std::string_view key) {
    return key == "diary.entry.format" || key == "hud.tournament.format" || key == "number.decimalPoint";
}

class EachLanguage : public testing::TestWithParam<AppLanguage> {
protected:
    // A language without a row in the table would be shown in English throughout.
    void SetUp() override { ASSERT_FALSE(texts.empty()) << "not translated"; }

    // The texts that the language has itself, by key.
    [[nodiscard]] static std::map<std::string_view, std::string_view> textsOf(AppLanguage language) {
        std::map<std::string_view, std::string_view> texts;
        for (std::size_t i = 0; i < L10n::keys.size(); ++i) {
            if (const auto text = L10n::table[static_cast<std::size_t>(language)][i]; !text.empty()) {
                texts.emplace(L10n::keys[i], text);
            }
        }
        for (std::size_t i = 0; i < L10n::extraKeys.size(); ++i) {
            texts.emplace(L10n::extraKeys[i], L10n::extraTable[static_cast<std::size_t>(language)][i]);
        }
        return texts;
    }

    const std::map<std::string_view, std::string_view> english = textsOf(AppLanguage::en);
    const std::map<std::string_view, std::string_view> texts = textsOf(GetParam());
};

} // namespace vorbel::test
