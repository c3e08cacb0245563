// The order in which one switch is offered the controls of a screen.
#include "app/switch/MenuWalk.h"

#include <gtest/gtest.h>

#include <numeric>

namespace vorbel {

using Range = MenuWalk::Range;

constexpr std::optional<std::size_t> nothing;

TEST(MenuWalkTest, SingleControlsAreOfferedInTurnAndPressed) {
    MenuWalk walk({0, 0, 0});
    EXPECT_EQ(walk.current(), (Range{0, 1}));
    walk.advance();
    EXPECT_EQ(walk.current(), (Range{1, 1}));
    EXPECT_EQ(walk.press(), 1u);
    EXPECT_EQ(walk.current(), (Range{1, 1})) << "the walk goes on from there";
}

TEST(MenuWalkTest, ManyThatBelongTogetherAreOfferedAsOneThenInPartsThenOneByOne) {
    std::vector<int> groups(22, 0);
    std::fill(groups.begin() + 1, groups.begin() + 21, 7); // twenty languages between two buttons
    MenuWalk walk(groups);
    walk.advance();
    EXPECT_EQ(walk.current(), (Range{1, 20}));
    EXPECT_EQ(walk.press(), nothing);
    EXPECT_EQ(walk.current(), (Range{1, 5}));
    walk.advance();
    EXPECT_EQ(walk.current(), (Range{6, 5}));
    EXPECT_EQ(walk.press(), nothing);
    EXPECT_EQ(walk.current(), (Range{6, 1}));
    walk.advance();
    EXPECT_EQ(walk.press(), 7u);
}

TEST(MenuWalkTest, EveryControlIsOfferedOnce) {
    for (const int count : {5, 6, 7, 20, 37}) {
        std::vector<int> offered;
        MenuWalk walk(std::vector<int>(static_cast<std::size_t>(count), 1));
        walk.press();
        for (int part = 0; part == 0 || walk.current() != (Range{0, walk.current()->count}); ++part) {
            const Range range = *walk.current();
            for (std::size_t i = 0; i < range.count; ++i) {
                offered.push_back(static_cast<int>(range.first + i));
            }
            walk.advance();
        }
        std::vector<int> all(static_cast<std::size_t>(count));
        std::iota(all.begin(), all.end(), 0);
        EXPECT_EQ(offered, all);
    }
}

TEST(MenuWalkTest, AFewThatBelongTogetherAreOfferedOneByOne) {
    MenuWalk walk({1, 1, 1, 1});
    EXPECT_EQ(walk.current(), (Range{0, 1}));
}

TEST(MenuWalkTest, NeighboursOfDifferentGroupsAreApart) {
    MenuWalk walk({1, 1, 1, 1, 1, 2, 2, 2, 2, 2});
    EXPECT_EQ(walk.current(), (Range{0, 5}));
    walk.advance();
    EXPECT_EQ(walk.current(), (Range{5, 5}));
}

TEST(MenuWalkTest, AfterTwoRoundsWithoutAPressTheWalkRestsUntilTheNext) {
    MenuWalk walk({0, 0});
    for (int step = 0; step < 3; ++step) {
        walk.advance();
        EXPECT_NE(walk.current(), std::nullopt) << step;
    }
    walk.advance();
    EXPECT_EQ(walk.current(), std::nullopt);
    walk.advance();
    EXPECT_EQ(walk.current(), std::nullopt);
    EXPECT_EQ(walk.press(), nothing) << "it only wakes the walk";
    EXPECT_EQ(walk.current(), (Range{0, 1}));
    EXPECT_EQ(walk.press(), 0u);
}

TEST(MenuWalkTest, APressBeginsTheRoundsAnew) {
    MenuWalk walk({0, 0});
    walk.advance();
    walk.advance();
    walk.advance();
    EXPECT_EQ(walk.press(), 1u);
    walk.advance();
    EXPECT_NE(walk.current(), std::nullopt);
}

TEST(MenuWalkTest, ARangeThatWasGoneThroughTwiceIsLeft) {
    MenuWalk walk({1, 1, 1, 1, 1, 0});
    walk.press();
    for (int step = 0; step < 10; ++step) {
        EXPECT_EQ(walk.current()->count, 1u) << step;
        walk.advance();
    }
    EXPECT_EQ(walk.current(), (Range{0, 5}));
}

TEST(MenuWalkTest, AScreenWithoutControlsOffersNothing) {
    MenuWalk walk({});
    EXPECT_EQ(walk.current(), std::nullopt);
    walk.advance();
    EXPECT_EQ(walk.press(), nothing);
    EXPECT_EQ(walk.current(), std::nullopt);
}

} // namespace vorbel
