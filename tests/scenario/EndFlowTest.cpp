// The referee of an end.
#include "tests/scenario/Match.h"

namespace vorbel::test {

class EndFlowTest : public MatchTest {
protected:
    EndFlowTest() { humanAgainstHuman(); }
    // A jack throw of `side` that has just come to rest there.
    void jackRestsAt(double x, double z) {
        state.aimState = AimState::thrown;
        jack()->setPosition({x, court::restingHeight, z});
        game.handleTurnTransition();
    }
    void expectJackPassedToBlue() {
        EXPECT_EQ(game.phase, GamePhase::throwingJack);
        EXPECT_EQ(game.currentTurn, BallColor::blue);
        EXPECT_EQ(message(), "The jack went out! Turn passes to Blue. [SPACE] to aim");
        ASSERT_EQ(balls("jack").size(), 1U);
        EXPECT_EQ(jack()->position(), Vec3(1.0, 0.035, -0.5));
        EXPECT_EQ(game.aimState, AimState::idle);
        EXPECT_EQ(game.aimPower, 10.0);
    }
    void expectJackValid() {
        EXPECT_EQ(game.phase, GamePhase::playing);
        EXPECT_EQ(balls("jack").size(), 1U);
        EXPECT_EQ(balls("red").size() + balls("blue").size(), 1U);
    }
};

TEST_F(EndFlowTest, AJackShortOfTheVLinePassesToTheOtherSide) {
    jackRestsAt(0.5, -1.4);
    expectJackPassedToBlue();
}

TEST_F(EndFlowTest, TheVLineFallsBackTowardsTheSides) {
    jackRestsAt(2.9, -3.4);
    expectJackPassedToBlue();
}

TEST_F(EndFlowTest, AJackJustBeyondTheVLineIsValid) {
    jackRestsAt(2.9, -3.5);
    expectJackValid();
    EXPECT_EQ(game.currentTurn, BallColor::red);
    EXPECT_EQ(message(), "Red's turn. [SPACE] to aim");
}

TEST_F(EndFlowTest, AJackOnTheVLineIsValid) {
    jackRestsAt(0, -1.5);
    expectJackValid();
}

TEST_F(EndFlowTest, AJackOverTheSideLinePassesToTheOtherSide) {
    jackRestsAt(3.2, -8);
    expectJackPassedToBlue();
}

TEST_F(EndFlowTest, TheSecondJackOfAnEndCountsWhereverItLies) {
    jackRestsAt(0.5, -1.4);
    jackRestsAt(0.5, -0.5);
    expectJackValid();
    EXPECT_EQ(game.currentTurn, BallColor::blue);
    EXPECT_EQ(balls("blue").size(), 1U);
}

TEST_F(EndFlowTest, AfterTheFirstBallTheOtherSideThrows) {
    jackRestsAt(0, -6);
    game.activeBallNode()->setPosition({0, court::restingHeight, -5});
    game.handleTurnTransition();
    EXPECT_EQ(game.redBallsLeft, 5);
    EXPECT_EQ(game.currentTurn, BallColor::blue);
}

TEST_F(EndFlowTest, TheSideThatIsNotClosestThrows) {
    emptyCourt();
    jackAt(0, -6);
    redAt(0.1, -6);
    blueAt(0.2, -6);
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::blue);
    blueAt(-0.05, -6);
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
}

TEST_F(EndFlowTest, ATieIsReds) {
    emptyCourt();
    jackAt(0, -6);
    redAt(0.25, -6);
    blueAt(-0.25, -6);
    state.currentTurn = BallColor::blue;
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
}

TEST_F(EndFlowTest, ASideWithoutABallInPlayThrowsAndRedFirst) {
    emptyCourt();
    jackAt(0, -6);
    blueAt(0.1, -6);
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
    emptyCourt();
    jackAt(0, -6);
    state.currentTurn = BallColor::blue;
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
}

TEST_F(EndFlowTest, WithoutAJackRedThrows) {
    emptyCourt();
    redAt(0, -6);
    state.currentTurn = BallColor::blue;
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
}

