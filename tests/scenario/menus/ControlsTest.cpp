// The menu by keyboard alone, by mouse, and by assistive technology.
#include "tests/scenario/menus/MenuWindow.h"

#include "app/text/Texts.h"

#include <QAccessible>
#include <QFileInfo>
#include <QPointer>
#include <QSet>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace vorbel {

namespace {

constexpr MenuScreen allScreens[] = {MenuScreen::main,       MenuScreen::country, MenuScreen::bcClass,
                                     MenuScreen::rules,      MenuScreen::about,   MenuScreen::diary,
                                     MenuScreen::matchResult};

QAccessibleInterface* accessible(QQuickItem& item) {
    return QAccessible::queryAccessibleInterface(&item);
}

} // namespace

class ControlsTest : public testing::Test {
protected:
    MenuWindow game{Resources({VORBEL_RESOURCES_FOLDER})};
    ContentView& view = game.view();
    GameLogic& match = view.gameLogic();

    ControlsTest() { game.setLanguage(AppLanguage::en); }

    QQuickItem& control(const QString& text) {
        for (QQuickItem* item : game.controls()) {
            if (item->property("text").toString() == text) {
                return *item;
            }
        }
        throw std::runtime_error("no control " + text.toStdString());
    }
    void click(const QString& text) {
        game.layOut();
        QTest::mouseClick(&game.window(), Qt::LeftButton, {}, inScene(control(text)).center().toPoint());
        game.settle();
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
    for (const QQuickItem* item : behind) {
        QTest::mouseClick(&game.window(), Qt::LeftButton, {}, inScene(*item).center().toPoint());
        game.settle();
    }
    EXPECT_FALSE(view.settings()->redAIOn());
    EXPECT_FALSE(view.settings()->blueAIOn());
    EXPECT_EQ(view.settings()->difficulty(), AIDifficulty::medium);
}

TEST_F(ControlsTest, AssistiveTechnologyFindsANameARoleAndAPressOnEveryControl) {
    view.career().setRealAthlete(true);
    for (const MenuScreen screen : allScreens) {
        game.open(screen);
        for (QQuickItem* item : game.controls()) {
            QAccessibleInterface* seen = accessible(*item);
            ASSERT_NE(seen, nullptr);
            const QString name = seen->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty());
            EXPECT_TRUE(QSet<int>({QAccessible::Button, QAccessible::RadioButton, QAccessible::CheckBox,
                                   QAccessible::Link})
                            .contains(seen->role()))
                << qUtf8Printable(name) << " " << seen->role();
            ASSERT_NE(seen->actionInterface(), nullptr) << qUtf8Printable(name);
            EXPECT_FALSE(seen->actionInterface()->actionNames().isEmpty()) << qUtf8Printable(name);
        }
    }
}

TEST_F(ControlsTest, AssistiveTechnologyPressesButtonsChoicesAndSwitches) {
    const auto press = [this](const char* text, const QString& action) {
        accessible(control(QString::fromUtf8(text)))->actionInterface()->doAction(action);
        game.settle();
    };
    press("Deutsch", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view.settings()->selectedLanguage(), AppLanguage::de);
    press("English", QAccessibleActionInterface::pressAction());
    press("I'm a real-life athlete", QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(view.career().isRealAthlete());
    press("Start Game", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view.openMenu().menuScreen(), MenuScreen::country);
    press("Japan", QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view.settings()->selectedCountry(), Country::japan);
}

TEST_F(ControlsTest, TheAboutScreenHasALinkToTheGamesPagesInThePlayersLanguage) {
    game.open(MenuScreen::about);
    EXPECT_EQ(accessible(control(QStringLiteral("The game's pages")))->role(), QAccessible::Link);
    for (const AppLanguage language : allLanguages) {
        game.setLanguage(language);
        const QFileInfo page(view.menu()->pages().toLocalFile());
        EXPECT_TRUE(page.isFile()) << rawValue(language);
        EXPECT_EQ(page.baseName().toStdString(), rawValue(language));
    }
}

TEST_F(ControlsTest, OfALongDiaryOnlyTheRowsThatAreSeenAreMadeAndItScrollsToItsEnd) {
    std::string json = "[";
    for (int i = 0; i < 100'000; ++i) {
        json += (i == 0 ? "" : ",") + std::string(R"({"id":"0F2B6C1E-9D3A-4E57-8C4B-1A2B3C4D5E6F","date":)") +
                std::to_string(700'000'000 - i * 3600) + R"(.25,"resultKey":"diary.win","xpGained":1})";
    }
    game.defaults().setBytes("boccia_diaryData", json + "]");
    view.menu()->openDiary();
    game.layOut();
    std::vector<QQuickItem*> rows;
    collect(
        game.menu(), [](QQuickItem& item) { return isOfType(item, "DiaryRow"); }, rows);
    EXPECT_GT(rows.size(), 5U);
    EXPECT_LT(rows.size(), 100U);
    EXPECT_EQ(view.menu()->career()->diary()->rowCount(), 100'000);
    game.press(Qt::Key_Tab); // from the button to the list
    game.press(Qt::Key_End);
    EXPECT_TRUE(isOfType(*game.focus(), "QQuickListView"))
        << game.focus()->metaObject()->className() << qUtf8Printable(game.focusedText());
    EXPECT_TRUE(game.focus()->property("atYEnd").toBool());
    game.press(Qt::Key_Home);
    EXPECT_TRUE(game.focus()->property("atYBeginning").toBool());
}

TEST(LogoTest, AMissingLogoLeavesNoHoleAndNoError) {
    MenuWindow with{Resources({VORBEL_RESOURCES_FOLDER})};
    MenuWindow without{Resources()};
    const auto titleTop = [](MenuWindow& game) {
        game.layOut();
        std::vector<QQuickItem*> found;
        collect(
            game.menu(), [](QQuickItem& item) { return isOfType(item, "ScreenTitle"); }, found);
        return inScene(*found.at(0)).top() - inScene(*game.controls().at(0)).top();
    };
    EXPECT_LT(std::abs(titleTop(with) - titleTop(without)), 1);
    EXPECT_EQ(without.complaints(), QStringList());
    std::vector<QQuickItem*> pictures;
    collect(
        without.menu(), [](QQuickItem& item) { return isOfType(item, "QQuickImage"); }, pictures);
    EXPECT_TRUE(pictures.empty());
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
