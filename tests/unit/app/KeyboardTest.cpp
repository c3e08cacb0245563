#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

using KeyboardTest = ViewTest;

TEST_F(KeyboardTest, KeysDoNothingWhileAMenuIsOpen) {
    for (const MenuScreen screen :
         {MenuScreen::main, MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules, MenuScreen::about,
          MenuScreen::diary, MenuScreen::matchResult}) {
        view.setMenuScreen(screen);
        view.pressAction();
        EXPECT_EQ(match.aimState, AimState::idle);
        match.aimState = AimState::aimingAngle;
        view.pressRight();
        view.pressUp();
        EXPECT_EQ(match.aimAngle, 0);
        EXPECT_EQ(match.aimPitch, 0);
        match.aimState = AimState::idle;
    }
}

TEST_F(KeyboardTest, SwallowedKeysAreNotQueued) {
    view.setMenuScreen(MenuScreen::main);
    view.pressAction();
    hideMenu();
    platform.queue.advance(1);
    EXPECT_EQ(match.aimState, AimState::idle);
}

TEST_F(KeyboardTest, SpaceWalksThroughTheThrow) {
    hideMenu();
    view.pressAction();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    view.pressAction();
    EXPECT_EQ(match.aimState, AimState::aimingPower);
    view.pressAction();
    EXPECT_EQ(match.aimState, AimState::thrown);
}

TEST_F(KeyboardTest, ArrowsAim) {
    hideMenu();
    view.pressAction();
    view.pressRight();
    view.pressRight();
    view.pressLeft();
    view.pressUp();
    view.pressUp();
    view.pressDown();
    EXPECT_DOUBLE_EQ(match.aimAngle, 0.05);
    EXPECT_DOUBLE_EQ(match.aimPitch, 0.05);
}

TEST_F(KeyboardTest, EscapeLeavesFullScreenInEveryStateAndLeavesTheMenuAsItIs) {
    int requests = 0;
    QObject::connect(&view, &ContentView::exitFullScreenRequested, &view, [&requests] { ++requests; });
    for (const MenuScreen screen : {MenuScreen::rules, MenuScreen::hidden}) {
        view.setMenuScreen(screen);
        view.pressExitFullScreen();
        EXPECT_EQ(view.menuScreen(), screen);
    }
    EXPECT_EQ(requests, 2);
}

TEST_F(KeyboardTest, AMatchThatJustEndedIsRecordedBeforeSpaceStartsTheNextOne) {
    hideMenu();
    match.redScore = 3;
    match.phase = GamePhase::gameOver;
    view.pressAction(); // before the queue runs
    EXPECT_EQ(view.gamesPlayed(), 1);
}

} // namespace vorbel
