#include "career/Diary.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class MatchEndTest : public ViewTest {
protected:
    void beAthlete() { defaults.setBoolean("boccia_isRealAthlete", true); }
    [[nodiscard]] std::vector<DiaryEntry> diary() const { return decodeDiary(view.diaryData()); }
};

TEST_F(MatchEndTest, AWinWithoutTheAthleteSwitchAddsAMatchOnly) {
    finishMatch(5, 2);
    EXPECT_EQ(view.gamesPlayed(), 1);
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 1);
    EXPECT_EQ(view.athleteXP(), 0);
    EXPECT_TRUE(diary().empty());
}

TEST_F(MatchEndTest, AWinOfAnAthleteEarnsAPointAndADiaryEntry) {
    beAthlete();
    finishMatch(5, 2);
    EXPECT_EQ(view.athleteXP(), 1);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.win");
    EXPECT_EQ(diary()[0].xpGained, 1);
    EXPECT_EQ(diary()[0].id.size(), 36U);
    EXPECT_LT(std::chrono::system_clock::now() - diary()[0].date, std::chrono::minutes(1));
}

TEST_F(MatchEndTest, ALossOfAnAthleteIsADiaryEntryWorthNothing) {
    beAthlete();
    finishMatch(1, 2);
    EXPECT_EQ(view.athleteXP(), 0);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.loss");
    EXPECT_EQ(diary()[0].xpGained, 0);
}

TEST_F(MatchEndTest, ADrawOfAnAthleteIsADiaryEntryWorthNothing) {
    beAthlete();
    finishMatch(2, 2);
    EXPECT_EQ(view.gamesPlayed(), 1);
    EXPECT_EQ(view.athleteXP(), 0);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.draw");
}

TEST_F(MatchEndTest, ADrawWithoutTheAthleteSwitchAddsAMatchOnly) {
    finishMatch(2, 2);
    EXPECT_EQ(view.gamesPlayed(), 1);
    EXPECT_TRUE(diary().empty());
}

TEST_F(MatchEndTest, NewEntriesComeFirst) {
    beAthlete();
    finishMatch(5, 2);
    match.phase = GamePhase::throwingJack;
    letQueueRun();
    finishMatch(0, 2);
    ASSERT_EQ(diary().size(), 2U);
    EXPECT_EQ(diary()[0].resultKey, "diary.loss");
    EXPECT_EQ(diary()[1].resultKey, "diary.win");
}

TEST_F(MatchEndTest, ACorruptedDiaryIsReplacedByTheNextEntry) {
    beAthlete();
    defaults.setBytes("boccia_diaryData", "[{\"id\":");
    finishMatch(5, 2);
    EXPECT_EQ(diary().size(), 1U);
}

TEST_F(MatchEndTest, OtherPhasesRecordNothing) {
    for (const GamePhase phase : {GamePhase::playing, GamePhase::endOver, GamePhase::throwingJack}) {
        match.phase = phase;
        letQueueRun();
    }
    EXPECT_EQ(view.gamesPlayed(), 0);
}

TEST_F(MatchEndTest, AMatchIsRecordedOnceHoweverOftenItsResultIsLookedAt) {
    finishMatch(5, 2);
    match.message = "again";
    letQueueRun();
    EXPECT_EQ(view.gamesPlayed(), 1);
}

TEST_F(MatchEndTest, MatchesOfAnotherRunningGameAreNotLost) {
    ContentView other(platform.services(), defaults);
    finishMatch(5, 2);
    other.gameLogic().phase = GamePhase::gameOver;
    letQueueRun();
    EXPECT_EQ(view.gamesPlayed(), 2);
}

} // namespace vorbel
