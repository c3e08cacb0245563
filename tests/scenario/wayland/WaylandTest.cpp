// The game on a Wayland desktop.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/wayland/Compositor.h"

#include <QDir>

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
    static QRect settled(const Compositor& desktop, std::size_t screen = 0) {
        QRect area;
        static_cast<void>(waitUntil([&] {
            const QRect before = std::exchange(area, desktop.covered(screen));
            return !area.isNull() && area == before && area.height() > 200;
        }));
        return area;
    }
    static bool becomes(const Compositor& desktop, const QRect& area, std::size_t screen = 0) {
        return waitUntil([&] { return desktop.covered(screen) == area; }, 20'000);
    }
    static QRect whole(const Compositor& desktop, std::size_t screen = 0) {
        return {QPoint(0, 0), desktop.screen(screen).size()};
    }
    void keepPicture(const Compositor& desktop, const QString& name, std::size_t screen = 0) const {
        const QString folder = QStringLiteral(VORBEL_PICTURES);
        QDir().mkpath(folder);
        desktop.picture(screen).save(folder + QStringLiteral("/wayland-") + name + QStringLiteral(".png"));
    }
};

} // namespace

TEST_F(WaylandTest, FullScreenCoversTheScreenAndGivesTheFormerSizeBack) {
    Compositor desktop({{{1600, 1000}}});
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect window = settled(desktop);
    EXPECT_GE(window.width(), 1200);
    EXPECT_LT(window.width(), 1250);
    EXPECT_GE(window.height(), 800);
    EXPECT_LT(window.height(), 860);
    for (const char* leave : {"Escape", "F11"}) {
        Desktop::instance().press(QStringLiteral("F11"));
        EXPECT_TRUE(becomes(desktop, whole(desktop))) << "full screen";
        Desktop::instance().press(QString::fromLatin1(leave));
        EXPECT_TRUE(becomes(desktop, window)) << leave;
    }
    EXPECT_EQ(game.errors(), QString());
}

TEST_F(WaylandTest, AMatchIsPlayedWithTheKeys) {
    Compositor desktop({{{1600, 1000}}});
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
    Compositor desktop({{{1260, 780}, 2}});
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect window = settled(desktop);
    EXPECT_GT(window.width(), desktop.screen().width() / 2) << "in points, not in pixels";
    Desktop::instance().press(QStringLiteral("F11"));
    EXPECT_TRUE(becomes(desktop, whole(desktop)));
    Desktop::instance().press(QStringLiteral("Escape"));
    EXPECT_TRUE(becomes(desktop, window));
}

// The first screen is so small that the window has to be smaller there than its usual least size.
TEST_F(WaylandTest, MovedToASecondScreenOfTwiceThePixelsItIsAsLargeInPoints) {
    Compositor desktop({{{720, 520}, 1}, {{900, 560}, 2}});
    ASSERT_TRUE(desktop.isReady());
    Program game({}, desktop.environment());
    const QRect first = settled(desktop);
    ASSERT_TRUE(becomes(desktop, {}, 1)) << "it starts where the pointer is";
    desktop.dragWindow(first.center(),
                       {340, 10}); // half over: the pointer is held by the screen that it is on
    ASSERT_TRUE(waitUntil([&] { return !desktop.covered(1).isNull(); }));
    desktop.dragWindow(desktop.screen(1).topLeft() + QPoint(300, 300), {800, 10});
    ASSERT_TRUE(becomes(desktop, {}));
    const QRect window = settled(desktop, 1);
    EXPECT_GT(window.width(), first.width() * 3 / 2) << "in points, not in pixels";
    keepPicture(desktop, QStringLiteral("second-screen"), 1);
    const QImage before = desktop.picture(1);
    Desktop::instance().press(QStringLiteral("Tab"));
    EXPECT_TRUE(waitUntil([&] { return desktop.picture(1) != before; })) << "the keys come with it";
    EXPECT_TRUE(game.isRunning());
    EXPECT_EQ(game.errors(), QString());
}

// Its entry has the icon and the name that the desktop shows for the window.
TEST_F(WaylandTest, TheDesktopIsToldTheNameOfTheGamesEntryAlsoInAFlatpak) {
    Compositor desktop({{{1600, 1000}}});
    ASSERT_TRUE(desktop.isReady());
    for (const QString& flatpak : {QString(), QStringLiteral("example.vorbel.vorbel")}) {
        auto variables = desktop.environment();
        variables[QStringLiteral("FLATPAK_ID")] = flatpak;
        variables[QStringLiteral("WAYLAND_DEBUG")] = QStringLiteral("client");
        Program game({}, variables);
        const QString name = flatpak.isEmpty() ? QStringLiteral("vorbel") : flatpak;
        EXPECT_TRUE(waitUntil(
            [&] { return game.errors().contains(QStringLiteral("set_app_id(\"%1\")").arg(name)); }));
    }
}

// A screen without keyboard and mouse, as in a shop's window.
TEST_F(WaylandTest, WithoutASeatTheComputerPlaysForWhoeverLooksOn) {
    const QTemporaryDir folder;
    QProcess weston;
    const QString socket = folder.filePath(QStringLiteral("wayland"));
    weston.start(QStringLiteral("weston"),
                 {QStringLiteral("--backend=headless-backend.so"), QStringLiteral("--no-config"),
                  QStringLiteral("--use-pixman"), QStringLiteral("--socket=") + socket});
    ASSERT_TRUE(waitUntil([&socket] { return QFile::exists(socket); }));
    Program game({QStringLiteral("--demo")}, {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland")},
                                              {QStringLiteral("WAYLAND_DISPLAY"), socket},
                                              {QStringLiteral("VORBEL_SPEED"), QStringLiteral("25")}});
    EXPECT_EQ(game.status(120'000), 0) << qUtf8Printable(game.errors());
    weston.terminate();
    weston.waitForFinished();
}

} // namespace vorbel
