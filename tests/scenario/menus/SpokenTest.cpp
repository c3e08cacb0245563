// What assistive technology is told of things that the eye takes from their place or colour.
#include "l10n/L10n.h"
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/MenuWindow.h"

#include <QAccessible>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbel {

class SpokenTest : public testing::Test {
protected:
    MenuWindow game;

    SpokenTest() { game.setLanguage(AppLanguage::en); }

    std::vector<QAccessibleInterface*> spoken(QAccessible::Role role) {
        game.layOut();
        std::vector<QQuickItem*> items;
        collect(
            *game.window().contentItem(),
            [role](QQuickItem& item) {
                const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&item);
                return spoken != nullptr && spoken->role() == role;
            },
            items);
        std::vector<QAccessibleInterface*> found;
        for (QQuickItem* item : items) {
            found.push_back(QAccessible::queryAccessibleInterface(item));
        }
        return found;
    }
    std::vector<std::string> texts(QAccessible::Role role, QAccessible::Text kind) {
        std::vector<std::string> all;
        for (const QAccessibleInterface* item : spoken(role)) {
            all.push_back(item->text(kind).toStdString());
        }
        return all;
    }
};

TEST_F(SpokenTest, PointsAndBallsNameTheirSide) {
    game.open(MenuScreen::hidden);
    EXPECT_THAT(
        texts(QAccessible::StaticText, QAccessible::Name),
        testing::IsSupersetOf({"RED, Score: 0", "RED, Balls: 6", "BLUE, Score: 0", "BLUE, Balls: 6"}));
}

TEST_F(SpokenTest, EachClassIsDescribedByItsOwnRadioButton) {
    game.open(MenuScreen::bcClass);
    std::vector<std::string> expected;
    for (const BocciaClass sportClass : allBocciaClasses) {
        expected.emplace_back(L10n::t(descriptionKey(sportClass), AppLanguage::en));
    }
    EXPECT_THAT(texts(QAccessible::RadioButton, QAccessible::Description), testing::IsSupersetOf(expected));
}

TEST_F(SpokenTest, ThePowerBarTellsThePower) {
    game.open(MenuScreen::hidden);
    MatchSetup(game.view().gameLogic()).state().aimState = AimState::aimingPower;
    MatchSetup(game.view().gameLogic()).state().aimPower = 41.6;
    std::vector<QAccessibleInterface*> bars;
    const auto isShown = [&] { return !(bars = spoken(QAccessible::ProgressBar)).empty(); };
    ASSERT_TRUE(QTest::qWaitFor(isShown)) << "what changes while a frame is drawn is told after it";
    ASSERT_EQ(bars.size(), 1u);
    EXPECT_EQ(bars[0]->text(QAccessible::Name), QStringLiteral("Throw power: 42%"));
}

TEST_F(SpokenTest, AControlListsEachActionOnce) {
    for (const auto& [screen, role] : {std::pair(MenuScreen::bcClass, QAccessible::RadioButton),
                                       std::pair(MenuScreen::bcClass, QAccessible::PushButton),
                                       std::pair(MenuScreen::about, QAccessible::Link),
                                       std::pair(MenuScreen::main, QAccessible::CheckBox)}) {
        game.open(screen);
        const auto controls = spoken(role);
        ASSERT_FALSE(controls.empty());
        for (QAccessibleInterface* control : controls) {
            const QStringList actions = control->actionInterface()->actionNames();
            EXPECT_EQ(QStringList(actions).removeDuplicates(), 0)
                << actions.join(QLatin1Char(' ')).toStdString();
        }
    }
}

} // namespace vorbel
