// Keys and buttons are changed on their screen, by every way there is; then the keys do what they were given.
#include "tests/ScriptedControllers.h"
#include "tests/scenario/menus/MenuWindow.h"

#include "app/controller/ControllerInput.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace vorbel {

class ControlsScreenTest : public testing::Test {
protected:
    MenuWindow game;
    GameControls& controls = *game.view().controls();
    OneSwitch& one = game.oneSwitch();
    const GameLogic& match = game.view().gameLogic();

    ControlsScreenTest() { game.setLanguage(AppLanguage::en); }

    void open() {
        game.open(MenuScreen::controls);
        game.layOut();
    }
    // The n-th control with this text: of keys and buttons in turn, from the first action on.
    [[nodiscard]] QQuickItem* control(const QString& text, std::size_t place) {
        std::vector<QQuickItem*> found;
        collect(
            game.menu(),
            [&](QQuickItem& item) { return isOfType(item, "PressButton") && item.property("text") == text; },
            found);
        return place < found.size() ? found[place] : nullptr;
    }
    [[nodiscard]] std::optional<GameAction> actionOf(int key) const {
        return controls.of(GameControls::Device::keyboard).actionOf(key);
    }
    void give(GameAction action, int key) { controls.give(GameControls::Device::keyboard, action, key); }
    [[nodiscard]] AimState aimState() const { return match.aimState; }
    void expectNoComplaints() { EXPECT_EQ(game.complaints().join(QLatin1Char('\n')).toStdString(), ""); }
};

TEST_F(ControlsScreenTest, TheOptionsLeadThere) {
    game.open(MenuScreen::options);
    game.layOut();
    game.click(*game.button("Keys and buttons"));
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::controls);
    game.layOut();
    game.click(*game.button("Back"));
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::options);
    expectNoComplaints();
}

TEST_F(ControlsScreenTest, AKeyIsAddedAndTakenAwayByMouse) {
    open();
    game.click(*control("+", 0));
    EXPECT_NE(control(QStringLiteral("Press a key …"), 0), nullptr);
    game.press(Qt::Key_A);
    EXPECT_EQ(actionOf(Qt::Key_A), GameAction::left);
    game.layOut();
    game.click(*control("A", 0));
    EXPECT_EQ(actionOf(Qt::Key_A), std::nullopt);
    expectNoComplaints();
}

TEST_F(ControlsScreenTest, AKeyIsAddedByKeyboard) {
    open();
    for (int step = 0; step < 100 && game.focus() != control("+", 0); ++step) {
        game.press(Qt::Key_Tab);
    }
    ASSERT_EQ(game.focus(), control("+", 0));
    game.press(Qt::Key_Return);
    game.press(Qt::Key_A);
    EXPECT_EQ(actionOf(Qt::Key_A), GameAction::left);
}

TEST_F(ControlsScreenTest, AKeyIsAddedByAssistiveTechnologyWhichHearsWhoseItIs) {
    open();
    QAccessibleInterface* const add = QAccessible::queryAccessibleInterface(control("+", 0));
    EXPECT_EQ(add->text(QAccessible::Name), "Add a key");
    EXPECT_EQ(add->text(QAccessible::Description), "Left");
    add->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    game.press(Qt::Key_A);
    EXPECT_EQ(actionOf(Qt::Key_A), GameAction::left);
}

TEST_F(ControlsScreenTest, AKeyIsAddedWithOneSwitch) {
    game.view().options()->set(Option::switchRest, 0);
    game.view().options()->set(Option::switchOn, 1);
    open();
    for (int step = 0; step < 2000 && actionOf(Qt::Key_A) == std::nullopt; ++step) {
        game.wait(0.3);
        const QRectF wanted = inScene(*control("+", 0));
        if (game.view().catcher().isWaiting()) {
            game.press(Qt::Key_A);
        } else if (one.frame().contains(wanted.center())) {
            game.press(Qt::Key_Space);
            game.layOut();
        }
    }
    EXPECT_EQ(actionOf(Qt::Key_A), GameAction::left);
}

TEST_F(ControlsScreenTest, AConflictStandsWrittenThere) {
    open();
    game.click(*control("+", 0));
    game.press(Qt::Key_Space);
    std::vector<QQuickItem*> news;
    collect(
        game.menu(),
        [](QQuickItem& item) {
            return item.property("text") == QStringLiteral("Space stays: “Aim, throw, OK” has nothing else.");
        },
        news);
    EXPECT_EQ(news.size(), 1U);
}

