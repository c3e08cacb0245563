// How the program starts, and what it says when it cannot.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

namespace {

constexpr QPoint court(600, 450);
const QColor courtGreen(42, 160, 96);

bool showsArena() {
    return waitUntil([] { return alike(Desktop::instance().picture().pixelColor(court), courtGreen); },
                     10'000);
}

int lines(const QString& text) {
    return static_cast<int>(text.count(QLatin1Char('\n')));
}

} // namespace

TEST(StartTest, HelpAndVersionAnswerAtOnceWithoutADisplay) {
    qint64 best = 1000;
    for (const char* option : {"--help", "--version", "--help", "--version", "--help"}) {
        QElapsedTimer clock;
        clock.start();
        Program program({QString::fromLatin1(option)}, {{QStringLiteral("DISPLAY"), QString()}});
        ASSERT_EQ(program.status(), 0);
        best = std::min(best, clock.elapsed());
        EXPECT_FALSE(program.output().isEmpty());
        EXPECT_EQ(program.errors(), QString());
    }
    EXPECT_LT(best, 50) << "ms";
}

TEST(StartTest, AnUnknownOptionIsOneClearLineAndStatus2) {
    Program program({QStringLiteral("--bogus")});
    EXPECT_EQ(program.status(), 2);
    EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
    EXPECT_TRUE(program.errors().contains(QStringLiteral("'--bogus'")));
}

TEST(StartTest, WithoutADisplayItSaysSoInOneLineAndStatus1) {
    for (const QString& display : {QString(), QStringLiteral(":9999")}) {
        Program program(
            {}, {{QStringLiteral("DISPLAY"), display}, {QStringLiteral("WAYLAND_DISPLAY"), QString()}});
        EXPECT_EQ(program.status(), 1);
        EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
    }
}

TEST(StartTest, AScreenshotIsAPictureOfTheArena) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("arena.png"));
    Program program({QStringLiteral("--screenshot"), file});
    EXPECT_EQ(program.status(), 0) << qUtf8Printable(program.errors());
    const QImage picture(file);
    EXPECT_EQ(picture.size(), QSize(1200, 800));
    EXPECT_TRUE(alike(picture.pixelColor(court), courtGreen));
}

TEST(StartTest, AScreenshotThatCannotBeWrittenIsOneClearLineAndStatus1) {
    Program program({QStringLiteral("--screenshot"), QStringLiteral("/nowhere/arena.png")});
    EXPECT_EQ(program.status(), 1);
    EXPECT_EQ(lines(program.errors()), 1) << qUtf8Printable(program.errors());
}

TEST(StartTest, TheGameGoesOnWithoutResourcesSoundAndSettings) {
    for (const Program::Environment& environment :
         {Program::Environment{{QStringLiteral("VORBEL_RESOURCES"), QStringLiteral("/nowhere")}},
          Program::Environment{{QStringLiteral("SDL_AUDIODRIVER"), QStringLiteral("none-such")}},
          Program::Environment{{QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/proc/nowhere")}}}) {
        Program game({}, environment);
        ASSERT_TRUE(Desktop::instance().focusGame()) << qUtf8Printable(game.errors());
        Desktop::instance().startMatch();
        EXPECT_TRUE(showsArena());
        Desktop::instance().press(QStringLiteral("space"));
        QThread::msleep(200);
        EXPECT_TRUE(game.isRunning());
    }
}

TEST(StartTest, WithoutOpenGlItSaysSoInOneLineAndTheMatchGoesOn) {
    for (const auto& environment :
         {Program::Environment{{QStringLiteral("QT_XCB_GL_INTEGRATION"), QStringLiteral("none")}},
          Program::Environment{{QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software")}},
          Program::Environment{{QStringLiteral("MESA_GL_VERSION_OVERRIDE"), QStringLiteral("2.1")}}}) {
        Program game({}, environment);
        ASSERT_TRUE(Desktop::instance().focusGame());
        EXPECT_TRUE(waitUntil([&game] { return game.errors().contains(QStringLiteral("OpenGL")); }, 5'000));
        Desktop::instance().startMatch();
        Desktop::instance().press(QStringLiteral("space"));
        QThread::msleep(300);
        EXPECT_TRUE(game.isRunning());
        EXPECT_EQ(lines(game.errors()), 1) << qUtf8Printable(game.errors());
    }
}

TEST(StartTest, TheDemonstrationPlaysAMatchAndLeavesPicturesOfItsStages) {
    const QTemporaryDir folder;
    Program program({QStringLiteral("--demo"), QStringLiteral("--screenshots"), folder.path()},
                    {{QStringLiteral("VORBEL_SPEED"), QStringLiteral("25")}});
    EXPECT_EQ(program.status(120'000), 0) << qUtf8Printable(program.errors());
    const QStringList pictures =
        QDir(folder.path()).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    ASSERT_GE(pictures.size(), 10) << qUtf8Printable(pictures.join(QLatin1Char(' ')));
    EXPECT_TRUE(pictures.first().contains(QStringLiteral("start")));
    EXPECT_TRUE(pictures.last().contains(QStringLiteral("result")));
    EXPECT_TRUE(alike(QImage(folder.filePath(pictures.first())).pixelColor(court), courtGreen));
}

} // namespace vorbel
