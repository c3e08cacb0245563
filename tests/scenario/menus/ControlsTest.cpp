// The menu by keyboard alone, and by mouse.
#include "tests/scenario/menus/MenuWindow.h"

#include "app/text/Texts.h"

#include <QPointer>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

class ControlsTest : public testing::Test {
protected:
    MenuWindow game;
    ContentView& view = game.view();
    GameLogic& match = view.gameLogic();

    ControlsTest() { game.setLanguage(AppLanguage::en); }

    void click(const QString& text) {
        game.layOut();
        game.click(game.control(text));
    }
    QRectF countryGrid() {
        std::vector<QQuickItem*> found;
        collect(
            game.menu(), [](QQuickItem& item) { return isOfType(item, "QQuickFlickable"); }, found);
        return inScene(*found.at(0));
    }
    void tabTo(const QString& text) {
        for (int i = 0; i < 60 && game.focusedText() != text; ++i) {
            game.press(Qt::Key_Tab);
        }
        ASSERT_EQ(game.focusedText(), text);
    }
};

TEST_F(ControlsTest, TabAndBacktabReachEveryControlOfEveryScreen) {
    view.career().setRealAthlete(true);
    for (const MenuScreen screen : allScreens) {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            game.open(MenuScreen::hidden);
            game.open(screen);
            const std::vector<QQuickItem*> controls = game.controls();
            QSet<QQuickItem*> reached;
            for (std::size_t i = 0; i < controls.size() + 2; ++i) {
                reached.insert(game.focus());
                game.press(key);
            }
            for (QQuickItem* item : controls) {
                EXPECT_TRUE(reached.contains(item)) << qUtf8Printable(item->property("text").toString());
            }
            for (const QQuickItem* item : reached) {
                EXPECT_TRUE(game.menu().isAncestorOf(item)) << "the focus leaves the menu";
            }
        }
    }
}

TEST_F(ControlsTest, ReturnPressesWhatHasTheFocus) {
    EXPECT_EQ(game.focusedText(), QStringLiteral("Start Game"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::country);
    EXPECT_EQ(game.focusedText(), QStringLiteral("France"));
    tabTo(QStringLiteral("Peru"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.settings()->selectedCountry(), Country::peru);
    EXPECT_EQ(game.focusedText(), QStringLiteral("Peru"));
    tabTo(QStringLiteral("Play"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::bcClass);
    tabTo(QStringLiteral("BC3"));
    game.press(Qt::Key_Enter);
    EXPECT_EQ(view.settings()->selectedClass(), BocciaClass::bc3);
    tabTo(QStringLiteral("Play"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::hidden);
    EXPECT_EQ(match.playerCountry, Country::peru);
    EXPECT_EQ(match.playerClass, BocciaClass::bc3);
}

TEST_F(ControlsTest, TheLanguageIsChosenByKeyboardAndTheFocusStays) {
    tabTo(QStringLiteral("Deutsch"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.settings()->selectedLanguage(), AppLanguage::de);
    EXPECT_EQ(game.focusedText(), QStringLiteral("Deutsch"));
}

TEST_F(ControlsTest, SpaceAndArrowsNeitherPressAControlNorMoveTheFocusNorReachTheMatch) {
    for (const MenuScreen screen : allScreens) {
        game.open(screen);
        const QQuickItem* focus = game.focus();
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            game.press(key);
            EXPECT_EQ(view.openMenu().menuScreen(), screen);
            EXPECT_EQ(game.focus(), focus);
            EXPECT_EQ(match.aimState, AimState::idle);
        }
    }
}

TEST_F(ControlsTest, SpaceWorksNoSwitch) {
    tabTo(QStringLiteral("I'm a real-life athlete"));
    game.press(Qt::Key_Space);
    EXPECT_FALSE(view.career().isRealAthlete());
    game.press(Qt::Key_Return);
    EXPECT_TRUE(view.career().isRealAthlete());
}

TEST_F(ControlsTest, OnceTheMenuIsHiddenTheKeysPlay) {
    game.open(MenuScreen::hidden);
    game.press(Qt::Key_Space);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    game.press(Qt::Key_Right);
    EXPECT_DOUBLE_EQ(match.aimAngle, 0.05);
}

TEST_F(ControlsTest, TheCountryScreenOpensWithTheChosenCountryInViewAndFocused) {
    for (const Country country : {Country::france, Country::belgium, Country::japan, Country::russia}) {
        view.settings()->setSelectedCountry(country);
        game.open(MenuScreen::main);
        game.open(MenuScreen::country);
        game.layOut();
        EXPECT_EQ(game.focusedText(), text(key(country), AppLanguage::en));
        EXPECT_TRUE(countryGrid().contains(inScene(*game.focus()))) << qUtf8Printable(game.focusedText());
    }
}

TEST_F(ControlsTest, TheCountryGridScrollsToTheFocus) {
    game.open(MenuScreen::country);
    game.layOut();
    for (int i = 0; i < 40; ++i) {
        game.press(Qt::Key_Backtab);
        if (isOfType(*game.focus(), "CountryButton")) {
            EXPECT_TRUE(countryGrid().contains(inScene(*game.focus()))) << qUtf8Printable(game.focusedText());
        }
    }
}

TEST_F(ControlsTest, AllFiveButtonsWithoutTheAthleteAndTheDiaryWithHim) {
    const auto buttons = [this] {
        return std::ranges::count_if(game.controls(),
                                     [](QQuickItem* item) { return isOfType(*item, "MenuButton"); });
    };
    EXPECT_EQ(buttons(), 5);
    game.press(Qt::Key_Backtab); // from the first button back to the switch
    game.press(Qt::Key_Return);
    EXPECT_EQ(buttons(), 6);
    tabTo(QStringLiteral("Athlete's Diary"));
    game.press(Qt::Key_Return);
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::diary);
}

TEST_F(ControlsTest, TheMousePressesButtonsAndNothingBehindThem) {
    click(QStringLiteral("Start Game"));
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::country);
    click(QStringLiteral("Croatia"));
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::country);
    EXPECT_EQ(view.settings()->selectedCountry(), Country::croatia);
    std::vector<QQuickItem*> behind;
    collect(
        *game.window().contentItem(),
        [](QQuickItem& item) { return isOfType(item, "DifficultyButton") || isOfType(item, "ToggleSwitch"); },
        behind);
    ASSERT_EQ(behind.size(), 6U) << "four levels and two switches";
    for (QQuickItem* item : behind) {
        game.click(*item);
    }
    EXPECT_FALSE(view.settings()->redAIOn());
    EXPECT_FALSE(view.settings()->blueAIOn());
    EXPECT_EQ(view.settings()->difficulty(), AIDifficulty::medium);
}

// The buttons of a closed screen are destroyed one pass of the event loop after the screen itself.
TEST_F(ControlsTest, WhatRemainsOfAClosedScreenBearsTheNextChoice) {
    MenuChoices& choices = *game.view().menu()->choices();
    for (const MenuScreen screen : {MenuScreen::main, MenuScreen::country, MenuScreen::bcClass}) {
        game.open(screen);
        const QPointer<QQuickItem> button = game.controls().front();
        game.open(MenuScreen::rules);
        EXPECT_FALSE(button.isNull());
        choices.setClassIndex(choices.classIndex() == 0 ? 1 : 0);
        choices.setLanguageIndex(choices.languageIndex() == 0 ? 1 : 0);
        EXPECT_EQ(game.complaints(), QStringList()) << static_cast<int>(screen);
        game.settle();
        EXPECT_TRUE(button.isNull()) << "and is gone";
    }
}

} // namespace vorbel
