// Every text of the display and of the menu stands out from whatever of the arena lies behind it.
#include "tests/scenario/menus/Contrast.h"
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/MenuWindow.h"

#include <QTest>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr double legible = 4.5; // Web Content Accessibility Guidelines, level AA

} // namespace

class ContrastTest : public testing::Test {
protected:
    MenuWindow game;

    ContrastTest() { game.setLanguage(AppLanguage::en); }

    static std::vector<QQuickItem*> textsOf(QQuickItem& root) {
        std::vector<QQuickItem*> texts;
        collect(
            root,
            [](QQuickItem& item) {
                const QString words = item.property("text").toString();
                const bool isFlag =
                    !words.isEmpty() && words.at(0).isHighSurrogate(); // has colours of its own
                return isOfType(item, "QQuickText") && !words.isEmpty() && !isFlag;
            },
            texts);
        return texts;
    }
    // How many texts were looked at.
    int expectLegible(QQuickItem& root) {
        game.layOut();
        const std::vector<QQuickItem*> texts = textsOf(root);
        for (QQuickItem* text : texts) {
            for (const QColor& behind : {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128)}) {
                EXPECT_GE(contrastOver(*text, behind), legible)
                    << qUtf8Printable(text->property("text").toString()) << " over "
                    << qUtf8Printable(behind.name());
            }
        }
        return static_cast<int>(texts.size());
    }
    QQuickItem& hud() {
        std::vector<QQuickItem*> found;
        collect(
            *game.window().contentItem(), [](QQuickItem& item) { return isOfType(item, "Hud"); }, found);
        return *found.at(0);
    }
};

TEST_F(ContrastTest, OfTheDisplayDuringAMatch) {
    game.open(MenuScreen::hidden);
    game.view().settings()->setSelectedClass(BocciaClass::bc3); // its hint is the faintest text
    MatchState& match = MatchSetup(game.view().gameLogic()).state();
    match.tournamentActive = true;
    match.aimState = AimState::aimingPower;
    // Six on each side, six in the middle, four levels, power and message. What changes while a picture is drawn is
    // shown after it.
    constexpr std::size_t all = 2 * 6 + 6 + 4 + 2;
    ASSERT_TRUE(QTest::qWaitFor([this] {
        game.settle();
        return textsOf(hud()).size() == all;
    }));
    expectLegible(hud());
}

TEST_F(ContrastTest, OfEveryScreenOfTheMenu) {
    for (const MenuScreen screen : {MenuScreen::main, MenuScreen::country, MenuScreen::bcClass,
                                    MenuScreen::rules, MenuScreen::about, MenuScreen::diary}) {
        game.open(screen);
        EXPECT_GT(expectLegible(game.menu()), 2);
    }
}

TEST(ContrastOfColorsTest, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

} // namespace vorbel
