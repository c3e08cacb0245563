// A whole match, menus included, by players who have no keyboard: with one switch, with the mouse, with a controller.
#include "tests/ScriptedControllers.h"
#include "tests/scenario/menus/MenuWindow.h"

#include "app/controller/ControllerInput.h"

#include <gtest/gtest.h>

namespace vorbel {

class HelpedPlayTest : public testing::Test {
protected:
    MenuWindow game;
    GameLogic& match = game.view().gameLogic();

    HelpedPlayTest() {
        game.setLanguage(AppLanguage::en);
        game.view().appear();
    }
    void expectScreen(MenuScreen screen) { ASSERT_EQ(game.view().openMenu().menuScreen(), screen); }
    [[nodiscard]] bool isOver() const { return match.phase == GamePhase::gameOver; }
    void expectPlayedMatch() {
        EXPECT_GE(match.endHistory.get().size(), 4u);
        EXPECT_EQ(game.defaults().integer("boccia_gamesPlayed"), 1);
        EXPECT_EQ(game.complaints().join(QLatin1Char('\n')).toStdString(), "");
    }
};

class OneSwitchPlayTest : public HelpedPlayTest {
protected:
    OneSwitch& one = game.oneSwitch();

    OneSwitchPlayTest() {
        game.view().options()->set(Option::switchRest, 0);
        game.view().options()->set(Option::switchOn, 1);
    }
    [[nodiscard]] bool isOffered(const QString& text) {
        return game.focusedText() == text && one.frame() == inScene(*game.focus());
    }
    void takeWhenOffered(const QString& text) {
        for (int step = 0; step < 400 && !isOffered(text); ++step) {
            game.wait(0.3);
        }
        ASSERT_TRUE(isOffered(text)) << qUtf8Printable(text);
        game.press(Qt::Key_Space);
    }
    void throwOn() {
        const QString prompt = one.prompt();
        if (!prompt.isEmpty() && prompt != "Main Menu") {
            game.press(Qt::Key_Space);
        }
        game.wait(0.7);
    }
};

TEST_F(OneSwitchPlayTest, FromTheStartToTheResultAndBackInTheMenuWithSpaceAlone) {
    takeWhenOffered("Start Game");
    expectScreen(MenuScreen::country);
    takeWhenOffered("Play");
    expectScreen(MenuScreen::bcClass);
    takeWhenOffered("Play");
    expectScreen(MenuScreen::hidden);
    for (int press = 0; press < 5000 && !isOver(); ++press) {
        throwOn();
    }
    expectScreen(MenuScreen::matchResult);
    expectPlayedMatch();
    takeWhenOffered("Main Menu");
    expectScreen(MenuScreen::main);
}

TEST_F(OneSwitchPlayTest, AClickAnywhereIsTheSwitchAndNothingElse) {
    QQuickItem* const quit = game.button("Quit");
    ASSERT_NE(quit, nullptr);
    for (int step = 0; step < 40 && !isOffered("Start Game"); ++step) {
        game.wait(0.3);
    }
    ASSERT_TRUE(isOffered("Start Game"));
    game.click(*quit);
    expectScreen(MenuScreen::country);
}

TEST_F(OneSwitchPlayTest, TheOptionsAreReachedFromTheMainMenuAndTurnItOff) {
    takeWhenOffered("Options");
    expectScreen(MenuScreen::options);
    game.view().options()->set(Option::switchOn, 0);
    game.settle();
    EXPECT_TRUE(one.frame().isEmpty());
    game.press(Qt::Key_Return); // acts again by itself
    expectScreen(MenuScreen::main);
    for (const QQuickItem* control : game.controls()) {
        EXPECT_NE(control->property("text"), "Options") << "the menu bar has them";
    }
}

TEST_F(HelpedPlayTest, FromTheStartToTheResultAndBackInTheMenuWithTheMouseAlone) {
    game.view().options()->set(Option::courtButtons, 1);
    game.layOut();
    for (const char* text : {"Start Game", "Play", "Play"}) {
        QQuickItem* const button = game.button(QString::fromLatin1(text));
        ASSERT_NE(button, nullptr) << text;
        game.click(*button);
        game.layOut();
    }
    expectScreen(MenuScreen::hidden);
    for (int press = 0; press < 5000 && !isOver(); ++press) {
        game.click(*game.button("OK"));
        game.wait(0.7);
    }
    expectScreen(MenuScreen::matchResult);
    expectPlayedMatch();
    game.layOut();
    game.click(*game.button("Main Menu"));
    expectScreen(MenuScreen::main);
}

TEST_F(HelpedPlayTest, ButtonsOnTheCourtAimThrowAndTakeBack) {
    game.view().options()->set(Option::courtButtons, 1);
    game.open(MenuScreen::hidden);
    game.layOut();
    const auto click = [this](const char* text) { game.click(*game.button(QString::fromUtf8(text))); };
    click("OK");
    click("→");
    click("→");
    click("←");
    click("↑");
    click("↑");
    click("↓");
    EXPECT_DOUBLE_EQ(match.aimAngle, aim::angleStep);
    EXPECT_DOUBLE_EQ(match.aimPitch, aim::pitchStep);
    click("Take back");
    EXPECT_EQ(match.aimState, AimState::idle);
    for (const char* text : {"OK", "→", "←", "↑", "↓", "Take back"}) {
        const QRectF place = inScene(*game.button(QString::fromUtf8(text)));
        EXPECT_GE(place.width(), 44) << text;
        EXPECT_GE(place.height(), 44) << text;
    }
}

TEST_F(HelpedPlayTest, WhoSetsThePowerByHandOrListensHasButtonsForThatToo) {
    Options& options = *game.view().options();
    options.set(Option::courtButtons, 1);
    game.open(MenuScreen::hidden);
    // With the mark that keeps the sign at the left, in Arabic too.
    const char* const tenMore = "\u200E+10";
    const char* const tenLess = "\u200E−10";
    for (const char* text : {tenMore, tenLess, "Say positions"}) {
        EXPECT_EQ(game.button(QString::fromUtf8(text)), nullptr) << text;
    }
    options.set(Option::powerPace, 0);
    options.set(Option::speech, 1);
    game.layOut();
    const auto click = [this](const char* text) { game.click(*game.button(QString::fromUtf8(text))); };
    for (const char* text : {"OK", "OK", tenMore, tenMore, tenMore, tenLess, "↑"}) {
        click(text);
    }
    EXPECT_EQ(match.aimPower, aim::startPower + 21);
    int asked = 0;
    QObject::connect(game.view().keyboard(), &Keyboard::everythingRequested, &game.window(),
                     [&] { ++asked; });
    click("Say positions");
    EXPECT_EQ(asked, 1);
}

TEST_F(HelpedPlayTest, FromTheStartToTheResultAndBackInTheMenuWithAControllerAlone) {
    ScriptedControllers controllers;
    const ControllerInput input(controllers, game.view(), game.queue());
    QObject::connect(&input, &ControllerInput::keyPressed, &game.window(),
                     [this](Qt::Key key) { sendKey(game.window(), key); });
    const auto press = [&](ControllerButton button, double then) {
        controllers.coming = {{button, true}, {button, false}};
        game.wait(then);
    };
    const auto goTo = [&](const QString& text) {
        for (int step = 0; step < 60 && game.focusedText() != text; ++step) {
            press(ControllerButton::down, 0.02);
        }
        ASSERT_EQ(game.focusedText(), text);
        press(ControllerButton::south, 0.02);
    };
    goTo("Start Game");
    goTo("Play");
    goTo("Play");
    expectScreen(MenuScreen::hidden);
    for (int throwing = 0; throwing < 5000 && !isOver(); ++throwing) {
        press(ControllerButton::south, 0.7);
    }
    expectScreen(MenuScreen::matchResult);
    expectPlayedMatch();
    goTo("Main Menu");
    expectScreen(MenuScreen::main);
}

} // namespace vorbel
