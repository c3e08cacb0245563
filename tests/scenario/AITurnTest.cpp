// The computer's turn: pauses, aim and release.
#include "tests/scenario/Match.h"

#include <cmath>
#include <numbers>

namespace vorbel::test {

using std::numbers::pi;

class AITurnTest : public MatchTest {
protected:
    AITurnTest() {
        humanAgainstHuman();
        emptyCourt();
        level(AIDifficulty::easy); // aims at the jack itself
    }
    // The computer plays red and has just taken aim; on `ultra` there is no error.
    void ultraAims() {
        level(AIDifficulty::ultra);
        playingWith(BallColor::red);
        game.redIsAI = true;
        queue.advance(0.8);
    }
    void ultraAimsAtEmptyCourtWithJackAt(double x, double z) {
        jackAt(x, z);
        ultraAims();
    }
};

TEST_F(AITurnTest, ThePowerRollsTheBallToTheTarget) {
    // The draw goes to the ring spot 0.12 m beyond the jack, which here lies 5 m straight ahead of the box.
    ultraAimsAtEmptyCourtWithJackAt(-1, -5.38);
    EXPECT_NEAR(game.aimAngle, 0, exactly);
    EXPECT_NEAR(game.aimPower, 45, 1e-9);
    EXPECT_EQ(game.aimPitch, 0);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(message(), "AI (Red) is aiming...");
    EXPECT_EQ(game.scene.root->findChild("pointer")->opacity, 0.8);
}

TEST_F(AITurnTest, AShortThrowStopsWhereTheComputerAimed) {
    // 1.3 m take 2.8 s, so that the ball falls to its resting speed before the time limit. The jack behind
    // the target keeps out of the way.
    ultraAimsAtEmptyCourtWithJackAt(-1, -1.68);
    const Node::Ptr ball = game.activeBallNode();
    const double distance = (game.aimPower / 20 - 0.25) / 0.4;
    setup.removeJack();
    queue.advance(1.0);
    settled();
    EXPECT_NEAR(-0.5 - ball->position().z, distance, 0.02);
}

TEST_F(AITurnTest, AThrowIsReleasedOneSecondAfterTheAimAndItTakesTheMessage) {
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    queue.advance(0.99);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    queue.advance(0.01);
    EXPECT_EQ(game.aimState, AimState::thrown);
    EXPECT_EQ(message(), "Ball in play...");
    EXPECT_EQ(game.scene.root->findChild("pointer")->opacity, 0);
    EXPECT_EQ(audio.log["Pop"], "stop play ");
}

TEST_F(AITurnTest, TheComputerWaitsBeforeItAims) {
    jackAt(0, -6);
    playingWith(BallColor::blue);
    game.blueIsAI = true;
    queue.advance(0.79);
    EXPECT_EQ(game.aimState, AimState::idle);
    queue.advance(0.01);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
}

TEST_F(AITurnTest, RussianIsComposedWithoutTheTable) {
    game.language = AppLanguage::ru;
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    EXPECT_EQ(message(), "ИИ (Красные) целится...");
}

TEST_F(AITurnTest, ATargetFarToTheSideIsAimedAtAlongTheLimit) {
    ultraAimsAtEmptyCourtWithJackAt(3, -1);
    EXPECT_EQ(game.aimAngle, pi / 4);
    // The ring spot's offset from red's box, projected onto the limit's direction.
    const Vec3 spot = game.freeSpotNearJack({3, court::restingHeight, -1});
    const double ax = spot.x + 1;
    const double az = spot.z + 0.5;
    const double distance = std::sin(pi / 4) * ax - std::cos(pi / 4) * az;
    EXPECT_NEAR(game.aimPower, (0.4 * distance + 0.25) / 5 * 100, 1e-9);
}

TEST_F(AITurnTest, ATargetOnTheSpotItselfGivesTheWeakestThrow) {
    // The computer holds the point, no thrown ball lies short: it pushes its own waiting ball.
    jackAt(0, -6);
    redAt(0, -6.05);
    blueAt(0.1, -6);
    ultraAims();
    EXPECT_EQ(game.aimAngle, pi / 4);
    EXPECT_EQ(game.aimPower, 10);
}

TEST_F(AITurnTest, AHitMultipliesThePower) {
    // The opponent's ball 6.65 m straight ahead: the target lies 0.35 m beyond it, 7 m away.
    jackAt(-1, -7.4);
    blueAt(-1, -7.15);
    ultraAims();
    EXPECT_NEAR(game.aimAngle, 0, exactly);
    EXPECT_NEAR(game.aimPower, 97.6, 1e-9);
}

TEST_F(AITurnTest, AHitFurtherAwayIsThrownAtFullPower) {
    jackAt(-1, -8.4);
    blueAt(-1, -8.15);
    ultraAims();
    EXPECT_EQ(game.aimPower, 100);
}

TEST_F(AITurnTest, AnEasyComputerErrsWithinItsBounds) {
    game.redIsAI = true;
    for (int i = 0; i < 300; ++i) {
        emptyCourt();
        jackAt(-1, -5.5); // 5 m straight ahead
        playingWith(BallColor::red);
        game.performAITurn();
        EXPECT_LE(std::abs(std::tan(game.aimAngle)), 0.8 / (5 - 1.2 + 0.18) + 1e-9);
        EXPECT_GE(game.aimPower, (0.4 * (5 - 1.2 + 0.18) + 0.25) * 20 - 1e-9);
        EXPECT_LE(game.aimPower, (0.4 * std::hypot(5 + 1.2 + 0.18, 0.8) + 0.25) * 20 + 1e-9);
    }
}

TEST_F(AITurnTest, ErringThrowsGoLongRatherThanShort) {
    game.redIsAI = true;
    double sum = 0;
    constexpr int throws = 4000;
    for (int i = 0; i < throws; ++i) {
        emptyCourt();
        jackAt(-1, -5.5);
        playingWith(BallColor::red);
        game.performAITurn();
        const double distance = (game.aimPower / 20 - 0.25) / 0.4;
        sum += std::cos(game.aimAngle) * distance;
    }
    EXPECT_NEAR(sum / throws, 5.18, 0.05);
}

TEST_F(AITurnTest, ANewMatchDuringTheAimCancelsTheRelease) {
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    game.redIsAI = false;
    game.resetMatch();
    queue.advance(1.5);
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(audio.log["Pop"], "");
}

TEST_F(AITurnTest, AResetDuringTheAimHidesThePointerAndReleasesNothingLater) {
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    game.redIsAI = false;
    game.resetMatch();
    EXPECT_EQ(game.scene.root->findChild("pointer")->opacity, 0);
    press(); // the player aims within the second that the computer's aim would have been shown
    queue.advance(1.0);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(audio.log["Pop"], "");
}

TEST_F(AITurnTest, TheOtherSidesSwitchLeavesTheComputersAimAlone) {
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    const double angle = game.aimAngle;
    queue.advance(0.5);
    game.blueIsAI = true;
    game.blueIsAI = false;
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(game.aimAngle, angle);
    EXPECT_EQ(game.scene.root->findChild("pointer")->opacity, 0.8);
    queue.advance(0.49);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    queue.advance(0.01);
    EXPECT_EQ(game.aimState, AimState::thrown);
}

TEST_F(AITurnTest, AnAimThatThePlayerTookOverIsNotReleasedByTheComputer) {
    ultraAimsAtEmptyCourtWithJackAt(0, -6);
    game.redIsAI = false;
    press(2); // power, throw
    ASSERT_EQ(game.aimState, AimState::thrown);
    balls("red").back()->body = nullptr; // not a ball that rolls: the throw is over after half a second
    settled();
    press();
    ASSERT_EQ(game.aimState, AimState::aimingAngle);
    queue.advance(1.0);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
}

TEST_F(AITurnTest, AComputerThatTakesOverAnAimSaysThatItIsAboutToThrow) {
    game.resetMatch();
    press();
    game.redIsAI = true;
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(game.scene.root->findChild("pointer")->opacity, 0);
    EXPECT_EQ(message(), "AI (Red) is aiming...");
}

TEST_F(AITurnTest, TheComputerTakesOverAHalfMadeAim) {
    for (const int presses : {1, 2}) {
        game.resetMatch();
        press(presses);
        game.redIsAI = true;
        queue.advance(1.8);
        EXPECT_EQ(game.aimState, AimState::thrown);
        settled();
        game.redIsAI = false;
    }
}

TEST_F(AITurnTest, TwoTriggersGiveOneThrow) {
    jackAt(0, -6);
    playingWith(BallColor::red);
    game.redIsAI = true;
    game.triggerAIIfNeeded();
    queue.advance(0.8 + 1.0);
    EXPECT_EQ(audio.log["Pop"], "stop play ");
    EXPECT_EQ(game.aimState, AimState::thrown);
}

TEST_F(AITurnTest, TwoComputersPlayTheEndWithoutAKey) {
    game.resetMatch();
    game.redIsAI = true;
    game.blueIsAI = true;
    queue.advance(13 * 6.0);
    EXPECT_EQ(game.phase, GamePhase::endOver);
    EXPECT_EQ(game.currentEnd, 1);
    queue.advance(60); // and then they wait for the key like everybody else
    EXPECT_EQ(game.phase, GamePhase::endOver);
}

TEST_F(AITurnTest, TheComputerThrowsTheJackIntoTheCourt) {
    for (int i = 0; i < 100; ++i) {
        state.phase = GamePhase::throwingJack;
        const auto target = game.computeAITarget();
        EXPECT_LE(std::abs(target.point.x), 1);
        EXPECT_GE(target.point.z, -7);
        EXPECT_LE(target.point.z, -4);
        EXPECT_EQ(target.powerMultiplier, 1);
    }
}

} // namespace vorbel::test
