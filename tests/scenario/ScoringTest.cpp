// The points of an end, the result of the match, and extra ends.
#include "tests/scenario/Match.h"

namespace vorbel::test {

class ScoringTest : public MatchTest {
protected:
    ScoringTest() {
        humanAgainstHuman();
        emptyCourt();
        jackAt(0, -6);
        state.phase = GamePhase::endOver;
    }
    void redBallsAt(std::initializer_list<double> distances) {
        for (const double distance : distances) {
            redAt(distance, -6);
        }
    }
    void blueBallsAt(std::initializer_list<double> distances) {
        for (const double distance : distances) {
            blueAt(-distance, -6);
        }
    }
    void endFourWith(int red, int blue) {
        state.currentEnd = 4;
        state.endHistory = {{1, red, 0}, {2, 0, blue}, {3, 0, 0}};
        score(red, blue);
        game.calculateScore();
    }
};

TEST_F(ScoringTest, OnlyBallsCloserThanTheOpponentsBestCount) {
    redBallsAt({0.30, 0.10});
    blueBallsAt({0.25, 0.20});
    game.calculateScore();
    EXPECT_EQ(game.redScore, 1);
    EXPECT_EQ(game.blueScore, 0);
    EXPECT_EQ(message(), "Red won the end! Points: 1. [SPACE] for the next end");
}

TEST_F(ScoringTest, EveryBallCloserThanTheOpponentsBestCounts) {
    redBallsAt({0.19, 0.10, 0.15});
    blueBallsAt({0.20});
    game.calculateScore();
    EXPECT_EQ(game.redScore, 3);
}

TEST_F(ScoringTest, EquallyCloseBallsScoreForBothSides) {
    redBallsAt({0.25, 0.2503});
    blueBallsAt({0.25, 0.26});
    game.calculateScore();
    EXPECT_EQ(game.redScore, 2);
    EXPECT_EQ(game.blueScore, 1);
    EXPECT_EQ(message(), "Red +2, Blue +1 [SPACE] for the next end");
}

TEST_F(ScoringTest, EquallyCloseBallsInRussian) {
    game.language = AppLanguage::ru;
    redBallsAt({0.25});
    blueBallsAt({0.25});
    game.calculateScore();
    EXPECT_EQ(message(), "Равноудалённые мячи! Красные +1, Синие +1. [ПРОБЕЛ] для следующего энда");
}

TEST_F(ScoringTest, NearlyEqualClosestBallsAreNotEquidistant) {
    redBallsAt({0.25});
    blueBallsAt({0.2501});
    game.calculateScore();
    EXPECT_EQ(game.redScore, 1);
    EXPECT_EQ(game.blueScore, 0);
}

TEST_F(ScoringTest, WithOnlyBlueBallsLeftBlueScoresAllOfThem) {
    blueBallsAt({0.3, 4.0, 0.5, 1.0, 2.0, 20.0});
    game.calculateScore();
    EXPECT_EQ(game.blueScore, 6);
    EXPECT_EQ(message(), "Blue won the end! Points: 6. [SPACE] for the next end");
}

TEST_F(ScoringTest, AnEndWithoutBallsIsADrawAndPlaysNoSound) {
    game.calculateScore();
    EXPECT_EQ(game.endHistory.get(), (std::vector<EndResult>{{1, 0, 0}}));
    EXPECT_EQ(message(), "Draw in the end! [SPACE] for the next end");
    EXPECT_EQ(audio.log["Glass"], "");
}

TEST_F(ScoringTest, AScoredEndChimes) {
    redBallsAt({0.3});
    game.calculateScore();
    EXPECT_EQ(audio.log["Glass"], "stop play ");
    EXPECT_EQ(game.phase, GamePhase::endOver);
}

TEST_F(ScoringTest, WithoutAJackNothingIsScored) {
    setup.removeJack();
    redBallsAt({0.3});
    game.message = "unchanged";
    game.calculateScore();
    EXPECT_EQ(game.redScore, 0);
    EXPECT_TRUE(game.endHistory.get().empty());
    EXPECT_EQ(message(), "unchanged");
}

TEST_F(ScoringTest, ATiedMatchGoesToAnExtraEndAtOnce) {
    endFourWith(3, 3);
    EXPECT_EQ(game.currentEnd, 5);
    EXPECT_EQ(game.phase, GamePhase::playing);
    EXPECT_EQ(game.currentTurn, BallColor::red);
    EXPECT_EQ(game.endHistory.get().size(), 4U);
    ASSERT_EQ(balls("jack").size(), 1U);
    EXPECT_EQ(jack()->position(), GameLogic::crossPosition);
    EXPECT_EQ(balls("red").size(), 1U);
    EXPECT_EQ(game.redBallsLeft, 6);
    EXPECT_EQ(message(), "Match tied! Extra end 5: jack placed at center. Red's turn. [SPACE] to aim");
}

TEST_F(ScoringTest, ExtraEndsRepeatUntilTheScoresDiffer) {
    endFourWith(3, 3);
    emptyCourt();
    jackAt(0, -6);
    state.phase = GamePhase::endOver;
    game.calculateScore();
    EXPECT_EQ(game.currentEnd, 6);
    EXPECT_EQ(game.currentTurn, BallColor::blue);
    emptyCourt();
    jackAt(0, -6);
    blueBallsAt({0.5});
    state.phase = GamePhase::endOver;
    game.calculateScore();
    EXPECT_EQ(game.phase, GamePhase::gameOver);
    EXPECT_EQ(game.endHistory.get().back(), (EndResult{6, 0, 1}));
}

TEST_F(ScoringTest, ADecidedMatchIsOverAfterFourEnds) {
    endFourWith(5, 2);
    EXPECT_EQ(game.phase, GamePhase::gameOver);
    EXPECT_EQ(message(), "Red WIN THE MATCH! Score 5:2. [SPACE] for a new game");
    EXPECT_EQ(game.matchWinnerTitle(), "Red WIN THE MATCH!");
}

TEST_F(ScoringTest, ADecidedMatchInRussian) {
    game.language = AppLanguage::ru;
    endFourWith(2, 5);
    EXPECT_EQ(message(), "СИНИЕ ВЫИГРАЛИ МАТЧ! Счет 2:5. [ПРОБЕЛ] для новой игры");
    EXPECT_EQ(game.matchWinnerTitle(), "СИНИЕ ВЫИГРАЛИ МАТЧ!");
}

TEST_F(ScoringTest, EqualScoresNameBlueAsWinner) {
    score(3, 3);
    EXPECT_EQ(game.matchWinnerTitle(), "Blue WIN THE MATCH!");
}

TEST_F(ScoringTest, ANewMatchForgetsScoresAndHistoryAndKeepsTheSettings) {
    game.playerClass = BocciaClass::bc3;
    level(AIDifficulty::ultra);
    endFourWith(5, 2);
    game.resetMatch();
    EXPECT_EQ(game.redScore, 0);
    EXPECT_EQ(game.blueScore, 0);
    EXPECT_TRUE(game.endHistory.get().empty());
    EXPECT_EQ(game.currentEnd, 1);
    EXPECT_EQ(game.phase, GamePhase::throwingJack);
    EXPECT_EQ(balls("jack").size(), 1U);
    EXPECT_EQ(balls("red").size(), 0U);
    EXPECT_EQ(game.playerClass, BocciaClass::bc3);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::ultra);
}

} // namespace vorbel::test