TEST_F(ControlsScreenTest, AKeyDoesWhatItWasGivenAndNothingElse) {
    give(GameAction::accept, Qt::Key_A);
    give(GameAction::accept, Qt::Key_PageDown);
    give(GameAction::right, Qt::Key_D);
    give(GameAction::menu, Qt::Key_Space);
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_A);
    EXPECT_EQ(aimState(), AimState::aimingAngle);
    game.press(Qt::Key_D);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    game.press(Qt::Key_PageDown);
    EXPECT_EQ(aimState(), AimState::aimingPower);
    game.press(Qt::Key_Space);
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::main);
    game.press(Qt::Key_A);
    game.press(Qt::Key_PageDown);
    EXPECT_EQ(aimState(), AimState::aimingPower) << "a menu is open";
}

TEST_F(ControlsScreenTest, AGivenKeyWithoutActionPressesNothing) {
    give(GameAction::accept, Qt::Key_A);
    controls.takeAway(GameControls::Device::keyboard, Qt::Key_Space);
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_Space);
    EXPECT_EQ(aimState(), AimState::idle);
    EXPECT_FALSE(game.view().settings()->redAIOn()) << "nor does it work the switch that has the focus";
    game.open(MenuScreen::main);
    game.press(Qt::Key_Space);
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::main);
}

TEST_F(ControlsScreenTest, FineAimFollowsTheKeysOfTheAim) {
    game.view().options()->set(Option::fineAim, 1);
    give(GameAction::right, Qt::Key_D);
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_Space);
    QTest::keyClick(&game.window(), Qt::Key_D, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::fineStep);
}

TEST_F(ControlsScreenTest, AControllerThatWentThroughTheMenusIsStillWhatWasUsedLast) {
    ScriptedControllers controllers;
    const ControllerInput input(controllers, game.view(), game.queue());
    QObject::connect(&input, &ControllerInput::keyPressed, &game.window(),
                     [this](Qt::Key key) { sendKey(game.window(), key); });
    QGuiApplication::instance()->installEventFilter(&game.view().hints());
    game.open(MenuScreen::bcClass);
    controllers.coming = {{ControllerButton::down, true}, {ControllerButton::down, false}};
    game.wait(0.1);
    game.open(MenuScreen::hidden);
    EXPECT_TRUE(game.view().hud()->message().contains("[A]")) << game.view().hud()->message().toStdString();
    game.press(Qt::Key_Shift);
    EXPECT_FALSE(game.view().hud()->message().contains("[A]")) << "now it is the keyboard";
    QGuiApplication::instance()->removeEventFilter(&game.view().hints());
}

TEST_F(ControlsScreenTest, TheMenusOfTheBarAreOfferedToOneSwitch) {
    game.view().options()->set(Option::switchRest, 0);
    game.view().options()->set(Option::switchOn, 1);
    game.open(MenuScreen::main);
    game.layOut();
    const auto takeWhenOffered = [&](const QString& text) {
        for (int step = 0; step < 400; ++step) {
            game.wait(0.3);
            std::vector<QQuickItem*> offered;
            collect(
                *game.window().contentItem(),
                [&](QQuickItem& item) {
                    return item.property("text") == text && one.frame() == inScene(item);
                },
                offered);
            if (!offered.empty()) {
                game.press(Qt::Key_Space);
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(takeWhenOffered("Game"));
    EXPECT_TRUE(takeWhenOffered("About"));
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::about);
    EXPECT_TRUE(takeWhenOffered("Options"));
    EXPECT_TRUE(takeWhenOffered(QStringLiteral("Options …")));
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::options);
    expectNoComplaints();
}

TEST_F(ControlsScreenTest, AMenuOfTheBarClosesAfterTwoRoundsWithoutAPress) {
    game.view().options()->set(Option::switchRest, 0);
    game.view().options()->set(Option::switchOn, 1);
    game.open(MenuScreen::main);
    game.layOut();
    for (int step = 0; step < 400 && one.spoken() != "Game"; ++step) {
        game.wait(0.3);
    }
    ASSERT_EQ(one.spoken(), "Game");
    game.press(Qt::Key_Space);
    ASSERT_NE(game.button(QStringLiteral("Toggle Full Screen")), nullptr);
    game.wait(2 * 4 * 1.5 + 1.5);
    EXPECT_EQ(game.button(QStringLiteral("Toggle Full Screen")), nullptr);
    game.wait(1.5);
    EXPECT_FALSE(one.frame().isEmpty()) << "the screen is offered again";
}

} // namespace vorbel
