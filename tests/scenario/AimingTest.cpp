// The aiming keys, the swing of the power and the action key.
#include "tests/scenario/Match.h"

#include <numbers>

namespace vorbel::test {

using std::numbers::pi;

class AimingTest : public MatchTest {
protected:
    AimingTest() {
        humanAgainstHuman();
        game.playerClass = BocciaClass::bc4;
    }
    void aimAt(AimState stage) {
        press();
        if (stage == AimState::aimingPower) {
            press();
        }
    }
};

TEST_F(AimingTest, TheAngleStopsExactlyAtFortyFiveDegrees) {
    aimAt(AimState::aimingAngle);
    for (int i = 0; i < 20; ++i) {
        game.moveAimLeft();
    }
    EXPECT_EQ(game.aimAngle, -pi / 4);
    for (int i = 0; i < 40; ++i) {
        game.moveAimRight();
    }
    EXPECT_EQ(game.aimAngle, pi / 4);
}

TEST_F(AimingTest, ThePitchStaysBetweenTheGroundAndSixtyDegrees) {
    aimAt(AimState::aimingAngle);
    game.moveAimDown();
    EXPECT_EQ(game.aimPitch, 0);
    for (int i = 0; i < 30; ++i) {
        game.moveAimUp();
    }
    EXPECT_EQ(game.aimPitch, pi / 3);
}

TEST_F(AimingTest, AngleAndPitchMoveOnlyWhileTheAngleIsSet) {
    const auto expectThatNothingMoves = [this] {
        game.moveAimUp();
        game.moveAimRight();
        EXPECT_EQ(game.aimPitch, 0);
        EXPECT_EQ(game.aimAngle, 0);
    };
    expectThatNothingMoves();
    aimAt(AimState::aimingPower);
    expectThatNothingMoves();
}

TEST_F(AimingTest, ARampPlayerCannotRaiseTheThrow) {
    game.playerClass = BocciaClass::bc3;
    game.moveAimUp();
    aimAt(AimState::aimingAngle);
    game.moveAimUp();
    EXPECT_EQ(game.aimPitch, 0);
    game.moveAimRight();
    EXPECT_DOUBLE_EQ(game.aimAngle, 0.05);
    press();
    game.moveAimUp();
    EXPECT_EQ(game.aimPitch, 0);
}

TEST_F(AimingTest, ThePowerSwingsAtTheSpeedOfTheSportClass) {
    const std::map<BocciaClass, double> steps{
        {BocciaClass::bc1, 0.85}, {BocciaClass::bc2, 0.6}, {BocciaClass::bc3, 0.3}, {BocciaClass::bc4, 0.6}};
    aimAt(AimState::aimingPower);
    for (const auto& [sportClass, step] : steps) {
        game.playerClass = sportClass;
        state.aimPower = 50.0;
        ticks(1);
        EXPECT_DOUBLE_EQ(game.aimPower, 50.0 + step);
    }
}

TEST_F(AimingTest, ThePowerOvershootsByOneStepAndTurnsRound) {
    game.playerClass = BocciaClass::bc1;
    aimAt(AimState::aimingPower);
    state.aimPower = 99.5;
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 100.35);
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 99.5);
}

TEST_F(AimingTest, ThePowerTurnsRoundBelowTenToo) {
    game.playerClass = BocciaClass::bc1;
    aimAt(AimState::aimingPower);
    state.aimPower = 99.5;
    ticks(1); // now falling
    state.aimPower = 10.0;
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 9.15);
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 10.0);
}

TEST_F(AimingTest, ThePowerDirectionOutlivesTheThrow) {
    game.playerClass = BocciaClass::bc1;
    aimAt(AimState::aimingPower);
    state.aimPower = 100.0;
    ticks(1); // turned round
    press();
    settled();
    press(2);
    ASSERT_EQ(game.aimState, AimState::aimingPower);
    EXPECT_EQ(game.aimPower, 10.0);
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 9.15); // falling below 10 first
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 10.0);
}

TEST_F(AimingTest, NothingSwingsBeforeThePowerIsAimed) {
    ticks(50);
    EXPECT_EQ(game.aimPower, 10.0);
    aimAt(AimState::aimingAngle);
    ticks(50);
    EXPECT_EQ(game.aimPower, 10.0);
}

