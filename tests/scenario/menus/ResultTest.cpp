// How the result of a match comes in.
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/MenuWindow.h"

#include <QTest>

#include <gtest/gtest.h>

namespace vorbel {

class ResultTest : public testing::Test {
protected:
    MenuWindow game;

    void endMatch() {
        game.open(MenuScreen::hidden);
        MatchSetup(game.view().gameLogic()).state().phase = GamePhase::gameOver;
        game.settle();
    }
    [[nodiscard]] double hudOpacity() {
        std::vector<QQuickItem*> found;
        collect(
            *game.window().contentItem(), [](QQuickItem& item) { return isOfType(item, "Hud"); }, found);
        return found.at(0)->opacity();
    }
};

TEST_F(ResultTest, ItIsOpenAtOnceWithTheKeyboardAndIsSeenOnlyAfterHowTheMatchEnded) {
    endMatch();
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::matchResult);
    EXPECT_TRUE(isOfType(*game.focus(), "MenuButton"));
    EXPECT_LT(game.menu().opacity(), 0.1);
    EXPECT_GT(hudOpacity(), 0.9) << "the last message is still read";
    EXPECT_TRUE(QTest::qWaitFor([this] { return game.menu().opacity() == 1; }, 20'000));
    EXPECT_LT(hudOpacity(), 0.5);
}

TEST_F(ResultTest, AnotherScreenThatTakesItsPlaceIsSeenAtOnce) {
    endMatch();
    game.open(MenuScreen::main);
    EXPECT_EQ(game.menu().opacity(), 1);
    game.open(MenuScreen::hidden);
    game.open(MenuScreen::rules);
    EXPECT_EQ(game.menu().opacity(), 1);
}

TEST_F(ResultTest, ItsColumnsAreHeadedByTheSides) {
    game.setLanguage(AppLanguage::en);
    endMatch();
    game.layOut();
    std::vector<QQuickItem*> headings;
    collect(
        game.menu(), [](QQuickItem& item) { return isOfType(item, "ResultHeading"); }, headings);
    ASSERT_EQ(headings.size(), 1U);
    std::vector<QQuickItem*> names;
    collect(
        *headings[0], [](QQuickItem& item) { return isOfType(item, "QQuickText"); }, names);
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0]->property("text").toString(), QStringLiteral("Red"));
    EXPECT_EQ(names[1]->property("text").toString(), QStringLiteral("Blue"));
    EXPECT_LT(inScene(*names[0]).right(), inScene(*names[1]).left() + 1);
}

} // namespace vorbel
