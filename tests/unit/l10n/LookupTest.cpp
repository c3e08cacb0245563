#include "l10n/L10n.h"

#include "l10n/Table.h"

#include <gtest/gtest.h>

namespace vorbel::L10n {
namespace {

TEST(LookupTest, ThereAre113KeysAnd18AreMessagesOfTheMatch) {
    EXPECT_EQ(keys.size(), 113u);
    EXPECT_EQ(std::ranges::count_if(keys, [](std::string_view key) { return key.starts_with("msg."); }), 18);
}

TEST(LookupTest, GivesTheTextOfTheLanguage) {
    EXPECT_EQ(t("menu.play", AppLanguage::en), "Play");
    EXPECT_EQ(t("menu.play", AppLanguage::ru), "Играть");
}

TEST(LookupTest, GivesTheGermanText) {
    EXPECT_EQ(t("menu.play", AppLanguage::de), "Spielen");
}

TEST(LookupTest, ATextThatTheLanguageLacksIsShownInEnglish) {
    EXPECT_EQ(t("msg.initial", AppLanguage::ru), "Press [SPACE] to start aiming");
}

TEST(LookupTest, AnUnknownKeyFromStoredDataShowsAsItself) {
    for (const char* name :
         {"menu.unknown", "", "menu", "menu.pla", "menu.play ", "MENU.PLAY", "zzz", "Red"}) {
        EXPECT_EQ(TextKey::named(name), std::nullopt) << name;
        for (const AppLanguage language : allLanguages) {
            EXPECT_EQ(tNamed(name, language), name);
        }
    }
}

TEST(LookupTest, AKnownKeyFromStoredDataShowsItsText) {
    for (const std::string_view name : keys) {
        const auto key = TextKey::named(name);
        ASSERT_TRUE(key) << name;
        EXPECT_EQ(key->name(), name);
        EXPECT_EQ(tNamed(name, AppLanguage::ru), t(*key, AppLanguage::ru));
    }
    EXPECT_EQ(tNamed("diary.win", AppLanguage::de), "Sieg");
}

TEST(LookupTest, EveryKeyHasATextInEveryLanguage) {
    for (const AppLanguage language : allLanguages) {
        for (const std::string_view key : keys) {
            EXPECT_FALSE(tNamed(key, language).empty()) << key;
            EXPECT_NE(tNamed(key, language), key);
        }
    }
}

TEST(LookupTest, TitleOfTheProgramIsNotTranslated) {
    for (const AppLanguage language : allLanguages) {
        EXPECT_TRUE(t("about.text", language).starts_with("VORBEL\n\n")) << rawValue(language);
    }
}

} // namespace
} // namespace vorbel::L10n
