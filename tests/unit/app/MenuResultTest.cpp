// The screen after a match: what it shows, and how it goes on from there.
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class MenuResultTest : public ViewTest {
protected:
    MenuModel& menu = *view.menu();
    MenuResult& result = *menu.result();

    MenuResultTest() {
        speak(AppLanguage::en);
        hideMenu();
    }

    void finishTournamentMatch(int round, int red, int blue) {
        match.tournamentActive = true;
        match.tournamentRound = round;
        finishMatch(red, blue);
    }
};

TEST_F(MenuResultTest, IsShownWhenAMatchEnds) {
    finishMatch(5, 2);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
    EXPECT_EQ(result.title(), QStringLiteral("Match Result"));
    EXPECT_EQ(result.redScore(), 5);
    EXPECT_EQ(result.blueScore(), 2);
    EXPECT_EQ(result.scoreLabel(), QStringLiteral("Score:"));
    EXPECT_EQ(result.winner(), QString::fromStdString(match.matchWinnerTitle()));
    EXPECT_TRUE(result.tournament().isEmpty());
}

TEST_F(MenuResultTest, ListsEachEndWithBothSidesPoints) {
    match.endHistory = std::vector<EndResult>{{1, 2, 0}, {2, 0, 1}, {3, 0, 0}, {4, 3, 0}};
    finishMatch(5, 1);
    EXPECT_EQ(result.ends(), QStringList({QStringLiteral("End 1"), QStringLiteral("End 2"),
                                          QStringLiteral("End 3"), QStringLiteral("End 4")}));
    EXPECT_EQ(result.redPoints(), QList<int>({2, 0, 0, 3}));
    EXPECT_EQ(result.bluePoints(), QList<int>({0, 1, 0, 0}));
}

TEST_F(MenuResultTest, FollowsTheLanguageWhileItIsShown) {
    finishMatch(5, 2);
    speak(AppLanguage::ru);
    EXPECT_EQ(result.winner(), QString::fromStdString(match.matchWinnerTitle()));
    EXPECT_EQ(result.redName(), QString::fromStdString(match.t("team.red")));
}

TEST_F(MenuResultTest, OfASingleMatchLeadsToTheMainMenuWithANewMatchBehindIt) {
    finishMatch(5, 2);
    EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Main Menu"));
    menu.goOn();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_EQ(match.phase, GamePhase::throwingJack);
    EXPECT_EQ(match.redScore, 0);
}

TEST_F(MenuResultTest, OfAWonRoundLeadsToTheNextRound) {
    for (const int round : {1, 2, 3}) {
        hideMenu();
        finishTournamentMatch(round, 5, 2);
        EXPECT_EQ(result.tournament(), QStringLiteral("Tournament"));
        EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Next Round"));
        menu.goOn();
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::hidden);
        EXPECT_EQ(match.tournamentRound, round + 1);
        EXPECT_TRUE(match.tournamentActive);
        letQueueRun();
    }
}

TEST_F(MenuResultTest, OfTheLastRoundLeadsToTheMainMenuAsChampion) {
    finishTournamentMatch(4, 5, 2);
    EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Main Menu"));
    menu.goOn();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_FALSE(match.tournamentActive);
    EXPECT_EQ(match.message.get(), "TOURNAMENT CHAMPION! You won all 4 rounds! [SPACE] for a new game");
}

TEST_F(MenuResultTest, OfALostRoundLeadsToTheMainMenu) {
    finishTournamentMatch(2, 1, 2);
    EXPECT_EQ(result.tournament(), QStringLiteral("Tournament"));
    EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Main Menu"));
    menu.goOn();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_FALSE(match.tournamentActive);
}

TEST_F(MenuResultTest, StaysAsItIsWhileSpaceIsPressed) {
    finishMatch(5, 2);
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
    EXPECT_EQ(match.phase, GamePhase::gameOver);
    EXPECT_EQ(result.redScore(), 5);
}

} // namespace vorbel
