#include "app/window/PointSize.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

namespace {

constexpr int titleBar = 40; // pixels, the highest of the common desktops
constexpr int border = 5;

// Free areas of screens, in pixels of the desktop: 1366 × 768 with and without a panel, 1920 × 1080 at 150 %,
// 1920 × 1200 at 200 %, small tablets.
constexpr QSize smallScreens[] = {{1366, 768}, {1366, 720}, {1280, 720},
                                  {960, 600},  {1024, 600}, {800, 1280}};

} // namespace

TEST(PointSizeTest, InTheSmallestWindowThatIsSpecifiedAPointIsAPixel) {
    EXPECT_DOUBLE_EQ(pointSize({1200, 800}), 1);
}

TEST(PointSizeTest, ThereAreNeverFewerPointsThanTheInterfaceIsLaidOutFor) {
    for (const QSizeF window : {QSizeF(640, 480), QSizeF(832, 555), QSizeF(1366, 700), QSizeF(800, 1280),
                                QSizeF(1920, 1080), QSizeF(2560, 1440), QSizeF(3840, 2160)}) {
        const QSizeF points = window / pointSize(window);
        EXPECT_GE(points.width(), 1200 - 1e-9) << window.width();
        EXPECT_GE(points.height(), 800 - 1e-9) << window.height();
        EXPECT_LT(std::min(points.width() / 1200, points.height() / 800), 1 + 1e-9)
            << "and no smaller than must be";
    }
}

TEST(PointSizeTest, OnAScreenWithRoomTheWindowIsAsLargeAsSpecified) {
    for (const QSize screen : {QSize(1920, 1080), QSize(2560, 1440), QSize(1210, 845)}) {
        EXPECT_EQ(smallestWindow(screen), QSize(1200, 800));
    }
}

TEST(PointSizeTest, OnASmallScreenWindowAndDecorationFitTheFreeArea) {
    for (const QSize screen : smallScreens) {
        const QSize window = smallestWindow(screen);
        EXPECT_LE(window.width() + 2 * border, screen.width());
        EXPECT_LE(window.height() + titleBar + border, screen.height());
        EXPECT_NEAR(window.width() / 1200.0, window.height() / 800.0, 0.002) << "of the same shape";
        const bool isAsLargeAsFits = window.width() + 2 * border > screen.width() - 3 ||
                                     window.height() + titleBar + border > screen.height() - 3;
        EXPECT_TRUE(isAsLargeAsFits) << screen.width() << " × " << screen.height();
    }
}

TEST(PointSizeTest, AScreenWithoutAnyRoomGivesNoNegativeSize) {
    EXPECT_EQ(smallestWindow({0, 0}), QSize(0, 0));
    EXPECT_EQ(smallestWindow({5, 5}), QSize(0, 0));
}

} // namespace vorbel
