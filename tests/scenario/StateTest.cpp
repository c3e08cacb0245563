// The state of a match right after it was made, and its small rules.
#include "tests/scenario/Match.h"

#include <set>

namespace vorbel::test {

using StateTest = MatchTest;

TEST_F(StateTest, ANewMatchWaitsForRedsJack) {
    EXPECT_EQ(game.phase, GamePhase::throwingJack);
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(game.currentTurn, BallColor::red);
    EXPECT_EQ(game.currentEnd, 1);
    EXPECT_EQ(game.redBallsLeft, 6);
    EXPECT_EQ(game.blueBallsLeft, 6);
    EXPECT_EQ(game.redScore, 0);
    EXPECT_EQ(game.blueScore, 0);
    EXPECT_TRUE(game.endHistory.get().empty());
    EXPECT_EQ(game.aimPower, 10.0);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::medium);
    EXPECT_EQ(game.playerClass, BocciaClass::bc2);
    EXPECT_EQ(game.playerCountry, Country::france);
    EXPECT_EQ(game.blueCountry, Country::germany);
    EXPECT_FALSE(game.tournamentActive);
    EXPECT_EQ(game.tournamentRound, 0);
    EXPECT_EQ(message(), "Нажмите [ПРОБЕЛ] для начала прицеливания");
    ASSERT_TRUE(jack());
    EXPECT_EQ(jack()->position(), Vec3(-1.0, 0.035, -0.5));
    EXPECT_EQ(game.activeBallNode(), jack());
}

TEST_F(StateTest, TheTurnIsTheComputersOnlyOnItsOwnSide) {
    state.currentTurn = BallColor::blue;
    game.redIsAI = true;
    EXPECT_FALSE(game.isCurrentTurnAI());
    game.blueIsAI = true;
    EXPECT_TRUE(game.isCurrentTurnAI());
}

TEST_F(StateTest, BlueAsComputerDrawsAnotherCountryThanThePlayers) {
    for (int i = 0; i < 200; ++i) {
        game.blueIsAI = true;
        EXPECT_NE(game.blueCountry, game.playerCountry);
    }
    const Country kept = game.blueCountry;
    game.blueIsAI = false;
    EXPECT_EQ(game.blueCountry, kept);
}

TEST_F(StateTest, EveryOtherCountryCanBeDrawnAsOpponent) {
    std::set<Country> drawn;
    for (int i = 0; i < 2000; ++i) {
        drawn.insert(game.randomOpponent(Country::belgium));
    }
    EXPECT_EQ(drawn.size(), countryCount - 1);
    EXPECT_FALSE(drawn.contains(Country::belgium));
}

TEST_F(StateTest, TheMatchLengthDoesNotFollowMaxEnds) {
    humanAgainstHuman();
    game.maxEnds = 9;
    state.currentEnd = 4;
    emptyCourt();
    jackAt(0, -6);
    redAt(0.1, -6);
    state.phase = GamePhase::endOver;
    game.calculateScore();
    EXPECT_EQ(game.phase, GamePhase::gameOver);
}

TEST_F(StateTest, ObserversHearOfAChangeBeforeItHappens) {
    int before = -1;
    int announced = -1;
    const Subscription subscription = game.redScore.onWillChange([&](int newValue) {
        before = game.redScore;
        announced = newValue;
    });
    state.redScore = 3;
    EXPECT_EQ(before, 0);
    EXPECT_EQ(announced, 3);
}

TEST_F(StateTest, AnEndedObservationHearsNothing) {
    int calls = 0;
    Subscription subscription = game.redScore.onWillChange([&](int) { ++calls; });
    subscription.cancel();
    state.redScore = 1;
    EXPECT_EQ(calls, 0);
}

TEST(MatchLifetimeTest, WorkThatIsStillPostedDoesNothingOnceTheMatchIsGone) {
    VirtualQueue queue;
    SeededRandom random{1};
    SpyAudio audio;
    const Resources resources;
    {
        GameLogic game(Platform{queue, random, audio, resources});
        game.startAimingLoop();
        game.redIsAI = true; // posts a turn 0.8 s from now
        queue.advance(0.01);
    }
    queue.advance(10);
    EXPECT_EQ(audio.log["Pop"], "");
}

} // namespace vorbel::test
