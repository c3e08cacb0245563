#include "app/shell/FullScreen.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr QRect laptop(0, 0, 1920, 1080);
constexpr QRect projector(1920, 0, 2560, 1440);
constexpr QRect windowed(300, 120, 1200, 800);
const WindowStyle decorated{Qt::Window | Qt::WindowTitleHint, Qt::WindowNoState};
const WindowStyle covering{Qt::Window | Qt::FramelessWindowHint, Qt::WindowNoState};

// A window that takes every change as it is, and counts them. To move a maximised one ends that state, as it
// does on many desktops.
class FakeWindow final : public WindowFrame {
public:
    bool shown = true;
    QRect ownFrame = windowed;
    WindowStyle ownStyle = decorated;
    QRect ownScreen = laptop;
    std::vector<QRect> allScreens{laptop};
    int changes = 0;

    [[nodiscard]] bool isShown() const override { return shown; }
    [[nodiscard]] QRect frame() const override { return ownFrame; }
    [[nodiscard]] WindowStyle style() const override { return ownStyle; }
    [[nodiscard]] QRect screen() const override { return ownScreen; }
    [[nodiscard]] std::vector<QRect> screens() const override { return allScreens; }
    [[nodiscard]] WindowStyle coveringStyle() const override { return covering; }
    void setStyle(const WindowStyle& style) override {
        ownStyle = style;
        ++changes;
    }
    void setFrame(const QRect& frame) override {
        ownFrame = frame;
        ownStyle.states = Qt::WindowNoState;
        ++changes;
    }
};

} // namespace

class ShellFullScreenTest : public testing::Test {
protected:
    FakeWindow window;
    FullScreen fullScreen;

    void toggle() { fullScreen.toggle(&window, false); }
    void escape() { fullScreen.toggle(&window, true); }
};

TEST_F(ShellFullScreenTest, CoversTheWholeScreenWithoutDecoration) {
    toggle();
    EXPECT_TRUE(fullScreen.isOn());
    EXPECT_EQ(window.ownFrame, laptop);
    EXPECT_EQ(window.ownStyle, covering);
}

TEST_F(ShellFullScreenTest, EscapeWithFullScreenOffDoesNothing) {
    escape();
    EXPECT_FALSE(fullScreen.isOn());
    EXPECT_EQ(window.changes, 0);
}

TEST_F(ShellFullScreenTest, ToggledTwiceTheWindowHasExactlyItsFormerFrameAndStyle) {
    const WindowStyle maximized{decorated.flags, Qt::WindowMaximized};
    for (const WindowStyle& style : {decorated, maximized}) {
        window.ownStyle = style;
        toggle();
        toggle();
        EXPECT_FALSE(fullScreen.isOn());
        EXPECT_EQ(window.ownFrame, windowed);
        EXPECT_EQ(window.ownStyle, style);
    }
}

TEST_F(ShellFullScreenTest, EscapeLeavesItAndASecondOneDoesNothing) {
    toggle();
    escape();
    EXPECT_EQ(window.ownFrame, windowed);
    EXPECT_EQ(window.ownStyle, decorated);
    const int changes = window.changes;
    escape();
    EXPECT_EQ(window.changes, changes);
}

TEST_F(ShellFullScreenTest, EachEntryRemembersTheFrameAnew) {
    toggle();
    toggle();
    const QRect moved = windowed.translated(50, -30);
    window.ownFrame = moved;
    toggle();
    toggle();
    EXPECT_EQ(window.ownFrame, moved);
}

TEST_F(ShellFullScreenTest, AHiddenWindowIsLeftAlone) {
    window.shown = false;
    toggle();
    EXPECT_FALSE(fullScreen.isOn());
    EXPECT_EQ(window.changes, 0);
}

TEST_F(ShellFullScreenTest, WithoutAWindowNothingHappens) {
    fullScreen.toggle(nullptr, false);
    fullScreen.toggle(nullptr, true);
    EXPECT_FALSE(fullScreen.isOn());
}

TEST_F(ShellFullScreenTest, WithoutAScreenItIsNotEntered) {
    window.ownScreen = {};
    window.allScreens.clear();
    toggle();
    EXPECT_FALSE(fullScreen.isOn());
    EXPECT_EQ(window.changes, 0);
}

TEST_F(ShellFullScreenTest, LeavingAfterTheScreenWasRemovedBringsTheWindowToTheRemainingOne) {
    window.ownScreen = projector;
    window.allScreens = {laptop, projector};
    window.ownFrame = QRect(2500, 300, 1300, 900);
    toggle();
    EXPECT_EQ(window.ownFrame, projector);
    window.ownScreen = laptop;
    window.allScreens = {laptop};
    toggle();
    EXPECT_TRUE(laptop.contains(window.ownFrame));
    EXPECT_EQ(window.ownFrame.size(), QSize(1300, 900));
    EXPECT_EQ(window.ownStyle, decorated);
}

TEST_F(ShellFullScreenTest, LeavingAfterTheScreenShrankKeepsTheWindowOnIt) {
    window.ownFrame = QRect(600, 1000, 1250, 850);
    window.ownScreen = QRect(0, 0, 2560, 1600);
    window.allScreens = {window.ownScreen};
    toggle();
    window.ownScreen = QRect(0, 0, 1024, 768);
    window.allScreens = {window.ownScreen};
    toggle();
    EXPECT_TRUE(window.ownScreen.contains(window.ownFrame));
}

TEST_F(ShellFullScreenTest, FollowsTheScreenWhileOnAndOnlyThen) {
    window.ownScreen = projector;
    fullScreen.followScreen(window);
    EXPECT_EQ(window.changes, 0);
    toggle();
    window.ownScreen = laptop;
    fullScreen.followScreen(window);
    EXPECT_EQ(window.ownFrame, laptop);
}

TEST_F(ShellFullScreenTest, AWindowWhoseScreenWasRemovedComesWholeToTheRemainingOne) {
    window.ownFrame = QRect(2500, 300, 1300, 900);
    window.shown = false;
    fullScreen.followScreen(window);
    window.shown = true;
    window.ownStyle.states = Qt::WindowMaximized;
    fullScreen.followScreen(window);
    EXPECT_EQ(window.changes, 0) << "hidden, or for the desktop to place";
    window.ownStyle.states = Qt::WindowNoState;
    fullScreen.followScreen(window);
    EXPECT_TRUE(laptop.contains(window.ownFrame));
    EXPECT_EQ(window.ownFrame.size(), QSize(1300, 900));
}

TEST(ShellReachTest, AFramePartlyOutsideStaysWhereThePlayerPutIt) {
    for (const QPoint offset : {QPoint(-1000, 200), QPoint(1800, 1000), QPoint(0, -20)}) {
        const QRect frame(offset, QSize(1200, 800));
        EXPECT_EQ(keptInReach(frame, {laptop, projector}, laptop), frame);
    }
}

TEST(ShellReachTest, AFrameWhoseUpperEdgeCannotBeGrabbedIsMovedIntoTheScreen) {
    for (const QPoint offset : {QPoint(-1150, 200), QPoint(5000, 5000), QPoint(0, -700), QPoint(0, 1075)}) {
        const QRect frame(offset, QSize(1200, 800));
        const QRect kept = keptInReach(frame, {laptop, projector}, laptop);
        EXPECT_TRUE(laptop.contains(kept));
        EXPECT_EQ(kept.size(), frame.size());
    }
}

} // namespace vorbel
