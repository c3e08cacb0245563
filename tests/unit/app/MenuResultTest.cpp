// The screen after a match: what it shows, and how it goes on from there.
#include "tests/unit/app/ViewFixture.h"

#include <numeric>

namespace vorbel {

class MenuResultTest : public ViewTest {
protected:
    MenuModel& menu = *view.menu();
    MenuResult& result = *menu.result();

    MenuResultTest() {
        speak(AppLanguage::en);
        hideMenu();
    }

    void reachRound(int round) {
        for (match.startTournament(Country::france); match.tournamentRound < round; menu.goOn()) {
            finishMatch(5, 2);
        }
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
    playMatch();
    letQueueRun();
    const std::vector<EndResult>& history = match.endHistory;
    ASSERT_GE(history.size(), 4U);
    ASSERT_EQ(result.ends().size(), static_cast<int>(history.size()));
    EXPECT_EQ(result.ends().mid(0, 4), QStringList({QStringLiteral("End 1"), QStringLiteral("End 2"),
                                                    QStringLiteral("End 3"), QStringLiteral("End 4")}));
    for (int i = 0; i < result.ends().size(); ++i) {
        EXPECT_EQ(result.redPoints()[i], history[static_cast<std::size_t>(i)].red);
        EXPECT_EQ(result.bluePoints()[i], history[static_cast<std::size_t>(i)].blue);
    }
    EXPECT_EQ(std::accumulate(result.redPoints().begin(), result.redPoints().end(), 0), result.redScore());
    EXPECT_EQ(std::accumulate(result.bluePoints().begin(), result.bluePoints().end(), 0), result.blueScore());
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
        reachRound(round);
        finishMatch(5, 2);
        EXPECT_EQ(result.tournament(), QStringLiteral("Tournament"));
        EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Next Round"));
        menu.goOn();
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::hidden);
        EXPECT_EQ(match.tournamentRound, round + 1);
        EXPECT_TRUE(match.tournamentActive);
    }
}

TEST_F(MenuResultTest, OfTheLastRoundLeadsToTheMainMenuAsChampion) {
    reachRound(4);
    finishMatch(5, 2);
    EXPECT_EQ(result.matchResultButtonLabel(), QStringLiteral("Main Menu"));
    menu.goOn();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_FALSE(match.tournamentActive);
    EXPECT_EQ(match.message.get(), "TOURNAMENT CHAMPION! You won all 4 rounds! [SPACE] for a new game");
}

TEST_F(MenuResultTest, OfALostRoundLeadsToTheMainMenu) {
    reachRound(2);
    finishMatch(1, 2);
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
