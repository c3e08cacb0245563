// The shell in a real window, by its keys: with a window manager that decorates the window, and without any.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"
#include "tests/scenario/shell/GameWindow.h"

#include "platform/store/SettingsDefaults.h"

#include <QDir>
#include <QPixmap>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace vorbel {

namespace {

constexpr QRect windowed(57, 43, 1234, 855);
constexpr QPoint inCourt(617, 480);  // of the window
constexpr QPoint inMenuBar(700, 15); // of the window, in full screen of the screen too
// In the menu's own ground: in full screen its points are twice as large.
constexpr QPoint inGameMenu(240, 144);

const QColor barColor(0x16, 0x16, 0x1f);
const QColor menuColor(0x22, 0x22, 0x2e);

} // namespace

class ShellTest : public testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        if (GetParam()) {
            ASSERT_TRUE(windowManager_.emplace().isReady());
        }
        movePointer({1500, 1000}); // out of the way
        game.emplace(QStringList());
        window = GameWindow::find();
        ASSERT_TRUE(window) << qUtf8Printable(game->errors());
        ASSERT_TRUE(waitUntil([this] { return showsBar(window->frame().topLeft()); }));
        window->place(windowed);
        ASSERT_TRUE(waitUntil([this] { return window->frame().size() == windowed.size(); }));
        ASSERT_TRUE(waitUntil([this] { return showsBar(window->frame().topLeft()); }));
        frame = window->frame();
        decoration = window->decoration();
        ASSERT_EQ(decoration.contains(QStringLiteral("EXTENTS(CARDINAL)")), GetParam());
    }

    void press(const char* key) { Desktop::instance().press(QString::fromLatin1(key)); }

    [[nodiscard]] static QColor seenAt(QPoint place) {
        return QGuiApplication::primaryScreen()
            ->grabWindow(0, place.x(), place.y(), 1, 1)
            .toImage()
            .pixelColor(0, 0);
    }
    // Its upper left corner being there, the window shows the menu bar.
    [[nodiscard]] static bool showsBar(QPoint corner) { return seenAt(corner + inMenuBar) == barColor; }
    [[nodiscard]] bool showsCourt() const { return alike(seenAt(frame.topLeft() + inCourt), courtGreen); }

    [[nodiscard]] bool coversScreen() const {
        return waitUntil([this] {
            return window->frame() == QGuiApplication::primaryScreen()->geometry() &&
                   window->decoration() != decoration;
        });
    }
    [[nodiscard]] bool isAsBefore() const {
        return waitUntil([this] { return window->frame() == frame && window->decoration() == decoration; });
    }

    void keepPicture(const QString& name) const {
        const QString folder = QStringLiteral(VORBEL_PICTURES);
        QDir().mkpath(folder);
        const QString number = GetParam() ? QStringLiteral("wm-") : QStringLiteral("bare-");
        QGuiApplication::primaryScreen()->grabWindow(0).save(folder + QLatin1Char('/') + number + name +
                                                             QStringLiteral(".png"));
    }

    // From the main menu, which is open at first, into a match.
    [[nodiscard]] bool startMatch() {
        Desktop::instance().startMatch();
        return waitUntil([this] { return showsCourt(); });
    }

private:
    std::optional<WindowManager> windowManager_;

protected:
    std::optional<Program> game;
    std::optional<GameWindow> window;
    QRect frame;
    QString decoration;
};

// The language comes just before the window manager gives the window its first size.
TEST(ShellStartTest, InAStoredLanguageTheFirstResizeFindsAllControlsInPlace) {
    const QTemporaryDir settings;
    SettingsDefaults(settings.filePath(QStringLiteral("vorbel")).toStdString())
        .setText("boccia_language", "el");
    WindowManager windowManager;
    ASSERT_TRUE(windowManager.isReady());
    for (int start = 0; start < 3; ++start) {
        const Program game({}, {{QStringLiteral("XDG_CONFIG_HOME"), settings.path()}});
        const auto window = GameWindow::find();
        ASSERT_TRUE(window);
        window->place(windowed);
        EXPECT_TRUE(waitUntil([&] { return window->frame().size() == windowed.size(); }));
        EXPECT_TRUE(game.isRunning());
    }
}

