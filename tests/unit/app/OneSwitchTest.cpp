// A match with one switch.
#include "tests/unit/app/ViewFixture.h"

#include <cmath>

namespace vorbel {

class OneSwitchTest : public ViewTest {
protected:
    static constexpr double step = 0.3; // s, of a sweep: a fifth of the usual pace

    OneSwitch& one = *view.oneSwitch();
    Options& options = *view.options();

    OneSwitchTest() {
        settings.setSelectedClass(BocciaClass::bc2);
        settings.handOverChoices();
        speak(AppLanguage::en);
        options.set(Option::switchOn, 1);
        options.set(Option::switchRest, 0);
        appearAndHideMenu();
    }
    void wait(double seconds) { platform.queue.advance(seconds); }
    [[nodiscard]] std::string prompt() const { return one.prompt().toStdString(); }
};

TEST_F(OneSwitchTest, WithoutTheOptionItIsNothing) {
    options.set(Option::switchOn, 0);
    EXPECT_EQ(prompt(), "");
    one.press();
    wait(10);
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(OneSwitchTest, DirectionHeightAndPowerAreLockedInTurn) {
    EXPECT_EQ(prompt(), "Press to aim");
    one.press();
    EXPECT_EQ(prompt(), "Press when the direction is right");
    wait(4 * step + 0.01);
    EXPECT_DOUBLE_EQ(match.aimAngle, 4 * aim::angleStep);
    one.press();
    EXPECT_EQ(prompt(), "Press when the height is right");
    wait(2 * step);
    EXPECT_DOUBLE_EQ(match.aimAngle, 4 * aim::angleStep) << "the direction stands";
    EXPECT_DOUBLE_EQ(match.aimPitch, 2 * aim::pitchStep);
    one.press();
    EXPECT_EQ(prompt(), "Press when the power is right");
    wait(1);
    one.press();
    EXPECT_EQ(match.aimState, AimState::thrown);
    EXPECT_EQ(prompt(), "");
}

TEST_F(OneSwitchTest, TheDirectionSweepsBetweenItsLimits) {
    one.press();
    double least = 0;
    double most = 0;
    for (int beat = 0; beat < 80; ++beat) {
        wait(step);
        least = std::min<double>(least, match.aimAngle);
        most = std::max<double>(most, match.aimAngle);
    }
    EXPECT_EQ(least, -aim::angleLimit);
    EXPECT_EQ(most, aim::angleLimit);
}

TEST_F(OneSwitchTest, TheHeightSweepsBetweenItsLimits) {
    one.press();
    one.press();
    double most = 0;
    for (int beat = 0; beat < 22; ++beat) {
        wait(step);
        most = std::max<double>(most, match.aimPitch);
    }
    EXPECT_EQ(most, aim::pitchLimit);
    wait(25 * step);
    EXPECT_LT(match.aimPitch, aim::pitchLimit / 2);
    EXPECT_GE(match.aimPitch, 0);
}

TEST_F(OneSwitchTest, ARampHasNoHeightToSet) {
    match.playerClass = BocciaClass::bc3;
    one.press();
    one.press();
    EXPECT_EQ(match.aimState, AimState::aimingPower);
}

TEST_F(OneSwitchTest, BeforeTheThrowItAsksByOption) {
    options.set(Option::switchAsks, 1);
    for (int press = 0; press < 3; ++press) {
        one.press();
        wait(0.1);
    }
    wait(0.5);
    one.press();
    EXPECT_EQ(prompt(), "Press to throw");
    const double locked = match.aimPower;
    wait(1.6);
    EXPECT_EQ(match.aimPower, locked);
    EXPECT_EQ(prompt(), "Press to aim again");
    wait(1.5);
    EXPECT_EQ(prompt(), "Press to throw");
    one.press();
    EXPECT_EQ(match.aimState, AimState::thrown);
    EXPECT_EQ(match.aimPower, locked);
    EXPECT_EQ(match.powerPace(), 1) << "the next power swings again";
}

TEST_F(OneSwitchTest, TheAimIsMadeAnewWhenItWasNotRight) {
    options.set(Option::switchAsks, 1);
    one.press();
    wait(1);
    one.press();
    one.press();
    one.press();
    wait(1.6);
    ASSERT_EQ(prompt(), "Press to aim again");
    one.press();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    EXPECT_EQ(match.aimAngle, 0);
    EXPECT_EQ(prompt(), "Press when the direction is right");
    EXPECT_EQ(match.powerPace(), 1);
}

TEST_F(OneSwitchTest, APowerThatIsSetByHandSweepsStepByStep) {
    options.set(Option::powerPace, 0);
    one.press();
    one.press();
    one.press();
    wait(5 * step + 0.01);
    EXPECT_EQ(match.aimPower, aim::startPower + 5);
}

TEST_F(OneSwitchTest, TheMenuIsTheOtherChoiceBeforeAnAim) {
    wait(1.6);
    EXPECT_EQ(prompt(), "Main Menu");
    one.press();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(OneSwitchTest, APressTooSoonAfterTheLastIsIgnored) {
    options.set(Option::switchRest, 1000);
    one.press();
    one.press();
    wait(0.9);
    one.press();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    EXPECT_EQ(prompt(), "Press when the direction is right");
    wait(0.2);
    one.press();
    EXPECT_EQ(prompt(), "Press when the height is right");
}

TEST_F(OneSwitchTest, OnTheComputersTurnThereIsNothingToPress) {
    match.redIsAI = true;
    EXPECT_EQ(prompt(), "");
    one.press();
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(OneSwitchTest, AMatchIsPlayedToItsEndWithTheSwitchAlone) {
    settings.setBlueAIOn(true);
    letQueueRun();
    for (int press = 0; press < 5000 && match.phase != GamePhase::gameOver; ++press) {
        hideMenu(); // the choice before each aim may have opened it
        one.press();
        wait(0.7);
    }
    EXPECT_EQ(match.phase, GamePhase::gameOver);
}

TEST_F(OneSwitchTest, ItsPaceIsThePlayersChoice) {
    options.set(Option::switchPace, 500);
    one.press();
    wait(0.41);
    EXPECT_DOUBLE_EQ(match.aimAngle, 4 * aim::angleStep);
}

} // namespace vorbel
