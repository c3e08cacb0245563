// What a controller does in match and menu.
#include "tests/ScriptedControllers.h"
#include "tests/unit/app/ViewFixture.h"

#include "app/controller/ControllerInput.h"

#include <vector>

namespace vorbel {

class ControllerInputTest : public ViewTest {
protected:
    ScriptedControllers controllers;
    ControllerInput input{controllers, view, platform.queue};
    std::vector<Qt::Key> keys;

    ControllerInputTest() {
        QObject::connect(&input, &ControllerInput::keyPressed, &input,
                         [this](Qt::Key key) { keys.push_back(key); });
    }

    void press(ControllerButton button) {
        controllers.coming = {{button, true}, {button, false}};
        platform.queue.advance(ControllerInput::idlePeriod);
    }
};

TEST_F(ControllerInputTest, AThrowIsMadeWithIt) {
    appearAndHideMenu();
    press(ControllerButton::south);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    press(ControllerButton::right);
    press(ControllerButton::up);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    EXPECT_DOUBLE_EQ(match.aimPitch, aim::pitchStep);
    press(ControllerButton::left);
    press(ControllerButton::down);
    EXPECT_DOUBLE_EQ(match.aimAngle, 0);
    EXPECT_DOUBLE_EQ(match.aimPitch, 0);
    press(ControllerButton::south);
    press(ControllerButton::east);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    press(ControllerButton::south);
    press(ControllerButton::south);
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(ControllerInputTest, AHeldDirectionRepeats) {
    appearAndHideMenu();
    press(ControllerButton::south);
    controllers.coming = {{ControllerButton::right, true}};
    platform.queue.advance(0.45);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    platform.queue.advance(0.35); // 0.8 s: at 0.5, 0.62 and 0.74
    EXPECT_NEAR(match.aimAngle, 4 * aim::angleStep, 1e-9);
    controllers.coming = {{ControllerButton::right, false}};
    platform.queue.advance(1);
    EXPECT_NEAR(match.aimAngle, 4 * aim::angleStep, 1e-9);
}

TEST_F(ControllerInputTest, MenusAreWalkedThroughAndPressed) {
    press(ControllerButton::down);
    press(ControllerButton::right);
    press(ControllerButton::up);
    press(ControllerButton::left);
    press(ControllerButton::south);
    press(ControllerButton::start);
    EXPECT_EQ(keys, (std::vector<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backtab,
                                          Qt::Key_Return}));
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(ControllerInputTest, BackGoesBackFromEveryScreenThatHasAWayBack) {
    for (const MenuScreen screen : {MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules,
                                    MenuScreen::about, MenuScreen::diary}) {
        openMenu.setMenuScreen(screen);
        press(ControllerButton::east);
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    }
    press(ControllerButton::east);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    openMenu.setMenuScreen(MenuScreen::matchResult);
    press(ControllerButton::east);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
    hideMenu();
    view.menu()->options()->open();
    press(ControllerButton::east);
    EXPECT_TRUE(openMenu.isHidden());
    openMenu.setMenuScreen(MenuScreen::controls);
    press(ControllerButton::east);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::options);
}

TEST_F(ControllerInputTest, MenuOpensTheMainMenu) {
    appearAndHideMenu();
    press(ControllerButton::start);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
}

TEST_F(ControllerInputTest, WithOneSwitchEveryButtonIsTheSwitch) {
    view.options()->set(Option::switchOn, 1);
    view.options()->set(Option::switchRest, 0);
    appearAndHideMenu();
    press(ControllerButton::west);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
}

TEST_F(ControllerInputTest, TurnedOffItDoesNotEvenLook) {
    view.options()->set(Option::controller, 0);
    appearAndHideMenu();
    platform.queue.advance(1);
    const int polls = controllers.polls;
    press(ControllerButton::south);
    EXPECT_EQ(match.aimState, AimState::idle);
    EXPECT_EQ(controllers.polls, polls);
}

TEST_F(ControllerInputTest, ButtonsDoWhatThePlayerGaveThem) {
    GameControls& controls = *view.controls();
    const auto give = [&](GameAction action, ControllerButton button) {
        controls.give(GameControls::Device::controller, action, static_cast<int>(button));
    };
    give(GameAction::accept, ControllerButton::leftShoulder);
    give(GameAction::right, ControllerButton::leftTrigger);
    give(GameAction::mute, ControllerButton::west);
    give(GameAction::menu, ControllerButton::east);
    appearAndHideMenu();
    press(ControllerButton::leftShoulder);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    press(ControllerButton::leftTrigger);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    press(ControllerButton::west);
    EXPECT_TRUE(view.options()->isOn(Option::mute));
    press(ControllerButton::north);
    EXPECT_EQ(match.aimState, AimState::aimingAngle) << "it was given nothing";
    press(ControllerButton::east);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
}

TEST_F(ControllerInputTest, ButtonsWithoutAKnownPlaceAcceptButForTheSecondUnlessTheyAreGivenMore) {
    const auto numbered = [](int number) {
        return static_cast<ControllerButton>(static_cast<int>(ControllerButton::first) + number);
    };
    appearAndHideMenu();
    press(numbered(0));
    press(numbered(5));
    EXPECT_EQ(match.aimState, AimState::aimingPower);
    press(numbered(1));
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    view.controls()->give(GameControls::Device::controller, GameAction::right, static_cast<int>(numbered(5)));
    press(numbered(5));
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
}

TEST_F(ControllerInputTest, AButtonThatIsAskedForDoesNothingElse) {
    appearAndHideMenu();
    ControlsModel& rows = *view.menu()->controls();
    rows.addButton(static_cast<int>(GameAction::menu));
    press(ControllerButton::south);
    EXPECT_EQ(match.aimState, AimState::idle);
    rows.addKey(static_cast<int>(GameAction::menu));
    press(ControllerButton::south);
    EXPECT_FALSE(view.catcher().isWaiting()) << "whoever has no keyboard at hand gets out of it";
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(ControllerInputTest, MessagesNameItsButtonsOnceItWasUsed) {
    speak(AppLanguage::en);
    appearAndHideMenu();
    press(ControllerButton::south);
    EXPECT_TRUE(view.hud()->message().contains("[A]")) << view.hud()->message().toStdString();
}

TEST_F(ControllerInputTest, WithoutAControllerItLooksTwiceASecond) {
    controllers.connected = false;
    platform.queue.advance(1);
    const int before = controllers.polls;
    platform.queue.advance(10);
    EXPECT_EQ(controllers.polls - before, 20);
}

} // namespace vorbel
