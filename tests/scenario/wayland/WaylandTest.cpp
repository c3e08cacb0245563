// The game on a Wayland desktop.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/wayland/Compositor.h"

#include <gtest/gtest.h>

#include <csignal>
#include <utility>

namespace vorbel {

namespace {

class WaylandTest : public testing::Test {
protected:
    void SetUp() override {
        if (!Compositor::isInstalled()) {
            GTEST_SKIP() << "weston is not installed";
        }
        static_cast<void>(Desktop::instance());
    }

    // Waits until the window has been drawn and its size stays.
    static QRect settled(const Compositor& desktop) {
        QRect area;
        static_cast<void>(waitUntil([&] {
            const QRect before = std::exchange(area, desktop.covered());
            return !area.isNull() && area == before && area.height() > 200;
        }));
        return area;
    }
    static bool becomes(const Compositor& desktop, const QRect& area) {
        return waitUntil([&] { return desktop.covered() == area; }, 20'000);
    }
};

} // namespace

TEST_F(WaylandTest, FullScreenCoversTheScreenAndGivesTheFormerSizeBack) {
    Compositor desktop({1600, 1000});
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect window = settled(desktop);
    EXPECT_GE(window.width(), 1200);
    EXPECT_LT(window.width(), 1250);
    EXPECT_GE(window.height(), 800);
    EXPECT_LT(window.height(), 860);
    for (const char* leave : {"Escape", "F11"}) {
        Desktop::instance().press(QStringLiteral("F11"));
        EXPECT_TRUE(becomes(desktop, desktop.screen())) << "full screen";
        Desktop::instance().press(QString::fromLatin1(leave));
        EXPECT_TRUE(becomes(desktop, window)) << leave;
    }
    EXPECT_EQ(game.errors(), QString());
}

TEST_F(WaylandTest, AMatchIsPlayedWithTheKeys) {
    Compositor desktop({1600, 1000});
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect window = settled(desktop);
    const QRect line(window.left() + 300, window.bottom() - 75, 600, 60);
    Desktop::instance().startMatch();
    for (const char* stage : {"aim", "power", "throw"}) {
        const QImage before = desktop.picture().copy(line);
        Desktop::instance().press(QStringLiteral("space"));
        EXPECT_TRUE(waitUntil([&] { return desktop.picture().copy(line) != before; }, 20'000)) << stage;
    }
    game.signal(SIGTERM);
    EXPECT_EQ(game.status(), 0);
}

TEST_F(WaylandTest, OnAScreenOfTwiceThePixelsItFillsTheScreenAndComesBack) {
    Compositor desktop({1260, 780}, 2);
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect window = settled(desktop);
    EXPECT_GT(window.width(), desktop.screen().width() / 2) << "in points, not in pixels";
    Desktop::instance().press(QStringLiteral("F11"));
    EXPECT_TRUE(becomes(desktop, desktop.screen()));
    Desktop::instance().press(QStringLiteral("Escape"));
    EXPECT_TRUE(becomes(desktop, window));
}

} // namespace vorbel
