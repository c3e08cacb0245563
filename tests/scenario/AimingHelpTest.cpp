// More time and smaller steps for the human thrower.
#include "tests/scenario/Match.h"

namespace vorbel::test {

class AimingHelpTest : public MatchTest {
protected:
    AimingHelpTest() {
        humanAgainstHuman();
        game.playerClass = BocciaClass::bc2; // 0.6 percent a tick
    }
    void setPower() {
        press(2);
        ASSERT_EQ(game.aimState, AimState::aimingPower);
    }
};

TEST_F(AimingHelpTest, ThePowerSwingsAtTheChosenPace) {
    setPower();
    state.aimPower = 50.0;
    game.setPowerPace(0.25);
    ticks(4);
    EXPECT_DOUBLE_EQ(game.aimPower, 50.6);
    game.setPowerPace(1);
    ticks(1);
    EXPECT_DOUBLE_EQ(game.aimPower, 51.2);
}

TEST_F(AimingHelpTest, NoPaceIsFasterThanTheClassHasItNorBackwards) {
    game.setPowerPace(2);
    EXPECT_EQ(game.powerPace(), 1);
    game.setPowerPace(-1);
    EXPECT_EQ(game.powerPace(), 0);
}

TEST_F(AimingHelpTest, APowerSetByHandStandsUntilItIsChangedAndIsThrown) {
    game.setPowerPace(0);
    setPower();
    EXPECT_EQ(message(), "[↑][↓] set the power. [SPACE] throws");
    ticks(200);
    EXPECT_EQ(game.aimPower, aim::startPower);
    game.changePower(31);
    EXPECT_EQ(game.aimPower, aim::startPower + 31);
    press();
    EXPECT_EQ(game.aimState, AimState::thrown);
    EXPECT_EQ(game.aimPower, aim::startPower + 31);
}

TEST_F(AimingHelpTest, APowerSetByHandStaysInTheRangeOfTheSwing) {
    game.setPowerPace(0);
    setPower();
    game.changePower(-1);
    EXPECT_EQ(game.aimPower, 10);
    game.changePower(1000);
    EXPECT_EQ(game.aimPower, 100);
}

TEST_F(AimingHelpTest, OnlyAPowerThatStandsIsSetByHand) {
    game.changePower(5);
    setPower();
    game.changePower(5);
    EXPECT_EQ(game.aimPower, aim::startPower);
    game.setPowerPace(0);
    game.redIsAI = true;
    EXPECT_FALSE(game.humanSetsPower());
}

TEST_F(AimingHelpTest, FineStepsAimWithinTheSameLimits) {
    press();
    game.turnAim(0.01);
    game.raiseAim(0.02);
    EXPECT_DOUBLE_EQ(game.aimAngle, 0.01);
    EXPECT_DOUBLE_EQ(game.aimPitch, 0.02);
    game.turnAim(-10);
    game.raiseAim(-10);
    EXPECT_EQ(game.aimAngle, -aim::angleLimit);
    EXPECT_EQ(game.aimPitch, 0);
}

TEST_F(AimingHelpTest, FineStepsDoNotRaiseARampThrow) {
    game.playerClass = BocciaClass::bc3;
    press();
    game.raiseAim(0.01);
    EXPECT_EQ(game.aimPitch, 0);
}

TEST_F(AimingHelpTest, ThePowerIsTakenBackFirstThenTheAim) {
    press();
    game.moveAimLeft();
    press();
    ticks(10);
    game.takeBack();
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
    EXPECT_EQ(game.aimPower, aim::startPower);
    EXPECT_EQ(game.aimAngle, -aim::angleStep) << "the aim stands";
    EXPECT_EQ(message(), "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok.");
    game.takeBack();
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(game.aimAngle, 0);
    EXPECT_EQ(message(), "Red's turn. [SPACE] to aim");
    game.takeBack();
    EXPECT_EQ(game.aimState, AimState::idle);
}

TEST_F(AimingHelpTest, WhoObservesAPowerTakenBackHearsOfTheStageFirst) {
    press();
    press();
    ticks(10);
    std::string told;
    const Subscription stage = game.aimState.onWillChange([&](AimState) { told += "state "; });
    const Subscription power = game.aimPower.onWillChange([&](double) { told += "power "; });
    const Subscription message = game.message.onWillChange([&](const std::string&) { told += "message "; });
    game.takeBack();
    EXPECT_EQ(told, "state power message ");
}

TEST_F(AimingHelpTest, AReleasedBallIsNotTakenBack) {
    press(3);
    game.takeBack();
    EXPECT_EQ(game.aimState, AimState::thrown);
}

TEST_F(AimingHelpTest, TheComputersAimIsNotTakenBack) {
    game.redIsAI = true;
    queue.advance(1);
    ASSERT_EQ(game.aimState, AimState::aimingAngle);
    game.takeBack();
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
}

} // namespace vorbel::test
