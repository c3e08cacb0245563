// The controls of the menu as assistive technology finds and presses them.
#include "tests/scenario/menus/MenuWindow.h"

#include <QAccessible>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

QAccessibleInterface* accessible(QQuickItem& item) {
    return QAccessible::queryAccessibleInterface(&item);
}

} // namespace

class AssistiveControlsTest : public testing::Test {
protected:
    MenuWindow game;
    ContentView& view = game.view();

    AssistiveControlsTest() { game.setLanguage(AppLanguage::en); }
};

TEST_F(AssistiveControlsTest, AssistiveTechnologyFindsANameARoleAndAPressOnEveryControl) {
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

TEST_F(AssistiveControlsTest, AssistiveTechnologyPressesButtonsChoicesAndSwitches) {
    const auto press = [this](const char* text, const QString& action) {
        accessible(game.control(QString::fromUtf8(text)))->actionInterface()->doAction(action);
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

TEST_F(AssistiveControlsTest, TheAboutScreenHasALinkToTheGamesPagesInThePlayersLanguage) {
    game.open(MenuScreen::about);
    EXPECT_EQ(accessible(game.control(QStringLiteral("The game's pages")))->role(), QAccessible::Link);
    for (const AppLanguage language : allLanguages) {
        game.setLanguage(language);
        const QFileInfo page(view.menu()->pages().toLocalFile());
        EXPECT_TRUE(page.isFile()) << rawValue(language);
        EXPECT_EQ(page.baseName().toStdString(), rawValue(language));
    }
}

} // namespace vorbel
