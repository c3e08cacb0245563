// The keys of the real program, as fingers press them: held for long, under every layout of the keyboard.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"
#include "tests/scenario/shell/GameWindow.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr int heldFor = 2'000; // ms: the desktop repeats a key after 0.7 s, then 25 times a second
constexpr QRect gameArea(0, 30, 1200, 770);
constexpr QRect heading(400, 170, 400, 60);      // of the main menu
constexpr QRect pointerArea(300, 300, 600, 360); // of the court, where the aim is seen

bool stays(const QImage& seen, const QRect& part) {
    return !waitUntil([&] { return !alike(Desktop::instance().picture().copy(part), seen); }, heldFor);
}

// The keyboard's layout, and the usual one afterwards.
class Layout {
public:
    explicit Layout(const char* names) { choose(names); }
    ~Layout() { choose("us"); }
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

private:
    static void choose(const char* names) {
        QProcess::execute(QStringLiteral("setxkbmap"), {QString::fromLatin1(names)});
    }
};

} // namespace

class KeysTest : public testing::Test {
protected:
    Desktop& desktop = Desktop::instance();
    Program game{{}};

    void SetUp() override {
        movePointer({1500, 1000}); // out of the way
        ASSERT_TRUE(desktop.focusGame()) << qUtf8Printable(game.errors());
        ASSERT_TRUE(waitUntil([this] { return seesMenu() && seesArenaBehindMenu(); }));
    }
    void TearDown() override { EXPECT_EQ(game.errors(), QString()); }

    [[nodiscard]] QColor at(QPoint place) const { return desktop.picture().pixelColor(place); }
    [[nodiscard]] bool seesCourt() const { return alike(at(court), courtGreen); }
    [[nodiscard]] bool seesMenu() const { return at({300, 15}) == QColor(0x16, 0x16, 0x1f) && !seesCourt(); }

    // The menu is there first. A tenth of the court's light shines through it.
    [[nodiscard]] bool seesArenaBehindMenu() const {
        const QColor corner = at({150, 700});
        return corner.green() > 6 && corner.green() > corner.blue() + 2;
    }

    [[nodiscard]] bool startMatch() const {
        desktop.startMatch();
        return waitUntil([this] { return alike(at(redBorder), red); });
    }
    // What the window shows in that part once it shows the same for a while.
    [[nodiscard]] QImage settled(const QRect& part) const {
        QImage seen;
        EXPECT_TRUE(waitUntil([&] {
            seen = desktop.picture().copy(part);
            return !waitUntil([&] { return !alike(desktop.picture().copy(part), seen); }, 300);
        }));
        return seen;
    }
    [[nodiscard]] bool changes(const QImage& seen, const QRect& part) const {
        return waitUntil([&] { return !alike(desktop.picture().copy(part), seen); });
    }
    [[nodiscard]] QImage afterShiftTab() const {
        const QImage before = settled(gameArea);
        desktop.press(QStringLiteral("shift+Tab"));
        EXPECT_TRUE(changes(before, gameArea));
        return settled(gameArea);
    }
};

TEST_F(KeysTest, AHeldSpaceIsOneAction) {
    ASSERT_TRUE(startMatch());
    const QImage before = settled(messageLine);
    desktop.hold(QStringLiteral("space"));
    ASSERT_TRUE(changes(before, messageLine));
    const QImage aiming = settled(messageLine);
    EXPECT_TRUE(stays(aiming, messageLine));
    desktop.letGo(QStringLiteral("space"));
    EXPECT_TRUE(desktop.pressUntilChanged(QStringLiteral("space"), messageLine)) << "the next press acts";
}

TEST_F(KeysTest, AHeldArrowTurnsTheAimOnAndOn) {
    ASSERT_TRUE(startMatch());
    ASSERT_TRUE(desktop.pressUntilChanged(QStringLiteral("space"), messageLine));
    const QImage ahead = settled(pointerArea);
    desktop.press(QStringLiteral("Left"));
    ASSERT_TRUE(changes(ahead, pointerArea));
    const QImage oneStep = settled(pointerArea);
    desktop.hold(QStringLiteral("Left"));
    const bool goesOn = waitUntil([&] {
        const QImage seen = desktop.picture().copy(pointerArea);
        return !alike(seen, oneStep) && changes(seen, pointerArea) &&
               changes(desktop.picture().copy(pointerArea), pointerArea);
    });
    desktop.letGo(QStringLiteral("Left"));
    EXPECT_TRUE(goesOn);
}

TEST_F(KeysTest, AHeldReturnOpensOneScreen) {
    const QImage mainMenu = settled(gameArea);
    desktop.press(QStringLiteral("Return"));
    ASSERT_TRUE(changes(mainMenu, gameArea));
    const QImage countries = settled(gameArea);
    desktop.press(QStringLiteral("ctrl+n"));
    ASSERT_TRUE(changes(countries, gameArea));
    const QImage mainMenuAgain = settled(gameArea);
    desktop.hold(QStringLiteral("Return"));
    ASSERT_TRUE(changes(mainMenuAgain, gameArea));
    EXPECT_TRUE(alike(settled(gameArea), countries));
    EXPECT_TRUE(stays(countries, gameArea));
    desktop.letGo(QStringLiteral("Return"));
}

TEST_F(KeysTest, AHeldReturnWorksASwitchOnce) {
    const QImage off = afterShiftTab(); // from the first button to the switch
    desktop.hold(QStringLiteral("Return"));
    ASSERT_TRUE(changes(off, gameArea));
    const QImage on = settled(gameArea);
    EXPECT_TRUE(stays(on, gameArea));
    desktop.letGo(QStringLiteral("Return"));
    desktop.press(QStringLiteral("Return"));
    EXPECT_TRUE(waitUntil([&] { return alike(desktop.picture().copy(gameArea), off); }));
}

TEST_F(KeysTest, AfterTheGameMenuTheFocusIsWhereItWasRingAndAll) {
    const QImage seen = afterShiftTab();
    for (const char* key : {"Escape", "F10", "Return"}) {
        desktop.press(QStringLiteral("F10"));
        ASSERT_TRUE(changes(seen, gameArea)) << key;
        desktop.press(QString::fromLatin1(key));
        EXPECT_TRUE(waitUntil([&] { return alike(desktop.picture().copy(gameArea), seen); })) << key;
    }
}

// By the codes of the places: a name of a key is looked for in the layout, and most of these have no Latin letters.
TEST_F(KeysTest, ShortcutsWorkUnderEveryLayout) {
    const QImage mainMenu = settled(heading);
    for (const char* names : {"us", "ru", "gr", "ara", "kr", "us,ru"}) {
        const Layout layout(names);
        desktop.press(QStringLiteral("ctrl+59"));
        ASSERT_TRUE(changes(mainMenu, heading)) << "Ctrl+comma, " << names;
        desktop.press(QStringLiteral("ctrl+57"));
        ASSERT_TRUE(waitUntil([&] { return alike(desktop.picture().copy(heading), mainMenu); }))
            << "Ctrl+N, " << names;
    }
    const auto window = GameWindow::find();
    ASSERT_TRUE(window);
    const QRect before = window->frame();
    const Layout greek("gr");
    desktop.press(QStringLiteral("ctrl+super+41"));
    EXPECT_TRUE(waitUntil([&] { return window->frame() != before; })) << "Ctrl+Meta+F";
}

} // namespace vorbel
