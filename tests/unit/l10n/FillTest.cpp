#include "l10n/L10n.h"

#include <gtest/gtest.h>

namespace vorbel::L10n {
namespace {

std::string filled(TextKey key, std::initializer_list<std::string_view> arguments) {
    return fill(t(key, AppLanguage::en), arguments);
}

TEST(FillTest, ArgumentsTakeThePlaceholdersFromLeftToRight) {
    EXPECT_EQ(fill("%@ %@:%@.", {"a", "b", "c"}), "a b:c.");
}

TEST(FillTest, PlaceholdersLeftOverStayAsTheyAre) {
    EXPECT_EQ(fill("%@ of %@", {"1"}), "1 of %@");
}

TEST(FillTest, ArgumentsLeftOverAreIgnored) {
    EXPECT_EQ(fill("Rank: %@", {"Novice", "4"}), "Rank: Novice");
    EXPECT_EQ(fill("Draw", {"1"}), "Draw");
}

TEST(FillTest, APlaceholderInsideAnArgumentIsText) {
    EXPECT_EQ(fill("%@ %@", {"%@", "b"}), "%@ b");
}

TEST(FillTest, EmptyTextsStayEmpty) {
    EXPECT_EQ(fill("", {"a"}), "");
    EXPECT_EQ(fill("[%@]", {""}), "[]");
}

TEST(FillTest, ASinglePercentSignIsText) {
    EXPECT_EQ(fill("50 % %@", {"a"}), "50 % a");
}

TEST(FillTest, EndCounterAlwaysShowsOf4) {
    EXPECT_EQ(filled("label.end.format", {"1"}), "End 1 of 4");
    EXPECT_EQ(filled("label.end.format", {"7"}), "End 7 of 4"); // an extra end
}

TEST(FillTest, TemplatesReadAsSentences) {
    EXPECT_EQ(filled("label.playingAs.format", {"France", "BC2"}), "Playing for: France · Class BC2");
    EXPECT_EQ(filled("menu.rank.format", {"Novice"}), "Rank: Novice");
    EXPECT_EQ(filled("menu.gamesNext.format", {"2", "1"}), "Matches played: 2 · to next rank: 1");
    EXPECT_EQ(filled("menu.gamesMax.format", {"60"}), "Matches played: 60 · max rank reached");
    EXPECT_EQ(filled("diary.totalXP.format", {"12"}), "Experience (XP): 12");
    EXPECT_EQ(filled("diary.entry.format", {"Win", "1"}), "Win (+1 XP)");
    EXPECT_EQ(filled("msg.tournamentRound.format", {"1", "4", "Japan", "Easy"}),
              "Tournament round 1/4! Opponent: Japan (Easy). [SPACE] to aim");
}

} // namespace
} // namespace vorbel::L10n
