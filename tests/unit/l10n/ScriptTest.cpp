// Each language is written in its own letters.
#include "tests/unit/l10n/EachLanguage.h"
#include "tests/unit/l10n/Utf8.h"

#include <set>

namespace vorbel::test {
namespace {

using ScriptTest = EachLanguage;

// Names and abbreviations that stay in Latin letters in every language, those of keys among them.
const std::set<std::string_view> latinEverywhere{"VORBEL", "vorbel-sim", "BC1", "BC2",   "BC3",       "BC4",
                                                 "Qt",     "OpenGL",     "SDL", "XP",    "Bullet",    "3D",
                                                 "AI",     "OK",         "M",   "Shift", "Backspace", "W"};

std::set<Script> scriptsOf(AppLanguage language) {
    switch (language) {
    case AppLanguage::ru:
    case AppLanguage::uk:
        return {Script::cyrillic};
    case AppLanguage::el:
        return {Script::greek};
    case AppLanguage::zh:
        return {Script::han};
    case AppLanguage::ja:
        return {Script::han, Script::kana};
    case AppLanguage::ko:
        return {Script::hangul};
    case AppLanguage::ar:
        return {Script::arabic};
    case AppLanguage::hi:
        return {Script::devanagari};
    case AppLanguage::th:
        return {Script::thai};
    default:
        return {Script::latin};
    }
}

// Letters of the same script that the language does not have, where mixing them up is easy.
std::u32string_view foreignLetters(AppLanguage language) {
    switch (language) {
    case AppLanguage::ru:
        return U"іїєґІЇЄҐ";
    case AppLanguage::uk:
        return U"ыэъёЫЭЪЁ";
    case AppLanguage::ar:
        return U"پچژگکی۰۱۲۳۴۵۶۷۸۹";
    case AppLanguage::de:
        return U"àâçéèêëîïôùûñøåłšž";
    default:
        return U"";
    }
}

bool hasLatinLetters(AppLanguage language) {
    return scriptsOf(language).contains(Script::latin);
}

TEST_P(ScriptTest, AreUtf8AndHoldNoUnexpectedSigns) {
    for (const auto& [key, text] : texts) {
        for (const char32_t point : codePoints(text)) {
            EXPECT_NE(scriptOf(point), Script::other)
                << key << ": U+" << std::hex << static_cast<unsigned>(point) << " in " << text;
        }
    }
}

TEST_P(ScriptTest, HoldNoLettersOfAnotherScript) {
    auto allowed = scriptsOf(GetParam());
    allowed.insert({Script::common, Script::latin});
    for (const auto& [key, text] : texts) {
        for (const char32_t point : codePoints(text)) {
            EXPECT_TRUE(allowed.contains(scriptOf(point)))
                << key << ": U+" << std::hex << static_cast<unsigned>(point) << " in " << text;
        }
    }
}

TEST_P(ScriptTest, HoldLatinWordsOnlyWhereTheyAreNames) {
    if (hasLatinLetters(GetParam())) {
        return;
    }
    for (const auto& [key, text] : texts) {
        for (const std::string& word : latinWords(text)) {
            EXPECT_TRUE(latinEverywhere.contains(word)) << key << ": " << word << " in " << text;
        }
    }
}

TEST_P(ScriptTest, HoldLettersOfTheirOwnInEachText) {
    const auto own = scriptsOf(GetParam());
    for (const auto& [key, text] : texts) {
        const auto points = codePoints(text);
        const bool hasOwn =
            std::ranges::any_of(points, [&](char32_t p) { return own.contains(scriptOf(p)); });
        const bool isAbbreviation = isPlaceholdersAlone(key) || text == "AI";
        EXPECT_TRUE(hasOwn || isAbbreviation) << key << ": " << text;
    }
}

TEST_P(ScriptTest, HoldNoLettersThatTheLanguageLacks) {
    for (const auto& [key, text] : texts) {
        for (const char32_t letter : foreignLetters(GetParam())) {
            EXPECT_EQ(codePoints(text).find(letter), std::u32string::npos) << key << ": " << text;
        }
    }
}

TEST_P(ScriptTest, JapaneseHasKanaAndTheOthersTheirMainScript) {
    std::set<Script> used;
    for (const auto& [key, text] : texts) {
        for (const char32_t point : codePoints(text)) {
            used.insert(scriptOf(point));
        }
    }
    for (const Script script : scriptsOf(GetParam())) {
        EXPECT_TRUE(used.contains(script));
    }
}

INSTANTIATE_TEST_SUITE_P(L10n, ScriptTest, testing::ValuesIn(allLanguages), nameOf);

} // namespace
} // namespace vorbel::test
