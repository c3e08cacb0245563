#include "l10n/AppLanguage.h"

#include <gtest/gtest.h>

#include <string>

namespace vorbel {
namespace {

TEST(AppLanguageTest, CasesAreInTheOrderOfTheLanguagePicker) {
    std::string codes;
    for (const AppLanguage language : allLanguages) {
        codes += std::string(rawValue(language)) + " ";
    }
    EXPECT_EQ(codes, "ru en es fr de it pt zh ja ko ar hi tr pl nl uk vi th id el ");
}

TEST(AppLanguageTest, IsOneByte) {
    EXPECT_EQ(sizeof(AppLanguage), 1u);
}

TEST(AppLanguageTest, IsConstructedFromItsOwnCode) {
    EXPECT_EQ(languageFromRawValue("en"), AppLanguage::en);
    for (const AppLanguage language : allLanguages) {
        EXPECT_EQ(languageFromRawValue(rawValue(language)), language);
    }
}

TEST(AppLanguageTest, IsNotConstructedFromAnyOtherText) {
    for (const char* code : {"xx", "EN", "", "e", "en ", " en", "eng", "en_US", "Русский"}) {
        EXPECT_FALSE(languageFromRawValue(code)) << code;
    }
}

TEST(AppLanguageTest, IsRussianWhileNothingIsChosen) {
    const std::string_view nothingStored;
    EXPECT_EQ(languageFromRawValue(nothingStored).value_or(defaultLanguage), AppLanguage::ru);
}

TEST(AppLanguageTest, DisplayNameIsTheLanguagesOwnNameForItself) {
    std::string names;
    for (const AppLanguage language : allLanguages) {
        names += std::string(displayName(language)) + "|";
    }
    EXPECT_EQ(names, "Русский|English|Español|Français|Deutsch|Italiano|Português|中文|日本語|한국어|العربية|"
                     "हिन्दी|Türkçe|Polski|Nederlands|Українська|Tiếng Việt|ไทย|Bahasa Indonesia|Ελληνικά|");
}

} // namespace
} // namespace vorbel
