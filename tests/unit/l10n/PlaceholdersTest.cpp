// The code fills placeholders from left to right: what each stands for is told by the words around it.
#include "tests/unit/l10n/EachLanguage.h"
#include "tests/unit/l10n/Utf8.h"

#include <vector>

namespace vorbel::test {
namespace {

class PlaceholdersTest : public EachLanguage {
protected:
    // The words before, between and after the placeholders: one piece more than there are placeholders.
    [[nodiscard]] std::vector<std::string_view> piecesOf(std::string_view key) const {
        std::vector<std::string_view> pieces;
        std::string_view rest = texts.at(key);
        for (std::size_t at = rest.find("%@"); at != std::string_view::npos; at = rest.find("%@")) {
            pieces.push_back(rest.substr(0, at));
            rest.remove_prefix(at + 2);
        }
        pieces.push_back(rest);
        return pieces;
    }

    // The language's word for an end, without its first letter, which is small within a sentence.
    [[nodiscard]] std::string wordForEnd() const {
        const std::string_view word = texts.at("label.end");
        const std::size_t letter = codePoints(word).size() == 1 ? 0 : word.size() / codePoints(word).size();
        return std::string(word.substr(letter));
    }

    [[nodiscard]] bool hasMessages() const { return GetParam() != AppLanguage::ru; }
};

// What stands between the points of the two sides.
std::string_view scoreSign(AppLanguage language) {
    switch (language) {
    case AppLanguage::es:
    case AppLanguage::fr:
    case AppLanguage::it:
    case AppLanguage::pt:
    case AppLanguage::tr:
    case AppLanguage::nl:
    case AppLanguage::vi:
    case AppLanguage::id:
    case AppLanguage::el:
        return "-";
    default:
        return ":";
    }
}

bool has(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool hasOneOf(std::string_view text, std::initializer_list<std::string_view> parts) {
    return std::ranges::any_of(parts, [&](std::string_view part) { return has(text, part); });
}

TEST_P(PlaceholdersTest, TheNumberOfANewEndComesBeforeTheSide) {
    if (!hasMessages()) {
        return;
    }
    for (const char* key : {"msg.newEndStart.format", "msg.tieBreak.format"}) {
        const auto pieces = piecesOf(key);
        ASSERT_EQ(pieces.size(), 3u);
        const bool before = has(pieces[0], wordForEnd());
        const bool behind = pieces[1].starts_with(texts.at("label.end"));
        const bool ordinal = pieces[1].starts_with(". s" + wordForEnd()); // Turkish: "3. set"
        EXPECT_TRUE(before || behind || ordinal) << key << ": " << texts.at(key);
        EXPECT_FALSE(has(pieces[2], wordForEnd())) << key << ": " << texts.at(key);
    }
}

TEST_P(PlaceholdersTest, ThePointsOfAnEndComeAfterTheWinner) {
    if (!hasMessages()) {
        return;
    }
    const auto pieces = piecesOf("msg.endWon.format");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_TRUE(pieces[1].ends_with(": ") || pieces[1].ends_with("：")) << texts.at("msg.endWon.format");
}

TEST_P(PlaceholdersTest, TheScoreStandsAfterTheResultWithTheLanguagesSignBetween) {
    if (!hasMessages()) {
        return;
    }
    const auto pieces = piecesOf("msg.matchOver.format");
    ASSERT_EQ(pieces.size(), 4u);
    EXPECT_EQ(pieces[0], "");
    EXPECT_EQ(pieces[2], scoreSign(GetParam())) << texts.at("msg.matchOver.format");
}

TEST_P(PlaceholdersTest, RoundComesBeforeTheNumberOfRoundsAndOpponentBeforeLevel) {
    for (const char* key : {"msg.tournamentRound.format", "hud.tournament.format"}) {
        if (!texts.contains(key)) {
            continue;
        }
        const auto pieces = piecesOf(key);
        const std::size_t level = pieces.size() - 2; // the piece before the last placeholder
        EXPECT_TRUE(hasOneOf(pieces[level], {"(", "（"})) << texts.at(key);
        EXPECT_TRUE(hasOneOf(pieces[level + 1], {")", "）"})) << texts.at(key);
        EXPECT_TRUE(hasOneOf(pieces[level - 1], {": ", "：", " · ", "・"})) << texts.at(key);
        EXPECT_FALSE(hasOneOf(pieces[level - 2], {"!", "！", ":", "："})) << texts.at(key); // round of rounds
    }
}

TEST_P(PlaceholdersTest, ExperienceOfADiaryEntryStandsInBracketsAfterTheResult) {
    const auto pieces = piecesOf("diary.entry.format");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_EQ(pieces[0], "");
    EXPECT_TRUE(hasOneOf(pieces[1], {"(", "（"}));
}

TEST_P(PlaceholdersTest, AtEqualDistanceRedIsNamedBeforeBlue) {
    const std::string_view text = texts.at("end.equidistant.format");
    const auto pieces = piecesOf("end.equidistant.format");
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_TRUE(has(pieces[0], texts.at("team.red"))) << text;
    EXPECT_TRUE(has(pieces[1], texts.at("team.blue"))) << text;
    EXPECT_TRUE(pieces[0].ends_with("+")) << text;
    EXPECT_TRUE(pieces[1].ends_with("+")) << text;
}

// "1/4" is a quarter-final in many languages; English says it so by design, and some have no such reading.
TEST_P(PlaceholdersTest, RoundsAreSaidInWordsWhereASlashReadsAsAQuarterFinal) {
    switch (GetParam()) {
    case AppLanguage::ru:
    case AppLanguage::en:
    case AppLanguage::hi:
    case AppLanguage::tr:
        return;
    default:
        for (const char* key : {"msg.tournamentRound.format", "msg.tournamentEliminated.format"}) {
            EXPECT_FALSE(has(texts.at(key), "%@/%@")) << texts.at(key);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(L10n, PlaceholdersTest, testing::ValuesIn(allLanguages), nameOf);

} // namespace
} // namespace vorbel::test
