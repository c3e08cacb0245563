// A key of the player's own as the one switch.
#include "tests/scenario/menus/MenuWindow.h"

#include "app/keys/PressCatcher.h"

#include <gtest/gtest.h>

namespace vorbel {

class SwitchKeyTest : public testing::Test {
protected:
    MenuWindow game;
    Options& options = *game.view().options();
    OneSwitch& one = game.oneSwitch();

    SwitchKeyTest() { game.setLanguage(AppLanguage::en); }

    // As the player does: on the screen of the options.
    void askForKey() {
        game.open(MenuScreen::options);
        choose(1);
    }
    void choose(int place) {
        game.view().menu()->options()->choose(static_cast<int>(Option::switchKey), place);
        game.settle();
    }
    [[nodiscard]] QStringList shown() {
        const OptionsModel& rows = *game.view().menu()->options();
        return rows.data(rows.index(static_cast<int>(Option::switchKey)), OptionsModel::ChoicesRole)
            .toStringList();
    }
    [[nodiscard]] int key() const { return options.value(Option::switchKey); }
    void play() {
        options.set(Option::switchRest, 0);
        options.set(Option::switchOn, 1);
        game.open(MenuScreen::hidden);
    }
    [[nodiscard]] AimState aimState() { return game.view().gameLogic().aimState; }
};

TEST_F(SwitchKeyTest, TheNextKeyIsKept) {
    EXPECT_EQ(shown(), (QStringList{"None", "+"}));
    askForKey();
    EXPECT_EQ(shown(), (QStringList{"None", QStringLiteral("Press a key …")}));
    game.press(Qt::Key_F7);
    EXPECT_EQ(shown(), (QStringList{"None", "F7"}));
    EXPECT_EQ(game.defaults().integer("boccia_option_switchKey"), int{Qt::Key_F7});
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::options);
    choose(0);
    EXPECT_EQ(key(), 0);
}

TEST_F(SwitchKeyTest, TheScreenAsksForItByKeyboardAndByMouse) {
    game.open(MenuScreen::options);
    game.layOut();
    QQuickItem* const ask = game.button(QStringLiteral("+"));
    ASSERT_NE(ask, nullptr);
    ask->forceActiveFocus(Qt::TabFocusReason); // scrolls there
    game.layOut();
    game.press(Qt::Key_Return);
    game.press(Qt::Key_F7);
    EXPECT_EQ(key(), Qt::Key_F7);
    game.click(*game.button(QStringLiteral("F7")));
    game.press(Qt::Key_F8);
    EXPECT_EQ(key(), Qt::Key_F8);
}

TEST_F(SwitchKeyTest, EscapeAClickAndPatienceThatEndsLeaveItAsItWas) {
    askForKey();
    game.press(Qt::Key_Escape);
    game.press(Qt::Key_F7);
    EXPECT_EQ(key(), 0);
    askForKey();
    game.click(game.menu());
    game.press(Qt::Key_F7);
    EXPECT_EQ(key(), 0);
    askForKey();
    game.wait(PressCatcher::patience + 0.01);
    game.press(Qt::Key_F7);
    EXPECT_EQ(key(), 0);
    EXPECT_FALSE(game.view().catcher().isWaiting());
}

TEST_F(SwitchKeyTest, AKeyOfTheMenusIsNotTaken) {
    askForKey();
    game.press(Qt::Key_Tab);
    EXPECT_EQ(key(), 0);
    EXPECT_EQ(shown(), (QStringList{"None", "+"}));
}

TEST_F(SwitchKeyTest, WhileItIsAskedForNoKeyDoesAnythingElse) {
    askForKey();
    game.press(Qt::Key_M);
    EXPECT_FALSE(options.isOn(Option::mute));
    EXPECT_EQ(key(), Qt::Key_M);
}

TEST_F(SwitchKeyTest, ItIsTheSwitchInTheMatchAndInTheMenus) {
    options.set(Option::switchKey, Qt::Key_F7);
    play();
    game.press(Qt::Key_F7);
    EXPECT_EQ(aimState(), AimState::aimingAngle);
    game.press(Qt::Key_F8);
    game.press(Qt::Key_F7);
    game.press(Qt::Key_F7);
    EXPECT_EQ(aimState(), AimState::aimingPower);
    game.open(MenuScreen::main);
    const auto isOffered = [&] {
        return game.focusedText() == "Start Game" && one.frame() == inScene(*game.focus());
    };
    for (int step = 0; step < 400 && !isOffered(); ++step) {
        game.wait(0.3);
    }
    game.press(Qt::Key_F7);
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::country);
}

TEST_F(SwitchKeyTest, WithoutTheOneSwitchItIsNothing) {
    options.set(Option::switchKey, Qt::Key_F7);
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_F7);
    EXPECT_EQ(aimState(), AimState::idle);
    EXPECT_FALSE(one.isSwitch(Qt::Key_F7));
    EXPECT_FALSE(one.isSwitch(Qt::Key_Space));
}

TEST_F(SwitchKeyTest, WithOneSwitchTheWalkWaitsForTheKey) {
    play();
    game.open(MenuScreen::options);
    game.wait(2);
    const QRectF offered = one.frame();
    ASSERT_FALSE(offered.isEmpty());
    choose(1);
    EXPECT_EQ(one.prompt(), QStringLiteral("Press a key …"));
    game.wait(PressCatcher::patience - 0.5);
    EXPECT_EQ(one.frame(), offered);
    game.press(Qt::Key_F7);
    EXPECT_EQ(key(), Qt::Key_F7);
}

TEST_F(SwitchKeyTest, WhatIsStoredAndNoKeyIsNone) {
    for (const int damaged : {-5, 7, int{Qt::Key_Escape}, int{Qt::Key_Tab}, 0x7fffffff}) {
        game.defaults().setInteger("boccia_option_switchKey", damaged);
        EXPECT_EQ(Options(game.defaults()).value(Option::switchKey), 0) << damaged;
    }
}

} // namespace vorbel
