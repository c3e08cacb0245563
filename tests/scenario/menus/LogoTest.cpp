// The logo of the main menu.
#include "tests/scenario/menus/MenuWindow.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorbel {

TEST(LogoTest, AMissingLogoLeavesNoHoleAndNoError) {
    MenuWindow with;
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

} // namespace vorbel
