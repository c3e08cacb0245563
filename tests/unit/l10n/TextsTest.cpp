// What every language's texts have in common with the English ones, and what is theirs alone.
#include "tests/unit/l10n/EachLanguage.h"
#include "tests/unit/l10n/SameWords.h"
#include "tests/unit/l10n/Utf8.h"

#include <set>

namespace vorbel::test {
namespace {

using TextsTest = EachLanguage;

// The names of keys in square brackets other than the arrows.
std::set<std::string_view> keyNames(std::string_view text) {
    std::set<std::string_view> names;
    for (std::string_view part : split(text, '[')) {
        const std::size_t end = part.find(']');
        if (end != std::string_view::npos && codePoints(part.substr(0, end)).size() > 1) {
            names.insert(part.substr(0, end));
        }
    }
    return names;
}

// What tells the kinds of lines apart: blank, bullet, the number of a rule, other.
char32_t kindOfLine(std::string_view line) {
    if (line.empty()) {
        return U' ';
    }
    const char32_t first = codePoints(line).front();
    if (first == U'・') { // the middle dot of Japanese
        return U'·';
    }
    return first == U'·' || (first >= U'0' && first <= U'9') ? first : U'x';
}

TEST_P(TextsTest, AreComplete) {
    for (const std::string_view key : L10n::keys) {
        const bool isComposedByTheGame = GetParam() == AppLanguage::ru && key.starts_with("msg.");
        EXPECT_EQ(texts.contains(key), !isComposedByTheGame) << key;
    }
    EXPECT_EQ(texts.size(), (GetParam() == AppLanguage::ru ? 95u : 113u) + L10n::extraKeys.size());
    for (const std::string_view key : L10n::extraKeys) {
        EXPECT_TRUE(texts.contains(key)) << key;
    }
}

TEST_P(TextsTest, HaveThePlaceholdersOfTheEnglishOnes) {
    for (const auto& [key, text] : texts) {
        if (!key.starts_with("unit.")) { // whose forms QuantityTest counts
            EXPECT_EQ(count(text, "%@"), count(english.at(key), "%@")) << key;
        }
        EXPECT_EQ(count(text, "%"), count(text, "%@")) << key;
        EXPECT_EQ(key.ends_with(".format"), count(text, "%@") > 0) << key;
    }
}

TEST_P(TextsTest, EndCounterSaysOf4) {
    EXPECT_EQ(count(texts.at("label.end.format"), "4"), 1u);
}

TEST_P(TextsTest, HaveTheLinesOfTheEnglishOnes) {
    for (const auto& [key, text] : texts) {
        const auto lines = split(text, '\n');
        const auto englishLines = split(english.at(key), '\n');
        ASSERT_EQ(lines.size(), englishLines.size()) << key;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            // A text of one line may begin as the language likes: with a digit or a word.
            EXPECT_TRUE(lines.size() == 1 || kindOfLine(lines[i]) == kindOfLine(englishLines[i]))
                << key << ", line " << i + 1;
        }
    }
}

TEST_P(TextsTest, HaveNoLeadingTrailingOrDoubledBlanks) {
    for (const auto& [key, text] : texts) {
        for (const std::string_view line : split(text, '\n')) {
            std::u32string points = codePoints(line);
            for (char32_t& point : points) {
                if (point == U'\u00A0' || point == U'\u202F' || point == U'\u3000') {
                    point = U' ';
                }
            }
            EXPECT_FALSE(points.starts_with(U' ') || points.ends_with(U' ')) << key << ": " << text;
            EXPECT_EQ(points.find(U"  "), std::u32string::npos) << key << ": " << text;
        }
    }
}

TEST_P(TextsTest, NameTheSpaceBarEverywhereTheSame) {
    std::set<std::string_view> names;
    for (const auto& [key, text] : texts) {
        EXPECT_EQ(count(text, "["), count(english.at(key), "[")) << key;
        EXPECT_EQ(count(text, "]"), count(english.at(key), "]")) << key;
        EXPECT_EQ(keyNames(text).size(), keyNames(english.at(key)).size()) << key;
        for (const char* arrow : {"[←]", "[→]", "[↑]", "[↓]"}) {
            EXPECT_EQ(count(text, arrow), count(english.at(key), arrow)) << key;
        }
        if (!key.starts_with("options.")) { // these name the keys of other actions
            names.merge(keyNames(text));
        }
    }
    EXPECT_EQ(names.size(), 1u) << testing::PrintToString(names);
}

TEST_P(TextsTest, AreNotLeftInEnglish) {
    if (GetParam() == AppLanguage::en) {
        return;
    }
    const auto listed = sameAsEnglish.find(GetParam());
    const auto isListed = [&](std::string_view key) {
        return listed != sameAsEnglish.end() && listed->second.contains(key);
    };
    for (const auto& [key, text] : texts) {
        if (isPlaceholdersAlone(key)) {
            continue;
        }
        EXPECT_EQ(text == english.at(key), isListed(key)) << key << ": " << text;
    }
}

TEST_P(TextsTest, TellChoicesSideBySideApart) {
    for (const char* family : {"team.", "difficulty.", "rank.", "country.", "bc.desc.", "diary."}) {
        std::map<std::string_view, std::string_view> keyOf;
        for (const auto& [key, text] : texts) {
            if (key.starts_with(family)) {
                const bool isCapsOfSameTeam =
                    key.ends_with(".caps"); // scripts without capitals repeat the name
                const auto [same, isNew] = keyOf.emplace(text, key);
                EXPECT_TRUE(isNew || isCapsOfSameTeam) << key << " and " << same->second << ": " << text;
            }
        }
    }
    EXPECT_NE(texts.at("team.red.caps"), texts.at("team.blue.caps"));
}

// Capitals of the Latin, Greek and Cyrillic letters that the texts use.
bool isCapital(char32_t letter) {
    return (letter >= U'A' && letter <= U'Z') || (letter >= U'À' && letter <= U'Þ') ||
           (letter >= U'Α' && letter <= U'Ω') || (letter >= U'Ѐ' && letter <= U'Я') || letter == U'Ґ';
}

// The name of the winner within is not in capitals: words around it that are would shout past it.
TEST_P(TextsTest, TellTheWinnerOfAMatchWithoutShouting) {
    if (GetParam() == AppLanguage::ru || GetParam() == AppLanguage::en) {
        return;
    }
    const std::u32string sentence = codePoints(texts.at("msg.teamWinMatch.format"));
    for (std::size_t i = 1; i < sentence.size(); ++i) {
        EXPECT_FALSE(isCapital(sentence[i - 1]) && isCapital(sentence[i]))
            << texts.at("msg.teamWinMatch.format");
    }
}

INSTANTIATE_TEST_SUITE_P(L10n, TextsTest, testing::ValuesIn(allLanguages), nameOf);

} // namespace
} // namespace vorbel::test
