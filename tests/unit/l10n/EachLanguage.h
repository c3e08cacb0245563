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
        return texts;
    }

    const std::map<std::string_view, std::string_view> english = textsOf(AppLanguage::en);
    const std::map<std::string_view, std::string_view> texts = textsOf(GetParam());
};

} // namespace vorbel::test
