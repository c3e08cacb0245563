// What a controller does in match and menu.
#include "tests/unit/app/ViewFixture.h"

#include "app/controller/ControllerInput.h"

#include <vector>

namespace vorbel {

namespace {

// Tells what the test puts into it.
class ScriptedControllers final : public Controllers {
public:
    std::vector<std::pair<ControllerButton, bool>> coming;
    bool connected = true;
    int polls = 0;

    void poll(const Listener& listener) override {
        ++polls;
        for (const auto& [button, pressed] : std::exchange(coming, {})) {
            listener(button, pressed);
        }
    }
    [[nodiscard]] bool isAnyConnected() const override { return connected; }
};

} // namespace

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
    press(ControllerButton::accept);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    press(ControllerButton::right);
    press(ControllerButton::up);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    EXPECT_DOUBLE_EQ(match.aimPitch, aim::pitchStep);
    press(ControllerButton::left);
    press(ControllerButton::down);
    EXPECT_DOUBLE_EQ(match.aimAngle, 0);
    EXPECT_DOUBLE_EQ(match.aimPitch, 0);
    press(ControllerButton::accept);
    press(ControllerButton::back);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    press(ControllerButton::accept);
    press(ControllerButton::accept);
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(ControllerInputTest, AHeldDirectionRepeats) {
    appearAndHideMenu();
    press(ControllerButton::accept);
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
    press(ControllerButton::accept);
    press(ControllerButton::menu);
    EXPECT_EQ(keys, (std::vector<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backtab,
                                          Qt::Key_Return}));
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(ControllerInputTest, BackGoesBackFromEveryScreenThatHasAWayBack) {
    for (const MenuScreen screen : {MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules,
                                    MenuScreen::about, MenuScreen::diary}) {
        openMenu.setMenuScreen(screen);
        press(ControllerButton::back);
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    }
    press(ControllerButton::back);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    openMenu.setMenuScreen(MenuScreen::matchResult);
    press(ControllerButton::back);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::matchResult);
    hideMenu();
    view.menu()->options()->open();
    press(ControllerButton::back);
    EXPECT_TRUE(openMenu.isHidden());
}

TEST_F(ControllerInputTest, MenuOpensTheMainMenu) {
    appearAndHideMenu();
    press(ControllerButton::menu);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
}

TEST_F(ControllerInputTest, WithOneSwitchEveryButtonIsTheSwitch) {
    view.options()->set(Option::switchOn, 1);
    view.options()->set(Option::switchRest, 0);
    appearAndHideMenu();
    press(ControllerButton::other);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
}

TEST_F(ControllerInputTest, TurnedOffItDoesNotEvenLook) {
    view.options()->set(Option::controller, 0);
    appearAndHideMenu();
    platform.queue.advance(1);
    const int polls = controllers.polls;
    press(ControllerButton::accept);
    EXPECT_EQ(match.aimState, AimState::idle);
    EXPECT_EQ(controllers.polls, polls);
}

TEST_F(ControllerInputTest, WithoutAControllerItLooksTwiceASecond) {
    controllers.connected = false;
    platform.queue.advance(1);
    const int before = controllers.polls;
    platform.queue.advance(10);
    EXPECT_EQ(controllers.polls - before, 20);
}

} // namespace vorbel