TEST_F(AimingTest, ABc1ReleaseJittersButNeverBeyondFortyFiveDegrees) {
    game.playerClass = BocciaClass::bc1;
    bool reduced = false;
    for (int i = 0; i < 40; ++i) {
        game.resetMatch();
        humanThrows(pi / 4, 20);
        EXPECT_LE(game.aimAngle, pi / 4);
        EXPECT_GE(game.aimAngle, pi / 4 - 0.06);
        reduced = reduced || game.aimAngle < pi / 4;
        settled();
    }
    EXPECT_TRUE(reduced);
}

TEST_F(AimingTest, ABc1ThrowIsAnnouncedBeforeItsJitter) {
    game.playerClass = BocciaClass::bc1;
    press(2);
    std::string told;
    const Subscription stage = game.aimState.onWillChange([&](AimState) { told += "state "; });
    const Subscription angle = game.aimAngle.onWillChange([&](double) { told += "angle "; });
    const Subscription message = game.message.onWillChange([&](const std::string&) { told += "message "; });
    press();
    EXPECT_EQ(told, "state angle message ");
}

TEST_F(AimingTest, OtherClassesReleaseExactlyAsAimed) {
    for (const BocciaClass sportClass : {BocciaClass::bc2, BocciaClass::bc3, BocciaClass::bc4}) {
        game.resetMatch();
        game.playerClass = sportClass;
        humanThrows(0.3, 20);
        EXPECT_EQ(game.aimAngle, 0.3);
        settled();
    }
}

TEST_F(AimingTest, SpaceWalksTheThrowThroughItsStages) {
    const Node::Ptr pointer = game.scene.root->findChild("pointer");
    press();
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(message(), "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok.");
    EXPECT_EQ(pointer->opacity, 0.8);
    press();
    EXPECT_EQ(game.aimState, AimState::aimingPower);
    EXPECT_EQ(message(), "[SPACE] Lock throw power");
    press();
    EXPECT_EQ(game.aimState, AimState::thrown);
    EXPECT_EQ(message(), "Ball in play...");
    EXPECT_EQ(pointer->opacity, 0);
    press();
    EXPECT_EQ(game.aimState, AimState::thrown);
}

TEST_F(AimingTest, TheStagesAreAnnouncedInRussianWithoutTheTable) {
    game.language = AppLanguage::ru;
    press();
    EXPECT_EQ(message(), "Стрелки [←][→] и [↑][↓] для прицела. [ПРОБЕЛ] - ок.");
    press();
    EXPECT_EQ(message(), "[ПРОБЕЛ] Зафиксировать силу броска");
    press();
    EXPECT_EQ(message(), "Мяч в игре...");
}

TEST_F(AimingTest, SpaceIsIgnoredDuringTheComputersTurn) {
    game.redIsAI = true;
    press();
    EXPECT_EQ(game.aimState, AimState::idle);
    queue.advance(0.8);
    ASSERT_EQ(game.aimState, AimState::aimingAngle);
    const double angle = game.aimAngle;
    press();
    game.moveAimLeft();
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(game.aimAngle, angle);
}

TEST_F(AimingTest, SpaceAfterAnEndCountsTheEndBeforeTheNextOneStarts) {
    state.phase = GamePhase::endOver;
    press();
    EXPECT_EQ(game.currentEnd, 2);
    EXPECT_EQ(game.phase, GamePhase::throwingJack);
    EXPECT_EQ(balls("jack").size(), 1U);
}

TEST_F(AimingTest, SpaceAfterTheMatchStartsANewOneOrTheNextRound) {
    state.phase = GamePhase::gameOver;
    state.currentEnd = 4;
    score(5, 2);
    press();
    EXPECT_EQ(game.currentEnd, 1);
    EXPECT_EQ(game.redScore, 0);

    game.startTournament(Country::france);
    state.phase = GamePhase::gameOver;
    score(5, 2);
    press();
    EXPECT_EQ(game.tournamentRound, 2);
}

TEST_F(AimingTest, AMatchWithoutAPointerCanBePlayed) {
    game.scene.root->removeChild(*game.scene.root->findChild("pointer"));
    humanThrows(0, 30);
    settled();
    EXPECT_EQ(game.phase, GamePhase::playing);
}

} // namespace vorbel::test
