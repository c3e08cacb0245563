#include "career/Diary.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class CareerRecorderTest : public ViewTest {
protected:
    void beAthlete() { career.setRealAthlete(true); }
    [[nodiscard]] std::vector<DiaryEntry> diary() const { return decodeDiary(career.diaryData()); }
};

TEST_F(CareerRecorderTest, AWinWithoutTheAthleteSwitchAddsAMatchOnly) {
    finishMatch(5, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
    EXPECT_EQ(defaults.integer("boccia_gamesPlayed"), 1);
    EXPECT_EQ(career.athleteXP(), 0);
    EXPECT_TRUE(diary().empty());
}

TEST_F(CareerRecorderTest, AWinOfAnAthleteEarnsAPointAndADiaryEntry) {
    const auto before = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    beAthlete();
    finishMatch(5, 2);
    EXPECT_EQ(career.athleteXP(), 1);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.win");
    EXPECT_EQ(diary()[0].xpGained, 1);
    EXPECT_EQ(diary()[0].id.size(), 36U);
    EXPECT_GE(diary()[0].date, before);
    EXPECT_LE(diary()[0].date, std::chrono::system_clock::now());
}

TEST_F(CareerRecorderTest, ALossOfAnAthleteIsADiaryEntryWorthNothing) {
    beAthlete();
    finishMatch(1, 2);
    EXPECT_EQ(career.athleteXP(), 0);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.loss");
    EXPECT_EQ(diary()[0].xpGained, 0);
}

TEST_F(CareerRecorderTest, ADrawOfAnAthleteIsADiaryEntryWorthNothing) {
    beAthlete();
    finishMatch(2, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
    EXPECT_EQ(career.athleteXP(), 0);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, "diary.draw");
}

TEST_F(CareerRecorderTest, ADrawWithoutTheAthleteSwitchAddsAMatchOnly) {
    finishMatch(2, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
    EXPECT_TRUE(diary().empty());
}

TEST_F(CareerRecorderTest, NewEntriesComeFirst) {
    beAthlete();
    finishMatch(5, 2);
    view.menu()->goOn();
    finishMatch(0, 2);
    ASSERT_EQ(diary().size(), 2U);
    EXPECT_EQ(diary()[0].resultKey, "diary.loss");
    EXPECT_EQ(diary()[1].resultKey, "diary.win");
}

TEST_F(CareerRecorderTest, ACorruptedDiaryIsReplacedByTheNextEntry) {
    beAthlete();
    defaults.setBytes("boccia_diaryData", "[{\"id\":");
    finishMatch(5, 2);
    EXPECT_EQ(diary().size(), 1U);
}

TEST_F(CareerRecorderTest, AMatchIsRecordedAndItsResultOpenedInTheMomentInWhichItEnds) {
    beAthlete();
    hideMenu();
    endMatch(5, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
    EXPECT_EQ(career.athleteXP(), 1);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
}

TEST_F(CareerRecorderTest, AMatchThatEndsWhileAPictureIsBeingDrawnIsRecordedAtOnceAndOnce) {
    view.changes().hold();
    endMatch(5, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
    letQueueRun();
    view.changes().release();
    letQueueRun();
    EXPECT_EQ(career.gamesPlayed(), 1);
}

TEST_F(CareerRecorderTest, PlayPressedAtOnceAfterTheEndLosesNoMatch) {
    beAthlete();
    settings.setStartingTournament(true);
    openMenu.setMenuScreen(MenuScreen::bcClass); // opened while the computers were still playing
    endMatch(5, 2);
    view.menu()->play();
    EXPECT_EQ(match.redScore, 0);
    letQueueRun();
    EXPECT_EQ(career.gamesPlayed(), 1);
    EXPECT_EQ(career.athleteXP(), 1);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::hidden);
}

TEST_F(CareerRecorderTest, AnEndedMatchThatIsToldAgainIsNotRecordedAgain) {
    endMatch(5, 2);
    endMatch(5, 2);
    EXPECT_EQ(career.gamesPlayed(), 1);
}

TEST_F(CareerRecorderTest, WhatIsRecordedOfAPlayedMatchAreItsFinalScores) {
    beAthlete();
    view.changes().hold();
    playMatch();
    EXPECT_EQ(career.gamesPlayed(), 1);
    ASSERT_EQ(diary().size(), 1U);
    EXPECT_EQ(diary()[0].resultKey, match.redScore > match.blueScore ? "diary.win" : "diary.loss");
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
}

TEST_F(CareerRecorderTest, AnEndIsNoMatch) {
    playEnd();
    keyboard.pressAction(); // to the next one
    EXPECT_EQ(match.currentEnd, 2);
    EXPECT_EQ(career.gamesPlayed(), 0);
}

TEST_F(CareerRecorderTest, AMatchIsRecordedOnceHoweverOftenItsResultIsLookedAt) {
    finishMatch(5, 2);
    settings.setSelectedClass(BocciaClass::bc1);
    letQueueRun();
    EXPECT_EQ(career.gamesPlayed(), 1);
}

TEST_F(CareerRecorderTest, MatchesOfAnotherRunningGameAreNotLost) {
    Career other(defaults, platform.random);
    finishMatch(5, 2);
    other.addMatch(1, 2);
    EXPECT_EQ(career.gamesPlayed(), 2);
}

} // namespace vorbel