TEST_F(EndFlowTest, ASideThatHasThrownAllItsBallsNeverThrowsAgain) {
    emptyCourt();
    jackAt(0, -6);
    redAt(0.1, -6);
    blueAt(0.5, -6);
    ballsLeft(2, 0);
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::red);
    ballsLeft(0, 2);
    game.determineNextTurn();
    EXPECT_EQ(game.currentTurn, BallColor::blue);
}

TEST_F(EndFlowTest, AJackKnockedOverTheSideLineIsPutOnTheCross) {
    jackRestsAt(0, -6);
    jack()->setPosition({-3.4, court::restingHeight, -6});
    game.activeBallNode()->setPosition({0, court::restingHeight, -5});
    game.handleTurnTransition();
    ASSERT_EQ(balls("jack").size(), 1U);
    EXPECT_EQ(jack()->position(), Vec3(0, 0.035, -6.25));
}

TEST_F(EndFlowTest, AJackKnockedShortOrLongStaysWhereItIs) {
    jackRestsAt(0, -6);
    jack()->setPosition({0, court::restingHeight, -0.7});
    game.repositionJackIfKnockedOut();
    EXPECT_EQ(jack()->position().z, -0.7);
    jack()->setPosition({3.0, court::restingHeight, -13});
    game.repositionJackIfKnockedOut();
    EXPECT_EQ(jack()->position().z, -13);
}

TEST_F(EndFlowTest, AMissingJackIsNoError) {
    emptyCourt();
    game.handleTurnTransition(); // counts as a valid jack
    EXPECT_EQ(game.phase, GamePhase::playing);
    game.repositionJackIfKnockedOut();
    EXPECT_FALSE(jack());
}

TEST_F(EndFlowTest, EndsAlternateTheJack) {
    for (int end = 2; end <= 4; ++end) {
        state.phase = GamePhase::endOver;
        press();
        EXPECT_EQ(game.currentEnd, end);
        EXPECT_EQ(game.currentTurn, end % 2 == 0 ? BallColor::blue : BallColor::red);
        EXPECT_EQ(jack()->position().x, end % 2 == 0 ? 1.0 : -1.0);
    }
    EXPECT_EQ(message(), "End 4 started. Blue's turn. [SPACE] to aim");
}

TEST_F(EndFlowTest, TheFirstJackOfANewEndIsJudgedAfresh) {
    jackRestsAt(0.5, -1.4);
    jackRestsAt(0.5, -6);
    state.phase = GamePhase::endOver;
    press();
    jackRestsAt(0.5, -1.4);
    EXPECT_EQ(game.phase, GamePhase::throwingJack);
    EXPECT_EQ(game.currentTurn, BallColor::red);
}

TEST_F(EndFlowTest, ANewEndStartsFromTheLastAim) {
    state.aimAngle = 0.4;
    state.aimPower = 63;
    state.phase = GamePhase::endOver;
    press();
    EXPECT_EQ(game.aimAngle, 0.4);
    EXPECT_EQ(game.aimPower, 63);
}

TEST_F(EndFlowTest, AClearedFieldKeepsEverythingButTheBalls) {
    redAt(0, -4);
    blueAt(1, -4);
    const std::size_t before = game.scene.root->children().size();
    game.clearField();
    EXPECT_EQ(game.scene.root->children().size(), before - 3);
    EXPECT_TRUE(game.scene.root->findChild("pointer"));
}

TEST_F(EndFlowTest, RussianNamesTheSidesInTheirCases) {
    game.language = AppLanguage::ru;
    jackRestsAt(0.5, -1.4);
    EXPECT_EQ(message(), "Кон в недопустимой зоне! Ход переходит синим. [ПРОБЕЛ] для прицела");
    jackRestsAt(0, -6);
    EXPECT_EQ(message(), "Ход Синих. [ПРОБЕЛ] для прицела");
    state.phase = GamePhase::endOver;
    state.currentEnd = 2;
    press();
    EXPECT_EQ(message(), "Начат Энд 3. Ход Красных. [ПРОБЕЛ] для прицела");
}

} // namespace vorbel::test
