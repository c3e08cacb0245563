// A screen that is taken away while the game is on it.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"
#include "tests/scenario/shell/GameWindow.h"

#include <QDir>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <optional>

namespace vorbel {

namespace {

constexpr QRect left(0, 0, 1280, 1600);
constexpr QRect right(1280, 0, 1280, 1600);
constexpr QPoint inCourt(617, 480); // of a window of this size
constexpr QSize windowed(1234, 855);

bool xrandr(const QStringList& arguments) {
    return QProcess::execute(QStringLiteral("xrandr"), arguments) == 0;
}

// The virtual display, divided into two screens for as long as this lives.
class TwoScreens {
public:
    TwoScreens() : areThere_(divide("left", left, "screen") && divide("right", right, "none")) {}
    ~TwoScreens() {
        for (const char* name : {"left", "right"}) {
            static_cast<void>(remove(name));
        }
    }
    TwoScreens(const TwoScreens&) = delete;
    TwoScreens& operator=(const TwoScreens&) = delete;

    [[nodiscard]] bool areThere() const { return areThere_; }
    static bool remove(const char* name) {
        return xrandr({QStringLiteral("--delmonitor"), QString::fromLatin1(name)});
    }

private:
    static bool divide(const char* name, const QRect& place, const char* output) {
        return xrandr(
            {QStringLiteral("--setmonitor"), QString::fromLatin1(name),
             QStringLiteral("%1/300x%2/400+%3+0").arg(place.width()).arg(place.height()).arg(place.left()),
             QString::fromLatin1(output)});
    }

    bool areThere_ = false;
};

} // namespace

// With a window manager, which may move windows by itself, and without any.
class ScreenRemovedTest : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(QStringLiteral("xrandr")).isEmpty()) {
            GTEST_SKIP() << "xrandr is not installed";
        }
        static_cast<void>(Desktop::instance());
        ASSERT_TRUE(screens.emplace().areThere());
        if (GetParam()) {
            ASSERT_TRUE(windowManager.emplace().isReady());
        }
        game.emplace(QStringList());
        window = GameWindow::find();
        ASSERT_TRUE(window) << qUtf8Printable(game->errors());
    }

    // On the right screen, in the arena.
    void play() {
        window->place(QRect(right.topLeft() + QPoint(20, 60), windowed));
        ASSERT_TRUE(waitUntil([this] { return window->frame().size() == windowed && isOn(right); }));
        Desktop::instance().startMatch();
        ASSERT_TRUE(waitUntil([this] { return showsCourt(); }));
    }

    [[nodiscard]] bool isOn(const QRect& screen) const { return screen.contains(window->frame()); }
    [[nodiscard]] bool showsCourt() const {
        const QRect frame = window->frame();
        const QPoint place = frame.topLeft() + QPoint(inCourt.x() * frame.width() / windowed.width(),
                                                      inCourt.y() * frame.height() / windowed.height());
        const QImage all = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 2560, 1600).toImage();
        return all.valid(place) && alike(all.pixelColor(place), courtGreen);
    }
    void keepPicture(const QString& name) const {
        const QString folder = QStringLiteral(VORBEL_PICTURES);
        QDir().mkpath(folder);
        QGuiApplication::primaryScreen()
            ->grabWindow(0, 0, 0, 2560, 1600)
            .save(QStringLiteral("%1/screen-removed-%2%3.png")
                      .arg(folder, name, QString::number(GetParam() ? 1 : 0)));
    }

    std::optional<TwoScreens> screens;
    std::optional<WindowManager> windowManager;
    std::optional<Program> game;
    std::optional<GameWindow> window;
};

TEST_P(ScreenRemovedTest, TheWindowComesWholeToTheOneThatRemainsAndTheMatchGoesOn) {
    play();
    ASSERT_TRUE(TwoScreens::remove("right"));
    EXPECT_TRUE(waitUntil([this] { return isOn(left); }))
        << window->frame().left() << ", " << window->frame().top();
    EXPECT_EQ(window->frame().size(), windowed);
    EXPECT_TRUE(waitUntil([this] { return showsCourt(); }));
    keepPicture(QStringLiteral("windowed"));
    EXPECT_TRUE(game->isRunning());
    EXPECT_EQ(game->errors(), QString());
}

TEST_P(ScreenRemovedTest, FullScreenCoversTheOneThatRemainsAndEscapeLeavesTheWindowWholeOnIt) {
    play();
    Desktop::instance().press(QStringLiteral("F11"));
    ASSERT_TRUE(waitUntil([this] { return window->frame() == right; }));
    ASSERT_TRUE(TwoScreens::remove("right"));
    EXPECT_TRUE(waitUntil([this] { return window->frame() == left; }));
    EXPECT_TRUE(waitUntil([this] { return showsCourt(); }));
    keepPicture(QStringLiteral("full-screen"));
    Desktop::instance().press(QStringLiteral("Escape"));
    EXPECT_TRUE(waitUntil([this] { return isOn(left) && window->frame().size() == windowed; }))
        << window->frame().left() << ", " << window->frame().top();
    EXPECT_EQ(game->errors(), QString());
}

INSTANTIATE_TEST_SUITE_P(Desktops, ScreenRemovedTest, testing::Values(true, false), [](const auto& desktop) {
    return desktop.param ? "WithWindowManager" : "WithoutWindowManager";
});

} // namespace vorbel
