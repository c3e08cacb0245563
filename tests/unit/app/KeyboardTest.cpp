#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

using KeyboardTest = ViewTest;

TEST_F(KeyboardTest, KeysDoNothingWhileAMenuIsOpen) {
    hideMenu();
    keyboard.pressAction();
    for (const MenuScreen screen :
         {MenuScreen::main, MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules, MenuScreen::about,
          MenuScreen::diary, MenuScreen::options, MenuScreen::controls, MenuScreen::leave,
          MenuScreen::matchResult}) {
        openMenu.setMenuScreen(screen);
        keyboard.pressAction();
        EXPECT_EQ(match.aimState, AimState::aimingAngle);
        keyboard.pressRight();
        keyboard.pressUp();
        EXPECT_EQ(match.aimAngle, 0);
        EXPECT_EQ(match.aimPitch, 0);
    }
}

TEST_F(KeyboardTest, SwallowedKeysAreNotQueued) {
    openMenu.setMenuScreen(MenuScreen::main);
    keyboard.pressAction();
    hideMenu();
    platform.queue.advance(1);
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(KeyboardTest, SpaceWalksThroughTheThrow) {
    hideMenu();
    keyboard.pressAction();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    keyboard.pressAction();
    EXPECT_EQ(match.aimState, AimState::aimingPower);
    keyboard.pressAction();
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(KeyboardTest, ArrowsAim) {
    hideMenu();
    keyboard.pressAction();
    keyboard.pressRight();
    keyboard.pressRight();
    keyboard.pressLeft();
    keyboard.pressUp();
    keyboard.pressUp();
    keyboard.pressDown();
    EXPECT_DOUBLE_EQ(match.aimAngle, 0.05);
    EXPECT_DOUBLE_EQ(match.aimPitch, 0.05);
}

TEST_F(KeyboardTest, EscapeLeavesFullScreenInEveryStateAndLeavesTheMenuAsItIs) {
    int requests = 0;
    QObject::connect(&keyboard, &Keyboard::exitFullScreenRequested, &view, [&requests] { ++requests; });
    for (const MenuScreen screen : {MenuScreen::rules, MenuScreen::hidden}) {
        openMenu.setMenuScreen(screen);
        keyboard.pressExitFullScreen();
        EXPECT_EQ(openMenu.menuScreen(), screen);
    }
    EXPECT_EQ(requests, 2);
}

TEST_F(KeyboardTest, AMatchThatJustEndedIsRecordedBeforeSpaceStartsTheNextOne) {
    hideMenu();
    endMatch(3, 0);
    keyboard.pressAction(); // before the queue runs
    EXPECT_EQ(career.gamesPlayed(), 1);
}

} // namespace vorbel