INSTANTIATE_TEST_SUITE_P(Desktops, ShellTest, testing::Values(true, false), [](const auto& desktop) {
    return desktop.param ? "WithWindowManager" : "WithoutWindowManager";
});

TEST_P(ShellTest, FullScreenTwiceRestoresExactlyTheFormerFrameAndDecoration) {
    for (const char* key : {"ctrl+super+f", "F11"}) {
        press(key);
        EXPECT_TRUE(coversScreen()) << key;
        press(key);
        EXPECT_TRUE(isAsBefore()) << key << qUtf8Printable(window->decoration());
    }
}

TEST_P(ShellTest, EscapeLeavesFullScreenInEveryStateAndDoesNothingWithoutIt) {
    press("Escape");
    EXPECT_TRUE(isAsBefore());
    for (const bool menuOpen : {false, true}) {
        press("F11");
        ASSERT_TRUE(coversScreen());
        if (menuOpen) {
            press("F10");
            ASSERT_TRUE(waitUntil([] { return seenAt(inGameMenu) == menuColor; }));
            press("Escape"); // closes the game menu alone
            ASSERT_TRUE(waitUntil([] { return seenAt(inGameMenu) != menuColor; }));
            EXPECT_TRUE(coversScreen());
        }
        press("Escape");
        EXPECT_TRUE(isAsBefore()) << menuOpen;
    }
    EXPECT_FALSE(showsCourt()) << "the main menu is still open";
}

TEST_P(ShellTest, TheMenuBarIsHiddenInFullScreenAndSlidesInAtTheUpperEdge) {
    press("F11");
    ASSERT_TRUE(coversScreen());
    EXPECT_TRUE(waitUntil([] { return !showsBar({0, 0}); }));
    movePointer({600, 0});
    EXPECT_TRUE(waitUntil([] { return showsBar({0, 0}); }));
    keepPicture(QStringLiteral("upper-edge"));
    movePointer({600, 700});
    EXPECT_TRUE(waitUntil([] { return !showsBar({0, 0}); }));
    keepPicture(QStringLiteral("full-screen"));
    press("Escape");
    EXPECT_TRUE(isAsBefore());
    EXPECT_TRUE(waitUntil([this] { return showsBar(frame.topLeft()); }));
}

TEST_P(ShellTest, CtrlNDuringAMatchOpensTheMainMenuAndStartsNothing) {
    ASSERT_TRUE(startMatch());
    press("space");
    press("ctrl+n");
    EXPECT_TRUE(waitUntil([this] { return !showsCourt(); }));
    keepPicture(QStringLiteral("ctrl-n"));
    EXPECT_EQ(game->storedInteger(QStringLiteral("boccia_gamesPlayed")), 0);
    EXPECT_TRUE(startMatch()) << "the main menu can be gone through again";
}

TEST_P(ShellTest, TheGameMenuIsUsedWithTheKeyboardAlone) {
    ASSERT_TRUE(startMatch());
    press("F10");
    ASSERT_TRUE(waitUntil([this] { return seenAt(frame.topLeft() + inGameMenu) == menuColor; }));
    keepPicture(QStringLiteral("menu"));
    press("Down"); // from a new game to the rules
    press("Return");
    EXPECT_TRUE(waitUntil([this] { return !showsCourt(); }));
    keepPicture(QStringLiteral("rules"));
    press("F10");
    for (int item = 0; item < 3; ++item) { // rules, about, full screen
        press("Down");
    }
    press("Return");
    EXPECT_TRUE(coversScreen());
    EXPECT_EQ(qUtf8Printable(game->errors()), std::string());
}

} // namespace vorbel
