// The game menu at the top of the window, and the keyboard while it is open and afterwards.
#include "tests/scenario/menus/MenuWindow.h"

#include <QKeySequence>
#include <QTest>

#include <gtest/gtest.h>

namespace vorbel {

class GameMenuTest : public testing::Test {
protected:
    MenuWindow game;
    ContentView& view = game.view();

    GameMenuTest() { game.setLanguage(AppLanguage::en); }

    [[nodiscard]] bool isOpen() {
        std::vector<QQuickItem*> found;
        collect(
            *game.window().contentItem(), [](QQuickItem& item) { return isOfType(item, "CommandItem"); },
            found);
        return !found.empty();
    }

    [[nodiscard]] static bool showsRing(QQuickItem& control) {
        std::vector<QQuickItem*> rings;
        collect(
            control, [](QQuickItem& item) { return isOfType(item, "FocusRing"); }, rings);
        return !rings.empty() ||
               (isOfType(control, "ToggleSwitch") && control.property("visualFocus").toBool());
    }

    // Opens it, lets it be closed, and looks whether the same control has the keyboard again, ring and all.
    template <typename Close>
    void expectTheFocusBackAfter(Close close) {
        QQuickItem* const before = game.focus();
        ASSERT_TRUE(showsRing(*before));
        game.press(Qt::Key_F10);
        ASSERT_TRUE(isOpen());
        EXPECT_NE(game.focus(), before);
        close();
        game.settle();
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(game.focus(), before);
        EXPECT_TRUE(showsRing(*before)) << qUtf8Printable(game.focusedText());
    }

    void clickOutside() {
        QTest::mouseClick(&game.window(), Qt::LeftButton, {}, QPoint(40, 700)); // where no control is
    }
};

TEST_F(GameMenuTest, HoweverItIsClosedTheKeyboardIsWhereItWas) {
    for (const int steps : {0, 3, 12}) { // a button, and others; the switch is the one before the first
        game.press(Qt::Key_Tab, steps);
        expectTheFocusBackAfter([this] { game.press(Qt::Key_Escape); });
        expectTheFocusBackAfter([this] { game.press(Qt::Key_F10); });
        expectTheFocusBackAfter([this] { game.press(Qt::Key_Return); }); // the main menu, which is open
        expectTheFocusBackAfter([this] { clickOutside(); });
    }
    game.open(MenuScreen::rules);
    game.open(MenuScreen::main);
    game.press(Qt::Key_Backtab);
    ASSERT_TRUE(isOfType(*game.focus(), "ToggleSwitch"));
    expectTheFocusBackAfter([this] { game.press(Qt::Key_Escape); });
}

TEST_F(GameMenuTest, InAMatchTheDisplayKeepsItsFocusToo) {
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_Tab, 2);
    ASSERT_TRUE(isOfType(*game.focus(), "DifficultyButton"));
    expectTheFocusBackAfter([this] { game.press(Qt::Key_Escape); });
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.settings()->difficulty(), AIDifficulty::easy);
    game.press(Qt::Key_Space);
    EXPECT_EQ(view.gameLogic().aimState, AimState::aimingAngle) << "the game's keys act again";
}

TEST_F(GameMenuTest, ACommandThatOpensAScreenLeavesTheKeyboardThere) {
    game.press(Qt::Key_F10);
    game.press(Qt::Key_Down);
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::rules);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(game.focusedText(), QStringLiteral("Back"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::main);
}

TEST_F(GameMenuTest, TheKeysThatAreShownWorkAndNoneIsThereTwice) {
    QList<QKeySequence> working;
    for (const QVariant& keys : VorbelApp::fullScreenKeys()) {
        EXPECT_FALSE(working.contains(QKeySequence(keys.toString()))) << qUtf8Printable(keys.toString());
        working.append(QKeySequence(keys.toString()));
    }
    for (const QString& keys : VorbelApp::fullScreenKeysShown().split(QStringLiteral(", "))) {
        EXPECT_TRUE(working.contains(QKeySequence(keys))) << qUtf8Printable(keys);
    }
}

} // namespace vorbel
